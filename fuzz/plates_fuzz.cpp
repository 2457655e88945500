// Any bytes as a file of plates, CSV or JSON.
#include "fuzz/targets.h"

#include <string>

#include "fuzz/companion_run.h"

void plateconfig::fuzz::FuzzPlates(std::string_view bytes) {
  static const test::SmallConfiguration configuration;
  for (const char* verb : {"process", "explain"})
    RunInEachForm({verb, "--config", configuration.Path(), "-"}, std::string(bytes));
}
