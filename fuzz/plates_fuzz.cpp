// Any bytes as a file of plates, CSV or JSON.
#include <cstdint>
#include <string>

#include "fuzz/companion_run.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const plateconfig::test::SmallConfiguration configuration;
  const std::string plates(reinterpret_cast<const char*>(data), size);
  for (const char* verb : {"process", "explain"})
    plateconfig::fuzz::RunInEachForm({verb, "--config", configuration.Path(), "-"}, plates);
  return 0;
}
