#include "plateconfig/holes/hole_reader.h"

#include <algorithm>
#include <deque>
#include <set>
#include <utility>

#include "plateconfig/input/csv_records.h"
#include "plateconfig/input/input_form.h"

namespace plateconfig {
namespace {

/// Puts the rows of each hole together.
class CsvHoleReader : public HoleReader {
 public:
  CsvHoleReader(std::istream& in, const std::string& file, Reporter& reporter)
      : rows_(in, file, SegmentFields(), reporter),
        file_(file),
        reporter_(reporter),
        next_(rows_.NextRow()) {}

  std::optional<HoleInput> Next() override {
    ReadAll();
    if (holes_.empty()) return std::nullopt;
    std::optional<HoleInput> hole = std::move(holes_.front());
    holes_.pop_front();
    return hole;
  }

 private:
  void ReadAll() {
    if (!next_) return;
    while (next_) ReadHole();
    holes_.erase(std::remove_if(holes_.begin(), holes_.end(),
                                [this](const HoleInput& hole) { return apart_.contains(hole.name); }),
                 holes_.end());
  }

  /// Takes the rows of one hole and keeps it unless one of them can not be used.
  void ReadHole() {
    HoleInput input{next_->record.holeName, next_->record.position, {}};
    bool isGood = HasOwnName(input);
    // A row that was lost may have belonged to the hole before it or to the one behind it.
    bool isComplete = !next_->isBehindALoss;
    do {
      isGood = isGood && next_->isGood;
      (input.hole.*kHoleGroups[next_->record.group].segments).push_back(next_->record.segment);
      next_ = rows_.NextRow();
      isComplete = isComplete && !(next_ ? next_->isBehindALoss : rows_.EndsBehindALoss());
    } while (next_ && GoesOn(input.name, next_->record.holeName));
    if (isGood && isComplete) {
      holes_.push_back(std::move(input));
    } else if (!input.name.empty()) {  // Else it is reported with the missing name.
      Report({.code = "hole-incomplete", .text = input.name}, input);
    }
  }

  static bool GoesOn(const std::string& hole, const std::string& name) {
    return name.empty() || name == hole;
  }

  bool HasOwnName(const HoleInput& input) {
    if (input.name.empty()) {
      Report({.code = "hole-no-name", .words = {Words{" and is passed over", "，被跳过"}}}, input);
      return false;
    }
    if (!names_.insert(input.name).second) {
      apart_.insert(input.name);
      Report({.code = "hole-apart", .text = input.name}, input);
    }
    return true;
  }

  void Report(Finding finding, const HoleInput& hole) {
    finding.place = PlaceIn(file_, hole.position);
    reporter_.Report(finding);
  }

  CsvRecords<SegmentInput> rows_;
  std::string file_;
  Reporter& reporter_;
  std::optional<CsvRecords<SegmentInput>::Row> next_;
  std::set<std::string> names_;
  std::set<std::string> apart_;  ///< Of `names_` those whose rows do not stand together.
  std::deque<HoleInput> holes_;  ///< Those that were not given yet.
};

}  // namespace

std::unique_ptr<HoleReader> ReadHoles(std::istream& in, const std::string& file, Reporter& reporter) {
  if (IsJson(in, file)) return std::make_unique<JsonRecords<HoleInput>>(in, file, HoleFields(), reporter);
  return std::make_unique<CsvHoleReader>(in, file, reporter);
}

}  // namespace plateconfig
