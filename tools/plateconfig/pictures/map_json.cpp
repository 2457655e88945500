#include "plateconfig/pictures/map_json.h"

#include <cmath>

#include "analysis/checks/rule_values.h"
#include "plateconfig/tables/reported_table.h"

namespace plateconfig {
namespace {

using Json = nlohmann::ordered_json;

Json EndOf(double bound) {
  return std::isinf(bound) ? Json(nullptr) : Json(bound);
}

}  // namespace

const char* NameOfSize(std::size_t size) {
  return NameOf(kSizeConditions[size].condition);
}

Json ToJson(const Interval& interval) {
  return Json::array({EndOf(interval.low), EndOf(interval.high)});
}

Json ToJson(const FlatBox& box) {
  return {{"x", ToJson(box.x)}, {"y", ToJson(box.y)}};
}

Json ToJson(const FaceAnswers& answers) {
  return {{"profile", answers.profile}, {"wireCutting", answers.wireCutting}};
}

Json AxisToJson(const MapSizes& sizes, std::size_t size) {
  return {{"size", NameOfSize(size)}, {"from", sizes[size].shown.low}, {"to", sizes[size].shown.high}};
}

Json FixedToJson(const std::array<double, kSizeCount>& fixed, const MapQuestion& question) {
  Json json;
  for (std::size_t size = 0; size < kSizeCount; ++size) {
    if (size != question.x && size != question.y) json[NameOfSize(size)] = fixed[size];
  }
  return json;
}

Json PlateToJson(int bodyColor, const FaceAnswers& answers) {
  Json plate = {{"bodyColor", bodyColor}};
  plate.update(ToJson(answers));
  return plate;
}

std::optional<GivenTable> RuleTableOf(const ConfigurationOptions& options, Reporter& reporter) {
  Configuration configuration(options, reporter);
  const auto file = configuration.Find(Role::kProcessRules);
  if (!file) return std::nullopt;
  GivenTable given = GivenFrom(Role::kProcessRules, *file);
  ReportFile(given, reporter);
  if (!given.table) return std::nullopt;
  return given;
}

}  // namespace plateconfig
