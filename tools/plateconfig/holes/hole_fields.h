#pragma once

// What holes and hole types consist of, with the names in both forms of input and in the output.

#include <string_view>
#include <vector>

#include "holes/classification.h"

namespace plateconfig {

struct HoleFieldName {
  std::string_view json;
  std::string_view column;
};

inline constexpr HoleFieldName kHoleName = {"name", "孔名称"};
inline constexpr std::string_view kGroupColumn = "位置";  ///< In JSON the groups are members.
inline constexpr HoleFieldName kSegmentColor = {"color", "颜色"};
inline constexpr std::string_view kSegmentOrigin = "origin";  ///< JSON: [x, y, z].

/// One group of segments, and a type's lists for it.
struct HoleGroupNames {
  std::string_view json;
  std::string_view cell;
  std::string_view english;
  std::string_view chinese;
  HoleFieldName colors;
  HoleFieldName diameters;
};

/// In the order of `kHoleGroups`.
inline constexpr HoleGroupNames kHoleGroupNames[] = {
    {"top", "顶", "top", "顶部", {"topColor", "顶颜色"}, {"topDiameter", "顶直径"}},
    {"through", "通", "through", "贯通", {"throughColor", "通颜色"}, {"throughDiameter", "通直径"}},
    {"bottom", "底", "bottom", "底部", {"bottomColor", "底颜色"}, {"bottomDiameter", "底直径"}},
};
static_assert(std::size(kHoleGroupNames) == kHoleGroupCount);

struct SegmentNumberField {
  HoleFieldName name;
  double HoleInfo::*value;
  bool isRequired;  ///< Else 0 when it is missing.
};

inline constexpr SegmentNumberField kSegmentNumbers[] = {
    {{"diameter", "直径"}, &HoleInfo::diameter, true},
    {{"height", "高度"}, &HoleInfo::height, false},
    {{"rHeight", "R高度"}, &HoleInfo::rHeight, false},
};

struct CoordinateField {
  std::string_view column;
  double NXOpen::Point3d::*value;
};

/// In the order of a JSON origin.
inline constexpr CoordinateField kCoordinates[] = {
    {"X", &NXOpen::Point3d::X},
    {"Y", &NXOpen::Point3d::Y},
    {"Z", &NXOpen::Point3d::Z},
};

/// The JSON members of a hole, a segment and a type, for looking names up.
std::vector<std::string_view> HoleMembers();
std::vector<std::string_view> SegmentMembers();
std::vector<std::string_view> HoleTypeMembers();

inline constexpr HoleFieldName kTypeName = {"name", "名称"};
inline constexpr HoleFieldName kTypeStructure = {"structure", "结构"};
inline constexpr HoleFieldName kTypeContent = {"content", "说明"};

}  // namespace plateconfig
