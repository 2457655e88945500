#pragma once

// The check of a table, with its findings on the error stream: what every verb that reads tables says of
// them, because the library says nothing.

#include "analysis/checks/table_check.h"
#include "plateconfig/messages/reporter.h"
#include "plateconfig/tables/configuration.h"

namespace plateconfig {

/// The file as a check takes it.
GivenTable GivenFrom(Role role, const TableFile& file);

/// Reports what is wrong with the table, errors and warnings in the order of the file. Hints are for who asks
/// for a check.
void ReportTable(const GivenTable& given, Reporter& reporter);

/// Reports what is wrong with the file as a whole, for who makes something of its table that is not about
/// columns and cells.
void ReportFile(const GivenTable& given, Reporter& reporter);

}  // namespace plateconfig
