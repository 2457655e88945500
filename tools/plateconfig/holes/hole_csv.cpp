#include <set>
#include <utility>

#include "analysis/text/shown_text.h"
#include "analysis/text/strict_values.h"
#include "plateconfig/holes/hole_fields.h"
#include "plateconfig/holes/hole_reader.h"
#include "plateconfig/input/cell_texts.h"
#include "plateconfig/input/csv_records.h"

namespace plateconfig {
namespace {

struct SegmentRow {
  std::string holeName;  ///< Empty when the row goes on with the hole of the row before.
  std::size_t group = 0;
  HoleInfo segment;
};

using SegmentField = CsvField<SegmentRow>;

std::string StoreNumber(const std::string& text, double& value) {
  const auto number = StrictNumber(text);
  if (!number) return NotANumber(text);
  value = *number;
  return {};
}

SegmentField GroupField() {
  return {kGroupColumn, true, [](const std::string& text, SegmentRow& row) -> std::string {
            for (std::size_t group = 0; group < kHoleGroupCount; ++group) {
              if (text != kHoleGroupNames[group].cell) continue;
              row.group = group;
              return {};
            }
            return NotAGroup(text);
          }};
}

SegmentField ColorField() {
  return {kSegmentColor.column, true, [](const std::string& text, SegmentRow& row) -> std::string {
            const auto color = StrictInteger(text);
            if (!color) return NotAnInteger(text);
            row.segment.color = *color;
            return {};
          }};
}

std::vector<SegmentField> SegmentFields() {
  std::vector<SegmentField> fields = {GroupField(), ColorField()};
  // The column has to be there, but its cells may be empty; the reader sees to that.
  fields.push_back({kHoleName.column, true, [](const std::string& text, SegmentRow& row) {
                      row.holeName = text;
                      return std::string();
                    }});
  for (const SegmentNumberField& field : kSegmentNumbers) {
    fields.push_back(
        {field.name.column, field.isRequired, [&field](const std::string& text, SegmentRow& row) {
           return StoreNumber(text, row.segment.*field.value);
         }});
  }
  for (const CoordinateField& field : kCoordinates) {
    fields.push_back({field.column, false, [&field](const std::string& text, SegmentRow& row) {
                        return StoreNumber(text, row.segment.origin.*field.value);
                      }});
  }
  return fields;
}

class CsvHoleReader : public HoleReader {
 public:
  CsvHoleReader(std::istream& in, const std::string& file, Reporter& reporter)
      : rows_(in, file, SegmentFields(), reporter), reporter_(reporter), next_(rows_.Next()) {}

  std::optional<HoleInput> Next() override {
    while (next_) {
      HoleInput hole;
      if (ReadHole(hole)) return hole;
    }
    return std::nullopt;
  }

 private:
  /// Takes the rows of one hole; false when one of them can not be used.
  bool ReadHole(HoleInput& input) {
    input.name = next_->record.holeName;
    input.place = next_->place;
    bool isGood = HasOwnName(input);
    // A row that was lost may have belonged to the hole before it or to the one behind it.
    bool isComplete = !next_->isBehindALoss;
    do {
      isGood = isGood && next_->isGood;
      (input.hole.*kHoleGroups[next_->record.group].segments).push_back(next_->record.segment);
      next_ = rows_.Next();
      isComplete = isComplete && !(next_ ? next_->isBehindALoss : rows_.EndsBehindALoss());
    } while (next_ && GoesOn(input.name, next_->record.holeName));
    if (!isGood || !isComplete) ReportPassedOver(input);
    return isGood && isComplete;
  }

  static bool GoesOn(const std::string& hole, const std::string& name) {
    return name.empty() || name == hole;
  }

  bool HasOwnName(const HoleInput& input) {
    if (input.name.empty()) {
      reporter_.Error(input.place, Say("the hole has no name and is passed over", "孔没有名称，被跳过"));
      return false;
    }
    if (!names_.insert(input.name).second) {
      reporter_.Warning(input.place,
                        Say("a hole \"{}\" stood further up; the rows of one hole must stand together",
                            "前面已有孔“{}”；同一个孔的各行必须连在一起", ShownText(input.name)));
    }
    return true;
  }

  void ReportPassedOver(const HoleInput& input) {
    if (input.name.empty()) return;  // This is reported with the missing name.
    reporter_.Error(input.place, Say("the hole \"{}\" is passed over because not all of its rows can be used",
                                     "孔“{}”有无法使用的行，被跳过", ShownText(input.name)));
  }

  CsvRecords<SegmentRow> rows_;
  Reporter& reporter_;
  std::optional<CsvRecords<SegmentRow>::Row> next_;
  std::set<std::string> names_;
};

}  // namespace

std::unique_ptr<HoleReader> ReadHolesFromCsv(std::istream& in, const std::string& file, Reporter& reporter) {
  return std::make_unique<CsvHoleReader>(in, file, reporter);
}

}  // namespace plateconfig
