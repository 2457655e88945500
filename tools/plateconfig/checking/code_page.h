#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "plateconfig/messages/reporter.h"

namespace plateconfig {

/// The names of all codes, in the order of the table.
std::vector<std::string> CodeNames();

/// That there is no code of this name, and which was probably meant.
std::string NoCode(const std::string& name);

/// Writes the page of a code: its severity, its sentences, what it means. An unknown code is an error.
void WriteCodePage(const std::string& name, std::ostream& out, Reporter& reporter);

/// The same as JSON.
void WriteCodePageAsJson(const std::string& name, std::ostream& out, Reporter& reporter);

}  // namespace plateconfig
