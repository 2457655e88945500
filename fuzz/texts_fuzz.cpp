// Numbers as the C library reads them and cut as their text is cut, lists that join to the text they were
// split from, styles that come back, and conversions that do.
#include "fuzz/targets.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <string>
#include <vector>

#include "config/numbers.h"
#include "config/text_helpers.h"
#include "fuzz/require.h"
#include "holes/naive_cut.h"
#include "holes/number_cut.h"
#include "settings/custom_default.h"
#include "settings/note_style.h"
#include "text/gbk.h"

namespace plateconfig::fuzz {
namespace {

bool AreSame(double a, double b) {
  return (a == b && std::signbit(a) == std::signbit(b)) || (std::isnan(a) && std::isnan(b));
}

#ifndef _WIN32  // The C libraries there differ among themselves.
double CLibraryDouble(const std::string& text) {
  const test::ClassicNumbers classic;
  return std::strtod(text.c_str(), nullptr);
}
#endif

void ReadNumbers(const std::string& text) {
  const long nearest = std::clamp<long>(std::strtol(text.c_str(), nullptr, 10),
                                        std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
  Require(ParseInt(text) == nearest, "an int is read as strtol reads it");
#ifndef _WIN32
  Require(AreSame(ParseDouble(text), CLibraryDouble(text)), "a double is read as strtod reads it");
#endif
}

void CutNumber(double number) {
  for (const int decimals : {0, 4, 9})
    Require(AreSame(CutDecimals(number, decimals), test::NaiveCut(number, decimals)),
            "a number is cut as its text with nine decimals is cut");
}

void SplitAndJoin(const std::string& text, const std::string& separator) {
  std::string joined;
  for (const std::string& piece : SplitString(text, separator)) joined += piece + separator;
  if (!text.empty()) joined.resize(joined.size() - separator.size());
  Require(joined == text, "the pieces, joined again, are the text");
}

void ConvertAndComeBack(const std::string& text) {
  Require(IsValidUtf8(GbkToUtf8(text)), "any bytes convert to well-formed UTF-8");
  Require(IsValidGbk(Utf8ToGbk(text)), "any bytes convert to assigned GBK characters");
  if (const auto utf8 = TryGbkToUtf8(text)) Require(TryUtf8ToGbk(*utf8) == text, "GBK comes back from UTF-8");
  if (const auto gbk = TryUtf8ToGbk(text)) Require(TryGbkToUtf8(*gbk) == text, "UTF-8 comes back from GBK");
}

// ---- styles ----

bool AreSame(const NoteStyleFields& a, const NoteStyleFields& b) {
  return a.fontName == b.fontName && AreSame(a.size, b.size) && AreSame(a.factor1, b.factor1) &&
         AreSame(a.factor2, b.factor2) && AreSame(a.factor3, b.factor3) && a.option == b.option;
}

bool IsBetween(char byte, int least, int most) {
  const int value = static_cast<unsigned char>(byte);
  return least <= value && value <= most;
}

/// The fields of a cell, one character after the other; a "|" may be the second byte of one.
std::vector<std::string> NaiveFields(const std::string& cell) {
  std::vector<std::string> fields(1);
  for (std::size_t i = 0; i < cell.size(); ++i) {
    if (cell[i] == '|') {
      fields.emplace_back();
      continue;
    }
    fields.back() += cell[i];
    const bool isFirstOfTwo = IsBetween(cell[i], 0x81, 0xFE) && i + 1 < cell.size() &&
                              IsBetween(cell[i + 1], 0x40, 0xFE) && cell[i + 1] != 0x7F;
    if (isFirstOfTwo) fields.back() += cell[++i];
  }
  return fields;
}

NoteStyleFields NaiveStyle(const std::string& cell) {
  const auto fields = NaiveFields(cell);
  if (fields.size() < 6) return {"chinesef_fs", 3, 0.5, 0.5, 0.5, 1};
  const auto number = [&](std::size_t i) { return ParseDouble(fields[i]); };
  return {fields[0], number(1), number(2), number(3), number(4), ParseInt(fields[5])};
}

/// No number of the style is so long that writing cuts it.
bool IsWrittenWhole(const NoteStyleFields& style) {
  constexpr double kMost = 1e200;
  return std::max({std::abs(style.size), std::abs(style.factor1), std::abs(style.factor2),
                   std::abs(style.factor3)}) < kMost;
}

void ReadAndWriteStyle(const std::string& cell) {
  const NoteStyleFields style = ParseNoteStyle(cell);
  Require(AreSame(style, NaiveStyle(cell)), "a style is its six fields, or the default style");
  const auto custom = CustomDefault::StringToNoteStyle(cell);
  Require(AreSame(CopyStyle<NoteStyleFields>(custom), style), "both classes read the same style");
  Require(AreSame(ParseNoteStyle(ShortNoteStyle(style)), style), "a style as it is shown reads back");
  const std::string written = WriteNoteStyle(style);
  Require(CustomDefault::NoteStyleToString(custom) == written, "both classes write the same style");
  if (IsWrittenWhole(style))
    Require(WriteNoteStyle(ParseNoteStyle(written)) == written, "a style as it is written stays so");
  const std::string whole = WriteWholeNoteStyle(style);
  Require(WriteWholeNoteStyle(ParseNoteStyle(whole)) == whole, "a style in whole numbers stays so");
}

}  // namespace

void FuzzTexts(std::string_view bytes) {
  const std::string text(bytes);
  ReadNumbers(text);
  CutNumber(ParseDouble(text));
  SplitAndJoin(text, "_");
  SplitAndJoin(text, "|");
  ReadAndWriteStyle(text);
  ConvertAndComeBack(text);
}

}  // namespace plateconfig::fuzz
