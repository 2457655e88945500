#pragma once

// Memory of many megabytes: filling it costs the system less in large pages than in thousands of small ones.

#include <cstddef>

namespace plateconfig {

/// Asks the system for large pages for memory that nobody has touched yet. A hint, of no consequence where
/// the memory is small or the system does not know it.
void PreferLargePages(void* memory, std::size_t size);

}  // namespace plateconfig
