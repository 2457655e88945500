#include "plateconfig/output/difference_json.h"

#include "analysis/checks/rule_values.h"
#include "plateconfig/output/findings_json.h"
#include "plateconfig/output/json_output.h"
#include "plateconfig/output/setting_value.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

using Json = nlohmann::ordered_json;

Json ToJson(const SettingDifference& difference) {
  return {{"role", NameOf(difference.role)},
          {"column", GbkToUtf8(difference.schema.column)},
          {"old", SettingToJson(difference.schema, difference.before)},
          {"new", SettingToJson(difference.schema, difference.after)}};
}

Json ToJson(const RowChange& change) {
  Json columns = Json::array();
  for (const std::string& column : change.columns) columns.push_back(GbkToUtf8(column));
  return {{"change", !change.oldRow   ? "added"
                     : !change.newRow ? "removed"
                                      : "changed"},
          {"oldRow", OrNull(change.oldRow)},
          {"newRow", OrNull(change.newRow)},
          {"columns", columns}};
}

Json ToJson(const PlateText& text) {
  return {{"line", OrNull(text.row)}, {"text", GbkToUtf8(text.text)}};
}

Json ToJson(const ChangedPlate& plate) {
  return {{"name", plate.name}, {"old", ToJson(plate.texts.before)}, {"new", ToJson(plate.texts.after)}};
}

Json ToJson(const RuleRegion& region, bool answersAgree) {
  return {{"box", ToJson(BoxValue(region.box))},
          {"group", ToJson(GroupValue(region.group, answersAgree))},
          {"oldRow", OrNull(region.oldRow)},
          {"newRow", OrNull(region.newRow)},
          {"witness", ToJson(WitnessValue(region.witness, region.features))}};
}

template <typename Item>
Json ListOf(const std::vector<Item>& items) {
  Json list = Json::array();
  for (const Item& item : items) list.push_back(ToJson(item));
  return list;
}

}  // namespace

Json ToJson(const DifferenceReport& report) {
  const RuleRegions& found = report.difference.regions;
  Json regions = Json::array();
  for (const RuleRegion& region : found.regions) regions.push_back(ToJson(region, found.answersAgree));
  return {{"settings", ListOf(report.difference.settings)},
          {"rows", ListOf(report.difference.rows)},
          {"plates", ListOf(report.plates)},
          {"regions", regions},
          {"incomplete", Json(IncompleteTexts(found))}};
}

}  // namespace plateconfig
