#include "analysis/findings/baseline.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace plateconfig {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

Finding NotANumber(const std::string& text, std::size_t line) {
  Finding finding{"cell-not-number", {"表.csv", line, 1}};
  finding.text = text;
  finding.columnName = "长度";
  return finding;
}

std::vector<AcceptedFinding> Accepted(const std::vector<Finding>& findings) {
  std::vector<AcceptedFinding> accepted;
  for (const std::string& fingerprint : FingerprintsOf(findings)) accepted.push_back({fingerprint, "remark"});
  return accepted;
}

std::vector<std::string> Texts(const std::vector<Finding>& findings) {
  std::vector<std::string> texts;
  for (const Finding& finding : findings) texts.push_back(*finding.text);
  return texts;
}

TEST(Baseline, AFingerprintStaysWhenTheRowMoves) {
  EXPECT_EQ(FingerprintsOf({NotANumber("x", 3)}), FingerprintsOf({NotANumber("x", 4)}));
}

TEST(Baseline, AnotherTextColumnFileCodeOrIdentityIsAnotherFingerprint) {
  const Finding base = NotANumber("x", 3);
  const auto differs = [&](auto change) {
    Finding other = base;
    change(other);
    return FingerprintsOf({other}) != FingerprintsOf({base});
  };
  EXPECT_TRUE(differs([](Finding& f) { f.text = "y"; }));
  EXPECT_TRUE(differs([](Finding& f) { f.columnName = "宽度"; }));
  EXPECT_TRUE(differs([](Finding& f) { f.place.file = "b.csv"; }));
  EXPECT_TRUE(differs([](Finding& f) { f.code = "cell-not-integer"; }));
  EXPECT_TRUE(differs([](Finding& f) { f.identity = "row"; }));
}

TEST(Baseline, FindingsThatAreAlikeAreCounted) {
  const auto two = FingerprintsOf({NotANumber("x", 3), NotANumber("x", 9)});
  EXPECT_NE(two[0], two[1]);
  EXPECT_EQ(two, FingerprintsOf({NotANumber("x", 5), NotANumber("x", 6)}));
}

TEST(Baseline, WhatIsAcceptedIsNotFreshAndWhatIsGoneIsTold) {
  const auto accepted = Accepted({NotANumber("old", 2), NotANumber("kept", 3)});
  const Comparison comparison = CompareWithBaseline({NotANumber("kept", 4), NotANumber("new", 5)}, accepted);
  EXPECT_THAT(Texts(comparison.fresh), ElementsAre("new"));
  ASSERT_EQ(comparison.vanished.size(), 1u);
  EXPECT_EQ(comparison.vanished[0].fingerprint, accepted[0].fingerprint);
}

TEST(Baseline, ASecondFindingOfTheSameKindIsFresh) {
  const auto accepted = Accepted({NotANumber("x", 2)});
  EXPECT_THAT(Texts(CompareWithBaseline({NotANumber("x", 2), NotANumber("x", 7)}, accepted).fresh),
              ElementsAre("x"));
}

TEST(Baseline, AFileReadsBackAsItWasWritten) {
  const std::vector<AcceptedFinding> accepted = {{std::string(32, 'a'), "表.csv: B3: 一"},
                                                 {std::string(32, '0'), ""}};
  const auto read = ReadBaseline(WriteBaseline(accepted));
  ASSERT_EQ(read.size(), 2u);
  EXPECT_EQ(read[0].fingerprint, accepted[0].fingerprint);
  EXPECT_EQ(read[0].text, accepted[0].text);
  EXPECT_EQ(read[1].fingerprint, accepted[1].fingerprint);
  EXPECT_EQ(read[1].text, "");
}

TEST(Baseline, LinesThatAreNoFingerprintsArePassedOver) {
  EXPECT_THAT(ReadBaseline("# remark\n\nabc\n0123456789abcdef0123456789abcdefX\n"), IsEmpty());
  EXPECT_EQ(ReadBaseline("0123456789abcdef0123456789abcdef  x\r\n").size(), 1u);
}

}  // namespace
}  // namespace plateconfig
