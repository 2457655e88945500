#include "plateconfig/answers/explanation_json.h"

#include <algorithm>

#include "analysis/checks/rule_values.h"
#include "analysis/plates/plate_change.h"
#include "plateconfig/answers/plate_to_json.h"
#include "rules/condition_texts.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

using Json = nlohmann::ordered_json;

Json ToJson(const Refusal& refusal, const Plate& plate) {
  Json json = {{"condition", NameOf(refusal.condition)}};
  if (refusal.IsSize()) {
    json.update({{"minimum", refusal.range.minimum}, {"maximum", refusal.range.maximum}});
    json.update({{"value", refusal.value}, {"missedBy", refusal.Miss()}});
  } else if (refusal.condition == Condition::kMaterial) {
    json.update({{"accepted", refusal.colors}, {"value", plate.color}});
  } else {
    json.update({{"wanted", refusal.isWanted}, {"colors", refusal.colors}, {"value", plate.faceColors}});
  }
  return json;
}

/// The members of a plate's object that are others than before.
Json OtherMembers(const Plate& before, const Plate& after) {
  Json json = Json::object();
  for (const SizeCondition& size : kSizeConditions) {
    if (after.*size.value != before.*size.value) json[NameOf(size.condition)] = after.*size.value;
  }
  if (after.color != before.color) json[plate_members::kColor] = after.color;
  if (after.faceColors != before.faceColors) json[plate_members::kFaceColors] = after.faceColors;
  return json;
}

Json ChangeToJson(int line, const ExplainedPlate& plate) {
  const auto change = ChangeFor(plate.tables, line, plate.input.plate);
  if (!change) return nullptr;
  return {{"plate", OtherMembers(plate.input.plate, change->plate)}, {"line", change->line}};
}

Json ToJson(int line, const std::vector<Refusal>& all, const ExplainedPlate& plate) {
  Json refusals = Json::array();
  for (const Refusal& refusal : all) refusals.push_back(ToJson(refusal, plate.input.plate));
  return {{"line", line}, {"refusals", refusals}, {"change", ChangeToJson(line, plate)}};
}

/// What the plate has of what a condition looks at.
Json FeatureToJson(const ExplainedProcess& process, const PlateFeatures& features) {
  switch (FedByOf(process.type)) {
    case FedBy::kPresence:
      return features.present.contains(process.type);
    case FedBy::kColors: {
      const auto colors = features.colors.find(process.type);
      return colors == features.colors.end() ? Json::array() : Json(colors->second);
    }
    case FedBy::kDiameters:
      return features.diameters;
    case FedBy::kCount:
      return features.holeCount ? Json(*features.holeCount) : nullptr;
    case FedBy::kByHand:
      break;
  }
  return features.customProcesses.contains(process.name);
}

const char* NameOf(ProcessVerdict verdict) {
  switch (verdict) {
    case ProcessVerdict::kWritten:
      return "written";
    case ProcessVerdict::kDoesNotApply:
      return "does-not-apply";
    case ProcessVerdict::kNoText:
      break;
  }
  return "no-text";
}

Json ProcessesToJson(const ExplainedPlate& plate) {
  Json json = Json::array();
  const std::vector<ExplainedProcess>& processes = plate.explanation.Processes();
  for (std::size_t i = 0; i < processes.size(); ++i) {
    json.push_back({{"process", GbkToUtf8(processes[i].name)},
                    {"condition", GbkToUtf8(plate.list[i].condition->text)},
                    {"parameter", GbkToUtf8(plate.list[i].parameter)},
                    {"plate", FeatureToJson(processes[i], plate.input.features)},
                    {"verdict", NameOf(processes[i].verdict)},
                    {"text", GbkToUtf8(processes[i].cell)}});
  }
  return json;
}

void AddAskedRow(const ExplainedPlate& plate, Json& json) {
  json["refusedRows"] = Json::array();
  const bool fits = plate.asked->refusals.empty();
  if (!fits) json["refusedRows"].push_back(ToJson(plate.asked->line, plate.asked->refusals, plate));
  json["askedRow"] = {{"line", plate.asked->line}, {"fits", fits}};
}

void AddRows(const ExplainedPlate& plate, Json& json) {
  const std::vector<RefusedRow> all = plate.explanation.RefusedRows();
  const std::vector<RefusedRow> rows = NearestRows(all, plate.view.rows.value_or(0));
  json["refusedRows"] = Json::array();
  for (const RefusedRow& row : rows)
    json["refusedRows"].push_back(ToJson(row.lineNumber, row.refusals, plate));
  json["furtherRows"] = all.size() - rows.size();
}

}  // namespace

Json OutcomeToJson(const PlateInput& input, const std::string& file, std::optional<int> line,
                   const std::string& text, PlateStatus status) {
  return {{"name", input.name}, {"line", line ? Json(*line) : nullptr},
          {"text", text},       {"status", NameOf(status)},
          {"file", file},       {"fileLine", input.position.line}};
}

Json ExplanationToJson(const ExplainedPlate& plate) {
  Json json =
      OutcomeToJson(plate.input, plate.file, plate.explanation.MatchedLine(), plate.text, plate.Status());
  json["plate"] = PlateToJson(plate.input);
  json["processes"] = ProcessesToJson(plate);
  plate.asked ? AddAskedRow(plate, json) : AddRows(plate, json);
  return json;
}

}  // namespace plateconfig
