#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace plateconfig {

/// The name (UTF-8) among `known` that differs from `name` in the fewest characters, for "did you mean";
/// empty when each differs in more than a third of its characters.
std::string MostSimilarName(std::string_view name, const std::vector<std::string_view>& known);

}  // namespace plateconfig
