#include "analysis/rules/plate_space.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <map>

namespace plateconfig {
namespace {

constexpr unsigned kProfileBit = 1;
constexpr unsigned kWireCuttingBit = 2;
constexpr unsigned kBitsPerTable = 2;

// ---- rows ----

/// The one place that knows how the rule tables hold a row.
ModelRow ReadRow(const RuleRow& row) {
  ModelRow model;
  model.row = row.lineNumber;
  for (std::size_t size = 0; size < kSizeCount; ++size) {
    const SizeRange& range = row.*kSizeConditions[size].range;
    model.stated[size] = {range.minimum, range.maximum};
  }
  model.isSoft = row.material == Material::kSoft;
  model.hasProfile = row.hasProfile;
  model.hasWireCutting = row.hasWireCutting;
  return model;
}

/// Gives each list of cells a number, equal lists the same one.
class CellNumbers {
 public:
  int NumberOf(const std::vector<std::string>& cells) {
    return numbers_.emplace(cells, static_cast<int>(numbers_.size())).first->second;
  }

 private:
  std::map<std::vector<std::string>, int> numbers_;
};

// ---- colours ----

using ColorLists = std::vector<const std::vector<int>*>;

/// Body colours by table: hard, soft. Face colours by table: profile, wire cutting, in the order of their
/// bits.
ColorLists BodyLists(const std::vector<const RuleModel*>& models) {
  ColorLists lists;
  for (const RuleModel* model : models) {
    lists.push_back(&model->tables->hardMaterialColors);
    lists.push_back(&model->tables->softMaterialColors);
  }
  return lists;
}

ColorLists FaceLists(const std::vector<const RuleModel*>& models) {
  ColorLists lists;
  for (const RuleModel* model : models) {
    lists.push_back(&model->tables->profileColors);
    lists.push_back(&model->tables->wireCuttingColors);
  }
  return lists;
}

/// The classes that have a colour, the one that no list has first.
std::vector<ColorClass> ClassesOf(const ColorLists& lists) {
  std::map<int, unsigned> listsOfColor;
  for (std::size_t i = 0; i < lists.size(); ++i) {
    for (const int color : *lists[i]) listsOfColor[color] |= 1U << i;
  }
  std::map<unsigned, std::vector<int>> byLists = {{0, {}}};
  for (const auto& [color, bits] : listsOfColor) byLists[bits].push_back(color);
  std::vector<ColorClass> classes;
  classes.reserve(byLists.size());
  for (auto& [bits, colors] : byLists) classes.push_back({bits, std::move(colors)});
  return classes;
}

/// What faces of these colours can answer together, ascending.
std::vector<unsigned> PossibleAnswers(const std::vector<ColorClass>& faceClasses) {
  std::vector<unsigned> answers = {0};
  for (const ColorClass& face : faceClasses) {
    const std::vector<unsigned> without = answers;
    for (const unsigned other : without) answers.push_back(other | face.lists);
    std::sort(answers.begin(), answers.end());
    answers.erase(std::unique(answers.begin(), answers.end()), answers.end());
  }
  return answers;
}

/// An empty list accepts every class.
unsigned ClassesThatListAccepts(const std::vector<int>& list, std::size_t listIndex,
                                const std::vector<ColorClass>& classes) {
  unsigned accepted = 0;
  for (std::size_t i = 0; i < classes.size(); ++i) {
    if (list.empty() || (classes[i].lists >> listIndex & 1U) != 0) accepted |= 1U << i;
  }
  return accepted;
}

}  // namespace

bool StatedRange::IsStated() const {
  return *this != StatedRange{0, kUnboundedMaximum};
}

Interval AcceptedValues(const StatedRange& range) {
  constexpr double kGreatest = std::numeric_limits<double>::max();
  const double low = range.minimum > 0 ? range.minimum : 0;  // Also for what is not a number.
  if (std::isnan(range.maximum)) return {low, kGreatest};
  return {low, std::min(range.maximum + kMaximumTolerance, kGreatest)};
}

std::optional<Condition> ModelRow::ImpossibleSize() const {
  for (std::size_t size = 0; size < kSizeCount; ++size) {
    const Condition condition = kSizeConditions[size].condition;
    const bool onlyZero = condition != Condition::kWeight && box[size].high == 0;
    if (box[size].IsEmpty() || onlyZero) return condition;
  }
  return std::nullopt;
}

std::vector<std::string> ProcessCells(const RuleModel& model, int row) {
  std::vector<std::string> cells;
  for (const std::string& process : model.processes)
    cells.push_back(model.tables->ruleTable.GetItemValue(process, row - 1));
  return cells;
}

RuleModel MakeRuleModel(const RuleTables& tables) {
  RuleModel model;
  model.tables = &tables;
  for (const ProcessRule& rule : tables.processRules) model.processes.push_back(rule.GetRuleName());
  CellNumbers numbers;
  for (const RuleRow& read : tables.ruleRows) {
    ModelRow row = ReadRow(read);
    std::transform(row.stated.begin(), row.stated.end(), row.box.begin(), AcceptedValues);
    const std::vector<std::string> cells = ProcessCells(model, row.row);
    row.processCells = numbers.NumberOf(cells);
    row.hasText = std::any_of(cells.begin(), cells.end(), [](const auto& cell) { return !cell.empty(); });
    model.rows.push_back(row);
  }
  return model;
}

FaceAnswers PlateGroup::Answers(std::size_t table) const {
  const unsigned bits = answers >> (kBitsPerTable * table);
  return {(bits & kProfileBit) != 0, (bits & kWireCuttingBit) != 0};
}

PlateSpace::PlateSpace(const std::vector<const RuleModel*>& models) {
  const ColorLists bodyLists = BodyLists(models);
  bodyClasses_ = ClassesOf(bodyLists);
  faceClasses_ = ClassesOf(FaceLists(models));
  for (std::size_t i = 0; i < bodyLists.size(); i += 2) {
    acceptedClasses_.push_back({ClassesThatListAccepts(*bodyLists[i], i, bodyClasses_),
                                ClassesThatListAccepts(*bodyLists[i + 1], i + 1, bodyClasses_)});
  }
  for (std::size_t body = 0; body < bodyClasses_.size(); ++body) {
    for (const unsigned answers : PossibleAnswers(faceClasses_)) groups_.push_back({body, answers});
  }
}

unsigned PlateSpace::AcceptedClasses(bool isSoft, std::size_t table) const {
  return acceptedClasses_[table][isSoft ? 1 : 0];
}

bool PlateSpace::Admits(const ModelRow& row, const PlateGroup& group, std::size_t table) const {
  return group.Answers(table) == FaceAnswers{row.hasProfile, row.hasWireCutting} &&
         (AcceptedClasses(row.isSoft, table) >> group.bodyClass & 1U) != 0;
}

bool PlateSpace::HasAnswers(const FaceAnswers& answers, std::size_t table) const {
  return std::any_of(groups_.begin(), groups_.end(),
                     [&](const PlateGroup& group) { return group.Answers(table) == answers; });
}

bool PlateSpace::HasProfileColors(std::size_t table) const {
  return HasAnswers({true, false}, table) || HasAnswers({true, true}, table);
}

bool PlateSpace::HasWireCuttingColors(std::size_t table) const {
  return HasAnswers({false, true}, table) || HasAnswers({true, true}, table);
}

bool PlateSpace::AnswersAgree() const {
  return std::all_of(groups_.begin(), groups_.end(),
                     [](const PlateGroup& group) { return group.Answers(0) == group.Answers(1); });
}

std::size_t PlateSpace::ClassOf(int bodyColor) const {
  const auto found = std::find_if(bodyClasses_.begin(), bodyClasses_.end(), [&](const ColorClass& each) {
    return std::binary_search(each.colors.begin(), each.colors.end(), bodyColor);
  });
  // The first class is of the colours that no list has.
  return found == bodyClasses_.end() ? 0 : static_cast<std::size_t>(found - bodyClasses_.begin());
}

int PlateSpace::BodyColor(std::size_t bodyClass) const {
  const std::vector<int>& colors = bodyClasses_[bodyClass].colors;
  if (!colors.empty()) return colors.front();
  const auto isListed = [&](int color) {
    return std::any_of(bodyClasses_.begin(), bodyClasses_.end(), [&](const ColorClass& other) {
      return std::binary_search(other.colors.begin(), other.colors.end(), color);
    });
  };
  int color = 1;
  while (isListed(color)) ++color;
  return color;
}

std::vector<int> PlateSpace::FaceColors(unsigned answers) const {
  std::vector<int> colors;
  unsigned missing = answers;
  // One colour that gives several answers stands before several that give one each.
  for (auto face = faceClasses_.rbegin(); face != faceClasses_.rend(); ++face) {
    if ((face->lists & ~answers) != 0 || (face->lists & missing) == 0) continue;
    colors.push_back(face->colors.front());
    missing &= ~face->lists;
  }
  std::sort(colors.begin(), colors.end());
  return colors;
}

}  // namespace plateconfig
