#include "plateconfig/holes/hole_type_reader.h"

#include <algorithm>

#include "analysis/text/shown_text.h"
#include "analysis/text/strict_values.h"
#include "config/text_helpers.h"
#include "plateconfig/holes/hole_fields.h"
#include "plateconfig/input/input_form.h"
#include "plateconfig/messages/language.h"

namespace plateconfig {
namespace {

void CheckColors(const HoleTypeInput& input, Reporter& reporter) {
  const std::vector<std::size_t> counts = SegmentCounts(input.type.countKey);
  for (std::size_t group = 0; group < counts.size(); ++group) {
    const std::size_t lists = (input.type.*kHoleGroups[group].colors).size();
    if (lists >= counts[group]) continue;
    const HoleFieldName& name = kHoleGroupNames[group].colors;
    reporter.Warning(input.place,
                     Say("the type {0} refuses every hole: {1} ({2}) has {3} lists for {4} segments; write 0 "
                         "for any colour",
                         "类型 {0} 不接受任何孔：{1}（{2}）只有 {3} 个列表，而有 {4} 段；任意颜色请写 0",
                         ShownText(input.name), name.json, name.column, lists, counts[group]));
  }
}

void CheckType(const HoleTypeInput& input, Reporter& reporter) {
  if (!SegmentCounts(input.type.countKey).empty()) return CheckColors(input, reporter);
  reporter.Warning(
      input.place,
      Say("no hole has the structure \"{1}\" of the type {0}; write the numbers of top, through and bottom "
          "segments like 1_1_0",
          "类型 {0} 的结构“{1}”不对应任何孔；请将顶、通、底的段数写成 1_1_0 这样的形式",
          ShownText(input.name), ShownText(input.type.countKey)));
}

}  // namespace

std::vector<std::size_t> SegmentCounts(const std::string& structure) {
  std::vector<std::size_t> counts;
  for (const std::string& piece : SplitString(structure, "_")) {
    const std::optional<int> count = StrictInteger(piece);
    // The hole's own structure has no leading zeros, and the two are compared byte for byte.
    if (!count || *count < 0 || IntToString(*count) != piece) return {};
    counts.push_back(static_cast<std::size_t>(*count));
  }
  return counts.size() == kHoleGroupCount ? counts : std::vector<std::size_t>();
}

std::vector<HoleTypeInput> ReadHoleTypes(std::istream& in, const std::string& file, Reporter& reporter) {
  std::vector<HoleTypeInput> types =
      IsJson(in, file) ? ReadHoleTypesFromJson(in, file, reporter) : ReadHoleTypesFromCsv(in, file, reporter);
  for (const HoleTypeInput& type : types) CheckType(type, reporter);
  return types;
}

}  // namespace plateconfig
