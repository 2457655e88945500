#pragma once

// Values of the companion's own inputs. Unlike the tables of the drawing tool, where whatever is no number
// counts as 0, an input that is not exactly what it should be is refused.

#include <optional>
#include <string_view>
#include <vector>

namespace plateconfig {

/// The whole text as a finite decimal number.
std::optional<double> StrictNumber(std::string_view text);

/// The whole text as a decimal int.
std::optional<int> StrictInteger(std::string_view text);

/// True for text that is a decimal number, or int, beyond what the type holds.
bool IsNumberOutOfRange(std::string_view text);
bool IsIntegerOutOfRange(std::string_view text);

/// Y, y: true. N, n and an empty text: false.
std::optional<bool> StrictYesNo(std::string_view text);

/// Items joined by "_", none of them empty; an empty text is an empty list.
std::optional<std::vector<int>> StrictIntegers(std::string_view text);
std::optional<std::vector<double>> StrictNumbers(std::string_view text);

}  // namespace plateconfig
