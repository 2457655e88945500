#pragma once

// What the forms of cells and the units are called, in both languages of those who keep the tables. The
// English words are also those of the schema's JSON.

#include "analysis/text/words.h"
#include "keys/cell_form.h"

namespace plateconfig {

Words WordsOf(CellForm form);

/// Empty for what has no unit.
Words WordsOf(Unit unit);

}  // namespace plateconfig
