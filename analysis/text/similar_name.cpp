#include "analysis/text/similar_name.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <numeric>

#include "analysis/text/folded_name.h"
#include "text/utf8_decode.h"

namespace plateconfig {
namespace {

std::u32string Characters(std::string_view utf8) {
  std::u32string characters;
  for (std::size_t at = 0; at < utf8.size();) {
    const Utf8Character character = DecodeUtf8At(utf8, at);
    characters += static_cast<char32_t>(character.value);
    at += std::max<std::size_t>(character.length, 1);
  }
  return characters;
}

/// Levenshtein's distance: the fewest insertions, deletions and replacements that turn one text into the
/// other.
std::size_t EditDistance(const std::u32string& a, const std::u32string& b) {
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 0; i < a.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i + 1;
    for (std::size_t j = 0; j < b.size(); ++j) {
      const std::size_t replaced = diagonal + (a[i] == b[j] ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({replaced, diagonal + 1, row[j] + 1});
    }
  }
  return row.back();
}

/// True when the name has more than twice the characters of every known one, so that it resembles none.
bool IsTooLong(std::string_view name, const std::vector<std::string_view>& known) {
  constexpr std::size_t kLongestCharacter = 4;
  return std::ranges::all_of(known, [&](std::string_view candidate) {
    return name.size() / kLongestCharacter > 2 * candidate.size() + 1;
  });
}

bool IsSlipOf(const std::u32string& name, const std::u32string& meant) {
  const auto holds = [](const std::u32string& text, const std::u32string& part) {
    return text.find(part) != std::u32string::npos;
  };
  return holds(name, meant) || holds(meant, name) || EditDistance(name, meant) == 1 ||
         (name.size() == meant.size() && std::is_permutation(name.begin(), name.end(), meant.begin()));
}

}  // namespace

std::string MostSimilarName(std::string_view name, const std::vector<std::string_view>& known) {
  if (IsTooLong(name, known)) return {};  // Taking megabytes apart would need a multiple of their memory.
  const std::u32string wanted = Characters(name);
  std::string best;
  std::size_t bestDistance = wanted.size() / 3 + 1;
  for (const std::string_view candidate : known) {
    const std::u32string letters = Characters(candidate);
    const std::size_t lengths =
        std::max(wanted.size(), letters.size()) - std::min(wanted.size(), letters.size());
    if (lengths >= bestDistance) continue;  // The distance is this large at least.
    const std::size_t distance = EditDistance(wanted, letters);
    if (distance >= bestDistance) continue;
    bestDistance = distance;
    best = candidate;
  }
  return best;
}

std::string ProbablyMeantName(const std::string& name, const std::vector<std::string>& known) {
  constexpr std::size_t kTwoCharacters = 6;
  const std::string folded = FoldedNameWithoutUnit(name);
  if (folded.empty()) return {};
  std::vector<std::string> nested;
  for (const std::string& candidate : known) {
    if (FoldedNameWithoutUnit(candidate) == folded) return candidate;
    const std::string other = FoldedName(candidate);
    if (other.find(folded) != std::string::npos || folded.find(other) != std::string::npos)
      nested.push_back(candidate);
  }
  if (nested.size() == 1 && folded.size() >= kTwoCharacters) return nested.front();
  return MostSimilarName(name, {known.begin(), known.end()});
}

std::string SlippedName(std::string_view name, const std::vector<std::string_view>& missing) {
  const std::u32string wanted = Characters(FoldedNameWithoutUnit(name));
  std::vector<std::string_view> meant;
  std::copy_if(missing.begin(), missing.end(), std::back_inserter(meant), [&](std::string_view candidate) {
    return wanted.size() > 1 && IsSlipOf(wanted, Characters(FoldedName(candidate)));
  });
  return meant.size() == 1 ? std::string(meant.front()) : std::string();
}

}  // namespace plateconfig
