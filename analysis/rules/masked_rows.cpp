#include "analysis/rules/masked_rows.h"

#include <algorithm>
#include <array>
#include <set>
#include <utility>

namespace plateconfig {
namespace {

/// A row that takes plates, as the rows behind it meet it.
struct Taker {
  const ModelRow* row;
  unsigned classes;  ///< Of body colours.
};

enum class Cover { kWhole, kPart, kUnknown };

class MaskedRowsSearch {
 public:
  MaskedRowsSearch(const RuleModel& model, const PlateSpace& space, std::uint64_t work)
      : model_(model), space_(space), work_(work) {}

  MaskedRows Run() {
    for (const ModelRow& row : model_.rows) Judge(row);
    return std::move(found_);
  }

 private:
  void Judge(const ModelRow& row) {
    if (IsNeverMatching(row)) return;
    const unsigned classes = space_.AcceptedClasses(row.isSoft);
    const Cover cover = JudgeShadow(row, classes);
    if (cover == Cover::kWhole) return;
    if (cover == Cover::kUnknown) found_.undecided.push_back(row.row);
    if (cover == Cover::kPart && !model_.processes.empty() && !row.hasText)
      found_.withoutText.push_back(row.row);
    // What a shadowed row takes, others take before: only these here can be in the way of a later row.
    TakersLike(row).push_back({&row, classes});
  }

  bool IsNeverMatching(const ModelRow& row) {
    std::optional<Condition> condition = row.ImpossibleSize();
    if (!condition && row.hasProfile && !space_.HasProfileColors()) condition = Condition::kProfile;
    if (!condition && row.hasWireCutting && !space_.HasWireCuttingColors())
      condition = Condition::kWireCutting;
    if (!condition && space_.HasAnswers({row.hasProfile, row.hasWireCutting})) return false;
    found_.neverMatching.push_back({row.row, condition});
    return true;
  }

  Cover JudgeShadow(const ModelRow& row, unsigned classes) {
    work_.BeginQuestion(kPartsOfWork);
    const Box reach = WithoutZero(row.box);
    std::vector<Taker> takers;
    for (const Taker& taker : TakersLike(row)) {
      if ((taker.classes & classes) == 0 || !Meet(taker.row->box, reach)) continue;
      takers.push_back(taker);
      if ((classes & ~taker.classes) != 0 || !Contains(taker.row->box, reach)) continue;
      NoteShadow(row, classes, {taker});  // One row that takes everything: the common case.
      return Cover::kWhole;
    }
    if (takers.empty()) return Cover::kPart;
    std::set<std::size_t> used;
    const Cover cover = TestCover(reach, classes, takers, used);
    if (cover != Cover::kWhole) return cover;
    std::vector<Taker> blockers;
    blockers.reserve(used.size());
    for (const std::size_t i : used) blockers.push_back(takers[i]);
    if (!LeaveOutNeedless(reach, classes, blockers)) return Cover::kUnknown;
    NoteShadow(row, classes, blockers);
    return Cover::kWhole;
  }

  /// Whether the takers hold the box in all classes; `used` are some that do.
  Cover TestCover(const Box& box, unsigned classes, const std::vector<Taker>& takers,
                  std::set<std::size_t>& used) {
    for (unsigned bodyClass = 0; classes >> bodyClass != 0; ++bodyClass) {
      const unsigned bit = 1U << bodyClass;
      if ((classes & bit) == 0) continue;
      std::vector<Box> boxes;
      std::vector<std::size_t> indices;
      for (std::size_t i = 0; i < takers.size(); ++i) {
        if ((takers[i].classes & bit) == 0) continue;
        boxes.push_back(takers[i].row->box);
        indices.push_back(i);
      }
      const SearchEnd end = ForEachUncovered(
          box, boxes, work_, [](const Box&) { return false; },
          [&](std::size_t i) { used.insert(indices[i]); });
      if (end == SearchEnd::kStopped) return Cover::kPart;
      if (end == SearchEnd::kOutOfWork) return Cover::kUnknown;
    }
    return Cover::kWhole;
  }

  /// Takes away, the last first, each blocker without which the others still take everything. False when that
  /// could not be found out.
  bool LeaveOutNeedless(const Box& box, unsigned classes, std::vector<Taker>& blockers) {
    for (std::size_t i = blockers.size(); i-- > 0;) {
      std::vector<Taker> others = blockers;
      others.erase(others.begin() + static_cast<std::ptrdiff_t>(i));
      std::set<std::size_t> used;
      const Cover cover = TestCover(box, classes, others, used);
      if (cover == Cover::kUnknown) return false;
      if (cover == Cover::kWhole) blockers = std::move(others);
    }
    return true;
  }

  void NoteShadow(const ModelRow& row, unsigned classes, const std::vector<Taker>& blockers) {
    ShadowedRow shadowed;
    shadowed.row = row.row;
    shadowed.sameText = true;
    for (const Taker& blocker : blockers) {
      shadowed.blockers.push_back(blocker.row->row);
      shadowed.sameText &= blocker.row->processCells == row.processCells;
    }
    shadowed.witness = PlateInBoth(row, classes, blockers.front());
    const std::optional<int> taken = MatchedRow(*model_.tables, shadowed.witness);
    if (!taken || *taken >= row.row || !AcceptsAlone(*model_.tables, row.row, shadowed.witness)) {
      found_.unconfirmed.push_back({row.row, shadowed.witness});
      return;
    }
    shadowed.witnessRow = *taken;
    found_.shadowed.push_back(std::move(shadowed));
  }

  Plate PlateInBoth(const ModelRow& row, unsigned classes, const Taker& blocker) const {
    const auto& groups = space_.Groups();
    const auto group = std::find_if(groups.begin(), groups.end(), [&](const PlateGroup& candidate) {
      return (classes & blocker.classes) >> candidate.bodyClass & 1U &&
             candidate.Answers() == FaceAnswers{row.hasProfile, row.hasWireCutting};
    });
    return RoundPlate(space_, *group, Intersection(row.box, blocker.row->box));
  }

  std::vector<Taker>& TakersLike(const ModelRow& row) {
    return takers_[(row.hasProfile ? 1U : 0U) + (row.hasWireCutting ? 2U : 0U)];
  }

  static constexpr std::uint64_t kPartsOfWork = 8;

  const RuleModel& model_;
  const PlateSpace& space_;
  Work work_;
  std::array<std::vector<Taker>, 4> takers_;  // By what they want of the faces.
  MaskedRows found_;
};

}  // namespace

MaskedRows FindMaskedRows(const RuleModel& model, const PlateSpace& space, std::uint64_t work) {
  return MaskedRowsSearch(model, space, work).Run();
}

}  // namespace plateconfig
