#pragma once

namespace plateconfig::bench {

/// Prints how the processor time grows when one thing after the other doubles: rows, columns, the length of a
/// cell, its quotes, its list. A factor near 2 is in step; near 4 it would be quadratic.
void PrintGrowth();

}  // namespace plateconfig::bench
