#include "analysis/text/similar_name.h"

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <numeric>

#include "analysis/text/folded_name.h"

namespace plateconfig {
namespace {

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
  return std::all_of(known.begin(), known.end(), [&](std::string_view candidate) {
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

/// True for a name that leaves characters out of `whole`, but no more than it keeps.
bool IsShortened(const std::u32string& name, const std::u32string& whole) {
  if (name.size() < 2 || name.size() * 2 < whole.size()) return false;
  auto kept = name.begin();
  for (const char32_t character : whole) {
    if (kept != name.end() && *kept == character) ++kept;
  }
  return kept == name.end();
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

NearNames::NearNames(std::string_view wanted) : wanted_(Characters(FoldedName(wanted))) {}

void NearNames::Offer(std::string_view candidate) {
  constexpr std::size_t kMost = 3;
  const std::u32string letters = Characters(FoldedName(candidate));
  const std::size_t lengths =
      std::max(wanted_.size(), letters.size()) - std::min(wanted_.size(), letters.size());
  // Of two letters one may be wrong, of one letter none.
  const std::size_t allowed = wanted_.size() < 2 ? 0 : std::max<std::size_t>(wanted_.size() / 3, 1);
  const bool contains = wanted_.size() >= 2 && letters.find(wanted_) != std::u32string::npos;
  std::size_t distance = lengths <= allowed ? EditDistance(wanted_, letters) : allowed + 1;
  if (distance > allowed && !contains) return;
  if (distance > allowed) distance = allowed + lengths;  // Behind all that differ in few characters.
  const std::pair entry(distance, std::string(candidate));
  const auto place = std::upper_bound(best_.begin(), best_.end(), entry,
                                      [](const auto& a, const auto& b) { return a.first < b.first; });
  if (std::find(best_.begin(), best_.end(), entry) != best_.end()) return;
  best_.insert(place, entry);
  if (best_.size() > kMost) best_.pop_back();
}

std::vector<std::string> NearNames::Best() const {
  std::vector<std::string> names;
  for (const auto& [distance, name] : best_) names.push_back(name);
  return names;
}

MeantNames::MeantNames(const std::vector<std::string>& known) {
  for (const std::string& name : known)
    known_.push_back({name, FoldedName(name), FoldedNameWithoutUnit(name)});
}

std::string MeantNames::Find(const std::string& name) const {
  constexpr std::size_t kTwoCharacters = 6;
  const std::string folded = FoldedNameWithoutUnit(name);
  if (folded.empty()) return {};
  std::vector<std::string_view> nested;
  std::vector<std::string_view> names;
  for (const Known& known : known_) {
    if (known.withoutUnit == folded) return known.name;
    names.emplace_back(known.name);
    if (known.folded.find(folded) != std::string::npos || folded.find(known.folded) != std::string::npos)
      nested.emplace_back(known.name);
  }
  if (nested.size() == 1 && folded.size() >= kTwoCharacters) return std::string(nested.front());
  std::string similar = MostSimilarName(name, names);
  return similar.empty() ? OnlyShortened(folded) : similar;
}

/// The only one that `folded` shortens; empty when there is none, or several.
std::string MeantNames::OnlyShortened(std::string_view folded) const {
  const std::u32string name = Characters(folded);
  std::vector<std::string_view> whole;
  for (const Known& known : known_) {
    if (IsShortened(name, Characters(known.folded))) whole.emplace_back(known.name);
  }
  return whole.size() == 1 ? std::string(whole.front()) : std::string();
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
