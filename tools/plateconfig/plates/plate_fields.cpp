#include "plateconfig/plates/plate_fields.h"

#include <algorithm>

namespace plateconfig {

std::vector<std::string_view> PlateColumns() {
  std::vector<std::string_view> columns = {kPlateName.column, kFaceColors.column};
  for (const auto& field : kPlateNumbers) columns.push_back(field.column);
  for (const auto& field : kPlateIntegers) columns.push_back(field.column);
  return columns;
}

std::vector<std::string_view> PlateMembers() {
  std::vector<std::string_view> members = {kPlateName.json, kFaceColors.json, kFeatures, kCustomProcesses};
  for (const auto& field : kPlateNumbers) members.push_back(field.json);
  for (const auto& field : kPlateIntegers) members.push_back(field.json);
  return members;
}

void NormalizeFaceColors(Plate& plate) {
  auto& colors = plate.faceColors;
  std::sort(colors.begin(), colors.end());
  colors.erase(std::unique(colors.begin(), colors.end()), colors.end());
}

}  // namespace plateconfig
