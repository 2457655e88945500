#include "support/allocation_count.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t> allocationCount = 0;

}  // namespace

// The other forms of new and delete lead to these.
void* operator new(std::size_t size) {
  ++allocationCount;
  if (void* memory = std::malloc(size == 0 ? 1 : size)) return memory;
  throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
  std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}

namespace plateconfig::test {

std::size_t AllocationCount() {
  return allocationCount;
}

}  // namespace plateconfig::test
