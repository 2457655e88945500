#pragma once

#include <functional>
#include <set>
#include <string>

namespace plateconfig::test {

/// The codes of which a bad and a good table stand in code_fixtures_test.cpp; those of inputs, manifests and
/// the index have theirs in tests/companion/input_code_fixtures_test.cpp, which looks that together they are
/// all.
std::set<std::string, std::less<>> CodesWithTableFixtures();

}  // namespace plateconfig::test
