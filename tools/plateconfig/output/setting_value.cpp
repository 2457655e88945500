#include "plateconfig/output/setting_value.h"

#include "config/numbers.h"
#include "plateconfig/messages/language.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

using Json = nlohmann::ordered_json;

bool HasManyValues(const ColumnSchema& column) {
  return column.isList || column.isRowColumn;
}

Json CellToJson(CellType type, const std::string& cell) {
  switch (type) {
    case CellType::kNumber: {
      const Json number = ParseDouble(cell);
      return number.dump() == "null" ? Json(cell) : number;
    }
    case CellType::kInteger:
      return ParseInt(cell);
    case CellType::kFlag:
      return cell == FlagText(true);
    case CellType::kText:
      break;
  }
  return GbkToUtf8(cell);
}

}  // namespace

const char* NameOf(Source source) {
  switch (source) {
    case Source::kTable:
      return "table";
    case Source::kAbsent:
      return "absent column";
    case Source::kClass:
      break;
  }
  return "class";
}

Json SettingToJson(const ColumnSchema& column, const Cells& value) {
  if (!HasManyValues(column)) return CellToJson(column.type, value.front());
  Json values = Json::array();
  for (const std::string& cell : value) values.push_back(CellToJson(column.type, cell));
  return values;
}

std::string SettingText(const Cells& value) {
  if (value.empty()) return Say("none", "无");
  std::string text;
  for (const std::string& cell : value) {
    if (!text.empty()) text += ", ";
    text += cell.empty() ? "\"\"" : OneLine(cell);
  }
  return text;
}

std::string OneLine(const std::string& gbk) {
  std::string text;
  for (const char c : GbkToUtf8(gbk)) {
    const bool isControl = static_cast<unsigned char>(c) < 0x20;
    text += c == '\n' ? "\\n" : isControl ? "\xEF\xBF\xBD" : std::string(1, c);  // U+FFFD
  }
  return text;
}

}  // namespace plateconfig
