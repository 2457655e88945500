// Run by themselves, on a system without a drive D:.
#include <gtest/gtest.h>

#include "platform/diagnostic_file.h"
#include "windows/hole_scene.h"
#include "windows/plate_scene.h"
#include "windows/system_text.h"

namespace plateconfig {
namespace {

class WithoutDriveD : public ::testing::Test {
 protected:
  void SetUp() override {
    if (GetFileAttributesA("D:\\") != INVALID_FILE_ATTRIBUTES) GTEST_SKIP() << "this system has a drive D:";
  }
};

TEST_F(WithoutDriveD, NoDiagnosticFileOpens) {
  EXPECT_FALSE(DiagnosticFile(Diagnostic::kRules).IsOpen());
  EXPECT_FALSE(DiagnosticFile(Diagnostic::kHoles).IsOpen());
}

TEST_F(WithoutDriveD, APlateGetsTheSameText) {
  test::PlateScene scene;
  EXPECT_EQ(scene.ProcessText(), test::SystemGbk(test::PlateScene::kProcessText));
}

TEST_F(WithoutDriveD, AHoleIsOfTheSameType) {
  EXPECT_TRUE(test::HoleScene().IsOfTheType());
}

TEST_F(WithoutDriveD, RulesAreFedAsEver) {
  ProcessRule rule(0, ProcessRule::RoundHoleColor, "x", "114_118");
  rule.SetValue(std::vector<int>{118});
  EXPECT_TRUE(rule.IsValid());
  rule.SetValue(std::vector<int>{119});
  EXPECT_FALSE(rule.IsValid());
}

TEST_F(WithoutDriveD, NothingIsWrittenSomewhereElse) {
  test::PlateScene().ProcessText();
  EXPECT_EQ(GetFileAttributesA("log.txt"), INVALID_FILE_ATTRIBUTES);
  EXPECT_EQ(GetFileAttributesA("C:\\log.txt"), INVALID_FILE_ATTRIBUTES);
}

}  // namespace
}  // namespace plateconfig
