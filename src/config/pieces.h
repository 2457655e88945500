#pragma once

// The pieces of a text between its separators, one after another and without a copy. This is the one home of
// where a separator separates: `SplitString` collects what is visited here.
//
//   ForEachPiece("36_186", "_", [&](std::string_view piece) { colors.push_back(ParseInt(piece)); });

#include <array>
#include <cstddef>
#include <string_view>

#include "text/gbk_scan.h"

namespace plateconfig {

/// Hands each piece of `text` (GBK) between the occurrences of `separator` to `take`, as views of the text:
/// empty pieces too, also at both ends. An empty text has no pieces, and without a separator the text is one.
template <typename Take>
void ForEachPiece(std::string_view text, std::string_view separator, Take take) {
  if (text.empty()) return;
  std::size_t begin = 0;
  for (std::size_t at = 0; at < text.size() && !separator.empty();) {
    if (text[at] != separator[0] || (separator.size() > 1 && !text.substr(at).starts_with(separator))) {
      at += GbkCharLength(text, at);
      continue;
    }
    take(text.substr(begin, at - begin));
    begin = at += separator.size();
  }
  take(text.substr(begin));
}

/// Puts the first pieces of `text` into `pieces`; how many there are in the text.
template <std::size_t most>
std::size_t TakePieces(std::string_view text, std::string_view separator,
                       std::array<std::string_view, most>& pieces) {
  std::size_t count = 0;
  ForEachPiece(text, separator, [&](std::string_view piece) {
    if (count < most) pieces[count] = piece;
    ++count;
  });
  return count;
}

}  // namespace plateconfig
