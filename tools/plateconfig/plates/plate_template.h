#pragma once

#include <string>

#include "rules/rule_tables.h"

namespace plateconfig {

/// A plate file (CSV in GBK, CR LF) with the columns that every plate has and those that the processes of
/// these rules ask for, and one plate as an example: one of the first rule row, for which every process
/// applies. Of several processes that want different numbers of holes the first alone is sure to.
std::string PlateTemplate(const RuleTables& tables);

}  // namespace plateconfig
