#include "analysis/checks/rule_values.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string>

#include "rules/condition_texts.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

List ListOf(const std::vector<int>& numbers) {
  return List(numbers.begin(), numbers.end());
}

List ListOf(const std::vector<double>& numbers) {
  return List(numbers.begin(), numbers.end());
}

Value EndOf(double bound) {
  return std::isinf(bound) ? Value(nullptr) : Value(bound);
}

Object FeatureMembers(const PlateFeatures& features) {
  Object members;
  for (const ProcessRule::RuleType type : features.present) members.emplace_back(FeatureName(type), true);
  for (const auto& [type, colors] : features.colors) members.emplace_back(FeatureName(type), ListOf(colors));
  if (!features.diameters.empty())
    members.emplace_back(FeatureName(ProcessRule::RoundHoleDiameter), ListOf(features.diameters));
  if (features.holeCount) members.emplace_back(std::string(kHoleCountName), *features.holeCount);
  return members;
}

List NamesInUtf8(const std::set<std::string>& names) {
  List list;
  for (const std::string& name : names) list.emplace_back(GbkToUtf8(name));
  return list;
}

}  // namespace

std::string FeatureName(ProcessRule::RuleType type) {
  const auto text = std::find_if(kConditionTexts.begin(), kConditionTexts.end(),
                                 [&](const ConditionText& each) { return each.type == type; });
  return GbkToUtf8(text->text);
}

const char* NameOf(Condition condition) {
  switch (condition) {
    case Condition::kLength:
      return plate_members::kLength;
    case Condition::kWidth:
      return plate_members::kWidth;
    case Condition::kHeight:
      return plate_members::kThickness;
    case Condition::kWeight:
      return plate_members::kWeight;
    case Condition::kMaterial:
      return "material";
    case Condition::kProfile:
      return "profile";
    case Condition::kWireCutting:
      break;
  }
  return "wireCutting";
}

Words WordsOf(Condition condition) {
  switch (condition) {
    case Condition::kLength:
      return {"length", "长度"};
    case Condition::kWidth:
      return {"width", "宽度"};
    case Condition::kHeight:
      return {"thickness", "厚度"};
    case Condition::kWeight:
      return {"weight", "重量"};
    case Condition::kMaterial:
      return {"material", "材质"};
    case Condition::kProfile:
      return {"profile", "型面"};
    case Condition::kWireCutting:
      break;
  }
  return {"wire cutting", "线割"};
}

std::optional<std::size_t> SizeNamed(std::string_view name) {
  for (std::size_t size = 0; size < kSizeCount; ++size) {
    if (NameOf(kSizeConditions[size].condition) == name) return size;
  }
  return std::nullopt;
}

Value BoxValue(const Box& box) {
  Object sides;
  for (std::size_t size = 0; size < kSizeCount; ++size) {
    sides.emplace_back(NameOf(kSizeConditions[size].condition),
                       List{EndOf(box[size].low), EndOf(box[size].high)});
  }
  return sides;
}

Value GroupValue(const GroupName& group) {
  Object members = {{"colors", ListOf(group.colors)}};
  members.emplace_back(NameOf(Condition::kProfile), group.answers.profile);
  members.emplace_back(NameOf(Condition::kWireCutting), group.answers.wireCutting);
  return members;
}

Value GroupValue(const RegionGroup& group, bool answersAgree) {
  if (answersAgree) return GroupValue(GroupName{group.colors, group.before});
  return Object{{"colors", ListOf(group.colors)},
                {"oldProfile", group.before.profile},
                {"oldWireCutting", group.before.wireCutting},
                {"newProfile", group.after.profile},
                {"newWireCutting", group.after.wireCutting}};
}

Object PlateValue(const std::string& name, const Plate& plate, const PlateFeatures& features) {
  Object members = {{plate_members::kName, name}};
  for (const SizeCondition& size : kSizeConditions)
    members.emplace_back(NameOf(size.condition), plate.*size.value);
  if (plate.layer != 0) members.emplace_back(plate_members::kLayer, plate.layer);
  members.emplace_back(plate_members::kColor, plate.color);
  members.emplace_back(plate_members::kFaceColors, ListOf(plate.faceColors));
  const Object known = FeatureMembers(features);
  if (!known.empty()) members.emplace_back(plate_members::kFeatures, known);
  if (!features.customProcesses.empty())
    members.emplace_back(plate_members::kCustomProcesses, NamesInUtf8(features.customProcesses));
  return members;
}

Value WitnessValue(const Plate& plate, const PlateFeatures& features) {
  return PlateValue("witness", plate, features);
}

Value NewRowValue(const NewRow& row) {
  Object cells;
  for (const auto& [column, cell] : row) cells.emplace_back(GbkToUtf8(column), GbkToUtf8(cell));
  return cells;
}

}  // namespace plateconfig
