#pragma once

#include <map>
#include <set>
#include <string>

#include "analysis/findings/finding.h"
#include "analysis/schema/table_schema.h"
#include "analysis/text/table_text.h"

namespace plateconfig {

/// The names (GBK) of the columns that the library reads: those of the schema, and those that cells of the
/// table name.
std::set<std::string> ReadColumns(const TableSchema& schema, const Table& table);

/// True for the name (UTF-8) of a column that its keeper has for remarks.
bool IsRemarkColumn(const std::string& name);

/// The columns with a finding at their headers, each with the name (UTF-8) that the finding proposes; an
/// empty one for none.
using ToldHeaders = std::map<std::size_t, std::string>;

/// Raises what the header tells: columns that look misspelled, stand there twice, or are unknown while others
/// are absent; columns that are absent; a table without any column of its role.
ToldHeaders CheckColumns(const TableText& table, const TableSchema& schema, const Raise& raise);

}  // namespace plateconfig
