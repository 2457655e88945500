#pragma once

#include <cstddef>

namespace plateconfig::test {

/// How often the test program has asked `operator new` for memory so far, in all of its threads.
std::size_t AllocationCount();

}  // namespace plateconfig::test
