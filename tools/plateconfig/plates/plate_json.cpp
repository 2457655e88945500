#include <utility>

#include "plateconfig/input/cell_texts.h"
#include "plateconfig/input/json_members.h"
#include "plateconfig/input/json_stream.h"
#include "plateconfig/input/json_values.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/messages/shown_text.h"
#include "plateconfig/messages/similar_name.h"
#include "plateconfig/plates/plate_fields.h"
#include "plateconfig/plates/plate_reader.h"

namespace plateconfig {
namespace {

/// Reads one plate's object; every mistake is reported, and any of them makes the plate unusable.
class PlateObject {
 public:
  PlateObject(const JsonNode& object, const PlateVocabulary& vocabulary, Reporter& reporter)
      : object_(object), vocabulary_(vocabulary), values_(reporter), reporter_(reporter) {}

  std::optional<PlateInput> Read() {
    plate_.place = object_.place;
    ReadMembers(object_, PlateMembers(), reporter_,
                [this](const std::string& name, const JsonNode& node) { return ReadMember(name, node); });
    RequireMembers();
    NormalizeFaceColors(plate_.plate);
    return values_.AreGood() ? std::optional(std::move(plate_)) : std::nullopt;
  }

 private:
  bool ReadMember(const std::string& name, const JsonNode& node) {
    if (name == kPlateName.json) {
      values_.ReadFilled(node, plate_.name, Say("the plate has no name", "板没有名称"));
    } else if (name == kFaceColors.json) {
      values_.Read(node, plate_.plate.faceColors);
    } else if (name == kFeatures) {
      ReadFeatures(node);
    } else if (name == kCustomProcesses) {
      ReadCustomProcesses(node);
    } else {
      return ReadNumber(name, node) || ReadInteger(name, node);
    }
    return true;
  }

  bool ReadNumber(const std::string& name, const JsonNode& node) {
    for (const auto& field : kPlateNumbers) {
      if (name != field.json) continue;
      double& value = plate_.plate.*field.value;
      values_.Read(node, value);
      if (node.kind == JsonNode::Kind::kNumber && !Allows(field, value)) {
        values_.Refuse(node, TooSmall(fmt::format("{}", value), field.isPositive));
      }
      return true;
    }
    return false;
  }

  bool ReadInteger(const std::string& name, const JsonNode& node) {
    for (const auto& field : kPlateIntegers) {
      if (name != field.json) continue;
      values_.Read(node, plate_.plate.*field.value);
      return true;
    }
    return false;
  }

  void ReadFeatures(const JsonNode& node) {
    if (!values_.IsObject(node)) return;
    for (const auto& [name, value] : node.members) {
      const Feature* feature = vocabulary_.Find(name);
      if (feature != nullptr && feature->Feeding() != FedBy::kByHand) {
        ReadFeature(*feature, value);
      } else {
        WarnOfUnknown(name, value);
      }
    }
  }

  void ReadFeature(const Feature& feature, const JsonNode& node) {
    PlateFeatures& features = plate_.features;
    switch (feature.Feeding()) {
      case FedBy::kPresence: {
        bool isPresent = false;
        values_.Read(node, isPresent);
        if (isPresent) features.present.insert(feature.type);
        return;
      }
      case FedBy::kColors:
        return values_.Read(node, features.colors[feature.type]);
      case FedBy::kDiameters:
        return values_.Read(node, features.diameters);
      case FedBy::kCount:
        return values_.Read(node, features.holeCount.emplace());
      case FedBy::kByHand:
        return;  // These stand in a list of their own.
    }
  }

  void ReadCustomProcesses(const JsonNode& node) {
    if (!values_.IsArray(node)) return;
    for (const JsonNode& item : node.items) {
      std::string name;
      values_.Read(item, name);
      const Feature* feature = vocabulary_.Find(name);
      if (feature != nullptr && feature->Feeding() == FedBy::kByHand) {
        plate_.features.customProcesses.insert(feature->processName);
      } else if (item.kind == JsonNode::Kind::kString) {
        WarnOfUnknown(name, item);
      }
    }
  }

  void WarnOfUnknown(const std::string& name, const JsonNode& node) {
    if (const Feature* feature = vocabulary_.Find(name)) {
      const bool isCustom = feature->Feeding() == FedBy::kByHand;
      reporter_.Warning(node.place,
                        Say("\"{}\" belongs into \"{}\" and is ignored here", "“{}”应写在“{}”中，此处已忽略",
                            name, isCustom ? kCustomProcesses : kFeatures));
      return;
    }
    reporter_.Warning(node.place,
                      Say("\"{}\" is no feature and is ignored", "“{}”不是特征，已忽略", ShownText(name)) +
                          DidYouMean(vocabulary_.Suggest(name, {})));
  }

  void RequireMembers() {
    Require(kPlateName.json);
    for (const auto& field : kPlateNumbers) Require(field.json);
    for (const auto& field : kPlateIntegers) {
      if (field.isRequired) Require(field.json);
    }
  }

  void Require(std::string_view name) {
    if (object_.Find(name) != nullptr) return;
    values_.Refuse(object_, Say("the plate has no \"{}\"", "此板缺少“{}”", name));
  }

  const JsonNode& object_;
  const PlateVocabulary& vocabulary_;
  JsonValues values_;
  Reporter& reporter_;
  PlateInput plate_;
};

class JsonPlateReader : public PlateReader {
 public:
  JsonPlateReader(std::istream& in, const std::string& file, const PlateVocabulary& vocabulary,
                  Reporter& reporter)
      : objects_(in, file, reporter), vocabulary_(vocabulary), reporter_(reporter) {}

  std::optional<PlateInput> Next() override {
    while (const std::optional<JsonNode> object = objects_.Next()) {
      if (std::optional<PlateInput> plate = PlateObject(*object, vocabulary_, reporter_).Read()) return plate;
    }
    return std::nullopt;
  }

 private:
  JsonStream objects_;
  const PlateVocabulary& vocabulary_;
  Reporter& reporter_;
};

}  // namespace

std::unique_ptr<PlateReader> ReadPlatesFromJson(std::istream& in, const std::string& file,
                                                const PlateVocabulary& vocabulary, Reporter& reporter) {
  return std::make_unique<JsonPlateReader>(in, file, vocabulary, reporter);
}

}  // namespace plateconfig
