#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace plateconfig {

/// The name (UTF-8) among `known` that differs from `name` in the fewest characters, for "did you mean";
/// empty when each differs in more than a third of its characters.
std::string MostSimilarName(std::string_view name, const std::vector<std::string_view>& known);

/// What a message about a wrong name ends with, in the current language: the name that was probably meant;
/// nothing when `similar` is empty.
std::string DidYouMean(const std::string& similar);

}  // namespace plateconfig
