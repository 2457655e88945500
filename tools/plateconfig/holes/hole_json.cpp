#include <utility>

#include "plateconfig/holes/hole_fields.h"
#include "plateconfig/holes/hole_reader.h"
#include "plateconfig/input/json_members.h"
#include "plateconfig/input/json_stream.h"
#include "plateconfig/input/json_values.h"
#include "plateconfig/messages/language.h"

namespace plateconfig {
namespace {

/// Reads one hole's object; every mistake is reported, and any of them makes the hole unusable.
class HoleObject {
 public:
  HoleObject(const JsonNode& object, Reporter& reporter)
      : object_(object), values_(reporter), reporter_(reporter) {}

  std::optional<HoleInput> Read() {
    input_.place = object_.place;
    ReadMembers(object_, HoleMembers(), reporter_,
                [this](const std::string& name, const JsonNode& node) { return ReadMember(name, node); });
    Require(object_, kHoleName.json);
    return values_.AreGood() ? std::optional(std::move(input_)) : std::nullopt;
  }

 private:
  bool ReadMember(const std::string& name, const JsonNode& node) {
    if (name == kHoleName.json) {
      values_.ReadFilled(node, input_.name, Say("the hole has no name", "孔没有名称"));
      return true;
    }
    for (std::size_t group = 0; group < kHoleGroupCount; ++group) {
      if (name != kHoleGroupNames[group].json) continue;
      ReadSegments(node, input_.hole.*kHoleGroups[group].segments);
      return true;
    }
    return false;
  }

  void ReadSegments(const JsonNode& node, std::vector<HoleInfo>& segments) {
    if (!values_.IsArray(node)) return;
    for (const JsonNode& item : node.items) {
      if (!values_.IsObject(item)) continue;
      HoleInfo& segment = segments.emplace_back();
      ReadMembers(item, SegmentMembers(), reporter_,
                  [this, &segment](const std::string& name, const JsonNode& value) {
                    return ReadSegmentMember(name, value, segment);
                  });
      Require(item, kSegmentColor.json);
      for (const SegmentNumberField& field : kSegmentNumbers) {
        if (field.isRequired) Require(item, field.name.json);
      }
    }
  }

  bool ReadSegmentMember(const std::string& name, const JsonNode& node, HoleInfo& segment) {
    if (name == kSegmentOrigin) return ReadOrigin(node, segment.origin);
    if (name == kSegmentColor.json) {
      values_.Read(node, segment.color);
      return true;
    }
    for (const SegmentNumberField& field : kSegmentNumbers) {
      if (name != field.name.json) continue;
      values_.Read(node, segment.*field.value);
      return true;
    }
    return false;
  }

  bool ReadOrigin(const JsonNode& node, NXOpen::Point3d& origin) {
    std::vector<double> coordinates;
    values_.Read(node, coordinates);
    if (coordinates.size() == std::size(kCoordinates)) {
      for (std::size_t i = 0; i < coordinates.size(); ++i) origin.*kCoordinates[i].value = coordinates[i];
    } else {
      values_.Refuse(node, Say("an origin has three coordinates: [x, y, z]", "原点应有三个坐标：[x, y, z]"));
    }
    return true;
  }

  void Require(const JsonNode& object, std::string_view name) {
    if (object.Find(name) == nullptr)
      values_.Refuse(object, Say("\"{}\" is missing here", "这里缺少“{}”", name));
  }

  const JsonNode& object_;
  JsonValues values_;
  Reporter& reporter_;
  HoleInput input_;
};

class JsonHoleReader : public HoleReader {
 public:
  JsonHoleReader(std::istream& in, const std::string& file, Reporter& reporter)
      : objects_(in, file, reporter), reporter_(reporter) {}

  std::optional<HoleInput> Next() override {
    while (const std::optional<JsonNode> object = objects_.Next()) {
      if (std::optional<HoleInput> hole = HoleObject(*object, reporter_).Read()) return hole;
    }
    return std::nullopt;
  }

 private:
  JsonStream objects_;
  Reporter& reporter_;
};

}  // namespace

std::unique_ptr<HoleReader> ReadHolesFromJson(std::istream& in, const std::string& file, Reporter& reporter) {
  return std::make_unique<JsonHoleReader>(in, file, reporter);
}

}  // namespace plateconfig
