// Any bytes as the rule table and as every other table of a configuration: what check promises for all of
// them.
#include <cstdint>
#include <string>

#include "fuzz/check_report.h"
#include "fuzz/one_table.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const plateconfig::fuzz::OneTable configuration;
  configuration.Write({reinterpret_cast<const char*>(data), size});
  const std::vector<std::string> arguments = {"check", "--config", configuration.Path(), "--enable",
                                              "row-shared-bound,rows-mergeable"};
  using namespace plateconfig::fuzz;
  RunAndRequire(With(arguments, {"--lang", "zh"}), "", false);
  RunAndRequire(With(arguments, {"--format", "sarif"}), "", true);
  RequireReport(With(arguments, {"--format", "json"}));
  return 0;
}
