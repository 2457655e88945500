#pragma once

#include <stdexcept>

namespace plateconfig::fuzz {

/// A claim that does not hold. Nobody catches it in a fuzzer's program, which ends and keeps the input.
class BrokenClaim : public std::logic_error {
 public:
  using std::logic_error::logic_error;
};

inline void Require(bool claim, const char* said) {
  if (!claim) throw BrokenClaim(said);
}

}  // namespace plateconfig::fuzz
