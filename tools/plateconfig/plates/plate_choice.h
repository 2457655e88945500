#pragma once

// Which plates of the files are wanted, by their names.
//
//   PlateChoice choice({"A板", "镶件*"});
//   if (choice.Wants(plate.name)) …
//   choice.ReportUnmet(reporter);

#include <string>
#include <string_view>
#include <vector>

#include "analysis/text/similar_name.h"
#include "plateconfig/messages/reporter.h"

namespace plateconfig {

/// True when `name` is `pattern`, in which each `*` stands for any text, also an empty one.
bool MatchesPattern(std::string_view name, std::string_view pattern);

class PlateChoice {
 public:
  /// Names and patterns (UTF-8) as the command line has them; several may be joined by commas. None of them
  /// wants every plate.
  explicit PlateChoice(const std::vector<std::string>& names);

  bool WantsAll() const { return wishes_.empty(); }
  bool Wants(const std::string& name);

  /// Warns of each name and pattern that no plate had, with the names that were probably meant.
  void ReportUnmet(Reporter& reporter) const;

 private:
  /// One name or pattern.
  struct Wish {
    std::string pattern;
    std::size_t argument;  ///< Which text of the command line it is from.
    bool isPiece;          ///< It is a piece of that text.
    NearNames near;
    bool isMet = false;
  };

  bool IsMetOtherwise(const Wish& wish) const;

  std::vector<Wish> wishes_;
};

}  // namespace plateconfig
