#pragma once

// The fields that every plate has, with their names in both forms.

#include <string_view>
#include <vector>

#include "rules/evaluation.h"

namespace plateconfig {

struct PlateNumberField {
  std::string_view json;
  std::string_view column;
  double Plate::*value;
  bool isPositive;  ///< Else 0 is allowed.
};

/// All of them are required.
inline constexpr PlateNumberField kPlateNumbers[] = {
    {"length", "长度", &Plate::length, true},
    {"width", "宽度", &Plate::width, true},
    {"thickness", "厚度", &Plate::height, true},
    {"weight", "重量", &Plate::weight, false},
};

struct PlateIntegerField {
  std::string_view json;
  std::string_view column;
  int Plate::*value;
  bool isRequired;  ///< Else 0 when it is missing.
};

inline constexpr PlateIntegerField kPlateIntegers[] = {
    {"layer", "图层", &Plate::layer, false},
    {"color", "体颜色", &Plate::color, true},
};

struct FieldName {
  std::string_view json;
  std::string_view column;
};

inline constexpr FieldName kPlateName = {"name", "名称"};
inline constexpr FieldName kFaceColors = {"faceColors", "面颜色"};
inline constexpr std::string_view kFeatures = "features";  ///< JSON alone; in CSV each feature is a column.
inline constexpr std::string_view kCustomProcesses = "customProcesses";  ///< JSON alone.

/// True when the number is one that the field allows.
inline bool Allows(const PlateNumberField& field, double value) {
  return field.isPositive ? value > 0 : value >= 0;
}

/// Every field's column, for looking names up.
std::vector<std::string_view> PlateColumns();

/// Every member of a plate's object, for looking names up.
std::vector<std::string_view> PlateMembers();

/// Sorts the face colours and drops duplicates, as the evaluation wants them.
void NormalizeFaceColors(Plate& plate);

}  // namespace plateconfig
