// The examples of docs/pictures.md are what the command gives.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>

#include "support/companion.h"

namespace plateconfig {
namespace {

using Json = nlohmann::json;
using test::ArgumentPath;
using test::RunPlateconfig;

/// The JSON examples of the page, in their order.
std::vector<Json> Examples() {
  const std::string page = test::ReadBytes(PLATECONFIG_SAMPLES_DIR "/../docs/pictures.md");
  constexpr std::string_view kBegin = "```json\n";
  std::vector<Json> examples;
  for (std::size_t at = page.find(kBegin); at != std::string::npos; at = page.find(kBegin, at)) {
    at += kBegin.size();
    examples.push_back(Json::parse(page.substr(at, page.find("```", at) - at), nullptr, false));
  }
  return examples;
}

class PicturesPage : public testing::Test {
 protected:
  PicturesPage() : examples_(Examples()) {}

  std::string Path(const std::string& name) const { return ArgumentPath(folder_, name); }

  static Json Picture(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "picture");
    return Json::parse(RunPlateconfig(std::move(arguments)).out, nullptr, false);
  }

  void WriteRules(const std::string& folder, const std::string& rules) const {
    folder_.WriteBytes(folder + "/tables.json", R"({"process-rules": "规则.csv"})");
    folder_.WriteTable(folder + "/规则.csv", rules);
  }

  test::TemporaryFolder folder_;
  std::vector<Json> examples_;
};

TEST_F(PicturesPage, HasAnExampleOfEachPicture) {
  ASSERT_EQ(examples_.size(), 5U);
  for (const Json& example : examples_) EXPECT_TRUE(example.is_object());
}

TEST_F(PicturesPage, ShowsTheCellsOfATable) {
  folder_.WriteTable("规则.csv", "模板所在图层,长度范围,下料\n12,100_500,\"锯床,\n下料\"\n13\n");
  Json cells = Picture({"cells", Path("规则.csv")});
  cells["file"] = "规则.csv";
  EXPECT_EQ(cells, examples_.at(0));
}

TEST_F(PicturesPage, ShowsAMap) {
  WriteRules("a",
             "模板所在图层,长度范围,宽度范围\n12,100_500,100_400\n13,300_800,100_300\n14,350_450,150_250\n");
  EXPECT_EQ(
      Picture({"map", "--config", Path("a"), "--x", "length", "--y", "width", "--fixed", "thickness=30"}),
      examples_.at(1));
}

TEST_F(PicturesPage, ShowsChanges) {
  const std::string header = "排工艺顺序,排顺序工艺类型,模板所在图层,长度范围,宽度范围,下料\n";
  WriteRules("old", header + "下料,有无圆孔,12,100_500,100_400,锯\n");
  WriteRules("new", header + "下料,有无圆孔,12,100_300,100_400,铣\n,,13,301_500,100_400,锯\n");
  EXPECT_EQ(Picture({"changes", Path("old"), Path("new"), "--x", "length", "--y", "width"}), examples_.at(2));
}

TEST_F(PicturesPage, ShowsHoles) {
  folder_.WriteTable("类型.csv",
                     "名称,结构,顶颜色,通颜色,底颜色,顶直径,通直径,底直径,说明\n"
                     "M12沉头螺丝孔,1_1_0,36,36,,20,13.5_14,,M12 内六角螺丝，正面沉头\n");
  folder_.WriteTable(
      "孔.csv",
      "孔名称,位置,直径,颜色,高度,X,Y,Z\nA板-M12-1,顶,20,36,13,40,35,90\nA板-M12-1,通,14,36,77,40,35,77\n"
      "B板-螺纹-1,顶,8,6,,0,0,0\nB板-螺纹-1,顶,6.8,6,20,0,0,0\n");
  EXPECT_EQ(Picture({"holes", "--types", Path("类型.csv"), Path("孔.csv")}), examples_.at(3));
}

/// The entry of a list that has the same in this member; null when there is none.
Json Like(const Json& list, const char* member, const Json& entry) {
  const auto found =
      std::find_if(list.begin(), list.end(), [&](const Json& each) { return each[member] == entry[member]; });
  if (found == list.end()) return nullptr;
  Json like = *found;
  Json first = like["keys"].at(0);
  first["file"] = entry["keys"].at(0)["file"];  // The page runs in the project's folder.
  like["keys"] = Json::array({first});
  return like;
}

TEST_F(PicturesPage, ShowsPartsOfASheet) {
  const Json sheet = Picture(
      {"sheet", "--config", PLATECONFIG_SAMPLES_DIR "/config/标准", "--size", "large", "--paper", "420x297"});
  const Json& example = examples_.at(4);
  EXPECT_EQ(sheet["paper"], example["paper"]);
  EXPECT_EQ(sheet["size"], example["size"]);
  EXPECT_THAT(sheet["assumed"], testing::Contains(example["assumed"][0]));
  const Json& shown = example["sheets"][0];
  for (const char* member : {"name", "title", "width", "height"})
    EXPECT_EQ(sheet["sheets"][0][member], shown[member]);
  for (const Json& part : shown["parts"]) EXPECT_EQ(Like(sheet["sheets"][0]["parts"], "label", part), part);
  for (const Json& part : shown["unknown"])
    EXPECT_EQ(Like(sheet["sheets"][0]["unknown"], "what", part), part);
}

}  // namespace
}  // namespace plateconfig
