// What a long session of the host asks of the library: very many plates and holes in one process with both
// diagnostic files on, and two processes that write them at once. PLATECONFIG_LOAD says how many
// (scripts/load: a million); the ordinary tests try some thousand.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <NXOpen/Body.hxx>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <string>
#include <utility>

#include "holes/hole_type_info.h"
#include "host/body_info.h"
#include "rules/process_rule_library.h"
#include "support/diagnostic_folder.h"
#include "support/gbk_text.h"
#include "support/temporary_folder.h"

namespace plateconfig::test {
namespace {

std::size_t Load() {
  const char* asked = std::getenv("PLATECONFIG_LOAD");
  return asked != nullptr ? std::strtoul(asked, nullptr, 10) : 4'000;
}

/// Memory of this process that is in use, bytes.
std::size_t ResidentBytes() {
  std::size_t total = 0;
  std::size_t resident = 0;
  std::ifstream("/proc/self/statm") >> total >> resident;
  return resident * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

std::size_t OpenDescriptors() {
  return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator("/proc/self/fd"),
                                                std::filesystem::directory_iterator()));
}

/// The address sanitizer keeps freed memory for a while, so that what is in use says nothing.
constexpr bool kMemoryIsCounted =
#if defined(__SANITIZE_ADDRESS__)
    false;
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
    false;
#else
    true;
#endif
#else
    true;
#endif

/// Does one thing again and again, and expects that this costs neither memory nor descriptors.
void ExpectNothingIsKept(const std::function<void(std::size_t)>& once) {
  constexpr std::size_t kWarmUp = 500;  // The allocator has its blocks by then.
  constexpr std::size_t kSlackBytes = std::size_t{1} << 20;
  for (std::size_t i = 0; i < kWarmUp; ++i) once(i);
  const std::size_t bytes = ResidentBytes();
  const std::size_t descriptors = OpenDescriptors();
  for (std::size_t i = kWarmUp; i < Load(); ++i) once(i);
  if (kMemoryIsCounted) {
    EXPECT_LE(ResidentBytes(), bytes + kSlackBytes);
  }
  EXPECT_EQ(OpenDescriptors(), descriptors);
}

/// A rule table of `rows` rows, of which only the last one takes plates longer than 1,000 mm, so that a
/// plate's trace is as long as wanted.
std::string RuleTable(std::size_t rows) {
  std::string table = "排工艺顺序,排顺序工艺类型,模板所在图层,长度范围,钻孔\n钻孔,有无圆孔,1,0_10,钻\n";
  for (std::size_t row = 2; row < rows; ++row) table += ",,1,0_" + std::to_string(row) + ",钻\n";
  return table + ",,1,1000_9000,摇臂钻钻孔\n";
}

class Plates {
 public:
  explicit Plates(std::size_t rows) : library_(folder_.WriteTable("工艺规则.csv", RuleTable(rows)), "") {}

  std::string TextOf(double length) {
    NXOpen::Body solid({186, 36, 36});
    BodyInfo plate(&solid, length, 50, 20.5, 3, 12);
    std::vector<ProcessRule> rules = library_.GetProcessRules();
    rules[0].SetValue(true);
    return library_.GetProcessInfo(&plate, 1.5, rules);
  }

 private:
  TemporaryFolder folder_;
  ProcessRuleLibrary library_;
};

CombHole HoleOfTwoSegments() {
  HoleInfo segment;
  segment.diameter = 12.5;
  segment.color = 36;
  CombHole hole;
  hole.topHoles = {segment};
  hole.throughHoles = {segment};
  return hole;
}

HoleTypeInfo TypeOfTwoSegments() {
  HoleTypeInfo type;
  type.name = Gbk("沉头孔");
  type.content = Gbk("沉头");
  type.countKey = "1_1_0";
  type.topColor = type.throughColor = {{36}};
  type.topDiameter = type.throughDiameter = {{12.5}};
  return type;
}

std::uintmax_t SizeOf(const DiagnosticFolder& logs, Diagnostic which) {
  return std::filesystem::file_size(logs.PathOf(which));
}

TEST(Load, PlatesLeaveNothingBehindButTheirTrace) {
  const DiagnosticFolder logs;
  Plates plates(3);
  plates.TextOf(2'000);
  const std::uintmax_t one = SizeOf(logs, Diagnostic::kRules);
  ExpectNothingIsKept([&](std::size_t i) {
    ASSERT_EQ(plates.TextOf(2'000 + static_cast<double>(i % 1'000)), Gbk("摇臂钻钻孔"));
  });
  // Each of these lengths has four digits, so each trace has as many bytes as the first one.
  EXPECT_EQ(SizeOf(logs, Diagnostic::kRules), one * (1 + Load()));
}

TEST(Load, HolesLeaveNothingBehindButTheirLines) {
  const DiagnosticFolder logs;
  const CombHole hole = HoleOfTwoSegments();
  const HoleTypeInfo type = TypeOfTwoSegments();
  const auto classify = [&] {
    double score = 0;
    ASSERT_TRUE(type.IsCombHoleBelongNormal(hole, score));
    ASSERT_EQ(score, 5);  // Two explicit colours and two explicit diameters.
  };
  classify();
  const std::uintmax_t one = SizeOf(logs, Diagnostic::kHoles);
  ExpectNothingIsKept([&](std::size_t) { classify(); });
  EXPECT_EQ(SizeOf(logs, Diagnostic::kHoles), one * (1 + Load()));
}

// ---- Two processes ----

/// Runs both in processes of their own at the same time, and waits for them.
void AtTheSameTime(const std::function<void()>& one, const std::function<void()>& other) {
  for (const auto* work : {&one, &other}) {
    if (fork() != 0) continue;
    (*work)();
    _exit(::testing::Test::HasFailure() ? 1 : 0);
  }
  for (int process = 0; process < 2; ++process) {
    int status = 0;
    wait(&status);
    EXPECT_EQ(status, 0);
  }
}

std::map<std::string, std::size_t> CountedLines(const std::string& text) {
  std::map<std::string, std::size_t> counted;
  std::size_t begin = 0;
  for (std::size_t end; (end = text.find('\n', begin)) != std::string::npos; begin = end + 1) {
    ++counted[text.substr(begin, end - begin)];
  }
  if (begin < text.size()) ++counted["(no line end) " + text.substr(begin)];
  return counted;
}

/// The lines that `times` runs leave of each of what one run of either leaves.
std::map<std::string, std::size_t> Times(std::map<std::string, std::size_t> counted, std::size_t times) {
  for (auto& [line, count] : counted) count *= times;
  return counted;
}

class TwoProcesses : public ::testing::Test {
 protected:
  /// Both processes do their work so often; the file then holds the lines that one run of each leaves, so
  /// many times.
  void ExpectWholeLines(Diagnostic which, const std::function<void()>& one,
                        const std::function<void()>& other) {
    constexpr std::size_t kTimes = 300;
    one();
    other();
    const auto single = CountedLines(logs_.Read(which));
    std::filesystem::remove(logs_.PathOf(which));
    const auto often = [](const std::function<void()>& work) {
      return [&work] {
        for (std::size_t i = 0; i < kTimes; ++i) work();
      };
    };
    AtTheSameTime(often(one), often(other));
    EXPECT_EQ(CountedLines(logs_.Read(which)), Times(single, kTimes));
  }

  DiagnosticFolder logs_;
};

TEST_F(TwoProcesses, TearNoLineOfTheTrace) {
  Plates plates(800);  // A trace of some tens of kilobytes, more than any buffer on the way.
  ExpectWholeLines(
      Diagnostic::kRules, [&] { plates.TextOf(2'000); }, [&] { plates.TextOf(750.5); });
}

TEST_F(TwoProcesses, TearNoLineOfTheHoles) {
  const CombHole hole = HoleOfTwoSegments();
  const HoleTypeInfo type = TypeOfTwoSegments();
  HoleTypeInfo other = type;
  other.name = Gbk("另一种很长的名称的孔");
  double score = 0;
  ExpectWholeLines(
      Diagnostic::kHoles, [&] { type.IsCombHoleBelongNormal(hole, score); },
      [&] { other.IsCombHoleBelongNormal(hole, score); });
}

}  // namespace
}  // namespace plateconfig::test
