#pragma once

// What holes and hole types consist of, with the names in both forms of input and in the output.

#include <string>
#include <string_view>
#include <vector>

#include "holes/classification.h"
#include "plateconfig/input/field.h"

namespace plateconfig {

/// One group of segments, and a type's lists for it.
struct HoleGroupNames {
  std::string_view json;
  std::string_view cell;
  Words name;
  FieldNames colors;
  FieldNames diameters;
};

/// In the order of `kHoleGroups`.
inline constexpr HoleGroupNames kHoleGroupNames[] = {
    {"top", "顶", {"top", "顶部"}, {"顶颜色", "topColor"}, {"顶直径", "topDiameter"}},
    {"through", "通", {"through", "通孔"}, {"通颜色", "throughColor"}, {"通直径", "throughDiameter"}},
    {"bottom", "底", {"bottom", "底部"}, {"底颜色", "bottomColor"}, {"底直径", "bottomDiameter"}},
};
static_assert(std::size(kHoleGroupNames) == kHoleGroupCount);

struct HoleInput {
  std::string name;  ///< UTF-8.
  Position position;
  CombHole hole;
};

/// A row of a CSV file of holes.
struct SegmentInput {
  std::string holeName;  ///< Empty when the row goes on with the hole of the row before.
  Position position;
  std::size_t group = 0;  ///< Place in `kHoleGroups`.
  HoleInfo segment;
};

struct HoleTypeInput {
  std::string name;     ///< UTF-8; `type.name` stays empty.
  std::string content;  ///< UTF-8; `type.content` stays empty.
  Position position;
  HoleTypeInfo type;
};

RecordKind<HoleInput> HoleFields();  ///< JSON alone: CSV has segments.
RecordKind<SegmentInput> SegmentFields();
RecordKind<HoleTypeInput> HoleTypeFields();

}  // namespace plateconfig
