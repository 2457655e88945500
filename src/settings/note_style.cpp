#include "settings/note_style.h"

#include <array>
#include <string_view>

#include "config/numbers.h"
#include "config/pieces.h"
#include "config/text_helpers.h"
#include "keys/cell_text.h"

namespace plateconfig {
namespace {

constexpr std::size_t kFieldCount = 6;
constexpr std::size_t kLongestNumber = 221;

/// The fields of a style, its numbers as `toText` writes them.
template <typename ToText>
std::string Join(const NoteStyleFields& style, ToText toText) {
  std::string text = style.fontName;
  for (const double number : {style.size, style.factor1, style.factor2, style.factor3}) {
    text += "|" + toText(number);
  }
  return text + "|" + IntToString(style.option);
}

}  // namespace

NoteStyleFields ParseNoteStyle(std::string_view cell) {
  std::array<std::string_view, kFieldCount> fields;
  // Kept: all or nothing. Five good fields give the default font too.
  if (TakePieces(cell, "|", fields) < kFieldCount) return {};
  return {std::string(fields[0]), ParseDouble(fields[1]), ParseDouble(fields[2]),
          ParseDouble(fields[3]), ParseDouble(fields[4]), ParseInt(fields[5])};
}

std::string WriteNoteStyle(const NoteStyleFields& style) {
  return Join(style, [](double number) { return DoubleToString(number, 3).substr(0, kLongestNumber); });
}

std::string WriteWholeNoteStyle(const NoteStyleFields& style) {
  return Join(style, [](double number) { return DoubleToString(number, 0); });
}

std::string ShortNoteStyle(const NoteStyleFields& style) {
  std::string text = style.fontName;
  for (const double number : {style.size, style.factor1, style.factor2, style.factor3}) {
    text += "|" + NumberText(number);
  }
  return text + "|" + IntToString(style.option);
}

}  // namespace plateconfig
