#include "keys/cell_text.h"

#include <array>
#include <charconv>
#include <cmath>

#include "config/numbers.h"
#include "config/pieces.h"
#include "config/text_helpers.h"
#include "text/number_chars.h"

namespace plateconfig {
namespace {

constexpr std::string_view kJoint = "_";
constexpr int kFirstLayer = 1;
constexpr int kLastLayer = 256;

bool IsTaken(TakenCells taken, std::string_view cell, int number) {
  if (taken == TakenCells::kFilled) return !cell.empty();
  if (taken == TakenCells::kLayerNumbers) return number >= kFirstLayer && number <= kLastLayer;
  return number != 0;
}

}  // namespace

std::string NumberText(double value) {
  // From here on the digits behind 17 significant ones are zeros, and an exponent reads better.
  constexpr double kLong = 1e15;
  const auto format = std::abs(value) < kLong ? std::chars_format::fixed : std::chars_format::general;
  std::array<char, 400> text;
  const auto [end, error] = ToChars(text.data(), text.data() + text.size(), value, format);
  return {text.data(), end};
}

bool ReadFlag(FlagLetters letters, std::string_view cell) {
  switch (letters) {
    case FlagLetters::kYesIfUpperY:
      return cell == "Y";
    case FlagLetters::kYesIfY:
      return cell == "Y" || cell == "y";
    case FlagLetters::kNoIfUpperN:
      return cell != "N";
    case FlagLetters::kNoIfN:
      break;
  }
  return cell != "N" && cell != "n";
}

std::string FlagText(bool value) {
  return value ? "Y" : "N";
}

CellForm FormOf(FlagLetters letters) {
  switch (letters) {
    case FlagLetters::kYesIfUpperY:
      return CellForm::kFlagYesIfUpperY;
    case FlagLetters::kYesIfY:
      return CellForm::kFlagYesIfY;
    case FlagLetters::kNoIfUpperN:
      return CellForm::kFlagNoIfUpperN;
    case FlagLetters::kNoIfN:
      break;
  }
  return CellForm::kFlagNoIfN;
}

void AppendTaken(std::vector<int>& list, CellsView cells, TakenCells taken) {
  // Only the first time: asked for exactly, a list that grows with each reading would be copied each time.
  if (list.empty()) list.reserve(cells.size());
  for (const std::string_view cell : cells) {
    const int number = ParseInt(cell);
    if (IsTaken(taken, cell, number)) list.push_back(number);
  }
}

CellForm FormOf(TakenCells taken) {
  switch (taken) {
    case TakenCells::kNonZero:
      return CellForm::kNonZeroIntegers;
    case TakenCells::kLayerNumbers:
      return CellForm::kLayerNumbers;
    case TakenCells::kFilled:
      break;
  }
  return CellForm::kIntegers;
}

Cells IntCells(std::span<const int> numbers) {
  Cells cells;
  for (const int number : numbers) cells.push_back(IntToString(number));
  return cells;
}

std::vector<int> SplitInts(std::string_view cell) {
  std::vector<int> numbers;
  ForEachPiece(cell, kJoint, [&](std::string_view piece) { numbers.push_back(ParseInt(piece)); });
  return numbers;
}

std::string JoinInts(const std::vector<int>& numbers) {
  std::string text;
  for (const int number : numbers) text += (text.empty() ? "" : "_") + IntToString(number);
  return text;
}

std::optional<std::pair<double, double>> SplitRange(std::string_view cell) {
  std::array<std::string_view, 2> bounds;
  if (TakePieces(cell, kJoint, bounds) != bounds.size()) return std::nullopt;
  return std::pair(ParseDouble(bounds[0]), ParseDouble(bounds[1]));
}

std::string RangeText(double minimum, double maximum) {
  return NumberText(minimum) + "_" + NumberText(maximum);
}

}  // namespace plateconfig
