// What libFuzzer calls: the one target that this program is built for.
#include <cstddef>
#include <cstdint>

#include "fuzz/targets.h"

namespace {

/// Does not compile for a name that is none.
consteval plateconfig::fuzz::Target FindTarget(std::string_view name) {
  for (const plateconfig::fuzz::Target& target : plateconfig::fuzz::kTargets) {
    if (target.name == name) return target;
  }
  throw "there is no such target";
}

constexpr plateconfig::fuzz::Target kTarget = FindTarget(PLATECONFIG_FUZZ_TARGET);

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  kTarget.run({reinterpret_cast<const char*>(data), size});
  return 0;
}
