// The rules' diagnostic file, byte for byte.

#include <gtest/gtest.h>
#include <NXOpen/Body.hxx>

#include <string>
#include <vector>

#include "host/body_info.h"
#include "rules/trace_scene.h"
#include "support/diagnostic_folder.h"

namespace plateconfig::test {
namespace {

/// What one call writes for a plate of 450 x 400 x 90 mm, 127.2 kg, layer 12, colour 12.
std::string TraceOf(const ProcessRuleLibrary& library, const std::vector<int>& faceColors) {
  const DiagnosticFolder diagnostics;
  NXOpen::Body solid(faceColors);
  BodyInfo plate(&solid, 450, 400, 90, 12, 12);
  library.GetProcessInfo(&plate, 127.2, {ValidRule("钻孔"), ValidRule("磨平")});
  return diagnostics.Read(Diagnostic::kRules);
}

TEST(Trace, ShowsAMatchAtOnce) {
  const auto library = LibraryOf(",,3,100_450,50_400.5,10_90,0_130,,,软料（体颜色）,钻5,磨\n");
  EXPECT_EQ(TraceOf(library, {36, 6, 36, -1}), Gbk("dbBodyLength:450\n"
                                                   "dbBodyWidth:400\n"
                                                   "dbBodyHeight:90\n"
                                                   "dbBodyWeight:127.2\n"
                                                   "nBodyLayer:12\n"
                                                   "nBodyColor:12\n"
                                                   "======================FaceColor===================\n"
                                                   "FaceColor:-1\n"
                                                   "FaceColor:6\n"
                                                   "FaceColor:36\n"
                                                   "======================FaceColor===================\n"
                                                   "======================型面颜色===================\n"
                                                   "型面颜色:186\n"
                                                   "型面颜色:108\n"
                                                   "======================型面颜色===================\n"
                                                   "======================线割颜色===================\n"
                                                   "线割颜色:103\n"
                                                   "======================线割颜色===================\n"
                                                   "当前行号:5\n"
                                                   "bHaveProfileColor :0\n"
                                                   "bInclude:0\n"
                                                   "bHaveWireCuttingColor :0\n"
                                                   "bInclude:0\n"
                                                   "vecRuleInfos[i].dbMinLength；100\n"
                                                   "vecRuleInfos[i].dbMaxLength；450\n"
                                                   "vecRuleInfos[i].dbMinWidth；50\n"
                                                   "vecRuleInfos[i].dbMaxWidth；400.5\n"
                                                   "vecRuleInfos[i].dbMinHeight；10\n"
                                                   "vecRuleInfos[i].dbMaxHeight；90\n"
                                                   "钻5→磨\n"));
}

TEST(Trace, ShowsAMatchWithProfileAndWireCutting) {
  const auto library = LibraryOf(",,3,,,,,有型面,有线割,软料（体颜色）,,磨\n");
  EXPECT_EQ(TraceOf(library, {103, 108}), Gbk(Joined(kBodyLines,
                                                     "======================FaceColor===================\n"
                                                     "FaceColor:103\n"
                                                     "FaceColor:108\n"
                                                     "======================FaceColor===================\n",
                                                     kColorLines) +
                                              "当前行号:5\n"
                                              "bHaveProfileColor :1\n"
                                              "bInclude:1\n"
                                              "bHaveWireCuttingColor :1\n"
                                              "bInclude:1\n"
                                              "vecRuleInfos[i].dbMinLength；0\n"
                                              "vecRuleInfos[i].dbMaxLength；999999\n"
                                              "vecRuleInfos[i].dbMinWidth；0\n"
                                              "vecRuleInfos[i].dbMaxWidth；999999\n"
                                              "vecRuleInfos[i].dbMinHeight；0\n"
                                              "vecRuleInfos[i].dbMaxHeight；999999\n"
                                              "磨\n"));
}

TEST(Trace, ShowsAnEmptyTextAsAnEmptyLine) {
  const std::string trace = TraceOf(LibraryOf(",,3,,,,,,,软料（体颜色）,,\n"), {});
  EXPECT_TRUE(trace.ends_with(Gbk("vecRuleInfos[i].dbMaxHeight；999999\n\n")));
}

// ---- the seven ways in which a row is refused ----

TEST(Trace, ShowsALengthThatDoesNotFit) {
  EXPECT_EQ(TraceOf(LibraryOf(",,3,451_500,,,,,,,,\n"), {}), Gbk(Head() + "当前行号:5\n"
                                                                          "长度不符合此规则！\n"
                                                                          "最小长度：451\n"
                                                                          "最大长度：500\n"));
}

TEST(Trace, ShowsAWidthThatDoesNotFit) {
  EXPECT_EQ(TraceOf(LibraryOf(",,3,,401_500,,,,,,,\n"), {}), Gbk(Head() + "当前行号:5\n"
                                                                          "宽度不符合此规则！\n"
                                                                          "最小宽度：401\n"
                                                                          "最大宽度：500\n"));
}

TEST(Trace, ShowsAHeightThatDoesNotFit) {
  EXPECT_EQ(TraceOf(LibraryOf(",,3,,,10_89.5,,,,,,\n"), {}), Gbk(Head() + "当前行号:5\n"
                                                                          "高度不符合此规则！\n"
                                                                          "最小高度：10\n"
                                                                          "最大高度：89.5\n"));
}

TEST(Trace, ShowsAWeightThatDoesNotFit) {
  EXPECT_EQ(TraceOf(LibraryOf(",,3,,,,0_127,,,,,\n"), {}), Gbk(Head() + "当前行号:5\n"
                                                                        "重量不符合此规则！\n"
                                                                        "最小重量：0\n"
                                                                        "最大重量：127\n"));
}

TEST(Trace, ShowsAMaterialThatDoesNotFit) {
  const auto library = MakeLibrary(
      "通用要求,通用参数,模板所在图层,材质要求\n"
      "硬料（体颜色）,42_55,,\n"
      ",,3,硬料（体颜色）\n");
  EXPECT_EQ(TraceOf(library, {}),
            Gbk(Joined(kBodyLines, kNoFaceLines) + "======================型面颜色===================\n"
                                                   "======================型面颜色===================\n"
                                                   "======================线割颜色===================\n"
                                                   "======================线割颜色===================\n"
                                                   "当前行号:3\n"
                                                   "材料颜色不符合此规则！\n"
                                                   "材料颜色:12\n"
                                                   "材料颜色配置:42\n"
                                                   "材料颜色配置:55\n"));
}

TEST(Trace, ShowsAProfileThatTheRowDoesNotWant) {
  const auto library = MakeLibrary("模板所在图层,有无型面,通用要求,通用参数\n3,无型面,有型面,186\n");
  EXPECT_EQ(TraceOf(library, {186}), Gbk(Joined(kBodyLines,
                                                "======================FaceColor===================\n"
                                                "FaceColor:186\n"
                                                "======================FaceColor===================\n") +
                                         "======================型面颜色===================\n"
                                         "型面颜色:186\n"
                                         "======================型面颜色===================\n"
                                         "======================线割颜色===================\n"
                                         "======================线割颜色===================\n"
                                         "当前行号:2\n"
                                         "bHaveProfileColor :0\n"
                                         "bInclude:1\n"
                                         "bInclude && !bHaveProfileColor！\n"));
}

TEST(Trace, ShowsAProfileThatTheRowMisses) {
  EXPECT_EQ(TraceOf(LibraryOf(",,3,,,,,有型面,,软料（体颜色）,,\n"), {}),
            Gbk(Head() + "当前行号:5\n"
                         "bHaveProfileColor :1\n"
                         "bInclude:0\n"
                         "!bInclude && bHaveProfileColor！\n"));
}

TEST(Trace, ShowsAWireCuttingThatTheRowDoesNotWant) {
  const auto library = MakeLibrary("模板所在图层,通用要求,通用参数\n3,有线割,103\n");
  EXPECT_EQ(TraceOf(library, {103}), Gbk(Joined(kBodyLines,
                                                "======================FaceColor===================\n"
                                                "FaceColor:103\n"
                                                "======================FaceColor===================\n") +
                                         "======================型面颜色===================\n"
                                         "======================型面颜色===================\n"
                                         "======================线割颜色===================\n"
                                         "线割颜色:103\n"
                                         "======================线割颜色===================\n"
                                         "当前行号:2\n"
                                         "bHaveProfileColor :0\n"
                                         "bInclude:0\n"
                                         "bHaveWireCuttingColor :0\n"
                                         "bInclude:1\n"
                                         "bInclude && !bHaveWireCuttingColor！\n"));
}

TEST(Trace, ShowsAWireCuttingThatTheRowMisses) {
  EXPECT_EQ(TraceOf(LibraryOf(",,3,,,,,,有线割,软料（体颜色）,,\n"), {}),
            Gbk(Head() + "当前行号:5\n"
                         "bHaveProfileColor :0\n"
                         "bInclude:0\n"
                         "bHaveWireCuttingColor :1\n"
                         "bInclude:0\n"
                         "!bInclude && bHaveWireCuttingColor！\n"));
}

// ---- rows and calls ----

TEST(Trace, WithoutRowsTheTablesColorsAreNotShown) {
  EXPECT_EQ(TraceOf(LibraryOf(""), {6}), Gbk(Joined(kBodyLines,
                                                    "======================FaceColor===================\n"
                                                    "FaceColor:6\n"
                                                    "======================FaceColor===================\n") +
                                             "======================型面颜色===================\n"
                                             "======================型面颜色===================\n"
                                             "======================线割颜色===================\n"
                                             "======================线割颜色===================\n"));
}

TEST(Trace, ShowsEachRowUpToTheMatch) {
  EXPECT_EQ(TraceOf(LibraryOf(kSeveralRows), {}), Gbk(Joined(Head(), kSeveralLines)));
}

TEST(Trace, ShowsThousandsOfRows) {
  std::string rows;
  std::string lines;
  for (int line = 5; line < 4005; ++line) {
    rows += ",,3,500_600.25,,,,,,,,\n";
    lines += "当前行号:" + std::to_string(line) + "\n长度不符合此规则！\n最小长度：500\n最大长度：600.25\n";
  }
  EXPECT_EQ(TraceOf(LibraryOf(rows), {}), Gbk(Head() + lines));
}

TEST(Trace, CallsAreAppended) {
  const DiagnosticFolder diagnostics;
  const ProcessRuleLibrary library = LibraryOf(kSeveralRows);
  BodyInfo plate(nullptr, 450, 400, 90, 12, 12);
  library.GetProcessInfo(&plate, 127.2, {ValidRule("钻孔")});
  library.GetProcessInfo(&plate, 127.2, {ValidRule("钻孔")});
  const std::string once = Joined(Head(), kSeveralLines);
  EXPECT_EQ(diagnostics.Read(Diagnostic::kRules), Gbk(once + once));
}

TEST(Trace, FeedingAndEvaluatingShareOneFile) {
  const DiagnosticFolder diagnostics;
  ProcessRule rule(0, ProcessRule::ThroughSpecialSlotColor, "x", "103_104");
  rule.SetValue(std::vector<int>{});
  BodyInfo plate(nullptr, 450, 400, 90, 12, 12);
  LibraryOf(kSeveralRows).GetProcessInfo(&plate, 127.2, {ValidRule("钻孔")});
  EXPECT_EQ(diagnostics.Read(Diagnostic::kRules),
            Gbk("strRuleValue:103_104\neType:17\nvecRuleValues:103104\n" + Joined(Head(), kSeveralLines)));
}

TEST(Trace, ABodyWithoutASolidShowsNoFaces) {
  const DiagnosticFolder diagnostics;
  BodyInfo plate(nullptr, 450, 400, 90, 12, 12);
  MakeLibrary("").GetProcessInfo(&plate, 127.2, {});
  EXPECT_EQ(diagnostics.Read(Diagnostic::kRules),
            Gbk(Joined(kBodyLines, kNoFaceLines) + "======================型面颜色===================\n"
                                                   "======================型面颜色===================\n"
                                                   "======================线割颜色===================\n"
                                                   "======================线割颜色===================\n"));
}

}  // namespace
}  // namespace plateconfig::test
