#include "plateconfig/answers/plate_outcome.h"

#include "plateconfig/messages/language.h"
#include "plateconfig/messages/screen_text.h"

namespace plateconfig {

const char* NameOf(PlateStatus status) {
  switch (status) {
    case PlateStatus::kWritten:
      return "written";
    case PlateStatus::kNoRow:
      return "no-row";
    case PlateStatus::kNoText:
      break;
  }
  return "no-text";
}

PlateStatus StatusOf(std::optional<int> line, bool writesText) {
  if (!line) return PlateStatus::kNoRow;
  return writesText ? PlateStatus::kWritten : PlateStatus::kNoText;
}

PlateStatus OutcomeSink::Status() const {
  return StatusOf(line_, writesText_);
}

void PlateTally::Count(PlateStatus status) {
  switch (status) {
    case PlateStatus::kWritten:
      ++written_;
      return;
    case PlateStatus::kNoRow:
      ++noRow_;
      return;
    case PlateStatus::kNoText:
      ++noText_;
      return;
  }
}

std::string PlateTally::Line(const std::string& configuration) const {
  const std::size_t all = written_ + noRow_ + noText_;
  std::string line =
      Say("{0} {1}: {2} written", "{0} 块板：{2} 块已写出", all, all == 1 ? "plate" : "plates", written_);
  if (noRow_ > 0) line += Say(", {} without a row", "，{} 块没有符合的行", noRow_);
  if (noText_ > 0) line += Say(", {} without a text", "，{} 块没有文本", noText_);
  if (!configuration.empty()) line += Say("; configuration {}", "；配置 {}", OnOneLine(configuration));
  return line;
}

}  // namespace plateconfig
