// Where the trace goes is a matter of the environment outside Windows; without a place there is none.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "host/body_info.h"
#include "platform/diagnostic_file.h"
#include "rules/rule_texts.h"
#include "support/environment.h"

namespace plateconfig::test {
namespace {

std::string TextOfAPlate() {
  BodyInfo plate(nullptr, 450, 400, 90, 12, 12);
  return MakeLibrary("模板所在图层,钻孔\n3,钻5\n").GetProcessInfo(&plate, 127.2, {ValidRule("钻孔")});
}

TEST(TraceOnPosix, WithoutAStateOrHomeFolderNothingChanges) {
  const ScopedVariable state("XDG_STATE_HOME", std::nullopt);
  const ScopedVariable home("HOME", std::nullopt);
  ASSERT_FALSE(DiagnosticFile(Diagnostic::kRules).IsOpen());
  EXPECT_EQ(TextOfAPlate(), Gbk("钻5"));
  ProcessRule rule(0, ProcessRule::RoundHoleColor, "", "6_7");
  rule.SetValue(std::vector<int>{7});
  EXPECT_TRUE(rule.IsValid());
}

TEST(TraceOnPosix, GoesBelowTheHomeFolderWithoutAStateFolder) {
  const TemporaryFolder folder;
  const ScopedVariable state("XDG_STATE_HOME", std::nullopt);
  const ScopedVariable home("HOME", folder.Path().string());
  ProcessRule rule(0, ProcessRule::RoundHoleColor, "", "6_7");
  rule.SetValue(std::vector<int>{7});
  EXPECT_EQ(ReadBytes(folder.Path() / ".local/state/plateconfig/log.txt"), "strRuleValue:6_7\neType:11\n");
}

}  // namespace
}  // namespace plateconfig::test
