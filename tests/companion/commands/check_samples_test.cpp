// `check` on the sample configurations: the two of the shop have nothing to be mended, and the report on the
// third, which is full of mistakes, is kept word for word in golden/. Written anew, to be read line by line
// before it is committed, by
//
//   PLATECONFIG_GOLDEN=write build/debug/tests/plateconfig_tests --gtest_filter='*CheckSamples*'

#include <gmock/gmock.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <nlohmann/json.hpp>

#include "companion/output/sarif_properties.h"
#include "support/companion.h"

namespace plateconfig::test {
namespace {

using Json = nlohmann::json;

/// Reports name files as the command line does, so the commands are run where the samples lie.
class AtTheSamples {
 public:
  AtTheSamples() : before_(std::filesystem::current_path()) {
    std::filesystem::current_path(PLATECONFIG_SAMPLES_DIR "/..");
  }
  ~AtTheSamples() { std::filesystem::current_path(before_); }
  AtTheSamples(const AtTheSamples&) = delete;
  AtTheSamples& operator=(const AtTheSamples&) = delete;

 private:
  std::filesystem::path before_;
};

CompanionResult Check(const std::string& configuration, const std::string& language,
                      const std::string& format) {
  const AtTheSamples place;
  return RunPlateconfig(
      {"check", "--lang", language, "--config", "samples/config/" + configuration, "--format", format});
}

/// The same report whatever version writes it.
std::string WithoutVersion(std::string report) {
  const std::string version = RunPlateconfig({"--version"}).out;
  const std::string member = "\"version\": \"" + version.substr(0, version.find('\n')) + "\"";
  const std::size_t at = report.find(member);
  return at == std::string::npos ? report : report.replace(at, member.size(), "\"version\": \"…\"");
}

struct Report {
  std::string language;
  std::string format;

  std::string Golden() const {
    return PLATECONFIG_GOLDEN_DIR "/check." + language + "." + (format == "text" ? "txt" : format);
  }
};

void PrintTo(const Report& report, std::ostream* out) {
  *out << report.language << " " << report.format;
}

class CheckSamplesGolden : public ::testing::TestWithParam<Report> {};

TEST_P(CheckSamplesGolden, TheReportOnTheMistakesIsTheOneThatIsKept) {
  const CompanionResult run = Check("带错误", GetParam().language, GetParam().format);
  EXPECT_EQ(run.exitCode, 1);
  EXPECT_EQ(run.err, "");
  const std::string report = WithoutVersion(run.out);
  if (std::getenv("PLATECONFIG_GOLDEN") != nullptr) {
    std::ofstream(GetParam().Golden(), std::ios::binary) << report;
    GTEST_SKIP() << GetParam().Golden() << " is written anew";
  }
  EXPECT_EQ(report, ReadBytes(GetParam().Golden()));
}

INSTANTIATE_TEST_SUITE_P(EachForm, CheckSamplesGolden,
                         ::testing::Values(Report{"zh", "text"}, Report{"en", "text"}, Report{"zh", "json"},
                                           Report{"en", "json"}, Report{"zh", "sarif"},
                                           Report{"en", "sarif"}),
                         [](const auto& instance) {
                           return instance.param.language + "_" + instance.param.format;
                         });

TEST(CheckSamples, WhatTheMistakesGiveHasTheShapeOfSarif) {
  EXPECT_THAT(MissingInSarif(Json::parse(Check("带错误", "zh", "sarif").out)), ::testing::IsEmpty());
}

TEST(CheckSamples, TheTablesOfTheShopHaveNothingToMend) {
  for (const char* const configuration : {"标准", "精密模"}) {
    const CompanionResult run = Check(configuration, "en", "json");
    EXPECT_EQ(run.exitCode, 0) << configuration;
    const Json summary = Json::parse(run.out)["summary"];
    EXPECT_EQ(summary["errors"], 0) << configuration;
    EXPECT_EQ(summary["warnings"], 0) << configuration;
  }
}

/// The lines that another verb has to say about a file: errors and warnings; hints belong to `check`.
std::vector<std::string> LinesAbout(const std::string& file, const Json& findings) {
  std::vector<std::string> lines;
  for (const Json& finding : findings) {
    if (finding["file"] != file || finding["severity"] == "hint") continue;
    const std::string cell = finding["cell"].is_null() ? "" : finding["cell"].get<std::string>() + ": ";
    lines.push_back(finding["severity"].get<std::string>() + ": " + cell +
                    finding["message"].get<std::string>());
  }
  return lines;
}

TEST(CheckSamples, ShowTellsOfEachTableWhatCheckTells) {
  const AtTheSamples place;
  const std::string folder = "samples/config/带错误";
  const Json report = Json::parse(Check("带错误", "en", "json").out);
  for (const Json& table : report["checked"]["tables"]) {
    const std::string role = table["role"];
    const std::string shown = RunPlateconfig({"show", "--config", folder, role}).err;
    const std::vector<std::string> lines = LinesAbout(table["file"], report["findings"]);
    for (const std::string& line : lines) EXPECT_THAT(shown, ::testing::HasSubstr(line)) << role;
    std::size_t said = 0;
    for (std::size_t at = 0;
         (at = shown.find(table["file"].get<std::string>() + ":", at)) != std::string::npos; ++at)
      ++said;
    EXPECT_EQ(said, lines.size()) << role << "\n" << shown;
  }
}

/// Rows that leave several conditions empty catch what the others leave; of the cells that are empty alone, a
/// keeper wants to hear.
TEST(CheckSamples, HintsAboutEmptyCellsAreThoseOfCellsThatAreEmptyAlone) {
  const Json findings = Json::parse(Check("标准", "en", "json").out)["findings"];
  std::vector<std::string> cells;
  for (const Json& finding : findings) {
    if (finding["code"] != "gap") cells.push_back(finding["cell"]);
  }
  EXPECT_EQ(cells, (std::vector<std::string>{"L8", "K16", "L38", "M63"}));
}

}  // namespace
}  // namespace plateconfig::test
