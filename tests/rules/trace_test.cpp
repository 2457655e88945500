// The rules' diagnostic file, byte for byte.

#include <gtest/gtest.h>
#include <NXOpen/Body.hxx>
#include <NXOpen/Face.hxx>

#include <functional>
#include <locale>
#include <stdexcept>
#include <string>
#include <vector>

#include "host/body_info.h"
#include "rules/rule_texts.h"
#include "rules/trace_sink.h"
#include "support/diagnostic_folder.h"

namespace plateconfig::test {
namespace {

constexpr std::string_view kColors =
    "通用要求,通用参数,模板所在图层,长度范围,宽度范围,厚度范围,重量范围,有无型面,有无线割,材质要求,钻孔,"
    "磨平\n"
    "软料（体颜色）,12_87,,,,,,,,,,\n"
    "有型面,186_108,,,,,,,,,,\n"
    "有线割,103,,,,,,,,,,\n";

/// A library of the colours above and `rows`, which begin in line 5.
ProcessRuleLibrary LibraryOf(std::string_view rows) {
  return MakeLibrary(Joined(kColors, rows), "连接符号\n→\n");
}

/// What one call writes for a plate of 450 x 400 x 90 mm, 127.2 kg, layer 12, colour 12.
std::string TraceOf(const ProcessRuleLibrary& library, const std::vector<int>& faceColors) {
  const DiagnosticFolder diagnostics;
  NXOpen::Body solid(faceColors);
  BodyInfo plate(&solid, 450, 400, 90, 12, 12);
  library.GetProcessInfo(&plate, 127.2, {ValidRule("钻孔"), ValidRule("磨平")});
  return diagnostics.Read(Diagnostic::kRules);
}

constexpr std::string_view kBodyLines =
    "dbBodyLength:450\n"
    "dbBodyWidth:400\n"
    "dbBodyHeight:90\n"
    "dbBodyWeight:127.2\n"
    "nBodyLayer:12\n"
    "nBodyColor:12\n";

constexpr std::string_view kNoFaceLines =
    "======================FaceColor===================\n"
    "======================FaceColor===================\n";

constexpr std::string_view kColorLines =
    "======================型面颜色===================\n"
    "型面颜色:186\n"
    "型面颜色:108\n"
    "======================型面颜色===================\n"
    "======================线割颜色===================\n"
    "线割颜色:103\n"
    "======================线割颜色===================\n";

/// The lines of a plate without faces and of the table's colours.
std::string Head() {
  return Joined(kBodyLines, kNoFaceLines, kColorLines);
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

constexpr std::string_view kSeveralRows =
    ",,3,500_600,,,,,,,,\n"
    ",,,,,,,,,,,\n"
    ",,3,,,,,有型面,,软料（体颜色）,,\n"
    ",,3,,,,,,,软料（体颜色）,钻5,\n"
    ",,3,,,,,,,软料（体颜色）,,\n";

constexpr std::string_view kSeveralLines =
    "当前行号:5\n"
    "长度不符合此规则！\n"
    "最小长度：500\n"
    "最大长度：600\n"
    "当前行号:7\n"
    "bHaveProfileColor :1\n"
    "bInclude:0\n"
    "!bInclude && bHaveProfileColor！\n"
    "当前行号:8\n"
    "bHaveProfileColor :0\n"
    "bInclude:0\n"
    "bHaveWireCuttingColor :0\n"
    "bInclude:0\n"
    "vecRuleInfos[i].dbMinLength；0\n"
    "vecRuleInfos[i].dbMaxLength；999999\n"
    "vecRuleInfos[i].dbMinWidth；0\n"
    "vecRuleInfos[i].dbMaxWidth；999999\n"
    "vecRuleInfos[i].dbMinHeight；0\n"
    "vecRuleInfos[i].dbMaxHeight；999999\n"
    "钻5\n";

TEST(Trace, ShowsEachRowUpToTheMatch) {
  EXPECT_EQ(TraceOf(LibraryOf(kSeveralRows), {}), Gbk(Joined(Head(), kSeveralLines)));
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

// ---- numbers ----

/// The head of a trace, for a plate of these numbers.
std::string NumbersTrace() {
  const DiagnosticFolder diagnostics;
  BodyInfo plate(nullptr, 1e6, 0.001, 12.5, 1000, -186);
  MakeLibrary("模板所在图层,长度范围\n1,1234567_0.00001\n").GetProcessInfo(&plate, 1234567, {});
  return diagnostics.Read(Diagnostic::kRules);
}

constexpr std::string_view kNumberLines =
    "dbBodyLength:1e+06\n"
    "dbBodyWidth:0.001\n"
    "dbBodyHeight:12.5\n"
    "dbBodyWeight:1.23457e+06\n"
    "nBodyLayer:1000\n"
    "nBodyColor:-186\n"
    "======================FaceColor===================\n"
    "======================FaceColor===================\n"
    "======================型面颜色===================\n"
    "======================型面颜色===================\n"
    "======================线割颜色===================\n"
    "======================线割颜色===================\n"
    "当前行号:2\n"
    "长度不符合此规则！\n"
    "最小长度：1.23457e+06\n"
    "最大长度：1e-05\n";

TEST(TraceNumbers, StandInTheDefaultFormattingOfStreams) {
  EXPECT_EQ(NumbersTrace(), Gbk(kNumberLines));
}

/// A locale with a decimal comma and grouped thousands.
class GroupingPunctuation : public std::numpunct<char> {
 protected:
  char do_decimal_point() const override { return ','; }
  char do_thousands_sep() const override { return '.'; }
  std::string do_grouping() const override { return "\3"; }
};

class ScopedGlobalLocale {
 public:
  explicit ScopedGlobalLocale(const std::locale& locale) : before_(std::locale::global(locale)) {}
  ~ScopedGlobalLocale() { std::locale::global(before_); }
  ScopedGlobalLocale(const ScopedGlobalLocale&) = delete;
  ScopedGlobalLocale& operator=(const ScopedGlobalLocale&) = delete;

 private:
  std::locale before_;
};

TEST(TraceNumbers, DoNotChangeWithTheGlobalLocale) {
  const ScopedGlobalLocale grouping(std::locale(std::locale::classic(), new GroupingPunctuation));
  ASSERT_EQ(std::use_facet<std::numpunct<char>>(std::locale()).decimal_point(), ',');
  EXPECT_EQ(NumbersTrace(), Gbk(kNumberLines));
}

TEST(TraceNumbers, OfAFedRuleDoNotChangeWithTheGlobalLocale) {
  const DiagnosticFolder diagnostics;
  const ScopedGlobalLocale grouping(std::locale(std::locale::classic(), new GroupingPunctuation));
  ProcessRule rule(0, ProcessRule::ThroughSpecialSlotColor, "", "1000_2000");
  rule.SetValue(std::vector<int>{2000});
  EXPECT_EQ(diagnostics.Read(Diagnostic::kRules),
            "strRuleValue:1000_2000\neType:17\nvecRuleValues:10002000\n");
}

// ---- a host that fails ----

class ScriptedFace : public NXOpen::Face {
 public:
  explicit ScriptedFace(std::function<int()> color) : Face(0), color_(std::move(color)) {}
  int Color() override { return color_(); }

 private:
  std::function<int()> color_;
};

class ScriptedBody : public NXOpen::Body {
 public:
  explicit ScriptedBody(std::function<std::vector<NXOpen::Face*>()> faces)
      : Body({}), faces_(std::move(faces)) {}
  std::vector<NXOpen::Face*> GetFaces() override { return faces_(); }

 private:
  std::function<std::vector<NXOpen::Face*>()> faces_;
};

TEST(TraceOfAFailingHost, AnExceptionOfTheFacesPassesThroughBehindTheLinesSoFar) {
  const DiagnosticFolder diagnostics;
  ScriptedBody solid([]() -> std::vector<NXOpen::Face*> { throw std::runtime_error("no faces"); });
  BodyInfo plate(&solid, 450, 400, 90, 12, 12);
  const ProcessRuleLibrary library = LibraryOf(kSeveralRows);
  EXPECT_THROW(library.GetProcessInfo(&plate, 127.2, {}), std::runtime_error);
  EXPECT_EQ(diagnostics.Read(Diagnostic::kRules), Gbk(kBodyLines));
}

TEST(TraceOfAFailingHost, AnExceptionOfAColorPassesThroughBehindTheLinesSoFar) {
  const DiagnosticFolder diagnostics;
  NXOpen::Face good(6);
  ScriptedFace bad([]() -> int { throw 42; });
  ScriptedBody solid([&] { return std::vector<NXOpen::Face*>{&good, &bad}; });
  BodyInfo plate(&solid, 450, 400, 90, 12, 12);
  const ProcessRuleLibrary library = LibraryOf(kSeveralRows);
  EXPECT_THROW(library.GetProcessInfo(&plate, 127.2, {}), int);
  EXPECT_EQ(diagnostics.Read(Diagnostic::kRules), Gbk(kBodyLines));
}

TEST(TraceOfAFailingHost, TheLibraryWorksOnAfterwards) {
  const ProcessRuleLibrary library = LibraryOf(kSeveralRows);
  {
    const DiagnosticFolder diagnostics;
    ScriptedBody solid([]() -> std::vector<NXOpen::Face*> { throw std::runtime_error("no faces"); });
    BodyInfo plate(&solid, 450, 400, 90, 12, 12);
    EXPECT_THROW(library.GetProcessInfo(&plate, 127.2, {}), std::runtime_error);
  }
  const DiagnosticFolder diagnostics;
  BodyInfo plate(nullptr, 450, 400, 90, 12, 12);
  EXPECT_EQ(library.GetProcessInfo(&plate, 127.2, {ValidRule("钻孔")}), Gbk("钻5"));
  EXPECT_EQ(diagnostics.Read(Diagnostic::kRules), Gbk(Joined(Head(), kSeveralLines)));
}

// ---- one append per call ----

TEST(TraceWriting, NothingIsWrittenWhileTheHostIsAsked) {
  const DiagnosticFolder diagnostics;
  std::string during = "not asked";
  ScriptedFace face([&] {
    during = diagnostics.Read(Diagnostic::kRules);
    return 6;
  });
  ScriptedBody solid([&] { return std::vector<NXOpen::Face*>{&face}; });
  BodyInfo plate(&solid, 450, 400, 90, 12, 12);
  MakeLibrary("").GetProcessInfo(&plate, 127.2, {});
  EXPECT_EQ(during, "");
  EXPECT_NE(diagnostics.Read(Diagnostic::kRules), "");
}

/// Looks at the file when the evaluation has reported its last step.
class LookingSink : public TraceSink {
 public:
  LookingSink(DiagnosticFile& file, const DiagnosticFolder& diagnostics)
      : TraceSink(file), diagnostics_(diagnostics) {}
  void OnMatch(const RuleRow& row, const std::string& text) override {
    TraceSink::OnMatch(row, text);
    seen = diagnostics_.Read(Diagnostic::kRules);
  }

  std::string seen = "no match";

 private:
  const DiagnosticFolder& diagnostics_;
};

TEST(TraceWriting, TheLinesOfACallAreAppendedInOneGoWhenItEnds) {
  std::string rows;  // Many more lines than any file buffer takes.
  for (int row = 0; row < 5000; ++row) rows += ",,3,500_600,,,,,,,,\n";
  const RuleTables tables = LoadTexts(Joined(kColors, rows, ",,3,,,,,,,,,\n"));
  const DiagnosticFolder diagnostics;
  {
    DiagnosticFile log(Diagnostic::kRules);
    LookingSink sink(log, diagnostics);
    EvaluatePlate(tables, {450, 400, 90, 127.2, 12, 12, {}}, {}, sink);
    EXPECT_EQ(sink.seen, "");
  }
  EXPECT_GT(diagnostics.Read(Diagnostic::kRules).size(), 5000u * 40);
}

// ---- a file that can not be opened ----

/// The text of a plate that fits, and of one that does not.
void ExpectTexts(const ProcessRuleLibrary& library) {
  NXOpen::Body solid({6});
  BodyInfo fits(&solid, 450, 400, 90, 12, 12);
  BodyInfo tooLong(&solid, 2e6, 400, 90, 12, 12);
  EXPECT_EQ(library.GetProcessInfo(&fits, 127.2, {ValidRule("钻孔")}), Gbk("钻5"));
  EXPECT_EQ(library.GetProcessInfo(&tooLong, 127.2, {ValidRule("钻孔")}), "");
}

TEST(TraceWithoutAFile, AFolderInTheFilesPlaceChangesNothing) {
  const DiagnosticFolder diagnostics;
  std::filesystem::create_directories(diagnostics.PathOf(Diagnostic::kRules));
  ExpectTexts(LibraryOf(kSeveralRows));
  EXPECT_TRUE(std::filesystem::is_empty(diagnostics.PathOf(Diagnostic::kRules)));
}

TEST(TraceWithoutAFile, SwitchedOffFilesChangeNothing) {
  const DiagnosticFolder diagnostics;
  EnableDiagnosticFiles(false);
  ExpectTexts(LibraryOf(kSeveralRows));
  EnableDiagnosticFiles(true);
  EXPECT_FALSE(std::filesystem::exists(diagnostics.PathOf(Diagnostic::kRules)));
}

TEST(TraceWithoutAFile, NothingIsFormatted) {
  const DiagnosticFolder diagnostics;
  std::filesystem::create_directories(diagnostics.PathOf(Diagnostic::kRules));
  DiagnosticFile log(Diagnostic::kRules);
  ASSERT_FALSE(log.IsOpen());
  EXPECT_EQ(dynamic_cast<TraceSink*>(MakeTraceSink(log).get()), nullptr);
}

TEST(TraceWithoutAFile, AnOpenFileIsWrittenByTheTrace) {
  const DiagnosticFolder diagnostics;
  DiagnosticFile log(Diagnostic::kRules);
  ASSERT_TRUE(log.IsOpen());
  EXPECT_NE(dynamic_cast<TraceSink*>(MakeTraceSink(log).get()), nullptr);
}

TEST(TraceWithoutAFile, ExceptionsOfTheHostStillPassThrough) {
  const DiagnosticFolder diagnostics;
  std::filesystem::create_directories(diagnostics.PathOf(Diagnostic::kRules));
  ScriptedBody solid([]() -> std::vector<NXOpen::Face*> { throw std::runtime_error("no faces"); });
  BodyInfo plate(&solid, 450, 400, 90, 12, 12);
  EXPECT_THROW(LibraryOf(kSeveralRows).GetProcessInfo(&plate, 127.2, {}), std::runtime_error);
}

}  // namespace
}  // namespace plateconfig::test
