#pragma once

#include <string_view>

#include "analysis/text/place.h"

namespace plateconfig {

/// Follows a text (UTF-8) and knows where its next character stands: the one home of how lines and columns
/// are counted.
class PositionCounter {
 public:
  explicit PositionCounter(Position start = {1, 1}) : at_(start) {}

  Position At() const { return at_; }

  void Take(char c) {
    if (c == '\n') {
      at_ = {at_.line + 1, 1};
    } else if (BeginsCharacter(c)) {
      ++at_.column;
    }
  }

  void Take(std::string_view text) {
    for (const char c : text) Take(c);
  }

 private:
  static bool BeginsCharacter(char c) { return (static_cast<unsigned char>(c) & 0xC0u) != 0x80u; }

  Position at_;
};

}  // namespace plateconfig
