#include "plateconfig/input/separator.h"

#include "plateconfig/messages/language.h"

namespace plateconfig {
namespace {

std::string NameOfSeparator(const std::string& cell) {
  if (cell.find(';') != std::string::npos) return Say("semicolons", "分号");
  if (cell.find('\t') != std::string::npos) return Say("tabs", "制表符");
  if (cell.find("，") != std::string::npos) return Say("full-width commas", "全角逗号");
  return {};
}

}  // namespace

std::string OtherSeparator(const std::string& onlyCell) {
  const std::string name = NameOfSeparator(onlyCell);
  if (name.empty()) return {};
  return Say(
      "the columns are separated by {}, not by commas, so none of them is found; save the file as CSV with "
      "commas",
      "各列以{}而不是逗号分隔，因此找不到任何列；请存为以逗号分隔的 CSV", name);
}

}  // namespace plateconfig
