#pragma once

// The drawing sheets that the settings of a configuration describe. Two generations of settings lie side by
// side, the layout defaults and the custom settings; which of them a drawing follows is the drawing tool's
// affair, so they are not mixed.
//
//   const DrawingSheets drawn = DrawSheets(tables, {});

#include <vector>

#include "analysis/pictures/sheet_builder.h"

namespace plateconfig {

struct DrawingSheets {
  std::vector<Sheet> sheets;
  std::vector<Assumption> assumed;  ///< Those that a part needs, each once.
};

DrawingSheets DrawSheets(const SheetTables& tables, const SheetQuestion& question);

}  // namespace plateconfig
