#include "plateconfig/tables/configuration.h"

#include <gmock/gmock.h>

#include <map>

#include "support/companion.h"

namespace plateconfig {
namespace {

using test::ArgumentPath;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

/// A configuration folder with this manifest.
struct Folder {
  explicit Folder(std::string_view manifest) {
    options.folder = ArgumentPath(files, "配置");
    files.WriteBytes("配置/tables.json", manifest);
    manifestPath = options.folder + "/tables.json";
  }

  std::optional<TableFile> Find(Role role) { return configuration.Find(role); }

  test::Messages messages;
  test::TemporaryFolder files;
  ConfigurationOptions options;
  std::string manifestPath;
  Configuration configuration{options, messages.reporter};
};

TEST(Configuration, TheManifestNamesTheFileOfEachRole) {
  Folder folder(R"({"process-rules": "规则.csv", "bom": "b.csv"})");
  const auto rules = folder.Find(Role::kProcessRules);
  ASSERT_TRUE(rules);
  EXPECT_EQ(rules->shownAs, folder.options.folder + "/规则.csv");
  EXPECT_EQ(folder.Find(Role::kBom)->shownAs, folder.options.folder + "/b.csv");
  EXPECT_THAT(folder.messages.Text(), IsEmpty());
}

TEST(Configuration, ATableOfTheCommandLineComesBeforeTheManifest) {
  Folder folder(R"({"process-rules": "规则.csv"})");
  folder.options.tables[Role::kProcessRules] = "other.csv";
  EXPECT_EQ(folder.Find(Role::kProcessRules)->shownAs, "other.csv");
}

TEST(Configuration, WithEveryTableOnTheCommandLineNoFolderIsLookedFor) {
  const test::ScopedVariable root("TQConfig", std::nullopt);
  test::Messages messages;
  ConfigurationOptions options;
  options.tables[Role::kBom] = "b.csv";
  Configuration configuration(options, messages.reporter);
  EXPECT_EQ(configuration.Find(Role::kBom)->shownAs, "b.csv");
  EXPECT_THAT(messages.Text(), IsEmpty());
}

TEST(Configuration, ARoleThatNoFilePlaysIsAnErrorUnlessItIsOptional) {
  Folder folder("{}");
  EXPECT_FALSE(folder.configuration.FindOptional(Role::kBom));
  EXPECT_THAT(folder.messages.Text(), IsEmpty());
  EXPECT_FALSE(folder.Find(Role::kBom));
  EXPECT_EQ(folder.messages.Text(), "plateconfig: error: no table plays the role bom: name it in " +
                                        folder.manifestPath + ", or give --bom FILE\n");
}

TEST(Configuration, AnUnknownRoleIsAWarningAtItsPlace) {
  Folder folder("{\n  \"proces-rules\": \"a.csv\", \"bom\": \"b.csv\"}");
  EXPECT_TRUE(folder.Find(Role::kBom));
  EXPECT_THAT(folder.messages.Text(),
              StartsWith(folder.manifestPath + ":2:19: warning: \"proces-rules\" is no role"));
}

TEST(Configuration, AMisspelledRoleIsAnsweredWithTheNearestOne) {
  Folder folder(R"({"proces-rules": "a.csv"})");
  folder.configuration.FindOptional(Role::kBom);
  EXPECT_THAT(folder.messages.Text(), HasSubstr("did you mean \"process-rules\"?"));
}

TEST(Configuration, OfTwoFilesForOneRoleTheFirstCounts) {
  Folder folder(R"({"bom": "a.csv", "bom": "b.csv"})");
  EXPECT_EQ(folder.Find(Role::kBom)->shownAs, folder.options.folder + "/a.csv");
  EXPECT_EQ(folder.messages.Text(),
            folder.manifestPath + ":1:25: warning: a second member \"bom\"; the first one counts\n");
}

TEST(Configuration, AFolderThatDoesNotExistIsNamedOnceAndNoRoleIsAskedFor) {
  const test::TemporaryFolder files;
  test::Messages messages;
  ConfigurationOptions options;
  options.folder = ArgumentPath(files, "没有");
  Configuration configuration(options, messages.reporter);
  EXPECT_FALSE(configuration.Find(Role::kBom));
  EXPECT_FALSE(configuration.Find(Role::kTexts));
  EXPECT_EQ(messages.Text(), options.folder + "/: error: this configuration folder does not exist\n");
}

TEST(Configuration, AFileNameThatIsNoTextIsAnError) {
  Folder folder(R"({"bom": 5, "texts": "t.csv"})");
  EXPECT_TRUE(folder.Find(Role::kTexts));
  EXPECT_EQ(folder.messages.Text(),
            folder.manifestPath + ":1:9: error: the file of the role bom should be a text in quotes\n");
}

TEST(Configuration, AManifestThatIsNoObjectIsAnError) {
  Folder folder("[]");
  EXPECT_FALSE(folder.configuration.FindOptional(Role::kBom));
  EXPECT_THAT(folder.messages.Text(),
              StartsWith(folder.manifestPath + ":1:1: error: the manifest should be"));
}

TEST(Configuration, ASyntaxErrorOfTheManifestIsReportedAtItsPlace) {
  Folder folder("{\"bom\": \"b.csv\",\n \"texts\" \"t.csv\"}");
  EXPECT_FALSE(folder.configuration.FindOptional(Role::kBom));
  EXPECT_THAT(folder.messages.Text(),
              StartsWith(folder.manifestPath + ":2:10: error: this is not JSON here:"));
}

TEST(Configuration, AnEmptyManifestIsSaidToEndTooEarly) {
  Folder folder("");
  EXPECT_FALSE(folder.configuration.FindOptional(Role::kBom));
  EXPECT_EQ(folder.messages.Text(), folder.manifestPath + ":1:1: error: the JSON ends here too early\n");
}

TEST(Configuration, AManifestInGbkIsNamedAsSuch) {
  Folder folder(test::Gbk("{\"bom\": \"材料.csv\"}"));
  EXPECT_FALSE(folder.configuration.FindOptional(Role::kBom));
  EXPECT_EQ(folder.messages.Text(),
            folder.manifestPath + ": error: this manifest is not UTF-8; save it as UTF-8\n");
}

TEST(Configuration, AByteOrderMarkOfTheManifestCountsNoColumn) {
  Folder folder("\xEF\xBB\xBF{\"bom\": 5}");
  folder.configuration.FindOptional(Role::kBom);
  EXPECT_THAT(folder.messages.Text(), StartsWith(folder.manifestPath + ":1:9: error"));
}

TEST(Configuration, AMissingManifestIsAnErrorOnce) {
  const test::TemporaryFolder files;
  test::Messages messages;
  ConfigurationOptions options;
  options.folder = ArgumentPath(files, "");
  Configuration configuration(options, messages.reporter);
  EXPECT_FALSE(configuration.FindOptional(Role::kBom));
  EXPECT_FALSE(configuration.FindOptional(Role::kTexts));
  EXPECT_EQ(messages.Text(), options.folder +
                                 "tables.json: error: this manifest, which says what file plays which role, "
                                 "does not exist; plateconfig init " +
                                 options.folder.substr(0, options.folder.size() - 1) + " writes it\n");
}

TEST(Configuration, AFolderWithABlankIsQuotedForTheCommandLine) {
  const test::TemporaryFolder files;
  files.WriteBytes("my tables/x", "");
  test::Messages messages;
  ConfigurationOptions options;
  options.folder = ArgumentPath(files, "my tables");
  Configuration(options, messages.reporter).FindOptional(Role::kBom);
  EXPECT_THAT(messages.Text(), HasSubstr("plateconfig init \"" + options.folder + "\" writes it"));
}

TEST(Configuration, AManifestWithAHiddenEndingIsNamed) {
  const test::TemporaryFolder files;
  files.WriteBytes("tables.json.txt", R"({"bom": "a.csv"})");
  test::Messages messages;
  ConfigurationOptions options;
  options.folder = ArgumentPath(files, "");
  Configuration(options, messages.reporter).FindOptional(Role::kBom);
  EXPECT_THAT(messages.Text(),
              StartsWith(options.folder + "tables.json.txt: error: this manifest has the ending"));
  EXPECT_THAT(messages.Text(), HasSubstr("rename it to tables.json\n"));
}

TEST(Configuration, AManifestThatIsThereAndNoFileCanNotBeRead) {
  const test::TemporaryFolder files;
  files.WriteBytes("tables.json/x", "");
  test::Messages messages;
  ConfigurationOptions options;
  options.folder = ArgumentPath(files, "");
  Configuration(options, messages.reporter).FindOptional(Role::kBom);
  EXPECT_THAT(messages.Text(), HasSubstr("can not be read"));
}

TEST(Configuration, ARoleInOtherLettersOrByTheNameOfItsTableIsAnsweredWithTheRole) {
  for (const auto& [name, role] : std::map<std::string, std::string>{{"BOM", "bom"},
                                                                     {"Process_Rules", "process-rules"},
                                                                     {"工艺规则", "process-rules"},
                                                                     {"系统设置.csv", "system-settings"},
                                                                     {"列宽.CSV", "column-widths"}}) {
    Folder folder("{\"" + name + "\": \"a.csv\"}");
    folder.configuration.FindOptional(Role::kBom);
    EXPECT_THAT(folder.messages.Text(), HasSubstr("did you mean \"" + role + "\"?")) << name;
  }
}

TEST(Configuration, AForgottenCommaIsToldAtTheEndOfItsLine) {
  Folder folder("{\n  \"bom\": \"a.csv\"\n  \"texts\": \"b.csv\"\n}");
  folder.configuration.FindOptional(Role::kBom);
  EXPECT_EQ(folder.messages.Text(), folder.manifestPath +
                                        ":2:17: error: a comma is missing here, behind \"a.csv\"; write a "
                                        "comma behind every entry but the last\n");
}

TEST(Configuration, AFullWidthQuoteIsToldByItsName) {
  Folder folder("{“bom”: \"a.csv\"}");
  folder.configuration.FindOptional(Role::kBom);
  EXPECT_EQ(folder.messages.Text(), folder.manifestPath +
                                        ":1:2: error: “ is a full-width character, which JSON does not know; "
                                        "write the half-width quote \"\n");
}

TEST(Configuration, WithoutFolderTheVariableLeadsToTheActiveOne) {
  const test::TemporaryFolder files;
  files.WriteTable("config/standard.csv", "文件夹名称,有效配置\n标准,Y\n");
  files.WriteBytes("config/标准/tables.json", R"({"bom": "材料.csv"})");
  const std::u8string rootPath = files.Path().u8string();
  const std::string root(rootPath.begin(), rootPath.end());
  const test::ScopedVariable variable("TQConfig", root);
  test::Messages messages;
  const ConfigurationOptions options;
  Configuration configuration(options, messages.reporter);
  const auto bom = configuration.Find(Role::kBom);
  ASSERT_TRUE(bom) << messages.Text();
  const char separator = static_cast<char>(std::filesystem::path::preferred_separator);
  EXPECT_EQ(bom->shownAs, root + separator + "config" + separator + "标准" + separator + "材料.csv");
}

TEST(Configuration, WithNeitherFolderNorVariableItSaysSo) {
  const test::ScopedVariable root("TQConfig", std::nullopt);
  test::Messages messages;
  const ConfigurationOptions options;
  Configuration configuration(options, messages.reporter);
  EXPECT_FALSE(configuration.FindOptional(Role::kBom));
  EXPECT_EQ(messages.Text(),
            "plateconfig: error: TQConfig is not set, and no configuration folder was given with --config\n");
}

TEST(Configuration, ARoleWithAnEmptyFileNameIsAnErrorAndHasNoTable) {
  Folder folder(R"({"bom": ""})");
  EXPECT_FALSE(folder.Find(Role::kBom));
  EXPECT_THAT(folder.messages.Text(),
              StartsWith(folder.manifestPath + ":1:9: error: the role bom names no file"));
}

}  // namespace
}  // namespace plateconfig
