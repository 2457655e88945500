#include <optional>
#include <utility>

#include "plateconfig/hole_fields.h"
#include "plateconfig/hole_type_reader.h"
#include "plateconfig/json_stream.h"
#include "plateconfig/json_values.h"
#include "plateconfig/language.h"

namespace plateconfig {
namespace {

/// Reads one type's object; every mistake is reported, and any of them makes the type unusable.
class HoleTypeObject {
 public:
  HoleTypeObject(const JsonNode& object, Reporter& reporter)
      : object_(object), values_(reporter), reporter_(reporter) {}

  std::optional<HoleTypeInput> Read() {
    input_.place = object_.place;
    for (const auto& [name, node] : object_.members) ReadMember(name, node);
    Require(kTypeName.json);
    Require(kTypeStructure.json);
    return values_.AreGood() ? std::optional(std::move(input_)) : std::nullopt;
  }

 private:
  void ReadMember(const std::string& name, const JsonNode& node) {
    if (name == kTypeName.json) return values_.Read(node, input_.name);
    if (name == kTypeStructure.json) return values_.Read(node, input_.type.countKey);
    if (name == kTypeContent.json) return values_.Read(node, input_.content);
    for (std::size_t i = 0; i < kHoleGroupCount; ++i) {
      if (name == kHoleGroupNames[i].colors.json) {
        return values_.Read(node, input_.type.*kHoleGroups[i].colors);
      }
      if (name == kHoleGroupNames[i].diameters.json) {
        return values_.Read(node, input_.type.*kHoleGroups[i].diameters);
      }
    }
    reporter_.Warning(node.place,
                      Say("the member \"{}\" is not known and is ignored", "未知的成员“{}”，已忽略", name));
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
