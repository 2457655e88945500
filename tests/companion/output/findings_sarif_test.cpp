#include "plateconfig/output/findings_sarif.h"

#include <gmock/gmock.h>

#include <map>

#include "companion/output/sarif_properties.h"

namespace plateconfig::test {
namespace {

using Json = nlohmann::json;

Finding Warning(const std::string& text, std::size_t line) {
  Finding finding{"cell-not-number", {"目录/表 一.csv", line, 3}};
  finding.cell = "B" + std::to_string(line);
  finding.columnName = "密度";
  finding.text = text;
  return finding;
}

CheckReport ReportOf(const std::vector<Finding>& findings) {
  CheckReport report;
  report.findings = findings;
  return report;
}

Json Sarif(const std::vector<Finding>& findings) {
  return ToSarif(ReportOf(findings), Language::kEnglish);
}

std::vector<std::string> Fingerprints(const Json& log) {
  std::vector<std::string> fingerprints;
  for (const Json& result : log["runs"][0]["results"])
    fingerprints.push_back(result["partialFingerprints"]["plateconfigFinding/v1"]);
  return fingerprints;
}

TEST(FindingsAsSarif, HaveWhatTheSchemaAsksFor) {
  Finding wholeFile{"manifest-no-object", {"tables.json"}};
  wholeFile.words = {R"({"role": "file"})"};
  EXPECT_THAT(MissingInSarif(Sarif({Warning("4O", 2), wholeFile})), ::testing::IsEmpty());
  EXPECT_THAT(MissingInSarif(Sarif({})), ::testing::IsEmpty());
}

/// The other way round: the walk finds what is missing.
TEST(FindingsAsSarif, WithoutARequiredPropertyAreNoSarif) {
  const Json good = Sarif({Warning("4O", 2)});
  const std::vector<Json::json_pointer> required = {
      Json::json_pointer("/version"),
      Json::json_pointer("/runs"),
      Json::json_pointer("/runs/0/tool"),
      Json::json_pointer("/runs/0/tool/driver"),
      Json::json_pointer("/runs/0/tool/driver/name"),
      Json::json_pointer("/runs/0/tool/driver/rules/0/id"),
      Json::json_pointer("/runs/0/tool/driver/rules/0/help/text"),
      Json::json_pointer("/runs/0/results/0/message"),
      Json::json_pointer("/runs/0/results/0/message/text"),
      Json::json_pointer("/runs/0/results/0/locations/0/physicalLocation/artifactLocation"),
      Json::json_pointer("/runs/0/results/0/locations/0/physicalLocation/region/startLine"),
  };
  for (const Json::json_pointer& each : required) {
    Json log = good;
    log.at(each.parent_pointer()).erase(each.back());
    EXPECT_THAT(MissingInSarif(log), ::testing::Not(::testing::IsEmpty())) << each.to_string();
  }
}

TEST(FindingsAsSarif, SayLevelPlaceAndRule) {
  const Json run = Sarif({Warning("4O", 2)})["runs"][0];
  const Json& result = run["results"][0];
  EXPECT_EQ(result["ruleId"], "cell-not-number");
  EXPECT_EQ(result["level"], "warning");
  EXPECT_EQ(result["message"]["text"], "B2: \"4O\" is not a number; write it like 450 or 12.5");
  const Json& place = result["locations"][0]["physicalLocation"];
  EXPECT_EQ(place["artifactLocation"]["uri"], "%E7%9B%AE%E5%BD%95/%E8%A1%A8%20%E4%B8%80.csv");
  EXPECT_EQ(place["region"], Json::parse(R"({"startLine": 2, "startColumn": 3})"));
  EXPECT_EQ(run["tool"]["driver"]["rules"][0]["id"], "cell-not-number");
  EXPECT_EQ(run["columnKind"], "unicodeCodePoints");
}

TEST(FindingsAsSarif, OfAWholeFileHaveNoRegion) {
  const Json run = Sarif({{"manifest-encoding", {"tables.json"}}})["runs"][0];
  EXPECT_FALSE(run["results"][0]["locations"][0]["physicalLocation"].contains("region"));
  EXPECT_EQ(run["results"][0]["level"], "error");
}

TEST(FindingsAsSarif, HaveFingerprintsThatStayWhenARowIsInserted) {
  const std::vector<std::string> before = Fingerprints(Sarif({Warning("4O", 2), Warning("x", 3)}));
  EXPECT_EQ(Fingerprints(Sarif({Warning("4O", 3), Warning("x", 4)})), before);
  EXPECT_NE(before[0], before[1]);
}

}  // namespace
}  // namespace plateconfig::test
