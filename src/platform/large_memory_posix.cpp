#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>

#include "platform/large_memory.h"

namespace plateconfig {

void PreferLargePages([[maybe_unused]] void* memory, [[maybe_unused]] std::size_t size) {
#ifdef MADV_HUGEPAGE
  // Memory of this size is given back to the system when it is freed, and the hint with it.
  constexpr std::size_t kLarge = std::size_t{64} << 20;
  if (size < kLarge) return;
  const auto page = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
  const auto begin = reinterpret_cast<std::uintptr_t>(memory);
  const std::uintptr_t untilPage = (page - begin % page) % page;
  madvise(static_cast<char*>(memory) + untilPage, size - untilPage, MADV_HUGEPAGE);
#endif
}

}  // namespace plateconfig
