#pragma once

#include <cstddef>
#include <memory>

namespace plateconfig {

/// Memory for items that are written before they are read; std::make_unique would clear it first, and not
/// every standard library has the one that does not.
template <typename Item>
std::unique_ptr<Item[]> UninitializedMemory(std::size_t count) {
  return std::unique_ptr<Item[]>(new Item[count]);
}

}  // namespace plateconfig
