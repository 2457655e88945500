// Where two configurations' rules write different things: see analysis/pictures/rule_changes.h.

#include <nlohmann/json.hpp>

#include "analysis/checks/rule_values.h"
#include "analysis/pictures/rule_changes.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/output/findings_json.h"
#include "plateconfig/output/json_output.h"
#include "plateconfig/pictures/map_json.h"
#include "plateconfig/pictures/pictures.h"

namespace plateconfig {
namespace {

using Json = nlohmann::ordered_json;

Json ToJson(const ChangedGroup& group, bool answersAgree) {
  Json json = ToJson(GroupValue(group.group, answersAgree));
  json["example"] = ToJson(WitnessValue(group.example));
  json["regions"] = group.regions;
  return json;
}

Json ToJson(const ChangedBox& changed, bool answersAgree) {
  Json json = ToJson(changed.box);
  json["oldRow"] = OrNull(changed.oldRow);
  json["newRow"] = OrNull(changed.newRow);
  if (!answersAgree) json["group"] = ToJson(GroupValue(changed.group, answersAgree));
  return json;
}

Json SizesToJson(const MapSizes& sizes) {
  Json json;
  for (std::size_t size = 0; size < kSizeCount; ++size)
    json[NameOfSize(size)] = {{"shown", ToJson(sizes[size].shown)}, {"bounds", sizes[size].bounds}};
  return json;
}

Json ToJson(const RuleChanges& changes, const MapQuestion& question) {
  Json groups = Json::array();
  for (const ChangedGroup& group : changes.groups) groups.push_back(ToJson(group, changes.answersAgree));
  Json regions = Json::array();
  for (const ChangedBox& box : changes.boxes) regions.push_back(ToJson(box, changes.answersAgree));
  return {{"x", AxisToJson(changes.sizes, question.x)},
          {"y", AxisToJson(changes.sizes, question.y)},
          {"plate", PlateToJson(changes.bodyColor, question.answers)},
          {"fixed", FixedToJson(changes.fixed, question)},
          {"sizes", SizesToJson(changes.sizes)},
          {"answersAgree", changes.answersAgree},
          {"groups", groups},
          {"regions", regions},
          {"complete", changes.isComplete}};
}

}  // namespace

void WriteChanges(const PictureJob& job, const Streams& streams, Reporter& reporter) {
  if (job.files.size() != 2)
    return reporter.Error({"plateconfig"}, Say("give two configuration folders, the old one and the new one",
                                               "请给出两个配置文件夹：先旧后新"));
  const auto question = QuestionOf(job, reporter);
  if (!question) return;
  const auto oldTable = RuleTableOf({job.files.front(), {}}, reporter);
  const auto newTable = RuleTableOf({job.files.back(), {}}, reporter);
  if (!oldTable || !newTable) return;
  const RuleTables before = LoadRuleTables(ReaderOf(*oldTable), ReadConfigFile());
  const RuleTables after = LoadRuleTables(ReaderOf(*newTable), ReadConfigFile());
  const RuleChanges changes = DrawRuleChanges(MakeRuleModel(before), MakeRuleModel(after), *question);
  if (!changes.unconfirmed.empty())
    return reporter.Error({"plateconfig"},
                          Say("internal error: a difference was not confirmed by the evaluation",
                              "内部错误：有一处差别未得到计算的证实"));
  streams.out << JsonArray::ToText(ToJson(changes, *question)) << "\n";
}

}  // namespace plateconfig
