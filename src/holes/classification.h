#pragma once

// The classification of one combined hole against one hole type. It is a pure function that reports each of
// its verdicts to a sink: the diagnostic file is one sink, the companion's explanation another, so that the
// two can never disagree.

#include <array>
#include <cstddef>
#include <iterator>
#include <string>
#include <vector>

#include "holes/hole_type_info.h"

namespace plateconfig {

/// One of the three groups of segments: where a hole keeps its segments and a type what these may be.
struct HoleGroup {
  std::vector<HoleInfo> CombHole::*segments;
  std::vector<std::vector<int>> HoleTypeInfo::*colors;
  std::vector<std::vector<double>> HoleTypeInfo::*diameters;
};

/// The groups in the order of every structure key, list of scores and line of the diagnostic file.
inline constexpr HoleGroup kHoleGroups[] = {
    {&CombHole::topHoles, &HoleTypeInfo::topColor, &HoleTypeInfo::topDiameter},
    {&CombHole::throughHoles, &HoleTypeInfo::throughColor, &HoleTypeInfo::throughDiameter},
    {&CombHole::bottomHoles, &HoleTypeInfo::bottomColor, &HoleTypeInfo::bottomDiameter},
};
inline constexpr std::size_t kTop = 0;
inline constexpr std::size_t kThrough = 1;
inline constexpr std::size_t kBottom = 2;
inline constexpr std::size_t kHoleGroupCount = std::size(kHoleGroups);

/// What a type's list says about one segment's colour or diameter.
enum class Verdict {
  kExplicit,  ///< The list names it, and nothing else: this scores.
  kWildcard,  ///< The list holds a 0, or the diameter has no list: accepted without a score.
  kRefused,   ///< Anything else.
};

inline constexpr double kColorScore = 1.0;
inline constexpr double kDiameterScore = 1.5;

/// The score of one group's colours or diameters.
struct GroupScore {
  double score = 0;
  bool allMatched = true;

  /// `points` are what an explicit verdict scores.
  void Add(Verdict verdict, double points);
};

/// What came of it. Without a matching structure there are no verdicts, and the scores say nothing.
struct Classification {
  bool structureMatches = false;
  std::array<GroupScore, kHoleGroupCount> colors;     ///< In the order of `kHoleGroups`.
  std::array<GroupScore, kHoleGroupCount> diameters;  ///< In the order of `kHoleGroups`.

  /// The score: 1 for each explicit colour and 1.5 for each explicit diameter.
  double Accuracy() const;

  /// Structure, colours and diameters all match.
  bool Belongs() const;
};

/// Takes the steps of one classification. Every call is optional.
class ClassificationSink {
 public:
  virtual ~ClassificationSink() = default;

  /// A segment, by its group's and its own position, was compared with its lists.
  virtual void OnSegment(std::size_t /*group*/, std::size_t /*segment*/, Verdict /*color*/,
                         Verdict /*diameter*/) {}
  /// All segments were compared. Not called when the structure differs.
  virtual void OnClassified(const CombHole&, const HoleTypeInfo&, const Classification&) {}
};

/// The numbers of top, through and bottom segments joined by "_": "2_0_1".
std::string StructureKey(const CombHole& hole);

/// The segment's diameter as it is compared with a type's lists: cut, its sign kept; mm.
double ComparedDiameter(const HoleInfo& segment);

/// The segment's diameter as it is shown and measured: without its sign, cut; mm.
double MeasuredDiameter(const HoleInfo& segment);

/// True when two lengths (mm) count as the same.
bool AreSameLength(double a, double b);

GroupScore ScoreColors(const std::vector<HoleInfo>& segments, const std::vector<std::vector<int>>& lists);
GroupScore ScoreDiameters(const std::vector<HoleInfo>& segments,
                          const std::vector<std::vector<double>>& lists);

Classification ClassifyHole(const CombHole& hole, const HoleTypeInfo& type, ClassificationSink& sink);

}  // namespace plateconfig
