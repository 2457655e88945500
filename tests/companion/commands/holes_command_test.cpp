#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>

#include "plateconfig/companion.h"
#include "platform/diagnostic_file.h"
#include "support/gbk_text.h"
#include "support/temporary_folder.h"

namespace plateconfig {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using Json = nlohmann::json;

constexpr const char* kTypeHeader = "名称,结构,顶颜色,通颜色,底颜色,顶直径,通直径,底直径,说明\n";
constexpr const char* kHoleHeader = "孔名称,位置,直径,高度,R高度,颜色,X,Y,Z\n";

/// A counterbored M8 screw hole at 1, 2, 3.
constexpr const char* kScrewHole =
    "K1,顶,14,9,0,36,1,2,3\n"
    "K1,通,9,81,0,31,1,2,-6\n";

class HolesCommand : public testing::Test {
 protected:
  ~HolesCommand() override { EnableDiagnosticFiles(true); }

  /// Runs with these rows below the headers, in English unless `options` say otherwise.
  void Run(const std::string& types, const std::string& holes, std::vector<std::string> options = {}) {
    folder_.WriteTable("types.csv", kTypeHeader + types);
    folder_.WriteTable("holes.csv", kHoleHeader + holes);
    RunFiles("types.csv", "holes.csv", std::move(options));
  }

  void RunFiles(const std::string& types, const std::string& holes, std::vector<std::string> options = {}) {
    std::vector<std::string> arguments = {"holes", "--types", Path(types), Path(holes)};
    if (options.empty() || options[0] != "--lang") arguments.insert(arguments.end(), {"--lang", "en"});
    arguments.insert(arguments.end(), options.begin(), options.end());
    std::istringstream in;
    std::ostringstream out;
    std::ostringstream err;
    exitCode_ = RunCompanion(arguments, {in, out, err});
    out_ = out.str();
    err_ = err.str();
    for (std::size_t at; (at = err_.find(FolderText())) != std::string::npos;)
      err_.erase(at, FolderText().size());
  }

  std::string Path(const std::string& name) const {
    return name.starts_with("/") ? name : FolderText() + name;
  }
  std::string FolderText() const {
    const std::u8string text = folder_.Path().u8string() + u8"/";
    return {text.begin(), text.end()};
  }
  Json FirstHole() const { return Json::parse(out_).at(0); }

  test::TemporaryFolder folder_;
  int exitCode_ = -1;
  std::string out_;
  std::string err_;
};

TEST_F(HolesCommand, WithoutTypesThatCanBeReadNoHoleIsJudged) {
  folder_.WriteTable("holes.csv", kHoleHeader + std::string(kScrewHole));
  RunFiles("fehlt.csv", "holes.csv");
  EXPECT_THAT(out_, IsEmpty());
  EXPECT_EQ(exitCode_, 2);
}

TEST_F(HolesCommand, EveryMatchingTypeIsListedBestFirst) {
  Run("通用,1_1_0,0,0,,0,0,,\n"
      "M8,1_1_0,36,31,,14,9,,\n"
      "M10,1_1_0,36,31,,18,11,,\n"
      "颜色,1_1_0,36,31,,0,0,,\n",
      kScrewHole);
  EXPECT_EQ(out_,
            "K1: structure 1_1_0, largest diameter 14 mm, at 1, 2, 3\n"
            "      5  M8\n"
            "      2  颜色\n"
            "      0  通用\n"
            "1 hole and 4 types: 1 with one best type\n");
  EXPECT_EQ(err_, "");
  EXPECT_EQ(exitCode_, 0);
}

TEST_F(HolesCommand, ATieInTheBestScoreIsShownAndCountsAsAFinding) {
  Run("甲,1_1_0,36,31,,14,9,,\n"
      "乙,1_1_0,36,31,,14_15,9,,\n"
      "丙,1_1_0,36,31,,14,,,\n",
      kScrewHole);
  EXPECT_THAT(out_, HasSubstr("      5  甲 (one of 2 best)\n"
                              "      5  乙 (one of 2 best)\n"
                              "    3.5  丙\n"));
  EXPECT_EQ(exitCode_, 1);
}

TEST_F(HolesCommand, ATieBelowTheBestScoreIsNone) {
  Run("甲,1_1_0,36,31,,14,9,,\n"
      "乙,1_1_0,36,31,,0,0,,\n"
      "丙,1_1_0,36,31,,0,0,,\n",
      kScrewHole);
  EXPECT_THAT(out_, Not(HasSubstr("of 2 best")));
  EXPECT_EQ(exitCode_, 0);
}

TEST_F(HolesCommand, AHoleWithoutATypeSaysSoAndCountsAsAFinding) {
  Run("M10,1_1_0,36,31,,18,11,,\n", kScrewHole);
  EXPECT_THAT(out_, HasSubstr("  no type accepts it (--explain tells why)\n"));
  EXPECT_EQ(exitCode_, 1);
}

TEST_F(HolesCommand, TheLastLineCountsHolesAndTypes) {
  Run("甲,1_1_0,36,31,,14,9,,\n乙,1_1_0,36,31,,14,9,,\n",
      std::string(kScrewHole) + "K2,顶,14,9,0,36,1,2,3\n");
  EXPECT_THAT(out_,
              HasSubstr("\n2 holes and 2 types: 0 with one best type, 1 without a type, 1 with a tie\n"));
}

TEST_F(HolesCommand, CsvHasARowForEachTypeThatAcceptsAHole) {
  Run("甲,1_1_0,36,31,,14,9,,\n乙,1_1_0,36,31,,14,9,,\n", std::string(kScrewHole) + "K2,顶,14,9,0,36,1,2,3\n",
      {"--format", "csv"});
  EXPECT_EQ(out_,
            "\xEF\xBB\xBF孔名称,结构,最大直径,X,Y,Z,类型,得分,并列\r\n"
            "K1,1_1_0,14,1,2,3,甲,5,Y\r\n"
            "K1,1_1_0,14,1,2,3,乙,5,Y\r\n"
            "K2,1_0_0,14,1,2,3,,,N\r\n");
}

TEST_F(HolesCommand, FailOnDecidesWhatExitCodeOneIsFor) {
  Run("M10,1_1_0,36,31,,18,11,,\n", kScrewHole, {"--fail-on", "error"});
  EXPECT_EQ(exitCode_, 0);
}

TEST_F(HolesCommand, ExplainTellsTheVerdictOnEachSegment) {
  Run("M8,1_1_0,36,0,,14,,,\n", kScrewHole, {"--explain"});
  EXPECT_EQ(out_,
            "K1: structure 1_1_0, largest diameter 14 mm, at 1, 2, 3\n"
            "    2.5  M8\n"
            "           top 1: colour 36 is listed, diameter 14 is listed\n"
            "           through 1: colour 31 is accepted like any, diameter 9 is accepted like any\n"
            "\n"
            "1 hole and 1 type: 1 with one best type\n");
}

TEST_F(HolesCommand, ExplainShowsTheRefusingTypesNearestFirst) {
  Run("远,1_1_0,7,7,,1,1,,\n"
      "M10,1_1_0,36,31,,18,9,,\n"
      "M8大,1_1_0,36,31,,15,9,,\n"
      "反面,0_1_1,,36,36,,,,\n",
      kScrewHole, {"--explain"});
  EXPECT_EQ(out_,
            "K1: structure 1_1_0, largest diameter 14 mm, at 1, 2, 3\n"
            "  no type accepts it; the nearest first:\n"
            "    3.5  M8大\n"
            "           top 1: colour 36 is listed, diameter 14 is none of 15\n"
            "           through 1: colour 31 is listed, diameter 9 is listed\n"
            "    3.5  M10\n"
            "           top 1: colour 36 is listed, diameter 14 is none of 18\n"
            "           through 1: colour 31 is listed, diameter 9 is listed\n"
            "      0  远\n"
            "           top 1: colour 36 is none of 7, diameter 14 is none of 1\n"
            "           through 1: colour 31 is none of 7, diameter 9 is none of 1\n"
            "\n"
            "1 hole and 4 types: 0 with one best type, 1 without a type\n");
}

TEST_F(HolesCommand, ExplainShowsWhatRefusesBehindWhatAccepts) {
  Run("M10,1_1_0,36,31,,18,9,,\n"
      "M8,1_1_0,36,31,,14,9,,\n",
      kScrewHole, {"--explain"});
  EXPECT_LT(out_.find("M8\n"), out_.find("  refused by, the nearest first:\n"));
  EXPECT_LT(out_.find("  refused by, the nearest first:\n"), out_.find("M10\n"));
  EXPECT_EQ(exitCode_, 0);
}

TEST_F(HolesCommand, AMissingColorListIsNamedAsTheReason) {
  Run("M8,1_1_0,36,,,14,9,,\n", kScrewHole, {"--explain"});
  EXPECT_THAT(out_, HasSubstr("through 1: colour 31 has no list, diameter 9 is listed"));
  EXPECT_THAT(err_, HasSubstr("types.csv:2:1: warning: the type M8 refuses every hole: throughColor (通颜色) "
                              "has 0 lists for 1 segments"));
}

TEST_F(HolesCommand, ExplainShowsTheNearestStructuresWhenNoTypeHasTheHoles) {
  Run("盲,1_0_0,0,,,,,,\n"
      "多,5_5_5,0;0;0;0;0,0;0;0;0;0,0;0;0;0;0,,,,\n"
      "两段,2_1_0,0;0,0,,,,,\n"
      "反,0_0_3,,,0;0;0,,,,\n",
      kScrewHole, {"--explain"});
  EXPECT_THAT(out_, HasSubstr("  no type has this structure; the nearest:\n"
                              "         1_0_0  盲\n"
                              "         2_1_0  两段\n"
                              "         0_0_3  反\n"));
  EXPECT_THAT(out_, Not(HasSubstr("多")));
}

TEST_F(HolesCommand, AStructureThatNoHoleHasIsWarnedOf) {
  Run("甲,01_1_0,36,36,,,,,\n"
      "乙,1_1,36,36,,,,,\n"
      "丙,1_1_0 ,36,36,,,,,\n",
      kScrewHole);
  EXPECT_THAT(err_, HasSubstr("types.csv:2:1: warning: no hole has the structure \"01_1_0\" of the type 甲"));
  EXPECT_THAT(err_, HasSubstr("types.csv:3:1: warning: no hole has the structure \"1_1\" of the type 乙"));
  EXPECT_THAT(err_, HasSubstr("types.csv:4:1: warning: no hole has the structure \"1_1_0 \" of the type 丙"));
}

TEST_F(HolesCommand, ControlCharactersOfNamesNeverReachTheTerminal) {
  folder_.WriteTable("types.csv", std::string(kTypeHeader) + "M\x1b[31m8,1_1_0,36,36,,14,9,,\n");
  folder_.WriteTable("holes.csv",
                     std::string(kHoleHeader) +
                         "K\x1b[31m1,顶,14,9,,36,0,0,0\n,通,9,30,,36,0,0,0\nK\x1b[31m2,底,9,30,,36,0,0,0\n");
  RunFiles("types.csv", "holes.csv", {"--explain"});
  EXPECT_THAT(out_ + err_, Not(HasSubstr("\x1b")));
  EXPECT_THAT(out_, HasSubstr("M\uFFFD[31m8"));
  EXPECT_THAT(out_, HasSubstr("K\uFFFD[31m1"));
}

TEST_F(HolesCommand, ARenamedColumnOfTypesIsWarnedOfWithTheNameThatIsMissing) {
  for (const char* name : {"通颜色(mm)", "通颜", "颜通色", "颜色"}) {
    std::string header = kTypeHeader;
    folder_.WriteTable("types.csv",
                       header.replace(header.find("通颜色"), std::string("通颜色").size(), name) +
                           "M8,1_1_0,36,36,,14,9,,\n");
    folder_.WriteTable("holes.csv", std::string(kHoleHeader) + kScrewHole);
    RunFiles("types.csv", "holes.csv");
    EXPECT_THAT(err_, HasSubstr("D1: the column \"" + std::string(name) +
                                "\" is not known and is ignored; did you mean \"通颜色\"?"));
  }
}

TEST_F(HolesCommand, TypesThatSayMoreOrLessThanTheirStructureAreWarnedOf) {
  Run("M8,1_1_0,36,36,,14,9,,\n"
      "M8,1_0_0,36,,,14,9,,\n"
      "M10 ,1_1_0,36,336,,17,11,,\n"
      "M12,1_1_0,36,36,,20,13,,\n"
      "M16,1_1_0,36,36,,26,,,\n",
      kScrewHole);
  EXPECT_THAT(err_,
              HasSubstr("types.csv:3:1: warning: a second type has the name \"M8\"; the first stands on "
                        "line 2"));
  EXPECT_THAT(err_, HasSubstr("types.csv:3:1: warning: the type M8 has no through segment, while 通直径"));
  EXPECT_THAT(err_, HasSubstr("types.csv:4:1: warning: \"M10 \" has a blank"));
  EXPECT_THAT(err_, HasSubstr("types.csv:4:1: warning: 336 is no colour"));
  EXPECT_THAT(err_, HasSubstr("types.csv:6:1: hint: the type M16 accepts any diameter of its through"));
}

TEST_F(HolesCommand, JsonHoldsEveryMatchingTypeWithItsScore) {
  Run("通用,1_1_0,0,0,,0,0,,\n"
      "M8,1_1_0,36,31,,14,9,,说明文字\n",
      kScrewHole, {"--format", "json"});
  EXPECT_EQ(FirstHole(), Json::parse(R"({"name": "K1", "structure": "1_1_0", "maxDiameter": 14,
      "origin": [1, 2, 3], "tied": false,
      "types": [{"name": "M8", "accuracy": 5}, {"name": "通用", "accuracy": 0}]})"));
}

TEST_F(HolesCommand, JsonExplainsEachSegment) {
  Run("M8,1_1_0,36_37,0,,14.5,,,沉头\n", kScrewHole, {"--format", "json", "--explain"});
  EXPECT_EQ(FirstHole().at("types"), Json::array());
  EXPECT_EQ(FirstHole().at("refusedBy"), Json::parse(R"([{"name": "M8", "accuracy": 1, "content": "沉头",
      "segments": [
        {"group": "top", "segment": 1, "color": 36, "colorVerdict": "explicit", "allowedColors": [36, 37],
         "diameter": 14, "diameterVerdict": "refused", "allowedDiameters": [14.5]},
        {"group": "through", "segment": 1, "color": 31, "colorVerdict": "wildcard", "allowedColors": [0],
         "diameter": 9, "diameterVerdict": "wildcard", "allowedDiameters": null}]}])"));
}

TEST_F(HolesCommand, JsonNamesTheNearestStructures) {
  Run("盲,1_0_0,0,,,,,,\n", kScrewHole, {"--format", "json", "--explain"});
  EXPECT_EQ(FirstHole().at("nearStructures"), Json::parse(R"([{"name": "盲", "structure": "1_0_0"}])"));
}

TEST_F(HolesCommand, SpeaksChinese) {
  Run("M10,1_1_0,36,31,,18,9,,\n", kScrewHole, {"--lang", "zh", "--explain"});
  EXPECT_THAT(out_, HasSubstr("K1：结构 1_1_0，最大直径 14 mm，位置 1, 2, 3\n"));
  EXPECT_THAT(out_, HasSubstr("顶部第 1 段：颜色 36 已列出，直径 14 不在 18 之中\n"));
  EXPECT_THAT(out_, HasSubstr("通孔第 1 段：颜色 31 已列出，直径 9 已列出\n"));
}

TEST_F(HolesCommand, SeveralFilesOfTypesAreTakenTogether) {
  folder_.WriteTable("more.csv", std::string(kTypeHeader) + "通用,1_1_0,0,0,,0,0,,\n");
  Run("M8,1_1_0,36,31,,14,9,,\n", kScrewHole, {"--types", Path("more.csv")});
  EXPECT_THAT(out_, HasSubstr("5  M8\n      0  通用\n"));
}

TEST_F(HolesCommand, WithoutTypesThereIsNothingToDo) {
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
  EXPECT_EQ(RunCompanion({"holes", "holes.csv", "--lang", "en"}, {in, out, err}), 2);
  EXPECT_THAT(err.str(), HasSubstr("--types"));
}

TEST_F(HolesCommand, AFileThatIsNotThereIsAnError) {
  folder_.WriteTable("types.csv", std::string(kTypeHeader) + "M8,1_1_0,36,31,,14,9,,\n");
  RunFiles("types.csv", "missing.csv");
  EXPECT_EQ(err_, "missing.csv: error: there is no such file\n");
  EXPECT_EQ(exitCode_, 2);
}

TEST_F(HolesCommand, AFileWithoutHolesIsWarnedOf) {
  Run("M8,1_1_0,36,31,,14,9,,\n", "");
  EXPECT_EQ(err_, "holes.csv: warning: no hole was read from this file\n");
  EXPECT_EQ(exitCode_, 1);
}

TEST_F(HolesCommand, ClassifyingLeavesNoTraceInTheDrawingToolsFile) {
  Run("M8,1_1_0,36,31,,14,9,,\n", kScrewHole);
  EXPECT_FALSE(DiagnosticFile(Diagnostic::kHoles).IsOpen());
}

/// The sample files, with what a reader of samples/README.md expects of them.
class HoleSamples : public HolesCommand {
 protected:
  void RunSamples(const std::string& extension, std::vector<std::string> options = {}) {
    const std::string folder = PLATECONFIG_SAMPLES_DIR;
    RunFiles(folder + "/hole-types" + extension, folder + "/holes" + extension, std::move(options));
  }

  std::vector<std::string> TypesOf(const std::string& hole) const {
    std::vector<std::string> names;
    for (const Json& item : Json::parse(out_)) {
      if (item.at("name") != hole) continue;
      for (const Json& type : item.at("types")) names.push_back(type.at("name"));
    }
    return names;
  }
};

#ifndef _WIN32
TEST_F(HoleSamples, CsvAndJsonSayTheSame) {
  RunSamples(".csv", {"--format", "json", "--explain"});
  const std::string fromCsv = out_;
  EXPECT_EQ(err_, "");
  RunSamples(".json", {"--format", "json", "--explain"});
  EXPECT_EQ(out_, fromCsv);
  EXPECT_EQ(err_, "");
  EXPECT_EQ(Json::parse(out_).size(), 60U);
}

TEST_F(HoleSamples, SomeHolesFitSeveralTypesSomeTieAndSomeFitNone) {
  RunSamples(".csv", {"--format", "json"});
  EXPECT_THAT(TypesOf("A板-M8-1"), ElementsAre("M8沉头螺丝孔", "拉板螺丝孔M8", "沉头螺丝孔（通用）"));
  EXPECT_THAT(TypesOf("A板-M10-1"), ElementsAre("M10沉头螺丝孔", "沉头螺丝孔（通用）"));
  EXPECT_THAT(TypesOf("A板-非标沉头-2"), ElementsAre("沉头螺丝孔（通用）"));
  EXPECT_THAT(TypesOf("A板-导柱-未镗"), ElementsAre("沉头螺丝孔（通用）"));
  for (const char* none : {"底板-反沉M8", "A板-浇口套-小圈", "A板-M5牙-1", "B板-顶针-未铰", "B板-司筒-2",
                           "B板-喉塞-3", "底板-三台阶"}) {
    EXPECT_THAT(TypesOf(none), IsEmpty()) << none;
  }
  int tied = 0;
  int several = 0;
  for (const Json& hole : Json::parse(out_)) {
    tied += hole.at("tied") == true ? 1 : 0;
    several += hole.at("types").size() > 1 ? 1 : 0;
  }
  EXPECT_EQ(tied, 5);  // The four M8 holes, and an ejector pin's counterbore of the size of an M6 one.
  EXPECT_GT(several, 20);
}
#endif

}  // namespace
}  // namespace plateconfig
