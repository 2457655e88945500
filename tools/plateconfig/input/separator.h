#pragma once

#include <string>

namespace plateconfig {

/// A complaint about a header (UTF-8) that is one cell because something else than commas separates its
/// columns, as some spreadsheets save them; empty when nothing looks like that.
std::string OtherSeparator(const std::string& onlyCell);

}  // namespace plateconfig
