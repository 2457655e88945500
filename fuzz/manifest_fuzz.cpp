// Any bytes as the tables.json of a configuration, which says which table plays which role.
#include "fuzz/targets.h"

#include <string>

#include "fuzz/companion_run.h"

void plateconfig::fuzz::FuzzManifest(std::string_view bytes) {
  static const test::TemporaryFolder folder;
  folder.WriteBytes("tables.json", bytes);
  RunInEachForm({"show", "--config", test::ArgumentPath(folder, "")}, "");
}
