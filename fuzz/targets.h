#pragma once

// All that is fuzzed. A target takes any bytes, and throws a BrokenClaim (require.h) when one of its claims
// does not hold for them; README.md says what each of them claims.

#include <string_view>

namespace plateconfig::fuzz {

void FuzzCheck(std::string_view bytes);
void FuzzDiff(std::string_view bytes);
void FuzzHoles(std::string_view bytes);
void FuzzManifest(std::string_view bytes);
void FuzzPlates(std::string_view bytes);
void FuzzRules(std::string_view bytes);
void FuzzSettings(std::string_view bytes);
void FuzzTable(std::string_view bytes);
void FuzzTables(std::string_view bytes);
void FuzzTexts(std::string_view bytes);

struct Target {
  std::string_view name;  ///< Of its program and of its folder below corpus.
  void (*run)(std::string_view bytes);
};

inline constexpr Target kTargets[] = {
    {"check", FuzzCheck},   {"diff", FuzzDiff},   {"holes", FuzzHoles},       {"manifest", FuzzManifest},
    {"plates", FuzzPlates}, {"rules", FuzzRules}, {"settings", FuzzSettings}, {"table", FuzzTable},
    {"tables", FuzzTables}, {"texts", FuzzTexts},
};

}  // namespace plateconfig::fuzz
