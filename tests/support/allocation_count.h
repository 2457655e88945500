#pragma once

#include <cstddef>

namespace plateconfig::test {

/// How often the test program has asked `operator new` for memory so far, in all of its threads.
std::size_t AllocationCount();

/// Lets this thread ask `operator new` this many times more, and has it throw `std::bad_alloc` then, once or
/// from then on, until the end of the test.
class AllocationLimit {
 public:
  enum class Lasting { kOnce, kForGood };

  explicit AllocationLimit(std::size_t further, Lasting lasting = Lasting::kForGood);
  ~AllocationLimit();
  AllocationLimit(const AllocationLimit&) = delete;
  AllocationLimit& operator=(const AllocationLimit&) = delete;

  /// Nothing was refused.
  bool WasEnough() const;
};

}  // namespace plateconfig::test
