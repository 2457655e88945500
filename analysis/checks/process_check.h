#pragma once

#include "analysis/checks/column_check.h"
#include "analysis/findings/finding.h"
#include "analysis/text/table_text.h"
#include "rules/rule_tables.h"

namespace plateconfig {

/// Raises what is wrong with the general parameters and the process list of a rule table: names that are not
/// found, missing, doubled or without a value, conditions without their parameter, colours of both materials.
/// `tables` is what the library loads from it.
void CheckParameters(const TableText& table, const RuleTables& tables, const Raise& raise);
/// `toldHeaders` are columns of whose headers something is said already.
void CheckProcesses(const TableText& table, const ToldHeaders& toldHeaders, const Raise& raise);

}  // namespace plateconfig
