// Every code of a table has a table that raises it and one, as like as possible, that does not.

#include "analysis/checks/code_fixtures.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <map>

#include "analysis/checks/given_tables.h"

namespace plateconfig {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

struct Fixture {
  std::string code;
  Role role;
  std::string bad;
  std::string good;
};

const std::string kRuleHeader =
    "通用要求,通用参数,排工艺顺序,排顺序工艺类型,顺序工艺参数值,模板所在图层,长度范围,宽度范围,厚度范围,"
    "重量范围,"
    "有无型面,有无线割,材质要求,下料,钻孔\n";

/// A rule table in which row 2 lists 下料, row 3 钻孔, with these two rule rows.
std::string Rules(const std::string& first, const std::string& second) {
  return kRuleHeader + "软料（体颜色）,12,下料,自定义追加工艺,," + first +
         "\n硬料（体颜色）,42,钻孔,圆孔颜色,36," + second +
         "\n有型面,190,,,,,,,,,,,,,\n有线割,103,,,,,,,,,,,,,\n";
}

const std::string kFirst = "12,100_200,,,,无型面,无线割,软料（体颜色）,锯,钻";
const std::string kSecond = "12,300_400,,,,无型面,无线割,软料（体颜色）,铣,钻";
const std::string kGood = Rules(kFirst, kSecond);

/// The good rule table with one text replaced.
std::string With(const std::string& before, const std::string& after) {
  std::string table = kGood;
  const std::size_t at = table.find(before);
  EXPECT_NE(at, std::string::npos) << before;
  return table.replace(at, before.size(), after);
}

std::vector<Fixture> RuleFixtures() {
  const Role rules = Role::kProcessRules;
  return {
      {"column-misspelled", rules, With("长度范围", "长度笵围"), kGood},
      {"column-unknown", rules, With("材质要求", "甲乙丙丁"), kGood},
      {"column-second", rules, With("钻孔\n", "钻孔,钻孔\n"), kGood},
      {"column-absent", rules, With("材质要求", ""), kGood},
      {"column-required", rules, With("模板所在图层", "备注"), kGood},
      {"cell-not-range", rules, With("100_200", "100-200"), kGood},
      {"range-reversed", rules, With("100_200", "200_100"), kGood},
      {"cell-not-integers", rules, With("190", "19O"), kGood},
      {"cell-not-numbers", rules, With("颜色,36", "颜色,3b"), kGood},
      {"color-out-of-range", rules, With("190", "217"), With("190", "216")},
      {"layer-out-of-range", rules, With("12,100_200", "257,100_200"), With("12,100_200", "256,100_200")},
      {"condition-unknown", rules, With("圆孔颜色", "园孔颜色"), kGood},
      {"condition-empty", rules, With("圆孔颜色,36", ","), kGood},
      {"condition-without-parameter", rules, With("圆孔颜色,36", "圆孔颜色,"), kGood},
      {"condition-parameter-unused", rules, With("自定义追加工艺,", "自定义追加工艺,5"), kGood},
      {"process-twice", rules, With("42,钻孔", "42,下料"), kGood},
      {"process-without-column", rules, With("42,钻孔", "42,镗孔"), kGood},
      {"process-without-name", rules, With("42,钻孔", "42,"), kGood},
      {"process-not-listed", rules, With("42,钻孔,圆孔颜色,36", "42,,,"), kGood},
      {"process-list-empty", rules, "模板所在图层,长度范围\n12,100_200\n", kGood},
      {"parameter-unknown", rules, With("软料（体颜色）,12", "软料,12"), kGood},
      {"parameter-missing", rules, With("软料（体颜色）,12", ",12"), kGood},
      {"parameter-twice", rules, With("有线割,103", "有型面,103"), kGood},
      {"parameter-without-value", rules, With("有线割,103", "有线割,"), kGood},
      {"parameter-without-name", rules, With("有线割,103", ",103"), kGood},
      {"parameter-same-colors", rules,
       With("有型面,190,,,,,,,,,,,,,\n有线割,103", "有型面,190_191,,,,,,,,,,,,,\n有线割,190_191"),
       With("有型面,190,,,,,,,,,,,,,\n有线割,103", "有型面,190_191,,,,,,,,,,,,,\n有线割,190_192")},
      {"color-soft-and-hard", rules, With("硬料（体颜色）,42", "硬料（体颜色）,12"), kGood},
      {"layer-empty", rules, With("12,300_400", ",300_400"), kGood},
      {"wish-unknown", rules, With("无型面,无线割,软料（体颜色）,铣", "Y,无线割,软料（体颜色）,铣"), kGood},
      {"material-unknown", rules, With("软料（体颜色）,铣", "软料,铣"), kGood},
      {"text-blank", rules, With("铣,钻", "铣,钻 "), kGood},
      {"range-single", rules, With("300_400", "300_300"), With("300_400", "300_301")},
      {"row-longer", rules, With("铣,钻\n", "铣,,钻\n"), With("铣,钻\n", "铣,钻,\n")},
      {"column-nameless", rules, With("材质要求", ""), With("钻孔\n", "钻孔,\n")},
      {"row-never-matches", rules, With("100_200", "200_100"), kGood},
      {"row-shadowed", rules, With("300_400", "110_120"), kGood},
      {"row-no-text", rules, With("铣,钻", ","), kGood},
      {"row-shared-bound", rules, With("300_400", "200_400"), kGood},
      {"rows-mergeable", rules, Rules(kFirst, "12,200_400,,,,无型面,无线割,软料（体颜色）,锯,钻"), kGood},
      {"gap", rules, kGood, With("300_400", "200_400")},
  };
}

/// Eight rule rows that say it in words, and a ninth.
std::string ManyRows(const std::string& ninth) {
  std::string table = kRuleHeader;
  for (int i = 0; i < 8; ++i)
    table += ",,,,,12," + std::to_string(i * 10) + "_" + std::to_string(i * 10 + 9) +
             ",10_20,,,无型面,无线割,软料（体颜色）,锯床下料,\n";
  return table + ",,下料,自定义追加工艺,,12," + ninth + "\n";
}

/// Sixteen rule rows with a text, and a last one.
std::string ManySameRows(const std::string& lastText) {
  std::string table = kRuleHeader;
  for (int i = 0; i < 16; ++i) table += ",,,,,12,10_20,,,,,,,锯床下料,\n";
  return table + ",,下料,自定义追加工艺,,12,10_20,,,,,,," + lastText + ",\n";
}

std::vector<Fixture> RowFixtures() {
  const Role rules = Role::kProcessRules;
  const std::string good = ManyRows("90_99,10_20,,,无型面,无线割,软料（体颜色）,锯床下料,");
  return {
      {"range-empty", rules, ManyRows("90_99,,,,无型面,无线割,软料（体颜色）,锯床下料,"), good},
      {"wish-empty", rules, ManyRows("90_99,10_20,,,,无线割,软料（体颜色）,锯床下料,"), good},
      {"material-empty", rules, ManyRows("90_99,10_20,,,无型面,无线割,,锯床下料,"), good},
      {"process-text-empty", rules, ManySameRows(""), ManySameRows("锯床下料")},
      {"process-text-odd", rules, ManyRows("90_99,10_20,,,无型面,无线割,软料（体颜色）,/,"), good},
      {"text-look-alike", rules, ManyRows("90_99,10_20,,,无型面,无线割,软料（体颜色）,锯床下枓,"), good},
  };
}

std::vector<Fixture> SettingFixtures() {
  const std::string style = "chinesef_fs|3.5|0.7|0.5|0.5|1";
  return {
      {"cell-not-number", Role::kBom, "密度(g/cm)\n7.8o\n", "密度(g/cm)\n7.80\n"},
      {"cell-out-of-range", Role::kBom, "密度(g/cm)\n1e999\n", "密度(g/cm)\n1e99\n"},
      {"cell-not-integer", Role::kProcessSettings, "制造流程CAD图层\n20l\n", "制造流程CAD图层\n201\n"},
      {"cell-integer-out-of-range", Role::kSystemSettings, "CAD打开方式\n9999999999\n", "CAD打开方式\n1\n"},
      {"cell-not-flag", Role::kProcessSettings, "输出行号\n是\n", "输出行号\nY\n"},
      {"cell-flag-letter", Role::kProcessSettings, "输出行号\ny\n", "输出行号\nY\n"},
      {"cell-not-style", Role::kFrameInfo,
       "图框信息-属性名称,图框信息-注解样式\nA,chinesef_fs|3.5|0.7|0.5|0.5\n",
       "图框信息-属性名称,图框信息-注解样式\nA," + style + "\n"},
      {"cell-reads-as-zero", Role::kTriangleSymbol, "三角符号-颜色,三角符号-图层\n,200\n",
       "三角符号-颜色,三角符号-图层\n78,200\n"},
      {"cell-empty-text", Role::kTexts, "代号文字,加工说明文字\n代号,\n",
       "代号文字,加工说明文字\n代号,说明\n"},
      {"cell-below-first-row", Role::kBom, "密度(g/cm),备注\n7.85,\n7.9,x\n", "密度(g/cm),备注\n7.85,\n,x\n"},
      {"list-gap", Role::kLayers, "模板图层\n1\n\n2\n", "模板图层\n1\n2\n"},
      {"text-question-mark", Role::kTexts, "代号文字\n代号?\n", "代号文字\n代号\n"},
      {"text-formula-error", Role::kTexts, "代号文字\n#REF!\n", "代号文字\n代号\n"},
      {"list-value-ignored", Role::kLayers, "模板图层\n0\n", "模板图层\n1\n"},
      {"column-none", Role::kBom, "连接字符\n-\n", "密度(g/cm)\n7\n"},
      {"quote-open", Role::kBom, "密度(g/cm)\n\"7\n", "密度(g/cm)\n\"7\"\n"},
      {"quote-swallows", Role::kTexts, "代号文字,加工说明文字\n\"a,b\nc,d\n\"e\",f\n",
       "代号文字,加工说明文字\na,b\nc,d\n"},
      {"quote-text-behind", Role::kTexts, "代号文字\n\"a\"b\n", "代号文字\n\"a\"\n"},
      {"table-empty", Role::kBom, "", "密度(g/cm)\n7\n"},
      {"table-no-rows", Role::kBom, "密度(g/cm)\n", "密度(g/cm)\n7\n"},
      {"table-separator", Role::kTexts, "代号文字;加工说明文字\na;b\n", "代号文字,加工说明文字\na,b\n"},
      {"table-separator-line", Role::kBom, "sep=,\n密度(g/cm)\n7\n", "密度(g/cm)\n7\n"},
      {"table-title-line", Role::kBom, "材料表\n密度(g/cm)\n7\n", "密度(g/cm)\n7\n"},
      {"table-line-ends", Role::kBom, "密度(g/cm)\r7\r", "密度(g/cm)\r\n7\r\n"},
      {"table-workbook", Role::kBom, "PK\x03\x04xx", "密度(g/cm)\n7\n"},
  };
}

/// Frame texts with this second row.
std::string FrameTexts(const std::string& second) {
  return "图框信息-左边距,图框信息-属性名称\n0.5,A\n" + second + "\n0.7,C\n";
}

std::vector<Fixture> ListFixtures() {
  const std::string good = FrameTexts("0.6,B");
  return {
      {"row-skipped", Role::kFrameInfo, FrameTexts("0.6,"), good},
      {"row-cell-empty", Role::kFrameInfo, FrameTexts(",B"), good},
      {"row-blank", Role::kFrameInfo, FrameTexts(","), good},
      {"setting-empty", Role::kTexts,
       "代号文字,注解与线之间的间距比例,列之间的距离比例,第三视角转图,加工说明文字\n,0.5,0.3,Y,说明\n",
       "代号文字,注解与线之间的间距比例,列之间的距离比例,第三视角转图,加工说明文字\n代号,0.5,0.3,Y,说明\n"},
      {"number-odd", Role::kBom, "密度(g/cm)\n7.\n", "密度(g/cm)\n0.7\n"},
      {"number-negative", Role::kBom, "密度(g/cm)\n-7\n", "密度(g/cm)\n7\n"},
      {"width-zero", Role::kColumnWidths, "序号,备注\n0,80\n", "序号,备注\n10,80\n"},
      {"column-blank", Role::kColumnWidths, "序 号,备注\n10,80\n", "Part No,备注\n10,80\n"},
      {"text-lost", Role::kTexts, "代号文字\n???\n", "代号文字\n代号\n"},
  };
}

std::vector<Fixture> AllFixtures() {
  std::vector<Fixture> all = RuleFixtures();
  for (const auto& more : {RowFixtures(), SettingFixtures(), ListFixtures()})
    all.insert(all.end(), more.begin(), more.end());
  return all;
}

std::vector<std::string> CodesIn(Role role, const std::string& table) {
  return test::CodesOf(FindingsOf(test::Given(role, table), test::AllCodes()));
}

TEST(CodeFixtures, EachCodeIsRaisedByItsBadTableAndNotByItsGoodOne) {
  for (const Fixture& fixture : AllFixtures()) {
    EXPECT_THAT(CodesIn(fixture.role, fixture.bad), Contains(fixture.code)) << fixture.bad;
    EXPECT_THAT(CodesIn(fixture.role, fixture.good), Not(Contains(fixture.code))) << fixture.good;
  }
}

std::vector<Finding> FindingsNamed(std::string_view code, Role role, const std::string& table) {
  std::vector<Finding> findings = FindingsOf(test::Given(role, table), test::AllCodes());
  std::erase_if(findings, [&](const Finding& finding) { return finding.code.Name() != code; });
  return findings;
}

std::vector<std::string> MessagesOf(const std::vector<Finding>& findings, Language language) {
  std::vector<std::string> messages;
  for (const Finding& finding : findings) messages.push_back(MessageOf(finding, language));
  return messages;
}

TEST(NeededColumns, AreToldWithWhatTheTableLosesWithoutThem) {
  const auto without = [](const std::string& column, Language language) {
    return MessagesOf(FindingsNamed("column-required", Role::kProcessRules, With(column, "备注")), language);
  };
  EXPECT_THAT(without("模板所在图层", Language::kEnglish),
              ElementsAre("this table lacks the column \"模板所在图层\", so the table has no rule row"));
  EXPECT_THAT(without("通用要求", Language::kEnglish),
              ElementsAre("this table lacks the column \"通用要求\", so no general parameter is read"));
  EXPECT_THAT(without("通用要求", Language::kChinese),
              ElementsAre("此表缺少列“通用要求”，因此不读取任何通用要求"));
  EXPECT_THAT(without("排工艺顺序", Language::kEnglish),
              ElementsAre("this table lacks the column \"排工艺顺序\", so no process is listed"));
  EXPECT_THAT(MessagesOf(FindingsNamed("column-required", Role::kFrameInfo, "图框信息-左边距\n0.5\n"),
                         Language::kEnglish),
              ElementsAre("this table lacks the column \"图框信息-属性名称\", so no row of its list counts"));
}

TEST(NeededColumns, AreOnlyAHintWhereNothingOfTheirListIsThere) {
  const std::string table = "模板所在图层,长度范围\n12,100_200\n";
  EXPECT_THAT(FindingsNamed("column-required", Role::kProcessRules, table), IsEmpty());
  const auto absent = FindingsNamed("column-absent", Role::kProcessRules, table);
  EXPECT_EQ(std::count_if(absent.begin(), absent.end(),
                          [](const Finding& finding) { return finding.columnName == "通用要求"; }),
            1);
}

TEST(NeededColumns, AMisspelledOneIsToldWithWhatIsLostBesideItsName) {
  const auto found =
      FindingsNamed("column-misspelled", Role::kProcessRules, With("模板所在图层", "模板图层"));
  ASSERT_EQ(found.size(), 1u);
  EXPECT_EQ(found[0].fix, "模板所在图层");
  EXPECT_EQ(MessageOf(found[0], Language::kEnglish),
            "the column \"模板图层\" is not known and is ignored; without \"模板所在图层\" the table has no "
            "rule row");
  EXPECT_EQ(MessageOf(found[0], Language::kChinese),
            "未知的列“模板图层”，已忽略；缺少“模板所在图层”列，就没有任何规则行");
  const auto other = FindingsNamed("column-misspelled", Role::kProcessRules, With("长度范围", "长度笵围"));
  ASSERT_EQ(other.size(), 1u);
  EXPECT_EQ(MessageOf(other[0], Language::kEnglish), "the column \"长度笵围\" is not known and is ignored");
}

TEST(ProcessColumns, AHeaderThatIsToldToBeAProcessIsNotToldAtTheProcessTheOtherWayRound) {
  const std::string table = With("42,钻孔,", "42,CNC粗加工,");
  const std::string slipped = "cnc粗加工";
  const std::string bad =
      table.substr(0, kRuleHeader.size() - 1) + "," + slipped + "\n" + table.substr(kRuleHeader.size());
  EXPECT_THAT(FindingsNamed("process-without-column", Role::kProcessRules, bad), IsEmpty());
  const auto header = FindingsNamed("column-misspelled", Role::kProcessRules, bad);
  ASSERT_EQ(header.size(), 1u);
  EXPECT_EQ(header[0].fix, "CNC粗加工");
  // Where the list has the odd spelling, it is the list that is told.
  const std::string odd = With("42,钻孔,", "42,钻 孔,");
  const auto list = FindingsNamed("process-without-column", Role::kProcessRules, odd);
  ASSERT_EQ(list.size(), 1u);
  EXPECT_EQ(list[0].fix, "钻孔");
  EXPECT_THAT(FindingsNamed("column-misspelled", Role::kProcessRules, odd), IsEmpty());
}

TEST(UnknownColumns, NameWhatTheTableLacksAsEachLanguageListsIt) {
  const std::string table = With("长度范围,宽度范围", "甲,乙");
  const auto two = FindingsNamed("column-unknown", Role::kProcessRules, table);
  ASSERT_EQ(two.size(), 1u);
  EXPECT_EQ(MessageOf(two[0], Language::kEnglish),
            "the column \"甲\" is not known and is ignored, while this table lacks 长度范围, 宽度范围");
  EXPECT_EQ(MessageOf(two[0], Language::kChinese), "未知的列“甲”，已忽略；而此表缺少 长度范围、宽度范围");
}

TEST(RowNumbers, AreListedAsEachLanguageDoes) {
  // Rows 2 and 3 together take all that row 4 accepts.
  std::string table = Rules("12,100_200,,,,无型面,无线割,软料（体颜色）,锯,钻",
                            "12,200_400,,,,无型面,无线割,软料（体颜色）,铣,钻");
  const std::string last = "有型面,190,,,,";
  const std::size_t at = table.find(last) + last.size();
  table.replace(at, table.find('\n', at) - at, "12,150_300,,,,无型面,无线割,软料（体颜色）,磨,钻");
  const auto found = FindingsNamed("row-shadowed", Role::kProcessRules, table);
  ASSERT_EQ(found.size(), 1u);
  EXPECT_THAT(MessageOf(found[0], Language::kEnglish), HasSubstr("all of them go to rows 2, 3 first"));
  EXPECT_THAT(MessageOf(found[0], Language::kChinese), HasSubstr("第 2、3 行先接受了全部"));
}

TEST(ListValues, ThatAreIgnoredAreToldWhatToWrite) {
  const auto layer = FindingsNamed("list-value-ignored", Role::kLayers, "模板图层\n0\n");
  ASSERT_EQ(layer.size(), 1u);
  EXPECT_EQ(AdviceOf(layer[0], Language::kEnglish), "write a number from 1 to 256");
  EXPECT_EQ(AdviceOf(layer[0], Language::kChinese), "请写 1 到 256 的整数");
}

/// The parameters' names that are proposed where soft and hard material have these ones.
std::vector<std::string> ProposedFor(const std::string& soft, const std::string& hard) {
  std::string table = With("软料（体颜色）,12", soft + ",12");
  table.replace(table.find("硬料（体颜色）,42"), std::string("硬料（体颜色）").size(), hard);
  std::vector<std::string> proposed;
  for (const Finding& finding : FindingsNamed("parameter-unknown", Role::kProcessRules, table))
    proposed.push_back(finding.fix.value_or(""));
  return proposed;
}

TEST(ParameterNames, OfWhichSeveralAreMissingAreProposedToTheNamesThatLookLikeThem) {
  const auto both = ElementsAre("软料（体颜色）", "硬料（体颜色）");
  EXPECT_THAT(ProposedFor("软料", "硬料"), both);
  EXPECT_THAT(ProposedFor("软料（体颜色）的", "用于硬料(体颜色)"), both);
  EXPECT_THAT(ProposedFor("软科（体颜色）", "硬科（体颜色）"), both);
  EXPECT_THAT(ProposedFor("软料（本颜色）", "硬料(本颜色)"), both);
  EXPECT_THAT(ProposedFor("甲", "乙"), IsEmpty());
}

TEST(ConditionParameters, AColorThatNoPlateHasIsToldInItsCell) {
  const auto found =
      FindingsNamed("color-out-of-range", Role::kProcessRules, With("圆孔颜色,36", "圆孔颜色,217_36_0_216"));
  ASSERT_EQ(found.size(), 2u);
  EXPECT_EQ(found[0].cell, "E3");
  EXPECT_EQ(found[0].text, "217");
  EXPECT_EQ(found[1].cell, "E3");
  EXPECT_EQ(found[1].text, "0");
}

TEST(ConditionParameters, AreNoColorsWhereTheConditionIsAboutDiameters) {
  const std::string diameters = With("圆孔颜色,36", "圆孔直径,217");
  EXPECT_THAT(FindingsNamed("color-out-of-range", Role::kProcessRules, diameters), IsEmpty());
}

TEST(RowLists, RowsCountDownToTheLastFilledCellOfTheirBoundingColumn) {
  const auto found = FindingsNamed("row-skipped", Role::kLayoutDefaults,
                                   "表头-X位置比例,表头-显示名称\n0.1,序号\n,名称\n0.3,规格\n,备注\n");
  ASSERT_EQ(found.size(), 1u);
  EXPECT_EQ(found[0].cell, "A5");
}

TEST(LongRows, AreToldOncePerRowUnlessItIsTheHeaderThatIsShort) {
  const auto one = FindingsNamed("row-longer", Role::kLayers, "模板图层\n1\n2,3\n4\n");
  ASSERT_EQ(one.size(), 1u);
  EXPECT_EQ(one[0].cell, "B3");
  EXPECT_EQ(one[0].text, "3");
  EXPECT_EQ(FindingsNamed("row-longer", Role::kLayers, "模板图层\n1,5\n2,3\n4,6\n").size(), 1u);
}

TEST(ChosenNames, MayHoldSingleBlanksBetweenWordsOfLetters) {
  EXPECT_TRUE(FindingsNamed("column-blank", Role::kColumnWidths, "Part No,单重(kg)\n1,2\n").empty());
  for (const char* name : {" 规格", "规格 ", "规　格", "规\t格", "Part  No"}) {
    const auto found = FindingsNamed("column-blank", Role::kColumnWidths, std::string(name) + ",备注\n1,2\n");
    ASSERT_EQ(found.size(), 1u) << name;
  }
  const auto found = FindingsNamed("column-blank", Role::kColumnWidths, "规 格\n1\n");
  EXPECT_EQ(found.at(0).fix, "规格");
}

TEST(ChosenNames, StandThereOnceAndWithoutQuestionMarks) {
  const auto second = FindingsNamed("column-second", Role::kColumnWidths, "序号,备注,序号\n10,80,20\n");
  ASSERT_EQ(second.size(), 1u);
  EXPECT_EQ(second[0].cell, "C1");
  const auto lost = FindingsNamed("text-question-mark", Role::kColumnWidths, "序号,备?\n10,80\n");
  ASSERT_EQ(lost.size(), 1u);
  EXPECT_EQ(lost[0].cell, "B1");
}

TEST(ProcessTexts, ABlankComesBeforeTheTextThatItLooksLike) {
  const auto codes =
      CodesIn(Role::kProcessRules, ManyRows("90_99,10_20,,,无型面,无线割,软料（体颜色）,锯床下料　,"));
  EXPECT_THAT(codes, Contains("text-blank"));
  EXPECT_THAT(codes, Not(Contains("text-look-alike")));
}

TEST(RowLists, AnEmptyCellIsNoHintWhereAnotherRowHasOneToo) {
  EXPECT_TRUE(FindingsNamed("row-cell-empty", Role::kFrameInfo,
                            "图框信息-左边距,图框信息-属性名称\n0.5,A\n,B\n,C\n0.7,D\n")
                  .empty());
}

TEST(CodeFixtures, BytesThatAreNoGbkAreToldWithWhatTheyAre) {
  const auto codes = [](const std::string& bytes) {
    return test::CodesOf(FindingsOf(test::GivenBytes(Role::kBom, bytes), test::AllCodes()));
  };
  EXPECT_THAT(codes("密度(g/cm)\n7\n"), Contains("table-utf8"));
  EXPECT_THAT(codes("\xFF\xFE"
                    "a\0"),
              Contains("table-utf16"));
  EXPECT_THAT(codes("\x80\xFF,a\n1,2\n"), Contains("table-not-gbk"));
  EXPECT_THAT(codes(test::Gbk("密度(g/cm),备注\n7,板") + "\xFF\n"), Contains("character-not-gbk"));
}

TEST(CodeFixtures, AFileThatIsNotThereOrCanNotBeReadIsOneFinding) {
  EXPECT_EQ(test::CodesOf(FindingsOf({Role::kBom, "t.csv", false, nullptr}, test::AllCodes())),
            std::vector<std::string>{"table-missing"});
  EXPECT_EQ(test::CodesOf(FindingsOf({Role::kBom, "t.csv", true, nullptr}, test::AllCodes())),
            std::vector<std::string>{"table-unreadable"});
}

TEST(CodeFixtures, EveryCodeHasAPageInBothLanguages) {
  for (const CodeRow& row : kCodes) {
    EXPECT_FALSE(row.page.english.empty()) << row.name;
    EXPECT_FALSE(row.page.chinese.empty()) << row.name;
  }
}

}  // namespace

std::set<std::string, std::less<>> test::CodesWithTableFixtures() {
  std::set<std::string, std::less<>> codes = {"table-utf8",        "table-utf16",   "table-not-gbk",
                                              "character-not-gbk", "table-missing", "table-unreadable"};
  for (const Fixture& fixture : AllFixtures()) codes.insert(fixture.code);
  return codes;
}

}  // namespace plateconfig
