#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace plateconfig {

/// The name (UTF-8) among `known` that differs from `name` in the fewest characters, for "did you mean";
/// empty when each differs in more than a third of its characters.
std::string MostSimilarName(std::string_view name, const std::vector<std::string_view>& known);

/// Gathers, of many names that pass by, the few that one was probably meant to be, and keeps no others: those
/// that look the same (case, width and traditional forms apart), those that differ in few characters, and
/// those that contain it.
class NearNames {
 public:
  explicit NearNames(std::string_view wanted);

  void Offer(std::string_view candidate);

  /// At most three, the nearest first.
  std::vector<std::string> Best() const;

 private:
  std::u32string wanted_;  ///< Folded.
  std::vector<std::pair<std::size_t, std::string>> best_;
};

/// The names that headers may have been meant to be: folded once, then asked for each header.
class MeantNames {
 public:
  explicit MeantNames(const std::vector<std::string>& known);

  /// The one that `name` was probably meant to be: the same but for width, case, script, blanks or a unit; or
  /// the only one that it shortens or lengthens; or one that differs in few characters; or the only one of
  /// which it leaves out some characters inside (模板图层 of 模板所在图层). Empty when there is none.
  std::string Find(const std::string& name) const;

 private:
  struct Known {
    std::string name;
    std::string folded;
    std::string withoutUnit;  ///< Folded.
  };

  std::string OnlyShortened(std::string_view folded) const;

  std::vector<Known> known_;
};

/// The one of a few names of which one must have been meant: it lacks a character, has one more or another
/// one, has them in another order, or one holds the other. Empty when none or several are so.
std::string SlippedName(std::string_view name, const std::vector<std::string_view>& missing);

}  // namespace plateconfig
