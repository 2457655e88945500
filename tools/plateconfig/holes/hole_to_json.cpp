#include "plateconfig/holes/hole_fields.h"
#include "plateconfig/holes/hole_output.h"

namespace plateconfig {
namespace {

using Json = nlohmann::ordered_json;

const char* NameOf(Verdict verdict) {
  switch (verdict) {
    case Verdict::kExplicit:
      return "explicit";
    case Verdict::kWildcard:
      return "wildcard";
    default:
      return "refused";
  }
}

/// The list that a verdict rests on; null when there is none for this segment.
template <typename List>
Json ListToJson(const std::vector<List>& lists, std::size_t segment) {
  return segment < lists.size() ? Json(lists[segment]) : Json(nullptr);
}

Json ToJson(const CombHole& hole, const HoleTypeInfo& type, const SegmentVerdict& verdict) {
  const HoleGroup& group = kHoleGroups[verdict.group];
  const HoleInfo& segment = (hole.*group.segments)[verdict.segment];
  return {{"group", kHoleGroupNames[verdict.group].json},
          {"segment", verdict.segment + 1},
          {"color", segment.color},
          {"colorVerdict", NameOf(verdict.color)},
          {"allowedColors", ListToJson(type.*group.colors, verdict.segment)},
          {"diameter", segment.diameter},
          {"diameterVerdict", NameOf(verdict.diameter)},
          {"allowedDiameters", ListToJson(type.*group.diameters, verdict.segment)}};
}

Json ToJson(const CombHole& hole, const TypeVerdict& verdict, bool inFull) {
  Json json = {{"name", verdict.type->name}, {"accuracy", verdict.result.Accuracy()}};
  if (!inFull) return json;
  json["content"] = verdict.type->content;
  json["segments"] = Json::array();
  for (const SegmentVerdict& segment : verdict.segments) {
    json["segments"].push_back(ToJson(hole, verdict.type->type, segment));
  }
  return json;
}

Json ToJson(const CombHole& hole, const std::vector<TypeVerdict>& verdicts, bool inFull) {
  Json json = Json::array();
  for (const TypeVerdict& verdict : verdicts) json.push_back(ToJson(hole, verdict, inFull));
  return json;
}

}  // namespace

Json HoleToJson(const HoleInput& input, const HoleAnswer& answer, bool inFull) {
  NXOpen::Point3d origin;
  double diameter = 0;
  HoleTypeInfo::GetCombHoleMaxDiameterAndOrigin(input.hole, &origin, &diameter);
  Json json = {{"name", input.name},      {"structure", StructureKey(input.hole)},
               {"maxDiameter", diameter}, {"origin", {origin.X, origin.Y, origin.Z}},
               {"tied", answer.IsTied()}, {"types", ToJson(input.hole, answer.accepting, inFull)}};
  if (!inFull) return json;
  json["refusedBy"] = ToJson(input.hole, answer.refusing, true);
  json["nearStructures"] = Json::array();
  for (const HoleTypeInput* type : answer.nearStructure) {
    json["nearStructures"].push_back({{"name", type->name}, {"structure", type->type.countKey}});
  }
  return json;
}

}  // namespace plateconfig
