#pragma once

// A finding is data first and a sentence last: what is wrong, where, what it counts as and what to write
// instead.

#include <algorithm>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "analysis/findings/codes.h"
#include "analysis/text/place.h"
#include "analysis/text/value.h"
#include "analysis/text/words.h"

namespace plateconfig {

/// A row of the table of codes, by its name; a name without a row does not compile.
class Code {
 public:
  consteval Code(const char* name) : row_(&RowNamed(name)) {}

  const CodeRow& Row() const { return *row_; }
  std::string_view Name() const { return row_->name; }
  bool operator==(const Code&) const = default;

 private:
  static consteval const CodeRow& RowNamed(std::string_view name) {
    const auto row = std::find_if(std::begin(kCodes), std::end(kCodes),
                                  [&](const CodeRow& each) { return each.name == name; });
    if (row == std::end(kCodes)) throw "there is no such code in codes.h";
    return *row;
  }

  const CodeRow* row_;
};

struct Finding {
  Code code;
  // Written out: optimising, g++ 12 takes the file of a {} for uninitialised when a later member throws.
  Place place = Place();
  std::string cell = {};                 ///< C17 as the spreadsheet names it; empty for none.
  std::string columnName = {};           ///< Header of the column, UTF-8; empty for none.
  std::optional<std::string> text = {};  ///< The offending text, UTF-8.
  std::optional<std::string> usedAs =
      {};  ///< What the library takes it for, UTF-8; an empty text is an empty cell.
  std::optional<std::string> fix = {};  ///< What to write instead, as it would stand in the cell, UTF-8.
  std::vector<Word> words = {};         ///< Further pieces of the sentence.
  Object members = {};                  ///< Further members for programs.
  std::string kin = {};  ///< Shared by those of a code that differ little: people are shown a few of a kin.
  std::string identity = {};  ///< What tells it from others of its code beside column and text; never shown.
};

/// Takes findings as they are made.
using Raise = std::function<void(Finding)>;

}  // namespace plateconfig
