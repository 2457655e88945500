#pragma once

// A growing list of places in a file, 32 bits each. Unlike a vector it gives out room that nobody has filled
// with zeros first, which would touch the memory of a large table twice.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <memory>
#include <utility>

#include "platform/large_memory.h"
#include "text/uninitialized_memory.h"

namespace plateconfig {

class Places {
 public:
  Places() = default;
  /// Makes room at once for about as many as there will be.
  explicit Places(std::size_t expected) { Grow(expected); }

  Places(Places&& other) noexcept
      : places_(std::move(other.places_)),
        size_(std::exchange(other.size_, 0)),
        capacity_(std::exchange(other.capacity_, 0)) {}
  Places& operator=(Places&& other) noexcept {
    places_ = std::move(other.places_);
    size_ = std::exchange(other.size_, 0);
    capacity_ = std::exchange(other.capacity_, 0);
    return *this;
  }

  std::size_t Size() const { return size_; }
  std::uint32_t operator[](std::size_t at) const { return places_[at]; }

  /// Room for `count` places behind the last one; `Keep` says how many were filled.
  std::uint32_t* Room(std::size_t count) {
    if (capacity_ - size_ < count) Grow(std::max(2 * capacity_, size_ + count));
    return places_.get() + size_;
  }
  void Keep(std::size_t count) { size_ += count; }

  void Add(std::size_t place) {
    *Room(1) = static_cast<std::uint32_t>(place);
    Keep(1);
  }

 private:
  void Grow(std::size_t capacity) {
    auto larger = UninitializedMemory<std::uint32_t>(capacity);
    PreferLargePages(larger.get(), capacity * sizeof(std::uint32_t));
    if (size_ > 0) std::memcpy(larger.get(), places_.get(), size_ * sizeof(std::uint32_t));
    places_ = std::move(larger);
    capacity_ = capacity;
  }

  std::unique_ptr<std::uint32_t[]> places_;
  std::size_t size_ = 0;
  std::size_t capacity_ = 0;
};

}  // namespace plateconfig
