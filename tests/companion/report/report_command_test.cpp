#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <nlohmann/json.hpp>

#include "plateconfig/report/embedded_page.h"
#include "plateconfig/report/report_page.h"
#include "support/companion.h"

namespace plateconfig {
namespace {

using Json = nlohmann::json;
using test::ArgumentPath;
using test::CompanionResult;
using test::RunPlateconfig;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::StartsWith;

constexpr std::string_view kBeforeData =
    R"(<p>?"\</p><script type="application/json" id="plateconfig-data">)";
constexpr std::string_view kBehindData = "</script><script>start()</script>\n";

class ReportCommand : public testing::Test {
 protected:
  ReportCommand() {
    folder_.WriteBytes("page.html", std::string(kBeforeData) + std::string(kBehindData));
    folder_.WriteBytes("标准/tables.json", R"({"layers": "图层.csv", "connect-string": "unten/连接.csv"})");
    folder_.WriteTable("标准/图层.csv", "图层间距\n12\n");
    folder_.WriteTable("标准/unten/连接.csv", "连接字符\n+\n");
    folder_.WriteBytes("plates.json", R"([{"name": "A"}])");
    folder_.WriteBytes("holes.csv", "h");
    folder_.WriteBytes("more/holes.csv", "hh");
  }

  std::string Path(const std::string& name) const { return ArgumentPath(folder_, name); }

  CompanionResult Report(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), {"report", "--page", Path("page.html"), "--config", Path("标准")});
    return RunPlateconfig(std::move(arguments));
  }

  /// What stands in the page's place for data; the page itself is the stand-in's.
  static Json DataIn(const std::string& page) {
    EXPECT_THAT(page, StartsWith(std::string(kBeforeData)));
    EXPECT_THAT(page, EndsWith(std::string(kBehindData)));
    return Json::parse(page.substr(kBeforeData.size(), page.size() - kBeforeData.size() - kBehindData.size()),
                       nullptr, false);
  }

  test::TemporaryFolder folder_;
};

TEST_F(ReportCommand, HoldsTheManifestTheTablesThatItNamesAndWhatIsGivenBesideThem) {
  const CompanionResult result =
      Report({"--plates", Path("plates.json"), "--holes", Path("holes.csv"), "-o", Path("r.html")});
  EXPECT_THAT(result.out, StartsWith("0 errors, "));
  const Json data = DataIn(test::ReadBytes(folder_.Path() / "r.html"));
  EXPECT_EQ(data["name"], "标准");
  // 图层间距 is CD BC B2 E3 BC E4 BE E0 in GBK, 连接字符 is C1 AC BD D3 D7 D6 B7 FB.
  EXPECT_EQ(data["files"],
            Json({{{"path", "标准/tables.json"},
                   {"base64", Base64Of(R"({"layers": "图层.csv", "connect-string": "unten/连接.csv"})")}},
                  {{"path", "标准/图层.csv"}, {"base64", "zbyy47zkvuAKMTIK"}},
                  {{"path", "标准/unten/连接.csv"}, {"base64", "way909fWt/sKKwo="}},
                  {{"path", "plates.json"}, {"use", "plates"}, {"base64", "W3sibmFtZSI6ICJBIn1d"}},
                  {{"path", "holes.csv"}, {"use", "holes"}, {"base64", "aA=="}}}));
}

TEST_F(ReportCommand, GivesFilesOfOneNameNamesOfTheirOwn) {
  const Json data = DataIn(
      Report({"--holes", Path("holes.csv"), "--holes", Path("more/holes.csv"), "--types", Path("holes.csv")})
          .out);
  std::vector<std::string> paths;
  for (const Json& file : data["files"]) {
    if (file.contains("use"))
      paths.push_back(file["use"].get<std::string>() + " " + file["path"].get<std::string>());
  }
  EXPECT_THAT(paths, testing::ElementsAre("holes holes.csv", "holes holes-2.csv", "hole-types holes-3.csv"));
}

TEST_F(ReportCommand, EndsAsACheckOfTheSameFilesDoes) {
  for (const auto& arguments : {std::vector<std::string>{}, {"--fail-on", "error"}, {"--fail-on", "hint"}}) {
    std::vector<std::string> check = {"check", "--config", Path("标准")};
    check.insert(check.end(), arguments.begin(), arguments.end());
    EXPECT_EQ(Report(arguments).exitCode, RunPlateconfig(check).exitCode);
  }
  EXPECT_EQ(Report({}).exitCode, 1);  // No rules: no text for any plate.
  EXPECT_EQ(Report({"--fail-on", "error"}).exitCode, 0);
}

TEST_F(ReportCommand, IsNotWrittenWithoutAFileThatWasAskedFor) {
  const CompanionResult missing = Report({"--plates", Path("nowhere.csv"), "-o", Path("r.html")});
  EXPECT_EQ(missing.exitCode, 2);
  EXPECT_THAT(missing.err, HasSubstr("nowhere.csv: error: there is no such file\n"));
  const CompanionResult folder = Report({"--plates", Path("more"), "-o", Path("r.html")});
  EXPECT_EQ(folder.exitCode, 2);
  EXPECT_THAT(folder.err, HasSubstr("more: error: a report takes files alone\n"));
  const CompanionResult stream = Report({"--plates", "-", "-o", Path("r.html")});
  EXPECT_EQ(stream.exitCode, 2);
  EXPECT_THAT(stream.err, HasSubstr("-: error: a report takes files alone\n"));
  const CompanionResult configuration = RunPlateconfig(
      {"report", "--page", Path("page.html"), "--config", Path("keine"), "-o", Path("r.html")});
  EXPECT_EQ(configuration.exitCode, 2);
  EXPECT_FALSE(std::filesystem::exists(folder_.Path() / "r.html"));
}

std::vector<std::string> PathsIn(const Json& data) {
  std::vector<std::string> paths;
  for (const Json& file : data["files"]) paths.push_back(file["path"]);
  return paths;
}

TEST_F(ReportCommand, HoldsATableThatLiesElsewhereUnderThePathThatLeadsThere) {
  folder_.WriteBytes("标准/tables.json", R"({"layers": "../../no/x.csv", "connect-string": "../holes.csv"})");
  const Json data = DataIn(Report({}).out);
  EXPECT_THAT(PathsIn(data), testing::ElementsAre("标准/tables.json", "标准/../holes.csv"));
  EXPECT_EQ(data["files"][1]["base64"], "aA==");
}

TEST_F(ReportCommand, HoldsTheFoldersTablesWithoutAManifestToo) {
  std::filesystem::remove(folder_.Path() / u8"标准/tables.json");
  folder_.WriteBytes("标准/readme.txt", "text");
  folder_.WriteTable("标准/b.csv", "b\n");
  const CompanionResult result = Report({});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_THAT(PathsIn(DataIn(result.out)), testing::ElementsAre("标准/b.csv", "标准/图层.csv"));
}

TEST_F(ReportCommand, HoldsAManifestWithASecondEndingSinceTheCheckNamesIt) {
  std::filesystem::rename(folder_.Path() / u8"标准/tables.json", folder_.Path() / u8"标准/tables.json.txt");
  const CompanionResult result = Report({});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_THAT(PathsIn(DataIn(result.out)), testing::ElementsAre("标准/tables.json.txt", "标准/图层.csv"));
}

TEST_F(ReportCommand, SaysWhenItWasWritten) {
  const test::ScopedVariable time("SOURCE_DATE_EPOCH", "951827696");
  // 2000-02-29 is 951782400 seconds behind 1970; 45296 more are 12 hours, 34 minutes, 56 seconds.
  EXPECT_EQ(DataIn(Report({}).out)["written"], "2000-02-29T12:34:56Z");
}

TEST_F(ReportCommand, TakesTheTimeThatItIs) {
  const auto now = [] { return std::chrono::floor<std::chrono::days>(std::chrono::system_clock::now()); };
  const std::chrono::year_month_day before(now());
  const std::string written = DataIn(Report({}).out)["written"];
  const std::chrono::year_month_day after(now());
  EXPECT_THAT(written.substr(0, 4), testing::AnyOf(std::to_string(static_cast<int>(before.year())),
                                                   std::to_string(static_cast<int>(after.year()))));
  EXPECT_THAT(written, testing::MatchesRegex("....-..-..T..:..:..Z"));
}

TEST_F(ReportCommand, IsRefusedForATextThatIsNotThePage) {
  folder_.WriteBytes("page.html", "<p>another</p>");
  const CompanionResult without = Report({});
  EXPECT_EQ(without.exitCode, 2);
  EXPECT_THAT(without.out, IsEmpty());
  EXPECT_THAT(without.err, HasSubstr("page.html: error: this is not the page of plateconfig\n"));
  folder_.WriteBytes("page.html", std::string(kBeforeData) + std::string(kBeforeData));
  EXPECT_EQ(Report({}).exitCode, 2);
  std::filesystem::remove(folder_.Path() / "page.html");
  EXPECT_THAT(Report({}).err, HasSubstr("page.html: error: there is no such file\n"));
}

TEST_F(ReportCommand, TakesTheProgramsOwnPageWhenNoOtherIsGiven) {
  const std::string standIn = test::ReadBytes(PLATECONFIG_STAND_IN_PAGE);
  EXPECT_GT(standIn.size(), 12'000u);  // More than one piece of the source.
  EXPECT_EQ(EmbeddedPage(), standIn);
  const std::string page = RunPlateconfig({"report", "--config", Path("标准")}).out;
  EXPECT_THAT(page, StartsWith(standIn.substr(0, standIn.find("plateconfig-data"))));
  EXPECT_THAT(page, HasSubstr(R"("path":"\u6807\u51c6/tables.json")"));
}

TEST_F(ReportCommand, SaysWhyItsFileCanNotBeWritten) {
  const CompanionResult result = Report({"-o", Path("nowhere/r.html")});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_THAT(result.err,
              HasSubstr("r.html: error: this file can not be written: its folder does not exist\n"));
}

TEST_F(ReportCommand, SpeaksOfThePageAloneInItsHelp) {
  const std::string help = RunPlateconfig({"help", "report"}).out;
  EXPECT_THAT(help, HasSubstr("write the page to this file"));
  EXPECT_THAT(help, Not(HasSubstr(".csv or .json")));
}

TEST_F(ReportCommand, OpensNothingWithoutAFile) {
  const CompanionResult result = Report({"--open"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_THAT(result.out, IsEmpty());
  EXPECT_EQ(result.err, "plateconfig: error: --open opens the file that -o names; give both\n");
}

TEST(Base64, PutsThreeBytesIntoFourDigits) {
  EXPECT_EQ(Base64Of(""), "");
  EXPECT_EQ(Base64Of("f"), "Zg==");
  EXPECT_EQ(Base64Of("fo"), "Zm8=");
  EXPECT_EQ(Base64Of("foo"), "Zm9v");
  EXPECT_EQ(Base64Of("foobar"), "Zm9vYmFy");
  EXPECT_EQ(Base64Of(std::string_view("\xFF\xFE\xFD\0", 4)), "//79AA==");
}

TEST(PageWithData, CanNotBeLeftByTheNameOfAFile) {
  const std::string page = std::string(kBeforeData) + std::string(kBehindData);
  const ReportData data = {"</script><script>alert(1)//", "", {{"<!--.csv", "x", ""}}};
  const auto filled = PageWithData(page, data);
  ASSERT_TRUE(filled);
  const std::string inside =
      filled->substr(kBeforeData.size(), filled->size() - kBeforeData.size() - kBehindData.size());
  EXPECT_THAT(inside, Not(HasSubstr("<")));
  EXPECT_EQ(Json::parse(inside)["name"], "</script><script>alert(1)//");
  EXPECT_EQ(Json::parse(inside)["files"][0]["path"], "<!--.csv");
}

}  // namespace
}  // namespace plateconfig
