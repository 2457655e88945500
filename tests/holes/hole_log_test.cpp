#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <limits>
#include <new>
#include <set>

#ifdef __linux__
#include <sys/inotify.h>
#include <unistd.h>
#endif

#include "holes/hole_builders.h"
#include "holes/hole_type_info.h"
#include "support/allocation_count.h"
#include "support/comma_locale.h"
#include "support/diagnostic_folder.h"
#include "support/diagnostics_off.h"
#include "support/gbk_text.h"

namespace plateconfig {
namespace {

using test::Gbk;
using test::Hole;
using test::Segment;

HoleTypeInfo CounterboreType() {
  HoleTypeInfo type;
  type.name = Gbk("沉头孔");
  type.content = Gbk("正面沉头，反面避空");
  type.countKey = "1_1_2";
  type.topColor = {{36}};
  type.throughColor = {{0}};
  type.bottomColor = {{6}, {6}};
  type.topDiameter = {{14}};
  type.throughDiameter = {{9}};
  type.bottomDiameter = {{20, 22}, {0}, {5}};
  return type;
}

class HoleLog : public testing::Test {
 protected:
  /// The lines that one call appends, GBK.
  std::string LinesOf(const CombHole& hole, const HoleTypeInfo& type) {
    const std::string before = folder_.Read(Diagnostic::kHoles);
    double accuracy = 0;
    type.IsCombHoleBelongNormal(hole, accuracy);
    return folder_.Read(Diagnostic::kHoles).substr(before.size());
  }

  std::string FirstLineOf(const HoleTypeInfo& type) {
    const std::string lines = LinesOf(hole_, type);
    return lines.substr(0, lines.find('\n'));
  }

  test::DiagnosticFolder folder_;
  CombHole hole_ = Hole({Segment(14.00004, 36)}, {Segment(9, 31)}, {Segment(-20.12349, 6), Segment(3, 6)});
};

TEST_F(HoleLog, ARefusedHoleWritesTheseBytes) {
  EXPECT_EQ(LinesOf(hole_, CounterboreType()), Gbk("name:沉头孔   content:正面沉头，反面避空\n"
                                                   "bottomDiameter-1:\t0.000000\n"
                                                   "bottomDiameter-2:\t0.000000\n"
                                                   "bottomDiameter-3:\t0.000000\n"
                                                   "bDiams-1:\t20.123400\n"
                                                   "bDiams-2:\t3.000000\n"
                                                   "acc1:\t1.000000,acc2:\t0.000000,acc3:\t2.000000,"
                                                   "acc4:\t1.500000,acc5:\t1.500000,acc6:\t0.000000\n"
                                                   "topColorInclude\n"
                                                   "throughColorInclude\n"
                                                   "bottomColorInclude\n"
                                                   "topDiaInclude\n"
                                                   "throughDiaInclude\n"
                                                   "no bottomDiaInclude\n"
                                                   "bu属于\n"));
}

TEST_F(HoleLog, AnAcceptedHoleWritesTheseBytes) {
  HoleTypeInfo type;
  type.countKey = "0_0_0";
  EXPECT_EQ(LinesOf(CombHole(), type), Gbk("name:   content:\n"
                                           "acc1:\t0.000000,acc2:\t0.000000,acc3:\t0.000000,"
                                           "acc4:\t0.000000,acc5:\t0.000000,acc6:\t0.000000\n"
                                           "topColorInclude\n"
                                           "throughColorInclude\n"
                                           "bottomColorInclude\n"
                                           "topDiaInclude\n"
                                           "throughDiaInclude\n"
                                           "bottomDiaInclude\n"
                                           "属于\n"));
}

TEST_F(HoleLog, EachOfTheSixFlagsHasItsOwnLine) {
  HoleTypeInfo type = CounterboreType();
  type.topColor = type.throughColor = type.bottomColor = {};
  type.topDiameter = type.throughDiameter = type.bottomDiameter = {{99}};
  const std::string lines = LinesOf(hole_, type);
  EXPECT_EQ(lines.substr(lines.find("no ")), Gbk("no topColorInclude\n"
                                                 "no throughColorInclude\n"
                                                 "no bottomColorInclude\n"
                                                 "no topDiaInclude\n"
                                                 "no throughDiaInclude\n"
                                                 "no bottomDiaInclude\n"
                                                 "bu属于\n"));
}

TEST_F(HoleLog, TooFewColorListsShowInTheirLine) {
  HoleTypeInfo type = CounterboreType();
  type.bottomColor = {{6}};
  const std::string lines = LinesOf(hole_, type);
  EXPECT_NE(lines.find("\nno bottomColorInclude\n"), std::string::npos);
  EXPECT_NE(lines.find("acc3:\t1.000000,"), std::string::npos);
}

TEST_F(HoleLog, TheConfiguredBottomDiametersAlwaysReadAsZero) {
  HoleTypeInfo type = CounterboreType();
  type.bottomDiameter = {{123.5}};
  const std::string lines = LinesOf(hole_, type);
  EXPECT_NE(lines.find("\nbottomDiameter-1:\t0.000000\nbDiams-1:"), std::string::npos);
}

TEST_F(HoleLog, AnotherStructureWritesNoLine) {
  EXPECT_EQ(LinesOf(CombHole(), CounterboreType()), "");
  EXPECT_FALSE(std::filesystem::exists(folder_.PathOf(Diagnostic::kHoles)));
}

TEST_F(HoleLog, TheGeneralTestWritesNoLine) {
  EXPECT_TRUE(CounterboreType().IsCombHoleBelongCurrency(hole_));
  EXPECT_FALSE(std::filesystem::exists(folder_.PathOf(Diagnostic::kHoles)));
}

TEST_F(HoleLog, ASecondCallAppends) {
  const std::string first = LinesOf(hole_, CounterboreType());
  EXPECT_EQ(LinesOf(hole_, CounterboreType()), first);
  EXPECT_EQ(folder_.Read(Diagnostic::kHoles), first + first);
  EXPECT_FALSE(std::filesystem::exists(folder_.PathOf(Diagnostic::kRules)));
}

TEST_F(HoleLog, ALineOf221BytesIsWholeAndALongerOneIsCut) {
  HoleTypeInfo type = CounterboreType();
  const std::string frame = "name:   content:";
  type.content.clear();
  type.name = std::string(221 - frame.size(), 'n');
  EXPECT_EQ(FirstLineOf(type), "name:" + type.name + "   content:");
  type.name += 'n';
  EXPECT_EQ(FirstLineOf(type), "name:" + type.name + "   content");
  type.name = std::string(500, 'n');
  EXPECT_EQ(FirstLineOf(type), "name:" + std::string(216, 'n'));
}

TEST_F(HoleLog, TheCutNeverSplitsACharacter) {
  HoleTypeInfo type = CounterboreType();
  // "name:" and 107 characters are 219 bytes, the 108th fills the line.
  std::string name;
  for (int i = 0; i < 120; ++i) name += "孔";
  type.name = Gbk(name);
  EXPECT_EQ(FirstLineOf(type), "name:" + type.name.substr(0, 2 * 108));
  // Behind one more byte, the 108th would be split.
  type.name = "n" + Gbk(name);
  EXPECT_EQ(FirstLineOf(type), "name:n" + type.name.substr(1, 2 * 107));
}

TEST_F(HoleLog, AHugeDiameterIsCutLikeEveryLine) {
  hole_.bottomHoles[0].diameter = -std::numeric_limits<double>::max();
  const std::string lines = LinesOf(hole_, CounterboreType());
  const std::size_t begin = lines.find("bDiams-1:");
  const std::string line = lines.substr(begin, lines.find('\n', begin) - begin);
  EXPECT_EQ(line.size(), 221U);
  EXPECT_EQ(line.substr(0, 29), "bDiams-1:\t1797693134862315708");
}

TEST_F(HoleLog, NumbersIgnoreTheHostsLocale) {
  const std::string expected = LinesOf(hole_, CounterboreType());
  const test::CommaLocale comma;
  EXPECT_EQ(LinesOf(hole_, CounterboreType()), expected);
}

TEST_F(HoleLog, ACallThatEndsByAnExceptionLeavesTheLinesUpToIt) {
  HoleTypeInfo type = CounterboreType();
  type.countKey = "1_1_200";
  hole_.bottomHoles.assign(200, Segment(3, 6));  // So many lines that their memory grows several times.
  const std::string whole = LinesOf(hole_, type);
  std::set<std::string> beginnings;
  for (std::size_t memory = 0;; ++memory) {
    const std::string before = folder_.Read(Diagnostic::kHoles);
    bool hasFailed = false;
    try {
      const test::AllocationLimit limit(memory);
      double accuracy = 0;
      type.IsCombHoleBelongNormal(hole_, accuracy);
    } catch (const std::bad_alloc&) {
      hasFailed = true;
    }
    const std::string lines = folder_.Read(Diagnostic::kHoles).substr(before.size());
    if (!hasFailed) {
      EXPECT_EQ(lines, whole);
      break;
    }
    EXPECT_TRUE(whole.starts_with(lines)) << lines;
    EXPECT_TRUE(lines.empty() || lines.ends_with('\n')) << lines;
    beginnings.insert(lines);
  }
  EXPECT_GT(beginnings.size(), 3u);
}

TEST_F(HoleLog, NothingIsFormattedWhenTheFileCanNotBeOpened) {
  const test::DiagnosticsOff off;
  const HoleTypeInfo type = CounterboreType();
  double accuracy = -1;
  const std::size_t before = test::AllocationCount();
  type.IsCombHoleBelongNormal(hole_, accuracy);
  EXPECT_EQ(test::AllocationCount(), before);
  EXPECT_EQ(accuracy, 6);
}

#ifdef __linux__
/// How often a file of the folder was written, and closed behind it, while the object lived.
class WriteCounter {
 public:
  explicit WriteCounter(const std::filesystem::path& folder) : notifier_(inotify_init1(IN_NONBLOCK)) {
    inotify_add_watch(notifier_, folder.c_str(), IN_MODIFY | IN_CLOSE_WRITE);
  }
  ~WriteCounter() { close(notifier_); }
  WriteCounter(const WriteCounter&) = delete;
  WriteCounter& operator=(const WriteCounter&) = delete;

  /// "write close": the events in their order.
  std::string Events() const {
    alignas(inotify_event) char buffer[16'384];
    const ssize_t size = read(notifier_, buffer, sizeof buffer);
    std::string events;
    for (ssize_t at = 0; at < size;) {
      inotify_event event;
      std::memcpy(&event, buffer + at, sizeof event);
      events += (event.mask & IN_CLOSE_WRITE) != 0 ? "close " : "write ";
      at += static_cast<ssize_t>(sizeof event + event.len);
    }
    return events;
  }

 private:
  int notifier_;
};

TEST_F(HoleLog, TheLinesOfACallAreAppendedInOneGo) {
  const std::filesystem::path folder = folder_.PathOf(Diagnostic::kHoles).parent_path();
  std::filesystem::create_directories(folder);
  const WriteCounter writes(folder);
  const std::string lines = LinesOf(hole_, CounterboreType());
  EXPECT_EQ(std::count(lines.begin(), lines.end(), '\n'), 14);
  EXPECT_EQ(writes.Events(), "write close ");
}
#endif

#ifndef _WIN32
TEST_F(HoleLog, AFileThatCanNotBeOpenedChangesNothingElse) {
  std::filesystem::create_directories(folder_.PathOf(Diagnostic::kHoles));
  double accuracy = -1;
  EXPECT_FALSE(CounterboreType().IsCombHoleBelongNormal(hole_, accuracy));
  EXPECT_EQ(accuracy, 6);
}
#endif

}  // namespace
}  // namespace plateconfig
