#pragma once

// The two sheets that the custom settings describe, with the frame's texts and the system settings. What
// names neither of them is on both.

#include "analysis/pictures/sheet_builder.h"

namespace plateconfig {

Sheet ExplodedViewSheet(const SheetSettings& settings, const SheetQuestion& question);
Sheet SubSheet(const SheetSettings& settings, const SheetQuestion& question);

}  // namespace plateconfig
