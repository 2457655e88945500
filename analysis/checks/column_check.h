#pragma once

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

/// Raises what the header tells: columns that look misspelled, stand there twice, or are unknown while others
/// are absent; columns that are absent; a table without any column of its role.
/// Gives the columns whose headers have a finding.
std::set<std::size_t> CheckColumns(const TableText& table, const TableSchema& schema, const Raise& raise);

}  // namespace plateconfig
