// The pieces of a text between its separators, one after another and without a copy. This is the one home of
// where a separator separates: `SplitString` collects what is visited here.
//
//   ForEachPiece("36_186", "_", [&](std::string_view piece) { colors.push_back(ParseInt(piece)); });
#pragma once

#include <cstddef>
#include <string_view>

#include "text/gbk_scan.h"

namespace plateconfig {

/// Visits the pieces of `text` (GBK), of which an empty text has none and any other one more than separators.
/// A byte that ends a character separates nothing; `separator` is not empty.
template <typename Visit>
void ForEachPiece(std::string_view text, std::string_view separator, Visit visit) {
  if (text.empty()) return;
  std::size_t begin = 0;
  for (std::size_t at = 0; at < text.size();) {
    if (!text.substr(at).starts_with(separator)) {
      at += GbkCharLength(text, at);
      continue;
    }
    visit(text.substr(begin, at - begin));
    at += separator.size();
    begin = at;
  }
  visit(text.substr(begin));
}

}  // namespace plateconfig
