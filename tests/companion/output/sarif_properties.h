#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

namespace plateconfig::test {

/// What the schema of SARIF 2.1.0 (OASIS standard, 2020) asks for and a log lacks, or has and the schema does
/// not know: one text for each, with the place. Knows the objects that the companion writes; another one is a
/// text too.
std::vector<std::string> MissingInSarif(const nlohmann::json& log);

}  // namespace plateconfig::test
