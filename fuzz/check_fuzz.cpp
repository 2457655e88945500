// Any bytes as the rule table and as every other table of a configuration: what check promises for all of
// them.
#include "fuzz/targets.h"

#include <string>

#include "fuzz/check_report.h"
#include "fuzz/one_table.h"

void plateconfig::fuzz::FuzzCheck(std::string_view bytes) {
  static const OneTable configuration;
  configuration.Write(bytes);
  const std::vector<std::string> arguments = {"check", "--config", configuration.Path(), "--enable",
                                              "row-shared-bound,rows-mergeable"};
  RunAndRequire(With(arguments, {"--lang", "zh"}), "", false);
  RunAndRequire(With(arguments, {"--format", "sarif"}), "", true);
  RequireReport(With(arguments, {"--format", "json"}));
}
