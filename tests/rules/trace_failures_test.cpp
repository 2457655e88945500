// The rules' diagnostic file when the host fails or the file can not be written.

#include <gtest/gtest.h>
#include <NXOpen/Body.hxx>
#include <NXOpen/Face.hxx>

#include <filesystem>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

#include "host/body_info.h"
#include "rules/trace_scene.h"
#include "rules/trace_sink.h"
#include "support/diagnostic_folder.h"

namespace plateconfig::test {
namespace {

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
