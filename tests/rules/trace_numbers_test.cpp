// Numbers in the rules' diagnostic file.

#include <gtest/gtest.h>

#include <locale>
#include <string>
#include <vector>

#include "host/body_info.h"
#include "rules/rule_texts.h"
#include "support/diagnostic_folder.h"

namespace plateconfig::test {
namespace {

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

}  // namespace
}  // namespace plateconfig::test
