#include "plateconfig/messages/reporter.h"

namespace plateconfig {

std::string ToString(const Place& place) {
  if (place.line == 0) return place.file;
  std::string text = place.file + ":" + std::to_string(place.line);
  if (place.column != 0) text += ":" + std::to_string(place.column);
  return text;
}

void Reporter::Error(const Place& place, const std::string& text) {
  hasErrors_ = true;
  Write(place, "error", text);
}

void Reporter::Warning(const Place& place, const std::string& text) {
  hasFindings_ = true;
  Write(place, "warning", text);
}

void Reporter::Write(const Place& place, const char* severity, const std::string& text) {
  if (prepare_) prepare_();
  err_ << ToString(place) << ": " << severity << ": " << text << "\n";
}

}  // namespace plateconfig
