#include <gtest/gtest.h>

#include <fstream>

#include "platform/diagnostic_file.h"
#include "support/temporary_folder.h"
#include "windows/hole_scene.h"
#include "windows/plate_scene.h"
#include "windows/system_text.h"

namespace plateconfig {
namespace {

using test::PlateScene;
using test::ReadBytes;
using test::SystemGbk;

constexpr const char* kRulesLog = "D:\\log.txt";
constexpr const char* kHolesLog = "D:\\nx_log.txt";

/// Both diagnostic files are missing when a test begins and when it ends.
class DiagnosticDrive : public ::testing::Test {
 protected:
  DiagnosticDrive() { RemoveLogs(); }
  ~DiagnosticDrive() override { RemoveLogs(); }

  static void RemoveLogs() {
    for (const char* log : {kRulesLog, kHolesLog}) {
      SetFileAttributesA(log, FILE_ATTRIBUTE_NORMAL);
      DeleteFileA(log);
    }
  }

  static void WriteLog(const char* log, std::string_view bytes) {
    std::ofstream(log, std::ios::binary) << bytes;
    ASSERT_EQ(ReadBytes(log), bytes);
  }
};

TEST_F(DiagnosticDrive, TheTraceOfAPlateIsGbkWithCrLf) {
  PlateScene scene;
  scene.ProcessText();
  EXPECT_EQ(ReadBytes(kRulesLog), SystemGbk(PlateScene::kTrace));
  EXPECT_EQ(ReadBytes(kHolesLog), "");
}

TEST_F(DiagnosticDrive, EachTraceIsAppendedToWhatIsThere) {
  WriteLog(kRulesLog, "kept\r\n");
  PlateScene scene;
  scene.ProcessText();
  scene.ProcessText();
  const std::string trace = SystemGbk(PlateScene::kTrace);
  EXPECT_EQ(ReadBytes(kRulesLog), "kept\r\n" + trace + trace);
}

TEST_F(DiagnosticDrive, FeedingColoursIsTraced) {
  ProcessRule rule(0, ProcessRule::ThroughSpecialSlotColor, SystemGbk("铣通槽"), "114_118");
  rule.SetValue(std::vector<int>{118});
  EXPECT_EQ(ReadBytes(kRulesLog), "strRuleValue:114_118\r\neType:17\r\nvecRuleValues:114118\r\n");
}

TEST_F(DiagnosticDrive, TheTraceOfAHoleHasAFileOfItsOwn) {
  WriteLog(kHolesLog, "kept\r\n");
  EXPECT_TRUE(test::HoleScene().IsOfTheType());
  EXPECT_EQ(ReadBytes(kHolesLog), "kept\r\n" + SystemGbk(test::HoleScene::kTrace));
  EXPECT_EQ(ReadBytes(kRulesLog), "");
}

TEST_F(DiagnosticDrive, AReadOnlyFileIsLeftAloneAndThePlateKeepsItsText) {
  WriteLog(kRulesLog, "kept\r\n");
  ASSERT_TRUE(SetFileAttributesA(kRulesLog, FILE_ATTRIBUTE_READONLY));
  if (test::HeldFile(kRulesLog, GENERIC_WRITE, 0).IsHeld())
    GTEST_SKIP() << "this user may write read-only files";
  PlateScene scene;
  EXPECT_EQ(scene.ProcessText(), SystemGbk(PlateScene::kProcessText));
  EXPECT_EQ(ReadBytes(kRulesLog), "kept\r\n");
}

TEST_F(DiagnosticDrive, AFileThatAnotherProgramLocksIsLeftAloneToo) {
  WriteLog(kRulesLog, "kept\r\n");
  PlateScene scene;
  {
    const test::HeldFile locked(kRulesLog, GENERIC_READ, 0);
    ASSERT_TRUE(locked.IsHeld());
    EXPECT_EQ(scene.ProcessText(), SystemGbk(PlateScene::kProcessText));
  }
  EXPECT_EQ(ReadBytes(kRulesLog), "kept\r\n");
}

TEST_F(DiagnosticDrive, AnEditorThatShowsTheFileDoesNotStopTheTrace) {
  WriteLog(kRulesLog, "");
  const test::HeldFile shown(kRulesLog, GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE);
  ASSERT_TRUE(shown.IsHeld());
  PlateScene scene;
  scene.ProcessText();
  EXPECT_EQ(ReadBytes(kRulesLog), SystemGbk(PlateScene::kTrace));
}

TEST_F(DiagnosticDrive, TheFileIsNotHeldBetweenTwoPlates) {
  PlateScene scene;
  scene.ProcessText();
  EXPECT_TRUE(test::HeldFile(kRulesLog, GENERIC_READ | GENERIC_WRITE, 0).IsHeld());
}

}  // namespace
}  // namespace plateconfig
