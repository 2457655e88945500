// The rule map: see analysis/pictures/rule_map.h for what is computed.

#include <cmath>
#include <memory>
#include <nlohmann/json.hpp>

#include "analysis/checks/rule_values.h"
#include "analysis/checks/table_check.h"
#include "analysis/pictures/rule_map.h"
#include "plateconfig/output/findings_json.h"
#include "plateconfig/output/json_output.h"
#include "plateconfig/pictures/pictures.h"
#include "plateconfig/tables/reported_table.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

using Json = nlohmann::ordered_json;

const char* NameOfSize(std::size_t size) {
  return NameOf(kSizeConditions[size].condition);
}

Json EndOf(double bound) {
  return std::isinf(bound) ? Json(nullptr) : Json(bound);
}

Json ToJson(const Interval& interval) {
  return {EndOf(interval.low), EndOf(interval.high)};
}

Json ToJson(const FlatBox& box) {
  return {{"x", ToJson(box.x)}, {"y", ToJson(box.y)}};
}

Json ToJson(const HiddenBox& hidden) {
  Json json = ToJson(hidden.box);
  json["by"] = hidden.by;
  return json;
}

Json ToJson(const ColorChoice& choice) {
  return {{"colors", choice.colors}, {"example", choice.example}};
}

Json ToJson(const FaceAnswers& answers) {
  return {{"profile", answers.profile}, {"wireCutting", answers.wireCutting}};
}

template <typename Item>
Json ListOf(const std::vector<Item>& items) {
  Json list = Json::array();
  for (const Item& item : items) list.push_back(ToJson(item));
  return list;
}

Json ToJson(const MapRegion& region, const TableText& text) {
  return {{"row", region.row},
          {"line", text.PlaceOf(static_cast<std::size_t>(region.row) - 1).line},
          {"layer", GbkToUtf8(region.layer)},
          {"matches", Json::array({ToJson(region.matches)})},
          {"wins", ListOf(region.wins)},
          {"hidden", ListOf(region.hidden)}};
}

Json AxisToJson(const RuleMap& map, std::size_t size) {
  const Interval& shown = map.sizes[size].shown;
  return {{"size", NameOfSize(size)}, {"from", shown.low}, {"to", shown.high}};
}

Json FixedToJson(const RuleMap& map, const MapQuestion& question) {
  Json fixed;
  for (std::size_t size = 0; size < kSizeCount; ++size) {
    if (size != question.x && size != question.y) fixed[NameOfSize(size)] = map.fixed[size];
  }
  return fixed;
}

Json SizesToJson(const RuleMap& map) {
  Json sizes;
  for (std::size_t size = 0; size < kSizeCount; ++size) {
    const MapSize& of = map.sizes[size];
    sizes[NameOfSize(size)] = {{"hull", map.hull ? ToJson((*map.hull)[size]) : Json(nullptr)},
                               {"shown", ToJson(of.shown)},
                               {"bounds", of.bounds}};
  }
  return sizes;
}

Json ToJson(const RuleMap& map, const MapQuestion& question, const TableText& text) {
  Json regions = Json::array();
  for (const MapRegion& region : map.regions) regions.push_back(ToJson(region, text));
  Json plate = {{"bodyColor", map.bodyColor}};
  plate.update(ToJson(map.group.answers));
  return {{"x", AxisToJson(map, question.x)},
          {"y", AxisToJson(map, question.y)},
          {"plate", plate},
          {"fixed", FixedToJson(map, question)},
          {"possible", map.isPossible},
          {"group", ToJson(GroupValue(map.group))},
          {"choices", {{"colors", ListOf(map.colorChoices)}, {"answers", ListOf(map.answerChoices)}}},
          {"sizes", SizesToJson(map)},
          {"hull", map.hull ? ToJson(BoxValue(*map.hull)) : Json(nullptr)},
          {"regions", regions},
          {"gaps", ListOf(map.gaps)},
          {"complete", map.isComplete}};
}

/// The rule table. Nothing when it can not be read; what is wrong with the file as a whole is reported.
std::optional<GivenTable> RuleTable(const ConfigurationOptions& options, Reporter& reporter) {
  Configuration configuration(options, reporter);
  const auto file = configuration.Find(Role::kProcessRules);
  if (!file) return std::nullopt;
  GivenTable given = GivenFrom(Role::kProcessRules, *file);
  ReportFile(given, reporter);
  if (!given.table) return std::nullopt;
  return given;
}

}  // namespace

void WriteMap(const PictureJob& job, const Streams& streams, Reporter& reporter) {
  const auto question = QuestionOf(job, reporter);
  if (!question) return;
  const auto given = RuleTable(job.configuration, reporter);
  if (!given) return;
  const RuleTables tables = LoadRuleTables(ReaderOf(*given), ReadConfigFile());
  const RuleModel model = MakeRuleModel(tables);
  const RuleMap map = DrawRuleMap(model, PlateSpace({&model}), *question);
  streams.out << JsonArray::ToText(ToJson(map, *question, TableText(given->name, *given->table))) << "\n";
}

}  // namespace plateconfig
