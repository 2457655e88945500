#pragma once

// A growing text for whoever writes many short pieces: what the pieces need is looked for once for each line,
// and they are written where they stay.

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <memory>
#include <string_view>

#include "text/uninitialized_memory.h"

namespace plateconfig {

class TextBuffer {
 public:
  /// Room for `count` characters behind the text; `KeepUpTo` says where the text ends now.
  char* Room(std::size_t count) {
    if (capacity_ - size_ < count) Grow(size_ + count);
    return text_.get() + size_;
  }
  void KeepUpTo(const char* end) { size_ = static_cast<std::size_t>(end - text_.get()); }

  std::string_view View() const { return {text_.get(), size_}; }

 private:
  void Grow(std::size_t least) {
    // As much as most have at the end: growing there copies all of it, and untouched memory costs nothing.
    constexpr std::size_t kFirstCapacity = std::size_t{64} << 10;
    const std::size_t capacity = std::max({least, 2 * capacity_, kFirstCapacity});
    auto larger = UninitializedMemory<char>(capacity);
    if (size_ > 0) std::memcpy(larger.get(), text_.get(), size_);
    text_ = std::move(larger);
    capacity_ = capacity;
  }

  std::unique_ptr<char[]> text_;
  std::size_t size_ = 0;
  std::size_t capacity_ = 0;
};

/// Writes the text at `to`; where it ends there.
inline char* Put(char* to, std::string_view text) {
  if (!text.empty()) std::memcpy(to, text.data(), text.size());
  return to + text.size();
}

}  // namespace plateconfig
