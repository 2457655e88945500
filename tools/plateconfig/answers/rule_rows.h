#pragma once

#include <ostream>
#include <string>

namespace plateconfig {

/// The process list and the rule rows of a rule table (host path), one a line: its number, what the library
/// took its conditions for, and how many processes have a text in it.
void WriteRuleRows(const std::string& hostPath, std::ostream& out);

}  // namespace plateconfig
