#pragma once

// What holds of every report that check and diff print as JSON.

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "fuzz/companion_run.h"

namespace plateconfig::fuzz {

using Json = nlohmann::json;

inline std::vector<std::string> With(std::vector<std::string> arguments,
                                     const std::vector<std::string>& more) {
  arguments.insert(arguments.end(), more.begin(), more.end());
  return arguments;
}

/// Runs a command line that prints JSON, whatever it is given; an internal error, such as a finding that the
/// evaluation does not confirm, breaks the claim.
inline Json RequireJson(const std::vector<std::string>& arguments, int worst) {
  const test::CompanionResult result = test::RunPlateconfig(arguments);
  Require(result.exitCode >= 0 && result.exitCode <= worst, "what can be read is compared and checked");
  Require(result.err.find("internal error") == std::string::npos, "each finding is confirmed");
  Require(IsValidUtf8(result.out) && IsValidUtf8(result.err), "what is printed is UTF-8");
  Require(Json::accept(result.out), "the output is JSON");
  return Json::parse(result.out);
}

inline void RequireMembers(const Json& object, const std::vector<std::string>& names) {
  for (const std::string& name : names) Require(object.contains(name), "every stated member is there");
}

/// The witness is a plate that the rule table gives the row that the finding says.
inline void RequireWitness(const Json& finding, const std::string& folder) {
  if (!finding.contains("witness")) return;
  const auto run = test::RunPlateconfig({"process", "--config", folder, "--format", "json", "-"},
                                        finding["witness"].dump());
  Require(Json::accept(run.out), "a witness is a plate that can be read");
  const Json plates = Json::parse(run.out);
  Require(plates.size() == 1, "a witness is one plate");
  const Json row = finding.contains("witnessRow") ? finding["witnessRow"] : Json(nullptr);
  Require(plates[0]["line"] == row, "a witness gets the row that is said");
}

inline void RequireReport(const std::vector<std::string>& arguments) {
  const Json report = RequireJson(arguments, 1);
  RequireMembers(report, {"checked", "findings", "summary"});
  RequireMembers(report["checked"], {"folder", "tables", "ruleRows", "processes", "skipped", "incomplete"});
  std::size_t count = 0;
  for (const auto& [name, number] : report["summary"].items()) count += number.get<std::size_t>();
  Require(count == report["findings"].size(), "the summary counts what is listed");
  constexpr std::size_t kMostWitnesses = 5;
  std::size_t witnesses = 0;
  for (const Json& finding : report["findings"]) {
    RequireMembers(finding, {"code", "severity", "file", "line", "column", "cell", "columnName", "text",
                             "message", "usedAs", "fix"});
    if (finding.contains("witness") && ++witnesses <= kMostWitnesses) RequireWitness(finding, arguments[2]);
  }
}

}  // namespace plateconfig::fuzz
