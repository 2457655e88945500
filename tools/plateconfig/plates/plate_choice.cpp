#include "plateconfig/plates/plate_choice.h"

#include <algorithm>

#include "analysis/text/shown_text.h"
#include "config/text_helpers.h"
#include "plateconfig/messages/language.h"

namespace plateconfig {
namespace {

bool IsPattern(const std::string& text) {
  return text.find('*') != std::string::npos;
}

std::string NoPlate(const std::string& pattern, const std::vector<std::string>& near) {
  if (IsPattern(pattern)) return Say("no plate matches \"{}\"", "没有名称符合“{}”的板", ShownText(pattern));
  return Say("no plate has the name \"{}\"", "没有名为“{}”的板", ShownText(pattern)) + DidYouMean(near);
}

}  // namespace

bool MatchesPattern(std::string_view name, std::string_view pattern) {
  const std::size_t star = pattern.find('*');
  if (star == std::string_view::npos) return name == pattern;
  if (!name.starts_with(pattern.substr(0, star))) return false;
  name.remove_prefix(star);
  pattern.remove_prefix(star + 1);
  // Each piece between two stars is taken where it stands first: the rest can only become longer by it.
  for (std::size_t next = pattern.find('*'); next != std::string_view::npos; next = pattern.find('*')) {
    const std::size_t found = name.find(pattern.substr(0, next));
    if (found == std::string_view::npos) return false;
    name.remove_prefix(found + next);
    pattern.remove_prefix(next + 1);
  }
  return name.ends_with(pattern);
}

PlateChoice::PlateChoice(const std::vector<std::string>& names) {
  for (std::size_t argument = 0; argument < names.size(); ++argument) {
    const std::string& name = names[argument];
    wishes_.push_back({name, argument, false, NearNames(name)});
    if (name.find(',') == std::string::npos) continue;
    for (const std::string& piece : SplitString(name, ",")) {
      if (!piece.empty()) wishes_.push_back({piece, argument, true, NearNames(piece)});
    }
  }
}

bool PlateChoice::Wants(const std::string& name) {
  bool isWanted = wishes_.empty();
  for (Wish& wish : wishes_) {
    const bool isMet = MatchesPattern(name, wish.pattern);
    wish.isMet = wish.isMet || isMet;
    isWanted = isWanted || isMet;
    if (!wish.isMet) wish.near.Offer(name);
  }
  return isWanted;
}

/// A text with a comma is either one name or several: nothing is missed of it when the other reading is met.
bool PlateChoice::IsMetOtherwise(const Wish& wish) const {
  return std::any_of(wishes_.begin(), wishes_.end(), [&](const Wish& other) {
    return other.argument == wish.argument && other.isPiece != wish.isPiece && (other.isMet || !wish.isPiece);
  });
}

void PlateChoice::ReportUnmet(Reporter& reporter) const {
  for (const Wish& wish : wishes_) {
    if (wish.isMet || IsMetOtherwise(wish)) continue;
    reporter.Warning({"plateconfig"}, NoPlate(wish.pattern, wish.near.Best()));
  }
}

}  // namespace plateconfig
