#pragma once

// Every key of the settings tables as the makers of the tables know it, written down by hand and apart from
// the library's own tables of keys: its column, how its cells are read, what an absent column gives, and the
// public field or getter where the value arrives.

#include <locale>
#include <span>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "settings/custom_default.h"
#include "settings/default_manager.h"
#include "settings/system_default.h"

namespace plateconfig::test {

enum class Reads {
  kNumber,
  kInteger,
  kIntegerOrEmpty,  // An empty first cell counts as absent.
  kText,
  kStyle,
  kYesIfUpperY,
  kYesIfY,
  kNoIfUpperN,
  kNoIfN,
  kNonZeroList,
  kLayerList,     // 1 to 256.
  kFilledList,    // Filled cells, zeros too.
  kTriangleList,  // Non-zero; 12 and 6 when there is none.
  kTexts,
  kFilledTexts,
};

/// The three classes, all their tables loaded from one table or each from its own.
struct LoadedClasses {
  DefaultManager layout;
  CustomDefault custom;
  SystemDefault system;
};

struct StatedKey {
  std::string_view role;
  std::string_view column;  // UTF-8
  Reads reads;
  std::string_view whenAbsent;  // UTF-8; lists joined by commas
  std::string (*value)(const LoadedClasses& classes);
};

std::span<const StatedKey> StatedKeys();

/// A class value as text: lists joined by commas, flags Y or N, styles with their six fields.
std::string Shown(double value);
std::string Shown(bool value);
std::string Shown(const std::string& gbk);
std::string Shown(const std::vector<int>& list);
std::string Shown(const std::vector<std::string>& list);

inline std::string Shown(int value) {
  return std::to_string(value);
}

template <typename NoteStyle>
requires requires(const NoteStyle& style) {
  style.fontName;
}
std::string Shown(const NoteStyle& style) {
  std::ostringstream text;
  text.imbue(std::locale::classic());
  text << Shown(style.fontName) << '|' << style.size << '|' << style.factor1 << '|' << style.factor2 << '|'
       << style.factor3 << '|' << style.option;
  return text.str();
}

}  // namespace plateconfig::test
