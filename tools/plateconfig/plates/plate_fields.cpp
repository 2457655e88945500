#include "plateconfig/plates/plate_fields.h"

#include <algorithm>
#include <vector>

namespace plateconfig {
namespace {

using namespace plate_members;

std::optional<Code> IsName(const std::string& name) {
  return name.empty() ? std::optional<Code>(Code("plate-no-name")) : std::nullopt;
}

Field<PlateInput> SizeField(FieldNames names, double Plate::*size, Check<double> check) {
  const auto put = [size](PlateInput& input, double value) { input.plate.*size = value; };
  return FieldOf<double, PlateInput>(names, Need::kRequired, put, check);
}

Field<PlateInput> IntegerField(FieldNames names, Need need, int Plate::*number) {
  return FieldOf<int, PlateInput>(names, need,
                                  [number](PlateInput& input, int value) { input.plate.*number = value; });
}

/// Sorted and without duplicates, as the evaluation wants them.
void PutFaceColors(PlateInput& input, std::vector<int> colors) {
  std::sort(colors.begin(), colors.end());
  colors.erase(std::unique(colors.begin(), colors.end()), colors.end());
  input.plate.faceColors = std::move(colors);
}

/// Several columns may be of one condition.
void PutColors(const Feature& feature, PlateInput& input, const std::vector<int>& colors) {
  std::vector<int>& all = input.features.colors[feature.type];
  all.insert(all.end(), colors.begin(), colors.end());
}

Field<PlateInput> FeatureField(std::string_view name, const Feature& feature) {
  const FieldNames names = {name, {}};
  const auto* const meant = &feature;
  switch (feature.Feeding()) {
    case FedBy::kPresence:
      return FieldOf<bool, PlateInput>(names, Need::kOptional, [meant](PlateInput& input, bool isPresent) {
        (isPresent ? input.features.present : input.denied).insert(meant->type);
      });
    case FedBy::kByHand:
      return FieldOf<bool, PlateInput>(names, Need::kOptional, [meant](PlateInput& input, bool isOrdered) {
        if (isOrdered) input.features.customProcesses.insert(meant->processName);
      });
    case FedBy::kColors:
      return FieldOf<std::vector<int>, PlateInput>(
          names, Need::kOptional,
          [meant](PlateInput& input, const std::vector<int>& colors) { PutColors(*meant, input, colors); });
    case FedBy::kDiameters:
      return FieldOf<std::vector<double>, PlateInput>(names, Need::kOptional,
                                                      [](PlateInput& input, std::vector<double> diameters) {
                                                        input.features.diameters = std::move(diameters);
                                                      });
    case FedBy::kCount:
      return FieldOf<int, PlateInput>(names, Need::kOptional,
                                      [](PlateInput& input, int count) { input.features.holeCount = count; });
  }
  return {names, Need::kOptional};
}

/// Of a name that is none in the member that it stands in.
void WarnOfUnknown(const PlateVocabulary& vocabulary, const std::string& name, const JsonNode& node,
                   JsonValues& values) {
  if (const Feature* feature = vocabulary.Find(name)) {
    const bool isCustom = feature->Feeding() == FedBy::kByHand;
    const std::string member(isCustom ? kCustomProcesses : kFeatures);
    return values.Warn(node, {.code = "plate-feature-misplaced", .text = name, .words = {member}});
  }
  values.Warn(node, {.code = "plate-feature-unknown", .text = name, .fix = vocabulary.Suggest(name, {})});
}

/// The member in which JSON has the features that are columns in CSV.
Field<PlateInput> FeaturesField(const PlateVocabulary& vocabulary) {
  const auto read = [&vocabulary](const JsonNode& node, JsonValues& values, PlateInput& input) {
    if (!values.IsObject(node)) return;
    for (const auto& [name, value] : node.members) {
      const Feature* feature = vocabulary.Find(name);
      if (feature != nullptr && feature->Feeding() != FedBy::kByHand) {
        FeatureField(name, *feature).fromJson(value, values, input);
      } else {
        WarnOfUnknown(vocabulary, name, value, values);
      }
    }
  };
  return {{{}, kFeatures}, Need::kOptional, {}, read};
}

/// The member in which JSON has the processes that are columns in CSV.
Field<PlateInput> CustomProcessesField(const PlateVocabulary& vocabulary) {
  const auto read = [&vocabulary](const JsonNode& node, JsonValues& values, PlateInput& input) {
    if (!values.IsArray(node)) return;
    for (const JsonNode& item : node.items) {
      std::string name;
      if (!values.Read(item, name)) continue;
      const Feature* feature = vocabulary.Find(name);
      if (feature != nullptr && feature->Feeding() == FedBy::kByHand) {
        input.features.customProcesses.insert(feature->processName);
      } else {
        WarnOfUnknown(vocabulary, name, item, values);
      }
    }
  };
  return {{{}, kCustomProcesses}, Need::kOptional, {}, read};
}

}  // namespace

RecordKind<PlateInput> PlateFields(const PlateVocabulary& vocabulary) {
  std::vector<Field<PlateInput>> fields = {
      FieldOf<std::string, PlateInput>(
          {"名称", kName}, Need::kRequired,
          [](PlateInput& input, std::string name) { input.name = std::move(name); }, IsName),
      FieldOf<std::vector<int>, PlateInput>({"面颜色", kFaceColors}, Need::kOptional, PutFaceColors),
      FeaturesField(vocabulary),
      CustomProcessesField(vocabulary),
      SizeField({"长度", kLength}, &Plate::length, IsPositive),
      SizeField({"宽度", kWidth}, &Plate::width, IsPositive),
      SizeField({"厚度", kThickness}, &Plate::height, IsPositive),
      SizeField({"重量", kWeight}, &Plate::weight, IsNotNegative),
      IntegerField({"图层", kLayer}, Need::kOptional, &Plate::layer),
      IntegerField({"体颜色", kColor}, Need::kRequired, &Plate::color),
  };
  for (const auto& [name, feature] : vocabulary.Features()) fields.push_back(FeatureField(name, feature));
  return {std::move(fields),
          {"no plate", "任何板"},
          {" (this plate is passed over)", "（此板被跳过）"},
          "plate-member-missing"};
}

}  // namespace plateconfig
