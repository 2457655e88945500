#pragma once

#include "analysis/pictures/sheet_builder.h"

namespace plateconfig {

/// The sheet that the layout defaults describe.
Sheet LayoutSheet(const SheetSettings& settings, const SheetQuestion& question);

}  // namespace plateconfig
