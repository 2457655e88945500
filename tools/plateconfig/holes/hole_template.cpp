#include "plateconfig/holes/hole_template.h"

#include <algorithm>
#include <map>
#include <vector>

#include "analysis/text/table_text.h"
#include "plateconfig/holes/hole_fields.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

using Cells = std::map<std::string, std::string, std::less<>>;

template <typename Record>
std::string Written(const RecordKind<Record>& kind, const std::vector<std::string_view>& first,
                    const std::vector<Cells>& rows) {
  std::vector<std::string_view> columns = first;
  for (const std::string_view column : Names(kind.fields, &FieldNames::column)) {
    if (std::find(first.begin(), first.end(), column) == first.end()) columns.push_back(column);
  }
  std::vector<std::string> header;
  header.reserve(columns.size());
  for (const std::string_view column : columns) header.push_back(Utf8ToGbk(column));
  std::string text = CsvLine(header);
  for (const Cells& row : rows) {
    std::vector<std::string> cells;
    for (const std::string_view column : columns) {
      const auto cell = row.find(column);
      cells.push_back(cell == row.end() ? std::string() : Utf8ToGbk(cell->second));
    }
    text += CsvLine(cells);
  }
  return text;
}

}  // namespace

std::string HoleTemplate() {
  return Written(SegmentFields(), {"孔名称", "位置", "直径", "颜色", "高度"},
                 {{{"孔名称", "A板-M8-1"},
                   {"位置", "顶"},
                   {"直径", "14"},
                   {"颜色", "36"},
                   {"高度", "9"},
                   {"R高度", "0"},
                   {"X", "90"},
                   {"Y", "60"},
                   {"Z", "90"}},
                  {{"位置", "通"},
                   {"直径", "9"},
                   {"颜色", "36"},
                   {"高度", "81"},
                   {"R高度", "0"},
                   {"X", "90"},
                   {"Y", "60"},
                   {"Z", "81"}}});
}

std::string HoleTypeTemplate() {
  return Written(HoleTypeFields(), {"名称", "结构"},
                 {{{"名称", "M8沉头螺丝孔"},
                   {"结构", "1_1_0"},
                   {"顶颜色", "36_186"},
                   {"顶直径", "14"},
                   {"通颜色", "36_186"},
                   {"通直径", "9"},
                   {"说明", "M8 内六角螺丝，沉头深 9"}}});
}

}  // namespace plateconfig
