#pragma once

// One segment of a combined hole: a coaxial piece of one diameter.
//
// The drawing tool fills these records, and a hole's lists cross the library's border as they lie in memory.
// The members that the library reads therefore keep their places; the `caller...` members belong to the
// drawing tool, and nothing here reads them.

#include <cstddef>

#include <NXOpen/ugmath.hxx>

struct HoleInfo {
  NXOpen::Point3d origin;       ///< Part coordinates, mm.
  double callerVector[3] = {};  ///< The drawing tool's own.
  double diameter = 0;          ///< mm; the drawing tool may store it with a sign.
  double height = 0;            ///< Depth, mm; may have a sign.
  double rHeight = 0;           ///< The second height (R height), mm; may have a sign.
  double callerValue = 0;       ///< The drawing tool's own.
  int color = 0;                ///< NX colour index of the segment's faces.
  int callerNumber = 0;         ///< The drawing tool's own.
};

static_assert(offsetof(HoleInfo, origin) == 0);
static_assert(offsetof(HoleInfo, diameter) > sizeof(NXOpen::Point3d));
static_assert(offsetof(HoleInfo, height) > offsetof(HoleInfo, diameter));
static_assert(offsetof(HoleInfo, rHeight) == offsetof(HoleInfo, height) + sizeof(double));
static_assert(offsetof(HoleInfo, color) == offsetof(HoleInfo, rHeight) + sizeof(double) + 8);
static_assert(sizeof(HoleInfo) > offsetof(HoleInfo, color) + sizeof(int));
