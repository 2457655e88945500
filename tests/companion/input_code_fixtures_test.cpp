// Every code of an input, a manifest or the index has an input that raises it and one, as like as possible,
// that does not; with those of tables (tests/analysis/checks) that is every code there is.

#include <gmock/gmock.h>

#include "analysis/checks/code_fixtures.h"
#include "plateconfig/holes/hole_reader.h"
#include "plateconfig/holes/hole_type_reader.h"
#include "plateconfig/plates/plate_check.h"
#include "plateconfig/plates/plate_reader.h"
#include "plateconfig/tables/configuration.h"
#include "plateconfig/tables/reported_index.h"
#include "support/companion.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

using ::testing::AllOf;
using ::testing::Contains;
using ::testing::Not;
using Codes = std::vector<std::string>;

/// What is given to whom.
enum class Input { kPlates, kHoles, kHoleTypes, kPlatesToCheck, kManifest, kIndex };

struct Fixture {
  std::string code;
  Input input;
  std::string file;  ///< Its name says whether it is CSV or JSON.
  std::string bad;
  std::string good;
};

/// A text with a part replaced.
std::string With(std::string text, const std::string& what, const std::string& instead) {
  const std::size_t at = text.find(what);
  EXPECT_NE(at, std::string::npos) << what;
  return text.replace(at, what.size(), instead);
}

// ---- plates ----

const std::string kPlates =
    "名称,长度,宽度,厚度,重量,体颜色,圆孔颜色,圆孔直径,有无圆孔,下料\n甲,300,200,50,20,12,36,8.5,Y,Y\n";
const std::string kPlate =
    R"({"name": "甲", "length": 300, "width": 200, "thickness": 50, "weight": 20, "color": 12, "features": {"有无圆孔": true}})";

Fixture Csv(const std::string& code, const std::string& what, const std::string& instead) {
  return {code, Input::kPlates, "p.csv", With(kPlates, what, instead), kPlates};
}

Fixture Json(const std::string& code, const std::string& what, const std::string& instead) {
  return {code, Input::kPlates, "p.json", With(kPlate, what, instead), kPlate};
}

std::vector<Fixture> PlateFixtures() {
  const std::string deep = std::string(150, '[') + std::string(150, ']');
  return {
      Csv("input-not-number", "300", "3OO"),
      Csv("input-not-integer", "12,36", "12x,36"),
      Csv("input-not-integers", ",36,", ",36-31,"),
      Csv("input-not-numbers", "8.5", "8.5-9"),
      Csv("input-not-yes-no", "Y,Y", "有,Y"),
      Csv("input-number-range", "300", "1e999"),
      Csv("input-integer-range", "12,36", "99999999999,36"),
      Csv("input-not-positive", "300", "0"),
      Csv("input-negative", "50,20", "50,-20"),
      Csv("input-quote-open", "甲,", "\"甲,"),
      Csv("input-column-missing", "长度", "长"),
      Csv("input-column-unknown", "圆孔颜色", "圆孔颜涩"),
      Csv("input-column-twice", "圆孔直径", "圆孔颜色"),
      Csv("plate-no-name", "甲", ""),
      {"input-separator", Input::kPlates, "p.csv", "名称;长度;宽度;厚度;重量;体颜色\n甲;300;200;50;20;12\n",
       kPlates},
      {"input-workbook", Input::kPlates, "p.csv", "PK\x03\x04" + kPlates, kPlates},
      {"input-utf16", Input::kPlates, "p.csv", "\xFF\xFE" + kPlates, kPlates},
      {"input-line-ends", Input::kPlates, "p.csv", With(kPlates, "\n甲", "\r甲"), kPlates},
      {"input-title-line", Input::kPlates, "p.csv", "板材清单,,\n" + kPlates, kPlates},
      {"input-header-encoding", Input::kPlates, "p.csv", "\x80\xFF," + kPlates, "名称," + kPlates},
      {"input-row-encoding", Input::kPlates, "p.csv", kPlates + test::Gbk("乙,300,200,50,20,12,,,,\n"),
       kPlates + "乙,300,200,50,20,12,,,,\n"},
      Json("input-json-syntax", "300,", "300;"),
      Json("input-json-full-width", "\"length\":", "\"length\"："),
      Json("input-json-comma-last", "true}", "true,}"),
      Json("input-json-comma-missing", "300,", "300"),
      {"input-json-utf16", Input::kPlates, "p.json", "\xFF\xFE" + kPlate, kPlate},
      Json("input-json-number", "300", "1e999"),
      Json("input-json-open-object", "}}", "}"),
      Json("input-json-encoding", "甲", "\xFF"),
      Json("input-json-kind", "300", "\"300\""),
      Json("input-json-integer-range", "\"color\": 12", "\"color\": 99999999999"),
      Json("input-member-unknown", "\"features\"", "\"featurse\""),
      Json("input-member-twice", "\"length\": 300", "\"length\": 300, \"length\": 300"),
      Json("plate-member-missing", "\"length\": 300, ", ""),
      Json("plate-feature-unknown", "有无圆孔", "有无园孔"),
      Json("plate-feature-misplaced", "有无圆孔", "下料"),
      {"input-json-stray", Input::kPlates, "p.json", kPlate + " x", kPlate},
      {"input-json-end", Input::kPlates, "p.json", "[" + kPlate, "[" + kPlate + "]"},
      {"input-json-depth", Input::kPlates, "p.json", With(kPlate, "true", deep), kPlate},
  };
}

/// Checked against a table whose rows take plates from 100 to 500.
std::vector<Fixture> PlateCheckFixtures() {
  const auto checked = [](const std::string& code, const std::string& what, const std::string& instead) {
    return Fixture{code, Input::kPlatesToCheck, "p.csv", With(kPlates, what, instead), kPlates};
  };
  return {
      checked("plate-no-row", "300", "900"),
      checked("plate-no-text", "Y,Y", "Y,"),
      checked("plate-feature-missing", "下料", "备注"),
      checked("plate-features-contradict", "Y,Y", "N,Y"),
      checked("plate-color-unlisted", "20,12", "20,7"),
      {"plate-name-twice", Input::kPlatesToCheck, "p.csv", kPlates + "甲,300,200,50,20,12,36,8.5,Y,Y\n",
       kPlates + "乙,300,200,50,20,12,36,8.5,Y,Y\n"},
  };
}

// ---- holes and hole types ----

const std::string kHoles = "孔名称,位置,直径,颜色\nK1,顶,14,36\n,通,9,36\nK2,通,8,31\n";
const std::string kHole =
    R"({"name": "K1", "top": [{"diameter": 14, "color": 36, "origin": [1, 2, 3]}], "through": [{"diameter": 9, "color": 36}]})";
const std::string kTypes = "名称,结构,顶颜色,通颜色,底颜色,顶直径,通直径,底直径\nM8,1_1_0,36,36,,14,9,\n";
/// So many that one without diameters stands out.
const std::string kFourTypes =
    kTypes + "M9,1_1_0,36,36,,14,9,\nM10,1_1_0,36,36,,14,9,\nM11,1_1_0,36,36,,14,9,\n";
const std::string kType =
    R"({"name": "M8", "structure": "1_1_0", "topColor": [[36]], "throughColor": [[36]]})";

std::vector<Fixture> HoleFixtures() {
  const auto csv = [](const std::string& code, const std::string& what, const std::string& instead) {
    return Fixture{code, Input::kHoles, "h.csv", With(kHoles, what, instead), kHoles};
  };
  const auto json = [](const std::string& code, const std::string& what, const std::string& instead) {
    return Fixture{code, Input::kHoles, "h.json", With(kHole, what, instead), kHole};
  };
  const auto type = [](const std::string& code, const std::string& what, const std::string& instead) {
    return Fixture{code, Input::kHoleTypes, "t.csv", With(kTypes, what, instead), kTypes};
  };
  return {
      csv("hole-no-name", "K1", ""),
      csv("hole-not-group", "顶", "侧"),
      csv("hole-incomplete", "14", "x"),
      csv("hole-apart", "K2,通,8,31\n", "K2,通,8,31\nK1,底,8,31\n"),
      json("hole-member-missing", "\"diameter\": 14, ", ""),
      json("hole-origin", "[1, 2, 3]", "[1, 2]"),
      type("hole-type-no-name", "M8", ""),
      type("hole-type-structure", "1_1_0", "1_1"),
      type("hole-type-refuses-all", "1_1_0,36", "1_1_0,"),
      type("hole-type-list-unused", "1_1_0", "1_0_0"),
      type("hole-type-color", "36,36", "360,36"),
      type("input-column-absent", ",底直径", ""),
      {"hole-type-no-diameters", Input::kHoleTypes, "t.csv", kFourTypes + "M12,1_1_0,36,36,,14,,\n",
       kFourTypes + "M12,1_1_0,36,36,,14,9,\n"},
      {"hole-type-name-twice", Input::kHoleTypes, "t.csv", kTypes + "M8,1_0_0,36,,,14,,\n",
       kTypes + "M9,1_0_0,36,,,14,,\n"},
      {"hole-type-member-missing", Input::kHoleTypes, "t.json", With(kType, "\"structure\": \"1_1_0\", ", ""),
       kType},
  };
}

// ---- the way to a configuration ----

const std::string kManifest = R"({"process-rules": "规则.csv", "bom": "清单.csv"})";

std::vector<Fixture> ManifestFixtures() {
  const auto manifest = [](const std::string& code, const std::string& what, const std::string& instead) {
    return Fixture{code, Input::kManifest, "tables.json", With(kManifest, what, instead), kManifest};
  };
  return {
      manifest("manifest-encoding", "规则", "\xFF"),
      manifest("manifest-full-width", ": \"规则", "：\"规则"),
      manifest("manifest-comma-last", ".csv\"}", ".csv\", }"),
      manifest("manifest-comma-missing", ".csv\", ", ".csv\" "),
      manifest("manifest-no-object", kManifest, "[]"),
      manifest("manifest-role-unknown", "bom", "bomb"),
      manifest("manifest-file-kind", "\"清单.csv\"", "5"),
      manifest("manifest-file-empty", "清单.csv", ""),
      manifest("manifest-absolute-path", "清单", "D:/清单"),
      manifest("manifest-file-twice", "清单", "规则"),
      manifest("role-without-file", ", \"bom\": \"清单.csv\"", ""),
  };
}

const std::string kIndex = "文件夹名称,有效配置\n标准,Y\n精密模,N\n";

std::vector<Fixture> IndexFixtures() {
  const auto index = [](const std::string& code, const std::string& what, const std::string& instead) {
    return Fixture{code, Input::kIndex, "standard.csv", With(kIndex, what, instead), kIndex};
  };
  return {
      index("index-no-rows", "文件夹名称", "文件夹"),
      index("index-none-active", "Y", "N"),
      index("index-many-active", "N", "Y"),
      index("index-flag", "N", "是"),
      index("index-folder-empty", "精密模,N", ",Y"),
      index("index-folder-odd", "标准", "标准 "),
      index("index-folder-missing", "标准", "没有"),
      {"index-flag-empty", Input::kIndex, "standard.csv", kIndex + "旧,\n", kIndex + "旧,N\n"},
  };
}

std::vector<Fixture> AllFixtures() {
  std::vector<Fixture> all = PlateFixtures();
  for (const auto& more : {PlateCheckFixtures(), HoleFixtures(), ManifestFixtures(), IndexFixtures()})
    all.insert(all.end(), more.begin(), more.end());
  return all;
}

// ---- who reads them ----

/// A reporter that keeps what it is told.
struct Told {
  Told() {
    messages.reporter.LookAtFiles();
    messages.reporter.CollectInto(&findings);
  }

  Codes TheirCodes() const {
    Codes codes;
    for (const Finding& finding : findings) codes.emplace_back(finding.code.Name());
    return codes;
  }

  test::Messages messages;
  std::vector<Finding> findings;
};

RuleTables RulesUpTo500() {
  const test::TemporaryFolder files;
  ReadConfigFile table;
  EXPECT_TRUE(table.OpenConfigFile(files.WriteTable(
      "r.csv",
      "通用要求,通用参数,排工艺顺序,排顺序工艺类型,顺序工艺参数值,模板所在图层,长度范围,材质要求,下料\n"
      "软料（体颜色）,12,下料,自定义追加工艺,,12,100_500,软料（体颜色）,锯\n"
      "硬料（体颜色）,42,,,,,,,\n")));
  return LoadRuleTables(table, ReadConfigFile());
}

void ReadAll(auto& reader) {
  while (reader.Next()) {
  }
}

/// The codes in a report in JSON.
Codes CodesOfReport(const std::string& report) {
  Codes codes;
  for (std::size_t at = 0; (at = report.find("\"code\": \"", at)) != std::string::npos;) {
    at += 9;
    codes.push_back(report.substr(at, report.find('"', at) - at));
  }
  return codes;
}

/// The codes that a configuration with this manifest gives when it is checked.
Codes CodesOfManifest(const std::string& manifest) {
  const test::TemporaryFolder files;
  files.WriteBytes("tables.json", manifest);
  const auto report =
      test::RunPlateconfig({"check", "--config", test::ArgumentPath(files, ""), "--format", "json"}).out;
  Codes codes = CodesOfReport(report);
  // Nearly all roles have no file; one of them is looked at.
  std::erase(codes, report.find("\"text\": \"bom\"") == std::string::npos ? "role-without-file" : "");
  return codes;
}

Codes CodesOfIndex(const std::string& index, const std::string& root = "") {
  const test::TemporaryFolder files;
  if (!index.empty()) files.WriteTable(root + "config/standard.csv", index);
  files.WriteBytes(root + "config/标准/x", "");
  const std::string path = files.HostPath(root);
  std::vector<Finding> findings;
  RaiseIndexFindings(path, ReadConfigurationIndex(path),
                     [&](Finding finding) { findings.push_back(finding); });
  Told told;
  told.findings = findings;
  return told.TheirCodes();
}

Codes CodesIn(const Fixture& fixture, const std::string& text) {
  static const PlateVocabulary vocabulary({{0, ProcessRule::CustomProcess, test::Gbk("下料"), ""}});
  Told told;
  Reporter& reporter = told.messages.reporter;
  std::istringstream in(text);
  switch (fixture.input) {
    case Input::kPlates:
      ReadAll(*ReadPlates(in, fixture.file, vocabulary, reporter));
      break;
    case Input::kHoles:
      ReadAll(*ReadHoles(in, fixture.file, reporter));
      break;
    case Input::kHoleTypes:
      ReadHoleTypes(in, fixture.file, reporter);
      break;
    case Input::kPlatesToCheck: {
      const RuleTables tables = RulesUpTo500();
      PlateCheck check(tables, reporter);
      std::istringstream header(text);
      check.CheckHeader(header, fixture.file);
      check.Read(in, fixture.file);
      break;
    }
    case Input::kManifest:
      return CodesOfManifest(text);
    case Input::kIndex:
      return CodesOfIndex(text);
  }
  return told.TheirCodes();
}

TEST(InputCodeFixtures, EachCodeIsRaisedByItsBadInputAndNotByItsGoodOne) {
  for (const Fixture& fixture : AllFixtures()) {
    EXPECT_THAT(CodesIn(fixture, fixture.bad), Contains(fixture.code)) << fixture.bad.substr(0, 300);
    EXPECT_THAT(CodesIn(fixture, fixture.good), Not(Contains(fixture.code))) << fixture.good.substr(0, 300);
  }
}

TEST(HoleTypes, OneWithoutDiametersIsToldWhereThreeOthersHaveThemAndNoOtherLacksThem) {
  const std::string code = "hole-type-no-diameters";
  const auto codes = [&](const std::string& types) {
    return CodesIn({code, Input::kHoleTypes, "t.csv", types, types}, types);
  };
  const std::string open = "M12,1_1_0,36,36,,14,,\n";
  const std::string another = "M13,1_1_0,36,36,,14,,\n";
  const std::string withoutTheGroup = "M14,1_0_0,36,,,14,,\n";
  const std::string two = kTypes + "M9,1_1_0,36,36,,14,9,\n";
  const std::string three = two + "M10,1_1_0,36,36,,14,9,\n";
  EXPECT_THAT(codes(three + open), Contains(code));
  EXPECT_THAT(codes(With(three, "M8,", open + "M8,")), Contains(code));
  EXPECT_THAT(codes(two + open), Not(Contains(code)));
  EXPECT_THAT(codes(two + withoutTheGroup + open), Not(Contains(code)));
  EXPECT_THAT(codes(three + open + another), Not(Contains(code)));
}

TEST(InputCodeFixtures, AnIndexThatIsNotThereOrNoFile) {
  EXPECT_THAT(CodesOfIndex(""), Contains("index-missing"));
  EXPECT_THAT(CodesOfIndex(kIndex), Not(Contains("index-missing")));
  const test::TemporaryFolder files;
  files.WriteBytes("config/standard.csv/x", "");
  const std::string root = files.HostPath("");
  Told told;
  RaiseIndexFindings(root, ReadConfigurationIndex(root),
                     [&](const Finding& finding) { told.findings.push_back(finding); });
  EXPECT_THAT(told.TheirCodes(), Contains("index-unreadable"));
}

TEST(InputCodeFixtures, ARootThatEndsInConfigItself) {
  EXPECT_THAT(CodesOfIndex(kIndex, "config/"), Contains("root-ends-in-config"));
  EXPECT_THAT(CodesOfIndex(kIndex), Not(Contains("root-ends-in-config")));
}

TEST(InputCodeFixtures, AFolderOrAManifestThatIsNotThere) {
  const test::TemporaryFolder files;
  const auto codesOf = [&](const std::string& folder) {
    Told told;
    ConfigurationOptions options;
    options.folder = test::ArgumentPath(files, folder);
    Configuration(options, told.messages.reporter).FindOptional(Role::kBom);
    return told.TheirCodes();
  };
  EXPECT_THAT(codesOf("没有"), Contains("config-folder-missing"));
  files.WriteBytes("配置/x", "");
  EXPECT_THAT(codesOf("配置"), AllOf(Contains("manifest-missing"), Not(Contains("config-folder-missing"))));
  files.WriteBytes("配置/tables.json/x", "");
  EXPECT_THAT(codesOf("配置"), AllOf(Contains("manifest-unreadable"), Not(Contains("manifest-missing"))));
  files.WriteBytes("好/tables.json", "{}");
  EXPECT_THAT(codesOf("好"), AllOf(Not(Contains("manifest-unreadable")), Not(Contains("manifest-missing"))));
}

TEST(InputCodeFixtures, AFileOfTypesThatIsNotThereOrEmpty) {
  const test::SmallConfiguration tables;
  const test::TemporaryFolder files;
  const auto codesOf = [&](const std::string& name) {
    return CodesOfReport(test::RunPlateconfig({"check", "--config", tables.Path(), "--format", "json",
                                               "--types", test::ArgumentPath(files, name)})
                             .out);
  };
  files.WriteBytes("full.csv", kTypes);
  files.WriteBytes("empty.csv", kTypes.substr(0, kTypes.find('\n') + 1));
  EXPECT_THAT(codesOf("missing.csv"), Contains("input-missing"));
  EXPECT_THAT(codesOf("empty.csv"), AllOf(Contains("input-empty"), Not(Contains("input-missing"))));
  EXPECT_THAT(codesOf("full.csv"), AllOf(Not(Contains("input-empty")), Not(Contains("input-missing"))));
}

TEST(InputCodeFixtures, AManifestThatIsNotThereOrHasAnotherEnding) {
  const auto codesOf = [](const char* name) {
    const test::TemporaryFolder files;
    files.WriteBytes(name, kManifest);
    return CodesOfReport(
        test::RunPlateconfig({"check", "--config", test::ArgumentPath(files, ""), "--format", "json"}).out);
  };
  EXPECT_THAT(codesOf("other.json"), AllOf(Contains("manifest-missing"), Not(Contains("manifest-ending"))));
  EXPECT_THAT(codesOf("tables.json.txt"),
              AllOf(Contains("manifest-ending"), Not(Contains("manifest-missing"))));
  EXPECT_THAT(codesOf("tables.json"),
              AllOf(Not(Contains("manifest-ending")), Not(Contains("manifest-missing"))));
}

TEST(InputCodeFixtures, TogetherWithThoseOfTablesTheyAreEveryCode) {
  std::set<std::string, std::less<>> covered = test::CodesWithTableFixtures();
  covered.insert({"index-missing", "index-unreadable", "root-ends-in-config", "config-folder-missing",
                  "manifest-unreadable", "manifest-missing", "manifest-ending", "input-empty",
                  "input-missing"});
  for (const Fixture& fixture : AllFixtures()) covered.insert(fixture.code);
  for (const CodeRow& row : kCodes) EXPECT_TRUE(covered.contains(row.name)) << row.name;
}

}  // namespace
}  // namespace plateconfig
