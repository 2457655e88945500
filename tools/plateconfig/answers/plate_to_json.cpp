#include "plateconfig/answers/plate_to_json.h"

#include "analysis/checks/rule_values.h"
#include "plateconfig/output/findings_json.h"

namespace plateconfig {

nlohmann::ordered_json PlateToJson(const PlateInput& plate) {
  nlohmann::ordered_json json = ToJson(PlateValue(plate.name, plate.plate, plate.features));
  for (const ProcessRule::RuleType type : plate.denied)
    json[plate_members::kFeatures][FeatureName(type)] = false;
  return json;
}

nlohmann::ordered_json PlateToJson(const ExamplePlate& plate) {
  return ToJson(PlateValue(ExamplePlate::kName, plate.plate, plate.features));
}

}  // namespace plateconfig
