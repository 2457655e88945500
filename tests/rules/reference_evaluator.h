#pragma once

// A second, naive evaluation of plates against rule tables: straight from cells, every lookup a search, every
// row tested in one plain function. It shares no code with the real one, so that an error would have to be
// made twice.

#include <array>
#include <string>
#include <vector>

namespace plateconfig::test {

/// A table before it becomes a file: GBK cells, the first line naming the columns. Short lines lack cells.
using Cells = std::vector<std::vector<std::string>>;

/// What is known of a plate for one rule of the process list; one of the four is fed.
struct ReferenceFeature {
  enum Kind { kNothing, kPresent, kColors, kDiameters, kHoleCount } kind = kNothing;
  bool present = false;
  std::vector<int> colors;
  std::vector<double> diameters;
  int holeCount = 0;
};

struct ReferencePlate {
  double length = 0;
  double width = 0;
  double height = 0;
  double weight = 0;
  int layer = 0;
  int color = 0;
  std::vector<int> faceColors;  ///< One per face, in any order.
};

struct ReferenceRule {
  std::string name;
  int type = 0;
  std::string value;
  bool valid = false;
};

struct ReferenceResult {
  std::string text;
  int line = 0;  ///< Line of the matching row, 0 when there is none.
  std::array<int, 7>
      refusals{};  ///< Rows refused by length, width, height, weight, material, profile, wire cutting.
  std::string trace;
};

/// The process list of a rule table, not yet fed.
std::vector<ReferenceRule> ReferenceProcessList(const Cells& table);

/// Feeds one rule; the result is what that writes to the trace.
std::string ReferenceFeed(ReferenceRule& rule, const ReferenceFeature& feature);

/// Evaluates a plate against the rule rows.
ReferenceResult ReferenceEvaluate(const Cells& table, const Cells& settings, const ReferencePlate& plate,
                                  const std::vector<ReferenceRule>& rules);

}  // namespace plateconfig::test
