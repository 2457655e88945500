#pragma once

// What the cells of a column look like, and what they are measured in. Each is only named here: the words for
// it, and what is wrong with a cell, belong to those who speak of tables. They switch over these values, so
// that the compiler points at each of them when there is a new one.

namespace plateconfig {

enum class CellForm {
  kNumber,
  kInteger,
  kIntegerOrAbsent,  ///< An empty first cell counts as no column.
  kText,
  kTextOrAbsent,  ///< An empty first cell counts as no column.
  kStyle,
  kFlagYesIfUpperY,  ///< Of the flags, the letters that decide; see `FlagLetters`.
  kFlagYesIfY,
  kFlagNoIfUpperN,
  kFlagNoIfN,
  kTexts,     ///< A list down its column, as the following three.
  kIntegers,  ///< Of the integers, the cells that count; see `TakenCells`.
  kNonZeroIntegers,
  kLayerNumbers,
  kJoinedIntegers,      ///< 12_6
  kJoinedNumbers,       ///< 6_8.5
  kRange,               ///< 10_200
  kConditionText,       ///< One of the condition texts of the process list.
  kExactParameter,      ///< Exactly the name of a general parameter, or anything else.
  kExactSoftParameter,  ///< Exactly the name of the soft material's parameter, or anything else.
};

/// Where nothing says what a value is measured in, there is none: a guess would be taken for a fact.
enum class Unit {
  kNone,
  kMm,
  kRatio,
  kLayer,  ///< NX layer number.
  kColor,  ///< NX colour index.
  kDegrees,
  kDecimals,
  kCount,
  kRows,
  kDensity,  ///< g/cm³
};

}  // namespace plateconfig
