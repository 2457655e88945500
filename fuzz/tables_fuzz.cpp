// Any bytes as every table of a configuration at once.
#include "fuzz/targets.h"

#include <string>

#include "fuzz/companion_run.h"
#include "fuzz/one_table.h"

namespace {

constexpr const char* kPlate =
    R"({"name": "a", "length": 300, "width": 200, "thickness": 50, "weight": 20, "color": 12})";

}  // namespace

void plateconfig::fuzz::FuzzTables(std::string_view bytes) {
  static const OneTable configuration;
  configuration.Write(bytes);
  RunInEachForm({"show", "--config", configuration.Path()}, "");
  RunInEachForm({"explain", "--config", configuration.Path(), "-"}, kPlate);
}
