#pragma once

// What is wrong with the file of a table as a whole, before its columns and cells are looked at.

#include <functional>
#include <string_view>

#include "analysis/findings/finding.h"
#include "analysis/text/table_text.h"

namespace plateconfig {

/// What the library does without the table, or with one that has no rows.
struct Consequences {
  Word whenUnreadable;
  Word whenEmpty;
};

/// True for a name (GBK) that a column of the table may have.
using IsColumn = std::function<bool(std::string_view name)>;

/// Of a file that is missing or can not be read.
void RaiseUnreadable(const std::string& name, bool exists, const Consequences& consequences,
                     const Raise& raise);

/// Raises what the file's form, encoding, first lines and quotes tell; false when its columns can not be
/// found, so that nothing more is to be said of them.
bool CheckFile(const TableText& table, const IsColumn& isColumn, const Consequences& consequences,
               const Raise& raise);

}  // namespace plateconfig
