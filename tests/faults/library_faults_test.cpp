// The library when the system refuses a file or has no memory left, at every single place where it asks for
// one.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <NXOpen/Body.hxx>
#include <filesystem>
#include <fstream>
#include <new>
#include <nlohmann/json.hpp>

#include "analysis/schema/role.h"
#include "analysis/schema/snapshot.h"
#include "host/body_info.h"
#include "plateconfig/system/console.h"
#include "plateconfig/system/file_kind.h"
#include "rules/process_rule_library.h"
#include "settings/default_manager.h"
#include "support/allocation_count.h"
#include "support/diagnostic_folder.h"
#include "support/failing_files.h"
#include "support/gbk_text.h"
#include "support/temporary_folder.h"

namespace plateconfig::test {
namespace {

using ::testing::AnyOf;

const std::string kSample = std::string(PLATECONFIG_SAMPLES_DIR) + "/config/标准";

/// The sample's table for each role whose classes say what they hold, as host paths.
std::vector<std::pair<Role, std::string>> SampleTables() {
  std::ifstream manifest(PathFromUtf8(kSample + "/tables.json"));
  const auto files = nlohmann::json::parse(manifest);
  std::vector<std::pair<Role, std::string>> tables;
  for (const RoleRow& row : ManifestRoles()) {
    if (row.role == Role::kColumnWidths || row.role == Role::kProcessRules)
      continue;  // Looked at by themselves below.
    tables.emplace_back(row.role,
                        HostPathFromUtf8(kSample + "/" + files[std::string(row.name)].get<std::string>()));
  }
  return tables;
}

std::vector<Cells> Load(Role role, const std::string& path) {
  return TakeSnapshot(role, &path).values;
}

/// What the class holds when its file is there and can not be read: a folder has the file's name.
std::vector<Cells> Unreadable(Role role) {
  const TemporaryFolder folder;
  std::filesystem::create_directory(folder.Path() / "table.csv");
  return Load(role, folder.HostPath("table.csv"));
}

class RefusedTable : public ::testing::TestWithParam<FailingFiles::Lasting> {};
INSTANTIATE_TEST_SUITE_P(, RefusedTable,
                         ::testing::Values(FailingFiles::Lasting::kOnce, FailingFiles::Lasting::kForGood),
                         [](const auto& lasting) {
                           return lasting.param == FailingFiles::Lasting::kOnce ? "Once" : "ForGood";
                         });

TEST_P(RefusedTable, CountsAsUnreadableWhateverOperationFails) {
  for (const auto& [role, path] : SampleTables()) {
    const std::vector<Cells> whole = Load(role, path);
    const std::vector<Cells> unreadable = Unreadable(role);
    std::size_t refusals = 0;
    for (std::size_t n = 1;; ++n) {
      const FailingFiles files(n, GetParam());
      const std::vector<Cells> loaded = Load(role, path);
      if (!files.HasRefused()) break;
      // A class tries to open its other tables too, which are missing here anyway.
      EXPECT_THAT(loaded, AnyOf(unreadable, whole)) << NameOf(role) << ", operation " << n;
      if (loaded == unreadable) ++refusals;
    }
    EXPECT_GE(refusals, 2U) << NameOf(role);  // The table's opening and its reading.
    EXPECT_EQ(Load(role, path), whole) << NameOf(role);
  }
}

TEST(ATableThatShrinksWhileItIsRead, IsTheTableThatIsLeft) {
  const std::string whole = Gbk("图层间距,特征代号注释角度\n7,8\n");
  const std::string left = Gbk("图层间距\n7\n");
  const TemporaryFolder folder;
  const std::string shorter = folder.WriteBytes("short.csv", left);
  const std::string path = folder.WriteBytes("table.csv", whole);
  const BeforeEach shrink(FileOperation::kRead, [&] { folder.WriteBytes("table.csv", left); });
  EXPECT_EQ(Load(Role::kLayoutDefaults, path), Load(Role::kLayoutDefaults, shorter));
}

// ---- The trace ----

class RefusedTrace : public ::testing::Test {
 protected:
  std::string Evaluate() const {
    NXOpen::Body solid({186, 36, 36});
    BodyInfo plate(&solid, 100, 50, 20.5, 3, 12);
    std::vector<ProcessRule> rules = library_.GetProcessRules();
    rules[0].SetValue(std::vector<int>{36});
    return library_.GetProcessInfo(&plate, 1.5, rules);
  }

  DiagnosticFolder logs_;
  TemporaryFolder folder_;
  ProcessRuleLibrary library_{
      folder_.WriteTable(
          "工艺规则.csv",
          "排工艺顺序,排顺序工艺类型,顺序工艺参数值,模板所在图层,钻孔\n钻孔,圆孔颜色,36,3,摇臂钻\n"),
      folder_.WriteTable("工艺设置.csv", "连接符号\n，\n")};
};

TEST_F(RefusedTrace, ThatCanNotBeOpenedOrWrittenChangesNoText) {
  const std::string text = Evaluate();
  ASSERT_EQ(text, Gbk("摇臂钻"));
  for (const auto lasting : {FailingFiles::Lasting::kOnce, FailingFiles::Lasting::kForGood}) {
    std::size_t refusals = 0;
    for (std::size_t n = 1;; ++n) {
      const FailingFiles files(n, lasting);
      EXPECT_EQ(Evaluate(), text);
      if (!files.HasRefused()) break;
      ++refusals;
    }
    EXPECT_GE(refusals, 4U);  // The colours' lines and the plate's: each is opened and written.
  }
}

TEST_F(RefusedTrace, OfAFullDiskIsLeftOut) {
  Evaluate();
  const std::string before = logs_.Read(Diagnostic::kRules);
  {
    const FailingFiles files(2, FailingFiles::Lasting::kForGood);
    Evaluate();
  }
  EXPECT_EQ(logs_.Read(Diagnostic::kRules), before);
  Evaluate();
  EXPECT_EQ(logs_.Read(Diagnostic::kRules), before + before);
}

// ---- Memory ----

/// Tries `load` with room for 0, 1, 2, … allocations, until it needs no more; gives how often it failed.
template <typename Load>
std::size_t TryWithoutMemory(AllocationLimit::Lasting lasting, const Load& load) {
  std::size_t failures = 0;
  for (std::size_t further = 0;; ++further) {
    bool isEnough = false;
    try {
      const AllocationLimit limit(further, lasting);
      load();
      isEnough = limit.WasEnough();
    } catch (const std::bad_alloc&) {
    }
    if (isEnough) return failures;
    ++failures;
  }
}

class RefusedMemory : public ::testing::TestWithParam<AllocationLimit::Lasting> {};
INSTANTIATE_TEST_SUITE_P(, RefusedMemory,
                         ::testing::Values(AllocationLimit::Lasting::kOnce,
                                           AllocationLimit::Lasting::kForGood),
                         [](const auto& lasting) {
                           return lasting.param == AllocationLimit::Lasting::kOnce ? "Once" : "ForGood";
                         });

TEST_P(RefusedMemory, WhileARuleTableIsLoadedLeavesALibraryThatCanBeAssigned) {
  const TemporaryFolder folder;
  const std::string rules =
      folder.WriteTable("规则.csv", "排工艺顺序,排顺序工艺类型,模板所在图层,钻孔\n钻孔,有无圆孔,3,摇臂钻\n");
  const std::string settings = folder.WriteTable("设置.csv", "连接符号\n，\n");
  ProcessRuleLibrary library("", "");
  const std::size_t failures = TryWithoutMemory(GetParam(), [&] {
    library = ProcessRuleLibrary("", "");
    library = ProcessRuleLibrary(rules, settings);
  });
  EXPECT_GE(failures, 6U);  // Of each table its bytes, cells and rows; the others are the compiler's.
  ASSERT_EQ(library.GetProcessRules().size(), 1U);
  EXPECT_EQ(library.GetConnectText(), Gbk("，"));
}

TEST_P(RefusedMemory, WhileAColumnIsSearchedLeavesATableThatAnswers) {
  const TemporaryFolder folder;
  ReadConfigFile table;
  ASSERT_TRUE(table.OpenConfigFile(folder.WriteTable("表.csv", "a\n1\n2\n")));
  std::vector<int> found;
  const std::size_t failures = TryWithoutMemory(GetParam(), [&] {
    found.clear();
    found.reserve(3);
    for (int search = 0; search < 3; ++search) found.push_back(table.GetItemIndex("a", "2"));
  });
  EXPECT_GE(failures, 2U);  // What notes the search, and the index.
  EXPECT_EQ(found, std::vector<int>(3, 1));
}

TEST_P(RefusedMemory, WhileSettingsAreLoadedLeavesAnObjectThatCanBeLoadedAgain) {
  const TemporaryFolder folder;
  const std::string path = folder.WriteTable("布局默认值.csv", "图层间距,代号注释的样式\n7,A|5|1|2|3|1\n");
  DefaultManager settings;
  const std::size_t failures = TryWithoutMemory(GetParam(), [&] { settings.InitilDefaultValues(path); });
  EXPECT_GT(failures, 0U);  // How many there are is the compiler's.
  DefaultManager fresh;
  fresh.InitilDefaultValues(path);
  EXPECT_EQ(settings.codeStyle.fontName, fresh.codeStyle.fontName);
  settings = fresh;
  EXPECT_EQ(settings.codeStyle.size, 5);
}

}  // namespace
}  // namespace plateconfig::test
