#include "support/allocation_count.h"

#include <atomic>
#include <cstdlib>
#include <limits>
#include <new>

namespace {

std::atomic<std::size_t> allocationCount = 0;
constexpr std::size_t kUnlimited = std::numeric_limits<std::size_t>::max();
thread_local std::size_t allocationsLeft = kUnlimited;
thread_local bool refusesOnce = false;
thread_local bool hasRefused = false;

/// Counts down; true when this one is refused.
bool RefusesAllocation() {
  if (allocationsLeft == kUnlimited) return false;
  if (allocationsLeft > 0) {
    --allocationsLeft;
    return false;
  }
  if (refusesOnce) allocationsLeft = kUnlimited;
  hasRefused = true;
  return true;
}

}  // namespace

// The other forms of new and delete lead to these, except under the address sanitizer, which brings all of
// them; so the forms that share a delete are replaced together.
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  ++allocationCount;
  if (RefusesAllocation()) return nullptr;
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

AllocationLimit::AllocationLimit(std::size_t further, Lasting lasting) {
  allocationsLeft = further;
  refusesOnce = lasting == Lasting::kOnce;
  hasRefused = false;
}

AllocationLimit::~AllocationLimit() {
  allocationsLeft = kUnlimited;
}

bool AllocationLimit::WasEnough() const {
  return !hasRefused;
}

}  // namespace plateconfig::test
