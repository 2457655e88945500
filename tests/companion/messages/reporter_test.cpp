#include "plateconfig/messages/reporter.h"

#include <gtest/gtest.h>

#include <sstream>

namespace plateconfig {
namespace {

TEST(Reporter, ShowsOnlyWhatIsKnownOfAPlace) {
  EXPECT_EQ(ToString(Place{"板.csv", 3, 12}), "板.csv:3:12");
  EXPECT_EQ(ToString(Place{"板.csv", 3, 0}), "板.csv:3");
  EXPECT_EQ(ToString(Place{"板.csv", 0, 0}), "板.csv");
}

TEST(Reporter, WritesOneLinePerMessage) {
  std::ostringstream err;
  Reporter reporter(err);
  reporter.Error({"a.csv", 2, 1}, "wrong");
  reporter.Warning({"b.csv"}, "odd");
  EXPECT_EQ(err.str(), "a.csv:2:1: error: wrong\nb.csv: warning: odd\n");
}

TEST(Reporter, WithoutMessageAllIsFine) {
  std::ostringstream err;
  EXPECT_EQ(Reporter(err).Result(), kFine);
}

TEST(Reporter, AWarningOrAFindingGivesOne) {
  std::ostringstream err;
  Reporter warned(err);
  warned.Warning({"a.csv"}, "odd");
  EXPECT_EQ(warned.Result(), 1);
  Reporter found(err);
  found.CountFinding();
  EXPECT_EQ(found.Result(), 1);
}

TEST(Reporter, AnErrorGivesTwoWhateverElseThereIs) {
  std::ostringstream err;
  Reporter reporter(err);
  reporter.Error({"a.csv"}, "wrong");
  reporter.Warning({"a.csv"}, "odd");
  reporter.CountFinding();
  EXPECT_EQ(reporter.Result(), 2);
}

TEST(Reporter, WhoeverDrawsOnTheStreamIsCalledBeforeEachMessage) {
  std::ostringstream err;
  Reporter reporter(err);
  reporter.BeforeMessage([&] { err << "<clear>"; });
  reporter.Warning({"a"}, "one");
  reporter.BeforeMessage({});
  reporter.Warning({"a"}, "two");
  EXPECT_EQ(err.str(), "<clear>a: warning: one\na: warning: two\n");
}

}  // namespace
}  // namespace plateconfig
