#pragma once

#include <cstddef>

namespace plateconfig::test {

/// How often the test program has asked `operator new` for memory so far, in all of its threads.
std::size_t AllocationCount();

/// Lets this thread ask `operator new` this many times more, and has it throw `std::bad_alloc` from then on,
/// until the end of the test.
class AllocationLimit {
 public:
  explicit AllocationLimit(std::size_t further);
  ~AllocationLimit();
  AllocationLimit(const AllocationLimit&) = delete;
  AllocationLimit& operator=(const AllocationLimit&) = delete;
};

}  // namespace plateconfig::test
