#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace plateconfig {

/// The name (UTF-8) among `known` that differs from `name` in the fewest characters, for "did you mean";
/// empty when each differs in more than a third of its characters.
std::string MostSimilarName(std::string_view name, const std::vector<std::string_view>& known);

/// The name among `known` that a header was probably meant to be: the same but for width, case, script,
/// blanks or a unit; or the only one that it shortens or lengthens; or one that differs in few characters.
/// Empty when there is none.
std::string ProbablyMeantName(const std::string& name, const std::vector<std::string>& known);

/// The one of a few names of which one must have been meant: it lacks a character, has one more or another
/// one, has them in another order, or one holds the other. Empty when none or several are so.
std::string SlippedName(std::string_view name, const std::vector<std::string_view>& missing);

}  // namespace plateconfig
