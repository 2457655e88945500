#include "plateconfig/holes/hole_fields.h"

#include <iterator>
#include <memory>
#include <utility>

#include "plateconfig/input/json_records.h"

namespace plateconfig {
namespace {

constexpr Words kNothing = {"nothing", "任何内容"};

/// The coordinates of an origin in the order of the JSON list.
struct Coordinate {
  std::string_view column;
  double NXOpen::Point3d::*value;
};
constexpr Coordinate kCoordinates[] = {
    {"X", &NXOpen::Point3d::X},
    {"Y", &NXOpen::Point3d::Y},
    {"Z", &NXOpen::Point3d::Z},
};

std::optional<Code> IsHoleName(const std::string& name) {
  return name.empty() ? std::optional<Code>(Code("hole-no-name")) : std::nullopt;
}

std::optional<Code> IsTypeName(const std::string& name) {
  return name.empty() ? std::optional<Code>(Code("hole-type-no-name")) : std::nullopt;
}

/// In JSON the groups are members of the hole.
Field<SegmentInput> GroupField() {
  const auto read = [](std::string_view text, SegmentInput& row) -> CellVerdict {
    for (std::size_t group = 0; group < kHoleGroupCount; ++group) {
      if (text != kHoleGroupNames[group].cell) continue;
      row.group = group;
      return std::nullopt;
    }
    return CellMistake{"hole-not-group", std::string(text)};
  };
  return {{"位置", {}}, Need::kRequired, read};
}

Field<SegmentInput> NumberField(FieldNames names, Need need, double HoleInfo::*number) {
  return FieldOf<double, SegmentInput>(
      names, need, [number](SegmentInput& row, double value) { row.segment.*number = value; });
}

Field<SegmentInput> CoordinateField(const Coordinate& coordinate) {
  return FieldOf<double, SegmentInput>(
      {coordinate.column, {}}, Need::kOptional,
      [&coordinate](SegmentInput& row, double value) { row.segment.origin.*coordinate.value = value; });
}

void ReadOrigin(const JsonNode& node, JsonValues& values, SegmentInput& row) {
  std::vector<double> coordinates;
  values.Read(node, coordinates);
  if (coordinates.size() != std::size(kCoordinates)) return values.Refuse(node, {.code = "hole-origin"});
  for (std::size_t i = 0; i < coordinates.size(); ++i)
    row.segment.origin.*kCoordinates[i].value = coordinates[i];
}

/// One group's segments in JSON.
Field<HoleInput> SegmentsField(std::size_t group,
                               const std::shared_ptr<const RecordKind<SegmentInput>>& segment) {
  const auto read = [group, segment](const JsonNode& node, JsonValues& values, HoleInput& hole) {
    if (!values.IsArray(node)) return;
    for (const JsonNode& item : node.items) {
      if (!values.IsObject(item)) continue;
      SegmentInput row;
      ReadObject(item, *segment, values, row);
      (hole.hole.*kHoleGroups[group].segments).push_back(row.segment);
    }
  };
  return {{{}, kHoleGroupNames[group].json}, Need::kOptional, {}, read};
}

/// A list for each segment of a group.
template <typename Lists>
Field<HoleTypeInput> ListsField(FieldNames names, Lists HoleTypeInfo::*lists) {
  return FieldOf<Lists, HoleTypeInput>(names, Need::kExpected, [lists](HoleTypeInput& input, Lists value) {
    input.type.*lists = std::move(value);
  });
}

}  // namespace

RecordKind<HoleInput> HoleFields() {
  const auto segment = std::make_shared<const RecordKind<SegmentInput>>(SegmentFields());
  std::vector<Field<HoleInput>> fields = {FieldOf<std::string, HoleInput>(
      {{}, "name"}, Need::kRequired, [](HoleInput& hole, std::string name) { hole.name = std::move(name); },
      IsHoleName)};
  for (std::size_t group = 0; group < kHoleGroupCount; ++group)
    fields.push_back(SegmentsField(group, segment));
  return {std::move(fields), kNothing, {}, "hole-member-missing"};
}

RecordKind<SegmentInput> SegmentFields() {
  std::vector<Field<SegmentInput>> fields = {
      GroupField(),
      FieldOf<int, SegmentInput>({"颜色", "color"}, Need::kRequired,
                                 [](SegmentInput& row, int color) { row.segment.color = color; }),
      // The column has to be there, but its cells may be empty; the reader of holes sees to that.
      FieldOf<std::string, SegmentInput>(
          {"孔名称", {}}, Need::kRequired,
          [](SegmentInput& row, std::string name) { row.holeName = std::move(name); }),
      {{{}, "origin"}, Need::kOptional, {}, ReadOrigin},
      NumberField({"直径", "diameter"}, Need::kRequired, &HoleInfo::diameter),
      NumberField({"高度", "height"}, Need::kOptional, &HoleInfo::height),
      NumberField({"R高度", "rHeight"}, Need::kOptional, &HoleInfo::rHeight),
  };
  for (const Coordinate& coordinate : kCoordinates) fields.push_back(CoordinateField(coordinate));
  return {std::move(fields), kNothing, {}, "hole-member-missing"};
}

RecordKind<HoleTypeInput> HoleTypeFields() {
  std::vector<Field<HoleTypeInput>> fields = {
      FieldOf<std::string, HoleTypeInput>(
          {"名称", "name"}, Need::kRequired,
          [](HoleTypeInput& type, std::string name) { type.name = std::move(name); }, IsTypeName),
      FieldOf<std::string, HoleTypeInput>(
          {"结构", "structure"}, Need::kRequired,
          [](HoleTypeInput& input, std::string key) { input.type.countKey = std::move(key); }),
      FieldOf<std::string, HoleTypeInput>(
          {"说明", "content"}, Need::kOptional,
          [](HoleTypeInput& type, std::string content) { type.content = std::move(content); }),
  };
  for (std::size_t group = 0; group < kHoleGroupCount; ++group) {
    fields.push_back(ListsField(kHoleGroupNames[group].colors, kHoleGroups[group].colors));
    fields.push_back(ListsField(kHoleGroupNames[group].diameters, kHoleGroups[group].diameters));
  }
  return {std::move(fields), kNothing, {}, "hole-type-member-missing"};
}

}  // namespace plateconfig
