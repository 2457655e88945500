#pragma once

// What `picture` is asked to draw: its options as they were given (UTF-8), and how their texts read.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/pictures/rule_map.h"
#include "analysis/pictures/sheet_builder.h"
#include "plateconfig/tables/configuration.h"

namespace plateconfig {

struct PictureJob {
  std::string kind;                ///< One of `picture_kinds`.
  std::vector<std::string> files;  ///< Of cells the table, of changes the folders, of holes the holes.
  ConfigurationOptions configuration;
  std::string x;  ///< Names of sizes.
  std::string y;
  std::vector<std::string> fixed;
  std::string xRange;
  std::string yRange;
  std::optional<int> bodyColor;
  FaceAnswers answers;
  std::vector<std::string> typeFiles;
  std::string sheetSize;
  std::string paper;
};

namespace picture_kinds {

inline constexpr const char* kCells = "cells";
inline constexpr const char* kMap = "map";
inline constexpr const char* kChanges = "changes";
inline constexpr const char* kHoles = "holes";
inline constexpr const char* kSheet = "sheet";

}  // namespace picture_kinds

namespace sheet_sizes {

inline constexpr const char* kSmall = "small";
inline constexpr const char* kLarge = "large";

}  // namespace sheet_sizes

/// Values such as 50_800: an interval of finite numbers from 0 on that is more than one number.
std::optional<Interval> RangeOf(std::string_view text);

/// A size and its value, such as thickness=30.
struct FixedSize {
  std::size_t size = 0;  ///< Place in `kSizeConditions`.
  double value = 0;
};
/// Nothing for anything else; a length, width or thickness is above 0.
std::optional<FixedSize> FixedSizeOf(std::string_view text);

/// A paper such as 420x297, both sides above 0.
std::optional<PaperSize> PaperSizeOf(std::string_view text);

/// The question of a map. Nothing, with an error, when it is not one: a size is missing, or named twice.
std::optional<MapQuestion> QuestionOf(const PictureJob& job, Reporter& reporter);

}  // namespace plateconfig
