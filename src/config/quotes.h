// Quotes around the cells of comma-separated text: where the quotes of a cell end, and its text without them.
// table.h describes the form. Everyone who splits such text into cells asks here, so that a quoted cell ends
// at the same byte for all.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace plateconfig {

inline constexpr char kQuote = '"';

/// The closing quote of a text that begins behind its opening quote; npos when there is none. A doubled quote
/// is no end.
inline std::size_t FindClosingQuote(std::string_view bytes, std::size_t from) {
  for (std::size_t at = from; (at = bytes.find(kQuote, at)) != std::string_view::npos; at += 2) {
    if (at + 1 == bytes.size() || bytes[at + 1] != kQuote) return at;
  }
  return std::string_view::npos;
}

/// Where the first separator behind the cell's begin may stand: behind its closing quote, or at the begin
/// itself. An opening quote that is never closed is looked for once at most: behind it all quotes stand in
/// pairs, which close each other.
inline std::size_t EndOfQuotes(std::string_view bytes, std::size_t begin) {
  if (begin == bytes.size() || bytes[begin] != kQuote) return begin;
  const std::size_t closing = FindClosingQuote(bytes, begin + 1);
  return closing == std::string_view::npos ? begin : closing + 1;
}

/// The text of a cell that begins with a quote.
inline std::string Unquoted(std::string_view raw) {
  const std::size_t closing = FindClosingQuote(raw, 1);
  if (closing == std::string_view::npos) return std::string(raw);
  std::string text(closing - 1, '\0');
  char* end = text.data();
  for (std::size_t at = 1; at < closing; at += raw[at] == kQuote ? 2u : 1u)
    *end++ = raw[at];  // Of a pair one.
  text.resize(static_cast<std::size_t>(end - text.data()));
  text.append(raw.substr(closing + 1));
  return text;
}

}  // namespace plateconfig
