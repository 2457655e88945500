// Any bytes as every table of a configuration at once.
#include <cstdint>
#include <string>

#include "fuzz/companion_run.h"
#include "fuzz/one_table.h"

namespace {

constexpr const char* kPlate =
    R"({"name": "a", "length": 300, "width": 200, "thickness": 50, "weight": 20, "color": 12})";

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const plateconfig::fuzz::OneTable configuration;
  configuration.Write({reinterpret_cast<const char*>(data), size});
  using plateconfig::fuzz::RunInEachForm;
  RunInEachForm({"show", "--config", configuration.Path()}, "");
  RunInEachForm({"explain", "--config", configuration.Path(), "-"}, kPlate);
  return 0;
}
