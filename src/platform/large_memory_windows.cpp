#include "platform/large_memory.h"

namespace plateconfig {

// Large pages need a right there that users do not have.
void PreferLargePages(void*, std::size_t) {}

}  // namespace plateconfig
