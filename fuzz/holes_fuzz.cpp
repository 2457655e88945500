// Any bytes as a file of combined holes, and as a file of hole types.
#include <cstdint>
#include <string>

#include "fuzz/companion_run.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string samples = PLATECONFIG_SAMPLES_DIR;
  const std::string bytes(reinterpret_cast<const char*>(data), size);
  using plateconfig::fuzz::RunInEachForm;
  RunInEachForm({"holes", "--explain", "--types", samples + "/hole-types.csv", "-"}, bytes);
  RunInEachForm({"holes", "--types", "-", samples + "/holes.csv"}, bytes);
  return 0;
}
