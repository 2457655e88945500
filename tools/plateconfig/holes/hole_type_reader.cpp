#include "plateconfig/holes/hole_type_reader.h"

#include <optional>
#include <utility>

#include "analysis/text/shown_text.h"
#include "analysis/text/strict_values.h"
#include "config/text_helpers.h"
#include "plateconfig/holes/hole_fields.h"
#include "plateconfig/input/input_form.h"

namespace plateconfig {
namespace {

/// Warns of types that can not accept any hole.
class TypeCheck {
 public:
  TypeCheck(const std::string& file, Reporter& reporter) : file_(file), reporter_(reporter) {}

  void Run(const HoleTypeInput& input) {
    const std::vector<std::size_t> counts = SegmentCounts(input.type.countKey);
    if (counts.empty()) {
      Report({.code = "hole-type-structure", .text = input.type.countKey, .words = {ShownText(input.name)}},
             input);
    }
    for (std::size_t group = 0; group < counts.size(); ++group) CheckColors(input, group, counts[group]);
  }

 private:
  void CheckColors(const HoleTypeInput& input, std::size_t group, std::size_t segments) {
    const std::size_t lists = (input.type.*kHoleGroups[group].colors).size();
    if (lists >= segments) return;
    const FieldNames& names = kHoleGroupNames[group].colors;
    Report({.code = "hole-type-refuses-all",
            .words = {ShownText(input.name), std::string(names.member), std::string(names.column),
                      std::to_string(lists), std::to_string(segments)}},
           input);
  }

  void Report(Finding finding, const HoleTypeInput& input) {
    finding.place = PlaceIn(file_, input.position);
    reporter_.Report(finding);
  }

  const std::string& file_;
  Reporter& reporter_;
};

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
  const auto reader = ReadRecords(in, file, HoleTypeFields(), reporter);
  std::vector<HoleTypeInput> types;
  while (std::optional<HoleTypeInput> type = reader->Next()) types.push_back(std::move(*type));
  TypeCheck check(file, reporter);
  for (const HoleTypeInput& type : types) check.Run(type);
  return types;
}

}  // namespace plateconfig
