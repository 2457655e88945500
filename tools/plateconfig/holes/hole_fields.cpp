#include "plateconfig/holes/hole_fields.h"

namespace plateconfig {

std::vector<std::string_view> HoleMembers() {
  std::vector<std::string_view> members = {kHoleName.json};
  for (const HoleGroupNames& group : kHoleGroupNames) members.push_back(group.json);
  return members;
}

std::vector<std::string_view> SegmentMembers() {
  std::vector<std::string_view> members = {kSegmentColor.json, kSegmentOrigin};
  for (const SegmentNumberField& field : kSegmentNumbers) members.push_back(field.name.json);
  return members;
}

std::vector<std::string_view> HoleTypeMembers() {
  std::vector<std::string_view> members = {kTypeName.json, kTypeStructure.json, kTypeContent.json};
  for (const HoleGroupNames& group : kHoleGroupNames) {
    members.push_back(group.colors.json);
    members.push_back(group.diameters.json);
  }
  return members;
}

}  // namespace plateconfig
