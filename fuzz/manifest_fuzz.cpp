// Any bytes as the tables.json of a configuration, which says which table plays which role.
#include <cstdint>
#include <string>

#include "fuzz/companion_run.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const plateconfig::test::TemporaryFolder folder;
  folder.WriteBytes("tables.json", {reinterpret_cast<const char*>(data), size});
  plateconfig::fuzz::RunInEachForm({"show", "--config", plateconfig::test::ArgumentPath(folder, "")}, "");
  return 0;
}
