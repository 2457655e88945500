#include "plateconfig/plate_fields.h"

#include <algorithm>

namespace plateconfig {

std::vector<std::string_view> PlateColumns() {
  std::vector<std::string_view> columns = {kPlateName.column, kFaceColors.column};
  for (const auto& field : kPlateNumbers) columns.push_back(field.column);
  for (const auto& field : kPlateIntegers) columns.push_back(field.column);
  return columns;
}

void NormalizeFaceColors(Plate& plate) {
  auto& colors = plate.faceColors;
  std::sort(colors.begin(), colors.end());
  colors.erase(std::unique(colors.begin(), colors.end()), colors.end());
}

}  // namespace plateconfig
