#include "rules/process_rule_library.h"

#include <gtest/gtest.h>
#include <NXOpen/Body.hxx>

#include <string>
#include <utility>
#include <vector>

#include "host/body_info.h"
#include "rules/rule_texts.h"
#include "support/diagnostic_folder.h"

namespace plateconfig::test {
namespace {

/// Keeps the trace away from the user's own.
class ProcessRuleLibraryTest : public testing::Test {
 protected:
  bool WroteATrace() const { return std::filesystem::exists(diagnostics_.PathOf(Diagnostic::kRules)); }

 private:
  const DiagnosticFolder diagnostics_;
};

constexpr std::string_view kRules =
    "通用要求,通用参数,排工艺顺序,排顺序工艺类型,顺序工艺参数值,"
    "模板所在图层,长度范围,宽度范围,厚度范围,重量范围,有无型面,有无线割,材质要求,钻孔,攻牙,磨平\n"
    "软料（体颜色）,12,钻孔,圆孔直径,6_8.5,3,100_200,50_100,10_30,5_20,有型面,有线割,软料（体颜色）,钻,攻,"
    "磨\n"
    "有型面,186,攻牙,圆孔颜色,6_7,4,100_200,50_100,10_30,5_20,,,,drill,tap,grind\n"
    "有线割,103,磨平,自定义追加工艺,,,,,,,,,,,,\n";

constexpr std::string_view kSettings =
    "连接符号,输入文字方式,制造流程左边距,制造流程顶边距,制造流程CAD图层,制造流程文字样式,输出行号,"
    "追加到材料信息后面\n"
    "→,Y,12.5,8,201,仿宋,N,Y\n";

/// The three rules, all of which apply.
std::vector<ProcessRule> FedRules(const ProcessRuleLibrary& library) {
  std::vector<ProcessRule> rules = library.GetProcessRules();
  rules.at(0).SetValue(std::vector<double>{8.5});
  rules.at(1).SetValue(std::vector<int>{7});
  rules.at(2).SetValue(true);
  return rules;
}

TEST_F(ProcessRuleLibraryTest, TellsItsTextSettings) {
  const ProcessRuleLibrary library = MakeLibrary(kRules, kSettings);
  EXPECT_TRUE(library.IsSingleLine());
  EXPECT_TRUE(library.IsAppendAttribute());
  EXPECT_EQ(library.GetConnectText(), Gbk("→"));
  EXPECT_EQ(library.GetLeftMargin(), 12.5);
  EXPECT_EQ(library.GetTopMargin(), 8);
  EXPECT_EQ(library.GetTextLayer(), 201);
  EXPECT_EQ(library.GetTextFont(), Gbk("仿宋"));
}

TEST_F(ProcessRuleLibraryTest, EachFlagIsItsOwn) {
  EXPECT_FALSE(MakeLibrary(kRules, "输入文字方式,追加到材料信息后面\nN,Y\n").IsSingleLine());
  EXPECT_FALSE(MakeLibrary(kRules, "输入文字方式,追加到材料信息后面\nY,N\n").IsAppendAttribute());
}

TEST_F(ProcessRuleLibraryTest, MissingTablesGiveAnEmptyLibrary) {
  const TemporaryFolder folder;
  const ProcessRuleLibrary library(folder.HostPath("rules.csv"), folder.HostPath("settings.csv"));
  EXPECT_FALSE(library.IsSingleLine());
  EXPECT_FALSE(library.IsAppendAttribute());
  EXPECT_EQ(library.GetConnectText(), "");
  EXPECT_EQ(library.GetLeftMargin(), 0);
  EXPECT_EQ(library.GetTopMargin(), 0);
  EXPECT_EQ(library.GetTextLayer(), 0);
  EXPECT_EQ(library.GetTextFont(), "");
  EXPECT_TRUE(library.GetProcessRules().empty());
  BodyInfo plate(nullptr, 150, 80, 20, 3, 12);
  EXPECT_EQ(library.GetProcessInfo(&plate, 10, {}), "");
}

TEST_F(ProcessRuleLibraryTest, TheFirstPathIsTheRuleTable) {
  const TemporaryFolder folder;
  const ProcessRuleLibrary library(folder.WriteTable("a.csv", kRules), folder.WriteTable("b.csv", kSettings));
  EXPECT_EQ(library.GetProcessRules().size(), 3u);
  EXPECT_EQ(library.GetTextLayer(), 201);
}

TEST_F(ProcessRuleLibraryTest, ItsRulesAreCopiesThatAreNotFed) {
  const ProcessRuleLibrary library = MakeLibrary(kRules, kSettings);
  FedRules(library);
  for (const ProcessRule& rule : library.GetProcessRules()) EXPECT_FALSE(rule.IsValid());
}

TEST_F(ProcessRuleLibraryTest, WritesTheTextOfAPlate) {
  const ProcessRuleLibrary library = MakeLibrary(kRules, kSettings);
  std::vector<ProcessRule> rules = FedRules(library);
  NXOpen::Body solid({36, 186, 103});
  BodyInfo plate(&solid, 150, 80, 20, 9, 12);
  EXPECT_EQ(library.GetProcessInfo(&plate, 10, rules), Gbk("钻→攻→磨"));
  rules[1].SetValue(std::vector<int>{8});
  EXPECT_EQ(library.GetProcessInfo(&plate, 10, rules), Gbk("钻→磨"));
  EXPECT_TRUE(rules[0].IsValid());
  EXPECT_FALSE(rules[1].IsValid());
  EXPECT_TRUE(rules[2].IsValid());
}

TEST_F(ProcessRuleLibraryTest, ComparesEachNumberOfTheBodyWithItsRange) {
  const ProcessRuleLibrary library = MakeLibrary(kRules, kSettings);
  const std::vector<ProcessRule> rules = FedRules(library);
  const auto text = [&](double length, double width, double height, double weight) {
    NXOpen::Body solid(std::vector<int>{});
    BodyInfo plate(&solid, length, width, height, 9, 1);
    return library.GetProcessInfo(&plate, weight, rules);
  };
  EXPECT_EQ(text(200, 50, 10, 5), Gbk("drill→tap→grind"));
  EXPECT_EQ(text(201, 50, 10, 5), "");
  EXPECT_EQ(text(200, 49, 10, 5), "");
  EXPECT_EQ(text(200, 50, 31, 5), "");
  EXPECT_EQ(text(200, 50, 10, 4), "");
}

TEST_F(ProcessRuleLibraryTest, ComparesTheBodysColorWithTheMaterials) {
  const ProcessRuleLibrary library = MakeLibrary(kRules, kSettings);
  NXOpen::Body solid({186, 103});
  BodyInfo soft(&solid, 150, 80, 20, 9, 12);
  BodyInfo other(&solid, 150, 80, 20, 12, 9);
  EXPECT_EQ(library.GetProcessInfo(&soft, 10, FedRules(library)), Gbk("钻→攻→磨"));
  EXPECT_EQ(library.GetProcessInfo(&other, 10, FedRules(library)), "");
}

TEST_F(ProcessRuleLibraryTest, ABodyWithoutASolidHasNoFaces) {
  const ProcessRuleLibrary library = MakeLibrary(kRules, kSettings);
  BodyInfo plate(nullptr, 150, 80, 20, 9, 12);
  EXPECT_EQ(library.GetProcessInfo(&plate, 10, FedRules(library)), Gbk("drill→tap→grind"));
  EXPECT_TRUE(WroteATrace());
}

TEST_F(ProcessRuleLibraryTest, WithoutABodyThereIsNeitherTextNorTrace) {
  const ProcessRuleLibrary library = MakeLibrary("模板所在图层\n1\n", "输出行号\nY\n");
  EXPECT_EQ(library.GetProcessInfo(nullptr, 10, {}), "");
  EXPECT_FALSE(WroteATrace());
}

TEST_F(ProcessRuleLibraryTest, LoadingWritesNoTrace) {
  MakeLibrary(kRules, kSettings);
  EXPECT_FALSE(WroteATrace());
}

TEST_F(ProcessRuleLibraryTest, CopiesAreWholeAndOutliveTheOriginal) {
  ProcessRuleLibrary copy = MakeLibrary("");
  {
    const ProcessRuleLibrary library = MakeLibrary(kRules, kSettings);
    copy = library;
  }
  BodyInfo plate(nullptr, 150, 80, 20, 9, 12);
  EXPECT_EQ(copy.GetProcessInfo(&plate, 10, FedRules(copy)), Gbk("drill→tap→grind"));
  EXPECT_EQ(copy.GetTextFont(), Gbk("仿宋"));
}

TEST_F(ProcessRuleLibraryTest, WhatWasMovedFromKeepsItsTables) {
  ProcessRuleLibrary library = MakeLibrary(kRules, kSettings);
  // NOLINTNEXTLINE(performance-move-const-arg): what a move does is what is asked.
  const ProcessRuleLibrary taken = std::move(library);
  EXPECT_EQ(taken.GetTextLayer(), 201);
  EXPECT_EQ(library.GetTextLayer(), 201);  // NOLINT(bugprone-use-after-move)
}

}  // namespace
}  // namespace plateconfig::test
