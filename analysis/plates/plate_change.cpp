#include "analysis/plates/plate_change.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "analysis/rules/plate_space.h"
#include "analysis/rules/witness.h"

namespace plateconfig {
namespace {

using Colors = std::vector<int>;

bool Has(const Colors& colors, int color) {
  return std::find(colors.begin(), colors.end(), color) != colors.end();
}

bool HaveCommonColor(const Colors& a, const Colors& b) {
  return std::find_first_of(a.begin(), a.end(), b.begin(), b.end()) != a.end();
}

const RuleRow* RowOfLine(const RuleTables& tables, int line) {
  const auto row = std::lower_bound(tables.ruleRows.begin(), tables.ruleRows.end(), line,
                                    [](const RuleRow& each, int wanted) { return each.lineNumber < wanted; });
  return row == tables.ruleRows.end() || row->lineNumber != line ? nullptr : &*row;
}

// ---- sizes and body ----

/// The sizes of the plates that the row accepts.
Box AcceptedSizes(const RuleRow& row) {
  Box box;
  for (std::size_t size = 0; size < kSizeCount; ++size) {
    const SizeRange& range = row.*kSizeConditions[size].range;
    box[size] = AcceptedValues({range.minimum, range.maximum});
  }
  return WithoutZero(box);
}

/// The end of the range as the table states it where that is accepted, since the tolerance behind it is no
/// number that anybody would write.
double NearestAccepted(double value, const Interval& accepted, const SizeRange& range) {
  if (value < accepted.low) return accepted.low;
  if (value <= accepted.high) return value;
  return accepted.low <= range.maximum && range.maximum <= accepted.high ? range.maximum : accepted.high;
}

void ChangeSizes(const RuleRow& row, const Box& accepted, Plate& plate) {
  for (std::size_t size = 0; size < kSizeCount; ++size) {
    double& value = plate.*kSizeConditions[size].value;
    value = NearestAccepted(value, accepted[size], row.*kSizeConditions[size].range);
  }
}

void ChangeBody(const Colors& accepted, Plate& plate) {
  if (!accepted.empty() && !Has(accepted, plate.color)) plate.color = accepted.front();
}

// ---- faces ----

/// The face colours of a plate on their way to what a row wants.
class Faces {
 public:
  Faces(const RuleTables& tables, const RuleRow& row, Colors colors)
      : tables_(tables), row_(row), colors_(std::move(colors)) {
    std::erase_if(colors_, [this](int color) { return IsUnwanted(color); });
  }

  /// False when no colour gives what the condition wants without what another one refuses.
  bool Meet(const FaceCondition& condition) {
    if (!IsMissing(condition)) return true;
    const Colors& all = tables_.*condition.colors;
    Colors wanted;
    std::copy_if(all.begin(), all.end(), std::back_inserter(wanted),
                 [this](int color) { return !IsUnwanted(color); });
    if (wanted.empty()) return false;
    // A colour that meets two conditions at once leaves the plate closer to what it was.
    colors_.push_back(*std::max_element(wanted.begin(), wanted.end(),
                                        [this](int a, int b) { return MetBy(a) < MetBy(b); }));
    std::sort(colors_.begin(), colors_.end());
    return true;
  }

  const Colors& ListOfColors() const { return colors_; }

 private:
  bool IsUnwanted(int color) const {
    return std::any_of(
        std::begin(kFaceConditions), std::end(kFaceConditions),
        [&](const FaceCondition& each) { return !(row_.*each.wanted) && Has(tables_.*each.colors, color); });
  }

  bool IsMissing(const FaceCondition& condition) const {
    return row_.*condition.wanted && !HaveCommonColor(colors_, tables_.*condition.colors);
  }

  /// How many conditions that are still missing the colour meets.
  std::ptrdiff_t MetBy(int color) const {
    return std::count_if(
        std::begin(kFaceConditions), std::end(kFaceConditions),
        [&](const FaceCondition& each) { return IsMissing(each) && Has(tables_.*each.colors, color); });
  }

  const RuleTables& tables_;
  const RuleRow& row_;
  Colors colors_;
};

bool ChangeFaces(const RuleTables& tables, const RuleRow& row, Plate& plate) {
  Faces faces(tables, row, plate.faceColors);
  for (const FaceCondition& condition : kFaceConditions) {
    if (!faces.Meet(condition)) return false;
  }
  plate.faceColors = faces.ListOfColors();
  return true;
}

}  // namespace

std::optional<PlateChange> ChangeFor(const RuleTables& tables, int line, const Plate& plate) {
  const RuleRow* const row = RowOfLine(tables, line);
  if (row == nullptr) return std::nullopt;
  const Box accepted = AcceptedSizes(*row);
  Plate changed = plate;
  if (IsEmpty(accepted) || !ChangeFaces(tables, *row, changed)) return std::nullopt;
  ChangeSizes(*row, accepted, changed);
  ChangeBody(tables.MaterialColors(row->material), changed);
  const std::optional<int> matched = MatchedRow(tables, changed);
  if (!matched || (*matched != line && !AcceptsAlone(tables, line, changed))) return std::nullopt;
  return PlateChange{changed, *matched};
}

}  // namespace plateconfig
