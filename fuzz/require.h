#pragma once

#include <cstdio>
#include <cstdlib>

namespace plateconfig::fuzz {

/// Ends the program, so that the fuzzer keeps the input, unless the claim is true.
inline void Require(bool claim, const char* said) {
  if (claim) return;
  std::fprintf(stderr, "not so: %s\n", said);
  std::abort();
}

}  // namespace plateconfig::fuzz
