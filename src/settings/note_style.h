#pragma once

// The text form of styles, for both classes that have a record of that name: one parser, three writers.

#include <string>
#include <string_view>

#include "settings/default_manager.h"

namespace plateconfig {

/// The six fields of a style; a fresh one is the default style.
using NoteStyleFields = DefaultManager::NoteStyle;

/// The record of the one class as that of the other.
template <typename To, typename From>
To CopyStyle(const From& from) {
  return {from.fontName, from.size, from.factor1, from.factor2, from.factor3, from.option};
}

/// What a cell (GBK) says; with fewer than six fields the default style.
NoteStyleFields ParseNoteStyle(std::string_view cell);

/// The cell of a style, its numbers with three decimals and cut to 221 characters.
std::string WriteNoteStyle(const NoteStyleFields& style);

/// The cell of a style, its numbers rounded to whole ones and never cut.
std::string WriteWholeNoteStyle(const NoteStyleFields& style);

/// The same with the shortest numbers that read back as they are.
std::string ShortNoteStyle(const NoteStyleFields& style);

}  // namespace plateconfig
