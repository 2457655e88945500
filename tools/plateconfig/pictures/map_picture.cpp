// The rule map: see analysis/pictures/rule_map.h for what is computed.

#include <nlohmann/json.hpp>

#include "analysis/checks/rule_values.h"
#include "analysis/pictures/rule_map.h"
#include "plateconfig/output/findings_json.h"
#include "plateconfig/output/json_output.h"
#include "plateconfig/pictures/map_json.h"
#include "plateconfig/pictures/pictures.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

using Json = nlohmann::ordered_json;

Json ToJson(const HiddenBox& hidden) {
  Json json = ToJson(hidden.box);
  json["by"] = hidden.by;
  return json;
}

Json ToJson(const ColorChoice& choice) {
  return {{"colors", choice.colors}, {"example", choice.example}};
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
          {"hidden", ListOf(region.hidden)},
          {"hiddenBy", region.hiddenBy},
          {"neighbours", region.neighbours}};
}

Json ToJson(const MapSlider& slider) {
  return {{"from", slider.from}, {"to", slider.to}, {"step", slider.step}};
}

Json SizesToJson(const RuleMap& map) {
  Json sizes;
  for (std::size_t size = 0; size < kSizeCount; ++size) {
    const MapSize& of = map.sizes[size];
    sizes[NameOfSize(size)] = {{"hull", map.hull ? ToJson((*map.hull)[size]) : Json(nullptr)},
                               {"shown", ToJson(of.shown)},
                               {"bounds", of.bounds},
                               {"slider", ToJson(of.slider)}};
  }
  return sizes;
}

Json ToJson(const RuleMap& map, const MapQuestion& question, const TableText& text) {
  Json regions = Json::array();
  for (const MapRegion& region : map.regions) regions.push_back(ToJson(region, text));
  return {{"x", AxisToJson(map.sizes, question.x)},
          {"y", AxisToJson(map.sizes, question.y)},
          {"plate", PlateToJson(map.bodyColor, map.group.answers)},
          {"fixed", FixedToJson(map.fixed, question)},
          {"possible", map.isPossible},
          {"group", ToJson(GroupValue(map.group))},
          {"choices", {{"colors", ListOf(map.colorChoices)}, {"answers", ListOf(map.answerChoices)}}},
          {"sizes", SizesToJson(map)},
          {"hull", map.hull ? ToJson(BoxValue(*map.hull)) : Json(nullptr)},
          {"regions", regions},
          {"gaps", ListOf(map.gaps)},
          {"complete", map.isComplete}};
}

}  // namespace

void WriteMap(const PictureJob& job, const Streams& streams, Reporter& reporter) {
  const auto question = QuestionOf(job, reporter);
  if (!question) return;
  const auto given = RuleTableOf(job.configuration, reporter);
  if (!given) return;
  const RuleTables tables = LoadRuleTables(ReaderOf(*given), ReadConfigFile());
  const RuleModel model = MakeRuleModel(tables);
  const RuleMap map = DrawRuleMap(model, PlateSpace({&model}), *question);
  streams.out << JsonArray::ToText(ToJson(map, *question, TableText(given->name, *given->table))) << "\n";
}

}  // namespace plateconfig
