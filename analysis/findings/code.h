#pragma once

// What can be wrong, as data: one row per code in codes.h. A row is named where its finding is raised, and a
// name that has no row does not compile:
//
//   Finding finding{"cell-not-number", place};

#include <string_view>

#include "analysis/text/words.h"

namespace plateconfig {

enum class Severity {
  kError,    ///< Something can not be used, or can never work.
  kWarning,  ///< Something is taken for something else than it says.
  kHint,     ///< Something is worth a look.
};

/// Whether a check looks for it without being asked to.
enum class Habit { kOn, kOff };

/// One code. The sentences may hold the places that sentence.h describes.
struct CodeRow {
  std::string_view name;  ///< Kebab case, the same for ever: programs and baselines know it.
  Severity severity;
  Words message;  ///< What is wrong.
  Words advice;   ///< What to write instead; may be empty.
  Words page;     ///< What it means for the drawing and how to mend it, for who asks for more.
  Habit habit = Habit::kOn;
};

}  // namespace plateconfig
