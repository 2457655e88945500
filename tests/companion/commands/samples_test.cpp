// The samples from end to end: what the command prints is what the library gives, and why it says so is what
// the library's own diagnostic file says.

#include <gmock/gmock.h>

#include <NXOpen/Body.hxx>
#include <fstream>
#include <map>
#include <nlohmann/json.hpp>

#include "analysis/rules/feed_rules.h"
#include "config/text_helpers.h"
#include "host/body_info.h"
#include "plateconfig/plates/plate_reader.h"
#include "plateconfig/system/console.h"
#include "rules/process_rule_library.h"
#include "support/companion.h"
#include "support/diagnostic_folder.h"

namespace plateconfig {
namespace {

using Json = nlohmann::json;
using test::RunPlateconfig;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

const std::string kSamples = PLATECONFIG_SAMPLES_DIR;

std::string ConfigPath(const std::string& name) {
  return kSamples + "/config/" + name;
}

std::string TablePath(const std::string& configuration, const std::string& table) {
  return HostPathFromUtf8(ConfigPath(configuration) + "/" + table);
}

test::CompanionResult RunOn(const std::string& verb, const std::string& configuration,
                            const std::string& plates, const std::string& format = "json") {
  return RunPlateconfig(
      {verb, "--format", format, "--config", ConfigPath(configuration), kSamples + "/" + plates});
}

/// What one rule row refused first, as the condition's name in the JSON output.
struct FirstRefusal {
  std::string condition;
  std::string minimum;
  std::string maximum;

  bool operator==(const FirstRefusal&) const = default;
};

std::ostream& operator<<(std::ostream& out, const FirstRefusal& refusal) {
  return out << refusal.condition << " " << refusal.minimum << " " << refusal.maximum;
}

/// One plate's evaluation as the diagnostic file tells it.
struct Traced {
  std::map<int, FirstRefusal> refused;  ///< By the row's line.
  int lastLine = 0;
  std::string text;
};

// The last lines of a row that does not fit; bounds follow behind those of a size.
const std::map<std::string, std::string> kRefusalLines = {
    {"长度不符合此规则！", "length"},
    {"宽度不符合此规则！", "width"},
    {"高度不符合此规则！", "thickness"},
    {"重量不符合此规则！", "weight"},
    {"材料颜色不符合此规则！", "material"},
    {"bInclude && !bHaveProfileColor！", "profile"},
    {"!bInclude && bHaveProfileColor！", "profile"},
    {"bInclude && !bHaveWireCuttingColor！", "wireCutting"},
    {"!bInclude && bHaveWireCuttingColor！", "wireCutting"},
};

/// The text behind the label's colon.
std::string ValueOf(const std::string& line) {
  const std::string colon = "：";
  return line.substr(line.find(colon) + colon.size());
}

Traced ParseTrace(const std::string& trace) {
  const std::string kRow = "当前行号:";
  Traced traced;
  std::istringstream lines(trace);
  for (std::string line; std::getline(lines, line);) {
    if (line.starts_with(kRow)) traced.lastLine = std::stoi(line.substr(kRow.size()));
    const auto refusal = kRefusalLines.find(line);
    if (refusal == kRefusalLines.end()) continue;
    FirstRefusal first{refusal->second, "", ""};
    if (line.ends_with("不符合此规则！") && refusal->second != "material") {
      std::getline(lines, line);
      first.minimum = ValueOf(line);
      std::getline(lines, line);
      first.maximum = ValueOf(line);
    }
    EXPECT_TRUE(traced.refused.emplace(traced.lastLine, first).second) << line;
  }
  return traced;
}

/// The same from the JSON of `explain`.
std::map<int, FirstRefusal> RefusedRows(const Json& plate) {
  std::map<int, FirstRefusal> refused;
  for (const Json& row : plate.at("refusedRows")) {
    const Json& first = row.at("refusals").at(0);
    FirstRefusal refusal{first.at("condition"), "", ""};
    if (first.contains("minimum")) {
      // Six digits, as a stream writes numbers by default.
      refusal.minimum = fmt::format("{:.6g}", first.at("minimum").get<double>());
      refusal.maximum = fmt::format("{:.6g}", first.at("maximum").get<double>());
    }
    refused[row.at("line")] = refusal;
  }
  return refused;
}

class Samples : public ::testing::TestWithParam<const char*> {
 protected:
  /// Evaluates one plate as the host would, through the library alone; the diagnostic file is fresh.
  static Traced Trace(const ProcessRuleLibrary& library, const PlateInput& plate) {
    auto rules = library.GetProcessRules();
    FeedRules(rules, plate.features);
    const test::DiagnosticFolder diagnostics;
    NXOpen::Body solid(plate.plate.faceColors);
    const Plate& size = plate.plate;
    BodyInfo body(&solid, size.length, size.width, size.height, size.layer, size.color);
    const std::string text = library.GetProcessInfo(&body, size.weight, rules);
    Traced traced = ParseTrace(GbkToUtf8(diagnostics.Read(Diagnostic::kRules)));
    traced.text = GbkToUtf8(text);
    return traced;
  }
};

TEST_P(Samples, ExplainAndTheDiagnosticFileSayTheSameLineByLine) {
  const std::string configuration = GetParam();
  const Json explained = Json::parse(RunOn("explain", configuration, "plates.csv").out);
  const ProcessRuleLibrary library(TablePath(configuration, "工艺规则.csv"),
                                   TablePath(configuration, "工艺设置.csv"));
  test::Messages messages;
  const PlateVocabulary vocabulary(library.GetProcessRules());
  std::ifstream in(kSamples + "/plates.csv", std::ios::binary);
  const auto plates = ReadPlates(in, "plates.csv", vocabulary, messages.reporter);
  std::size_t count = 0;
  std::size_t refusals = 0;
  while (const auto plate = plates->Next()) {
    const Json& json = explained.at(count++);
    const Traced traced = Trace(library, *plate);
    ASSERT_EQ(json.at("name"), plate->name);
    EXPECT_EQ(json.at("text"), traced.text) << plate->name;
    EXPECT_EQ(RefusedRows(json), traced.refused) << plate->name;
    const Json matched = traced.refused.contains(traced.lastLine) ? Json() : Json(traced.lastLine);
    EXPECT_EQ(json.at("line"), matched) << plate->name;
    refusals += traced.refused.size();
  }
  EXPECT_EQ(count, 40u);
  EXPECT_EQ(count, explained.size());
  EXPECT_GT(refusals, 100u);  // Else the comparison would prove little.
  EXPECT_THAT(messages.Text(), IsEmpty());
}

TEST_P(Samples, ProcessAndExplainFindTheSameLineAndText) {
  const Json processed = Json::parse(RunOn("process", GetParam(), "plates.csv").out);
  const Json explained = Json::parse(RunOn("explain", GetParam(), "plates.csv").out);
  ASSERT_EQ(processed.size(), 40u);
  ASSERT_EQ(explained.size(), 40u);
  for (std::size_t i = 0; i < processed.size(); ++i) {
    for (const char* member : {"name", "line", "text"})
      EXPECT_EQ(processed[i].at(member), explained[i].at(member)) << i;
  }
}

TEST_P(Samples, BothFormsOfThePlatesGiveTheSame) {
  for (const char* verb : {"process", "explain"}) {
    const auto csv = RunOn(verb, GetParam(), "plates.csv", "text");
    const auto json = RunOn(verb, GetParam(), "plates.json", "text");
    EXPECT_EQ(csv.out, json.out);
    EXPECT_EQ(csv.exitCode, json.exitCode);
    EXPECT_THAT(csv.err, IsEmpty());
    EXPECT_THAT(json.err, IsEmpty());
  }
}

TEST_P(Samples, ThePlatesInUtf8GiveTheSameAsInGbk) {
  const auto gbk = RunOn("process", GetParam(), "plates.csv", "text");
  const std::string utf8 = GbkToUtf8(test::ReadBytes(kSamples + "/plates.csv"));
  for (const std::string& bytes : {utf8, "\xEF\xBB\xBF" + utf8})
    EXPECT_EQ(RunPlateconfig({"process", "--config", ConfigPath(GetParam()), "-"}, bytes).out, gbk.out);
}

INSTANTIATE_TEST_SUITE_P(EachConfiguration, Samples, ::testing::Values("标准", "精密模"),
                         [](const auto& instance) {
                           return std::string(instance.index == 0 ? "Standard" : "Precision");
                         });

// The last line names the folder as it was found, with the separators of the system.
std::string WithoutLastLine(const std::string& text) {
  return text.substr(0, text.find_last_of('\n', text.size() - 2) + 1);
}

TEST(SampleConfiguration, TheActiveOneBelowTheVariableIsTheStandard) {
  const test::ScopedVariable root("TQConfig", kSamples);
  const auto active = RunPlateconfig({"process", kSamples + "/plates.csv"});
  const auto named = RunOn("process", "标准", "plates.csv", "text");
  EXPECT_THAT(WithoutLastLine(active.out), Not(IsEmpty()));
  EXPECT_EQ(WithoutLastLine(active.out), WithoutLastLine(named.out));
  EXPECT_EQ(RunPlateconfig({"folder"}).exitCode, 0);
}

// Its 1203 mm are 3 mm above what the support plates and the last soft rows take.
TEST(SampleConfiguration, TheLongSupportPlateFindsNoRowAndTheNearestSaysWhy) {
  const auto result = RunPlateconfig(
      {"explain", "--config", ConfigPath("标准"), "--plate", "加长托板", kSamples + "/plates.csv"});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_THAT(result.out, HasSubstr("no rule row fits; the nearest first:\n  line "));
  EXPECT_THAT(result.out, HasSubstr(" length 1203 is 3 above the range "));
}

// By hand: line 34 of the table (350_500 x 350_500 x 25_35, soft, neither profile nor wire cutting) is the
// first that takes a soft plate of 450 x 450 x 30 mm without such faces. Of the process list apply: the three
// that are ordered by hand, more than 9 holes, round holes present (twice), the diameters 14 and 17.5, the
// hole colour 211 and the special colours 92 and 155.
TEST(SampleConfiguration, TheTopClampingPlateHasTheTextThatTheTableGivesIt) {
  const Json processed = Json::parse(RunOn("process", "标准", "plates.csv").out);
  EXPECT_EQ(processed.at(0).at("name"), "面板");
  EXPECT_EQ(processed.at(0).at("line"), 34);
  EXPECT_EQ(processed.at(0).at("text"),
            "锯床下料，六面留余量5mm→CNC点孔，深3mm→摇臂钻钻孔→沉头孔扩孔到数→镗孔到数,孔距±0.02mm→"
            "精磨两面,平行度0.015mm→刻字\"基准角\",字高10mm→打字码：模号、件号→棱边倒角C1.5→检测外形及孔距");
}

}  // namespace
}  // namespace plateconfig
