#pragma once

// A configured hole type, and whether a combined hole belongs to it. The drawing tool fills the fields.
//
//   HoleTypeInfo type;
//   type.countKey = "1_1_0";                                  // one top segment, one through segment
//   type.topColor = {{36}};       type.topDiameter = {{14}};
//   type.throughColor = {{36, 31}};  type.throughDiameter = {{0}};   // 0: any
//   double accuracy = 0;
//   if (type.IsCombHoleBelongNormal(hole, accuracy)) ...

#include <cstdint>
#include <string>
#include <vector>

#include "holes/comb_hole.h"
#include "plateconfig_export.h"

class PLATECONFIG_API HoleTypeInfo {
 public:
  std::string name;      ///< GBK; shown in the diagnostic file.
  std::string countKey;  ///< Numbers of top, through and bottom segments joined by "_": "1_1_0".

  // For the n-th segment of the group, the n-th inner list holds the colours (NX colour indices) that it may
  // have; a 0 among them accepts any colour without a score. A segment without a list is refused.
  std::vector<std::vector<int>> topColor;
  std::vector<std::vector<int>> throughColor;
  std::vector<std::vector<int>> bottomColor;

  // The same for diameters, mm. Here a segment without a list is accepted, without a score.
  std::vector<std::vector<double>> topDiameter;
  std::vector<std::vector<double>> throughDiameter;
  std::vector<std::vector<double>> bottomDiameter;

  int callerNumber = 0;                    ///< Kept for the drawing tool; nothing here reads it.
  std::string content;                     ///< GBK; describes the type, shown in the diagnostic file.
  std::int64_t callerFirst = 0;            ///< Kept for the drawing tool.
  std::int64_t callerSecond = 0;           ///< Kept for the drawing tool.
  std::vector<std::int64_t> callerValues;  ///< Kept for the drawing tool.

  /// True when the hole has as many segments in each group as `countKey` says, byte for byte. Colours and
  /// diameters play no part, and nothing is logged.
  bool IsCombHoleBelongCurrency(const CombHole& hole) const;

  /// True when the structure matches and every segment is allowed by colour and by diameter. `accuracy` says
  /// how specifically the type names the hole: 1 for each colour and 1.5 for each diameter that it lists. It
  /// is written whenever the structure matches, also for a hole that is refused; without that match it stays
  /// as it is. Appends to the diagnostic file of the holes, unless the structure differs.
  bool IsCombHoleBelongNormal(const CombHole& hole, double& accuracy) const;

  /// The colour of each segment, in order.
  static std::vector<int> GetHolesColor(const std::vector<HoleInfo>& holes);

  /// Each segment's diameter without its sign, cut to 4 decimals as `SubDecal` cuts; mm.
  static std::vector<double> GetHolesDiameter(const std::vector<HoleInfo>& holes);

  /// Each segment's height without its sign, mm; with `swap` its R height.
  static std::vector<double> GetHolesHeight(const std::vector<HoleInfo>& holes, bool swap);

  /// Each segment's R height without its sign, mm; with `swap` its height.
  static std::vector<double> GetHolesRHeight(const std::vector<HoleInfo>& holes, bool swap);

  /// Each value, written with 9 decimals, cut behind `decimals` of them and read back: 1.99999 cut to 2
  /// gives 1.99. A negative count counts as 0, one above 9 as 9; infinities and not-a-number stay.
  static std::vector<double> SubDecal(const std::vector<double>& values, int decimals);

  /// True when every value is in `allowed`, where a 0 allows all of them; so always when there are no values.
  /// `exactHit` becomes 1 when a value is listed itself, else 0; the values behind a refused one count too.
  static bool VectorIncludeVector(const std::vector<int>& allowed, const std::vector<int>& values,
                                  int& exactHit);

  /// The same where numbers nearer than 1e-6 are equal, an entry that near to 0 allows every value, and the
  /// first refused value ends the search: `exactHit` knows nothing of those behind it.
  static bool VectorIncludeVector(const std::vector<double>& allowed, const std::vector<double>& values,
                                  int& exactHit);

  /// True when one of `values` is nearer than 1e-6 to `x`.
  static bool VectorIncludeDouble(const std::vector<double>& values, double x);

  /// How many segments have a colour that their list names, where that list holds no 0. `allMatched` becomes
  /// false when a segment's list neither names its colour nor holds a 0, or is missing.
  static double GetColorFixAcc(const std::vector<HoleInfo>& holes,
                               const std::vector<std::vector<int>>& colors, bool& allMatched);

  /// 1.5 for each segment whose diameter, cut to 4 decimals with its sign, is nearer than 1e-6 to one that
  /// its list names, where that list holds no 0. `allMatched` becomes false when a segment's list neither
  /// names its diameter nor holds a 0; a missing list accepts any diameter.
  static double GetDiameterFixAcc(const std::vector<HoleInfo>& holes,
                                  const std::vector<std::vector<double>>& diameters, bool& allMatched);

  /// The largest diameter of all segments (without sign, cut to 4 decimals, mm; 0 without segments), and the
  /// origin of the first segment of the first group that has one, in the order top, through, bottom; without
  /// segments the origin stays as it is. Both pointers must be valid.
  static void GetCombHoleMaxDiameterAndOrigin(const CombHole& hole, NXOpen::Point3d* origin,
                                              double* maxDiameter);
};
