#include "plateconfig/holes/hole_type_reader.h"

#include <array>
#include <map>
#include <optional>
#include <utility>

#include "analysis/text/folded_name.h"
#include "analysis/text/shown_text.h"
#include "analysis/text/strict_values.h"
#include "config/text_helpers.h"
#include "plateconfig/holes/hole_fields.h"
#include "plateconfig/input/input_form.h"

namespace plateconfig {
namespace {

/// The types that have segments of a group.
struct GroupUse {
  std::size_t types = 0;
  std::size_t withoutDiameters = 0;
};

/// Warns of types that can not accept any hole, or others than it looks.
class TypeCheck {
 public:
  TypeCheck(const std::string& file, bool hasColumns, const std::vector<HoleTypeInput>& types,
            Reporter& reporter)
      : file_(file), hasColumns_(hasColumns), types_(types), reporter_(reporter) {}

  void Run() {
    CountUses();
    for (const HoleTypeInput& type : types_) {
      CheckName(type);
      const std::vector<std::size_t> counts = SegmentCounts(type.type.countKey);
      if (counts.empty()) {
        Report({.code = "hole-type-structure", .text = type.type.countKey, .words = {ShownText(type.name)}},
               type);
      }
      for (std::size_t group = 0; group < counts.size(); ++group) CheckGroup(type, group, counts[group]);
    }
  }

 private:
  void CountUses() {
    for (const HoleTypeInput& input : types_) {
      const std::vector<std::size_t> counts = SegmentCounts(input.type.countKey);
      for (std::size_t group = 0; group < counts.size(); ++group) {
        if (counts[group] == 0) continue;
        ++uses_[group].types;
        if ((input.type.*kHoleGroups[group].diameters).empty()) ++uses_[group].withoutDiameters;
      }
    }
  }

  void CheckName(const HoleTypeInput& input) {
    const auto [first, isNew] = lines_.emplace(input.name, input.position.line);
    if (!isNew) {
      Report({.code = "hole-type-name-twice", .text = input.name, .words = {std::to_string(first->second)}},
             input);
    }
    const std::string bare(WithoutOuterBlanks(input.name));
    if (bare != input.name) Report({.code = "text-blank", .text = input.name, .fix = bare}, input);
  }

  void CheckGroup(const HoleTypeInput& input, std::size_t group, std::size_t segments) {
    const HoleGroupNames& names = kHoleGroupNames[group];
    const auto& colors = input.type.*kHoleGroups[group].colors;
    const auto& diameters = input.type.*kHoleGroups[group].diameters;
    if (colors.size() < segments) {
      Report({.code = "hole-type-refuses-all",
              .columnName = ColumnName(names.colors),
              .words = {ShownText(input.name), std::string(names.colors.member),
                        std::string(names.colors.column), std::to_string(colors.size()),
                        std::to_string(segments)}},
             input);
    }
    CheckColors(input, names, colors);
    if (segments == 0 && !colors.empty()) ReportUnused(input, names, names.colors);
    if (segments == 0 && !diameters.empty()) ReportUnused(input, names, names.diameters);
    if (segments > 0 && diameters.empty() && IsTheOnlyOpenOne(group)) {
      Report({.code = "hole-type-no-diameters",
              .columnName = ColumnName(names.diameters),
              .words = {ShownText(input.name), names.name}},
             input);
    }
  }

  void CheckColors(const HoleTypeInput& input, const HoleGroupNames& names,
                   const std::vector<std::vector<int>>& lists) {
    for (const std::vector<int>& list : lists) {
      for (const int color : list) {
        if (color >= 0 && color <= kLastColor) continue;
        Report({.code = "hole-type-color",
                .columnName = ColumnName(names.colors),
                .text = std::to_string(color)},
               input);
      }
    }
  }

  void ReportUnused(const HoleTypeInput& input, const HoleGroupNames& names, const FieldNames& field) {
    Report({.code = "hole-type-list-unused",
            .columnName = ColumnName(field),
            .words = {ShownText(input.name), names.name,
                      std::string(hasColumns_ ? field.column : field.member)}},
           input);
  }

  /// Whether all types with segments of the group have diameters for them but one; among few nothing is
  /// usual.
  bool IsTheOnlyOpenOne(std::size_t group) const {
    constexpr std::size_t kFew = 3;
    return uses_[group].withoutDiameters == 1 && uses_[group].types > kFew;
  }

  std::string ColumnName(const FieldNames& names) const {
    return hasColumns_ ? std::string(names.column) : std::string();
  }

  void Report(Finding finding, const HoleTypeInput& input) {
    finding.place = PlaceIn(file_, input.position);
    reporter_.Report(finding);
  }

  const std::string& file_;
  bool hasColumns_;
  const std::vector<HoleTypeInput>& types_;
  Reporter& reporter_;
  std::array<GroupUse, kHoleGroupCount> uses_{};
  std::map<std::string, std::size_t> lines_;  ///< Of the first type of each name.
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
  const bool hasColumns = !IsJson(in, file);
  const auto reader = ReadRecords(in, file, HoleTypeFields(), reporter);
  std::vector<HoleTypeInput> types;
  while (std::optional<HoleTypeInput> type = reader->Next()) types.push_back(std::move(*type));
  TypeCheck(file, hasColumns, types, reporter).Run();
  return types;
}

}  // namespace plateconfig
