#include <optional>
#include <utility>

#include "plateconfig/holes/hole_fields.h"
#include "plateconfig/holes/hole_type_reader.h"
#include "plateconfig/input/json_members.h"
#include "plateconfig/input/json_stream.h"
#include "plateconfig/input/json_values.h"
#include "plateconfig/messages/language.h"

namespace plateconfig {
namespace {

/// Reads one type's object; every mistake is reported, and any of them makes the type unusable.
class HoleTypeObject {
 public:
  HoleTypeObject(const JsonNode& object, Reporter& reporter)
      : object_(object), values_(reporter), reporter_(reporter) {}

  std::optional<HoleTypeInput> Read() {
    input_.place = object_.place;
    ReadMembers(object_, HoleTypeMembers(), reporter_, [this](const std::string& name, const JsonNode& node) {
      return ReadText(name, node) || ReadLists(name, node);
    });
    Require(kTypeName.json);
    Require(kTypeStructure.json);
    return values_.AreGood() ? std::optional(std::move(input_)) : std::nullopt;
  }

 private:
  bool ReadText(const std::string& name, const JsonNode& node) {
    if (name == kTypeName.json) {
      values_.ReadFilled(node, input_.name, Say("the type has no name", "类型没有名称"));
    } else if (name == kTypeStructure.json) {
      values_.Read(node, input_.type.countKey);
    } else if (name == kTypeContent.json) {
      values_.Read(node, input_.content);
    } else {
      return false;
    }
    return true;
  }

  bool ReadLists(const std::string& name, const JsonNode& node) {
    for (std::size_t i = 0; i < kHoleGroupCount; ++i) {
      const bool areColors = name == kHoleGroupNames[i].colors.json;
      if (areColors) values_.Read(node, input_.type.*kHoleGroups[i].colors);
      const bool areDiameters = name == kHoleGroupNames[i].diameters.json;
      if (areDiameters) values_.Read(node, input_.type.*kHoleGroups[i].diameters);
      if (areColors || areDiameters) return true;
    }
    return false;
  }

  void Require(std::string_view name) {
    if (object_.Find(name) == nullptr)
      values_.Refuse(object_, Say("the type has no \"{}\"", "此类型缺少“{}”", name));
  }

  const JsonNode& object_;
  JsonValues values_;
  Reporter& reporter_;
  HoleTypeInput input_;
};

}  // namespace

std::vector<HoleTypeInput> ReadHoleTypesFromJson(std::istream& in, const std::string& file,
                                                 Reporter& reporter) {
  JsonStream objects(in, file, reporter);
  std::vector<HoleTypeInput> types;
  while (const std::optional<JsonNode> object = objects.Next()) {
    if (auto type = HoleTypeObject(*object, reporter).Read()) types.push_back(std::move(*type));
  }
  return types;
}

}  // namespace plateconfig
