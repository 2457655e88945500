#include "support/allocation_count.h"

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

std::atomic<std::size_t> allocationCount = 0;

}  // namespace

// The other forms of new and delete lead to these, except under the address sanitizer, which brings all of
// them; so the forms that share a delete are replaced together.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  ++allocationCount;
  return std::malloc(size == 0 ? 1 : size);
}

void* operator new(std::size_t size) {
  if (void* memory = operator new(size, std::nothrow)) return memory;
  throw std::bad_alloc();
}

void operator delete(void* memory) noexcept {
  std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}

void operator delete(void* memory, const std::nothrow_t&) noexcept {
  std::free(memory);
}

namespace plateconfig::test {

std::size_t AllocationCount() {
  return allocationCount;
}

}  // namespace plateconfig::test
