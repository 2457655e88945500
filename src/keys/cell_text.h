#pragma once

// What the kinds of cells have in common whatever record they fill: texts to values and back.

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "keys/cell_form.h"

namespace plateconfig {

/// Cells of one column, top to bottom (GBK).
using Cells = std::vector<std::string>;

/// The same, of which only a look is wanted: a column, or one cell of a row.
using CellsView = std::span<const std::string_view>;

/// What the value of a cell is, for whoever hands it on.
enum class CellType { kNumber, kInteger, kFlag, kText };

/// Kept: the letters differ from key to key, and tables in use rely on each key's own.
enum class FlagLetters {
  kYesIfUpperY,  ///< Yes for exactly Y.
  kYesIfY,       ///< Yes for exactly Y or y.
  kNoIfUpperN,   ///< No for exactly N, yes for anything else, also for an empty cell.
  kNoIfN,        ///< No for exactly N or n, yes for anything else, also for an empty cell.
};

/// Which cells of a column a list of numbers takes.
enum class TakenCells {
  kNonZero,       ///< Numbers other than 0; an empty cell and one that is no number are 0.
  kLayerNumbers,  ///< Numbers from 1 to 256, the layers that the host has.
  kFilled,        ///< Every cell that is not empty; one that is no number is 0.
};

/// The shortest text that reads as the same number.
std::string NumberText(double value);

bool ReadFlag(FlagLetters letters, std::string_view cell);
/// Y or N, which every kind of flag reads back.
std::string FlagText(bool value);
CellForm FormOf(FlagLetters letters);

void AppendTaken(std::vector<int>& list, CellsView cells, TakenCells taken);
CellForm FormOf(TakenCells taken);
Cells IntCells(std::span<const int> numbers);

/// Lists inside one cell, joined by "_".
std::vector<int> SplitInts(std::string_view cell);
std::string JoinInts(const std::vector<int>& numbers);

/// The bounds of a cell min_max; nothing unless it has exactly two pieces.
std::optional<std::pair<double, double>> SplitRange(std::string_view cell);
std::string RangeText(double minimum, double maximum);

}  // namespace plateconfig
