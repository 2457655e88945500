#pragma once

// Numbers as messages and results show them.

#include <fmt/format.h>

#include <string>
#include <vector>

namespace plateconfig {

/// Ten digits: enough for every size and bound, and too few to show the noise of a subtraction or the next
/// double beside a number.
std::string ShownNumber(double value);

/// Numbers joined as in a table's cell: 36_186. Empty for none.
template <typename Number>
std::string ShownList(const std::vector<Number>& numbers) {
  return fmt::format("{}", fmt::join(numbers, "_"));
}

}  // namespace plateconfig
