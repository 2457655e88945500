#pragma once

// Cells that hold words. Each function raises what is wrong with a filled cell of its kind.

#include "analysis/cells/checked_cell.h"
#include "keys/cell_text.h"

namespace plateconfig {

void CheckText(const CheckedCell& cell, const Raise& raise);
/// Yes or no, by the letters that its key takes.
void CheckFlag(FlagLetters letters, const CheckedCell& cell, const Raise& raise);
/// The look of a text, fields joined by "|".
void CheckStyle(const CheckedCell& cell, const Raise& raise);
/// The name of a process's condition.
void CheckCondition(const CheckedCell& cell, const Raise& raise);
/// A cell that has to be exactly one text: everything else means the opposite, in silence.
void CheckExact(const CheckedCell& cell, const Raise& raise);

}  // namespace plateconfig
