#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <nlohmann/json.hpp>

#include "support/companion.h"

namespace plateconfig {
namespace {

using Json = nlohmann::json;
using test::ArgumentPath;
using test::CompanionResult;
using test::RunPlateconfig;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;

class PictureCommand : public testing::Test {
 protected:
  std::string Path(const std::string& name) const { return ArgumentPath(folder_, name); }

  static CompanionResult Picture(std::vector<std::string> arguments) {
    arguments.insert(arguments.begin(), "picture");
    return RunPlateconfig(std::move(arguments));
  }

  /// What a picture that can be drawn gives.
  static Json Drawn(std::vector<std::string> arguments) {
    const CompanionResult result = Picture(std::move(arguments));
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_THAT(result.err, IsEmpty());
    return Json::parse(result.out, nullptr, false);
  }

  static void ExpectRefused(const std::vector<std::string>& arguments, const std::string& english,
                            const std::string& chinese) {
    const CompanionResult inEnglish = Picture(arguments);
    EXPECT_EQ(inEnglish.exitCode, 2);
    EXPECT_THAT(inEnglish.out, IsEmpty());
    EXPECT_THAT(inEnglish.err, HasSubstr("error: " + english + "\n"));
    std::vector<std::string> further = arguments;
    further.insert(further.end(), {"--lang", "zh"});
    EXPECT_THAT(Picture(further).err, HasSubstr("错误: " + chinese + "\n"));
  }

  test::TemporaryFolder folder_;
};

// ---- cells ----

TEST_F(PictureCommand, CellsAreThoseOfTheFileWithTheLineOfEachRow) {
  folder_.WriteTable("规则.csv", "模板所在图层,长度范围,下料\n12,100_500,\"锯床,\n下料\"\n13\n");
  EXPECT_EQ(Drawn({"cells", Path("规则.csv")}),
            Json({{"file", Path("规则.csv")},
                  {"form", "table"},
                  {"encoding", "gbk"},
                  {"columns", 3},
                  {"rows",
                   {{{"line", 1}, {"cells", {"模板所在图层", "长度范围", "下料"}}},
                    {{"line", 2}, {"cells", {"12", "100_500", "锯床,\n下料"}}},
                    {{"line", 4}, {"cells", Json::array({"13"})}}}}}));
}

TEST_F(PictureCommand, TheFormOfAFileIsSaidAsTheCheckSeesIt) {
  const auto formOf = [&](const std::string& bytes) {
    folder_.WriteBytes("a.csv", bytes);
    const Json json = Drawn({"cells", Path("a.csv")});
    return json["form"].get<std::string>() + " " + json["encoding"].dump() + " " +
           std::to_string(json["rows"].size());
  };
  EXPECT_EQ(formOf("a,b\n1,2\n"), "table \"gbk\" 2");
  EXPECT_EQ(formOf("名称,值\n"), "utf8 \"utf-8\" 1");
  EXPECT_EQ(formOf(std::string("\xFF\xFE"
                               "a\0",
                               4)),
            "utf16 null 0");
  EXPECT_EQ(formOf("PK\x03\x04"), "workbook null 0");
  EXPECT_EQ(formOf("a,b\r1,2"), "carriage-returns \"gbk\" 1");
  EXPECT_EQ(formOf("sep=,\na,b\n"), "separator-line \"gbk\" 2");
  EXPECT_EQ(formOf("a;b\n"), "wrong-separator \"gbk\" 1");
  EXPECT_EQ(formOf(""), "table \"gbk\" 0");
}

TEST_F(PictureCommand, ABytesThatIsNoCharacterIsShownAsOneOfItsOwn) {
  folder_.WriteBytes("a.csv", "a\xFF,b\n");
  EXPECT_EQ(Drawn({"cells", Path("a.csv")})["rows"][0]["cells"][0], "a\xEF\xBF\xBD");
  folder_.WriteBytes("b.csv",
                     "\xEF\xBB\xBF"
                     "a\xFF,b\n");
  EXPECT_EQ(Drawn({"cells", Path("b.csv")})["rows"][0]["cells"][0], "a\xEF\xBF\xBD");
}

TEST_F(PictureCommand, CellsWantOneFileThatCanBeRead) {
  ExpectRefused({"cells"}, "the cells of one table are drawn: give one file",
                "一次画出一个表的单元格：请给出一个文件");
  ExpectRefused({"cells", "a", "b"}, "the cells of one table are drawn: give one file",
                "一次画出一个表的单元格：请给出一个文件");
  ExpectRefused({"cells", Path("fehlt.csv")}, "there is no such file", "此文件不存在");
  folder_.WriteBytes("folder/a", "");
  ExpectRefused({"cells", Path("folder")}, "this file can not be read", "无法读取此文件");
}

// ---- options ----

TEST_F(PictureCommand, AnOptionOrAFileOfAnotherPictureIsRefused) {
  const auto expectRefused = [](const std::vector<std::string>& arguments, const std::string& what) {
    ExpectRefused(arguments, "picture " + arguments[0] + " takes no " + what,
                  "picture " + arguments[0] + " 不接受 " + what);
  };
  expectRefused({"cells", "a", "--x", "length"}, "--x");
  expectRefused({"cells", "a", "--config", "b"}, "--config");
  expectRefused({"map", "--types", "a"}, "--types");
  expectRefused({"changes", "a", "b", "--config", "c"}, "--config");
  expectRefused({"holes", "a", "--paper", "1x1"}, "--paper");
  expectRefused({"sheet", "--profile"}, "--profile");
  ExpectRefused({"map", "a.csv"}, "picture map takes no file such as a.csv",
                "picture map 不接受 a.csv 这样的文件");
  ExpectRefused({"sheet", "a.csv"}, "picture sheet takes no file such as a.csv",
                "picture sheet 不接受 a.csv 这样的文件");
}

TEST_F(PictureCommand, ValuesThatAreNoneAreRefusedWithAnExample) {
  for (const char* range : {"5", "5_", "8_5", "5_5", "-1_5", "1_2_3", "0_inf"})
    ExpectRefused({"map", "--x-range", range},
                  "--x-range: \"" + std::string(range) + "\" is no range; write it like 50_800",
                  "--x-range: “" + std::string(range) + "”不是范围；请写成 50_800 这样的形式");
  for (const char* fixed : {"thickness", "thickness=", "thickness=-1", "thickness=0", "hight=3", "=3"})
    ExpectRefused(
        {"map", "--fixed", fixed},
        "--fixed: \"" + std::string(fixed) + "\" is no size with a value; write it like thickness=30",
        "--fixed: “" + std::string(fixed) + "”不是尺寸及其数值；请写成 thickness=30 这样的形式");
  ExpectRefused({"map", "--body-color", "red"}, "--body-color: \"red\" is no colour index",
                "--body-color: “red”不是颜色号");
  ExpectRefused({"map", "--x", "lenght"},
                "--x: \"lenght\" is none of length, width, thickness, weight; did you mean \"length\"?",
                "--x: “lenght”不是 length, width, thickness, weight 之一；是否应为“length”？");
}

// ---- map ----

class MapCommand : public PictureCommand {
 protected:
  MapCommand() {
    folder_.WriteBytes("tables.json", R"({"process-rules": "规则.csv"})");
    folder_.WriteTable(
        "规则.csv",
        "模板所在图层,长度范围,宽度范围,下料\n12,100_500,100_400,\"锯床\n下料\"\n13,300_800,100_300,铣\n"
        "14,350_450,150_250,铣\n");
  }

  Json Map(std::vector<std::string> options = {}) const {
    std::vector<std::string> arguments = {"map", "--config", Path(""), "--x", "length", "--y", "width"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return Drawn(arguments);
  }
};

Json Boxes(std::initializer_list<std::array<double, 4>> boxes) {
  Json list = Json::array();
  for (const auto& box : boxes) list.push_back({{"x", {box[0], box[1]}}, {"y", {box[2], box[3]}}});
  return list;
}

TEST_F(MapCommand, RegionsNameTheirRowAndTheLineOnWhichItBegins) {
  const Json map = Map({"--fixed", "thickness=30"});
  EXPECT_EQ(map["x"], Json({{"size", "length"}, {"from", 0.0}, {"to", 880.0}}));
  EXPECT_EQ(map["y"], Json({{"size", "width"}, {"from", 0.0}, {"to", 440.0}}));
  EXPECT_EQ(map["plate"], Json({{"bodyColor", 1}, {"profile", false}, {"wireCutting", false}}));
  EXPECT_EQ(map["fixed"], Json({{"thickness", 30.0}, {"weight", 500.0}}));
  EXPECT_EQ(map["possible"], true);
  EXPECT_EQ(map["complete"], true);
  EXPECT_EQ(map["group"], Json({{"colors", Json::array()}, {"profile", false}, {"wireCutting", false}}));
  EXPECT_EQ(map["hull"]["length"], Json({100.0, 800.001}));
  EXPECT_EQ(map["hull"]["weight"], Json({0.0, 999999.001}));
  ASSERT_EQ(map["regions"].size(), 3U);
  EXPECT_EQ(map["regions"][0], Json({{"row", 2},
                                     {"line", 2},
                                     {"layer", "12"},
                                     {"matches", Boxes({{100, 500.001, 100, 400.001}})},
                                     {"wins", Boxes({{100, 500.001, 100, 400.001}})},
                                     {"hidden", Json::array()},
                                     {"hiddenBy", Json::array()},
                                     {"neighbours", Json::array()}}));
  EXPECT_EQ(map["regions"][1]["line"], 4);
  EXPECT_EQ(map["regions"][1]["wins"], Boxes({{500.00100000000003, 800.001, 100, 300.001}}));
  Json hidden = Boxes({{300, 500.001, 100, 300.001}});
  hidden[0]["by"] = 2;
  EXPECT_EQ(map["regions"][1]["hidden"], hidden);
  EXPECT_EQ(map["regions"][1]["hiddenBy"], Json({2}));
  EXPECT_EQ(map["regions"][1]["neighbours"], Json({2}));
  EXPECT_EQ(map["regions"][2]["hiddenBy"], Json({2}));
  EXPECT_EQ(map["regions"][2]["neighbours"], Json::array());
  EXPECT_EQ(map["gaps"], Boxes({{500.00100000000003, 800.001, 300.00100000000003, 400.001}}));
}

TEST_F(MapCommand, SizesTellTheirHullTheirRangeAndTheBoundsOfTheRows) {
  const Json sizes = Map({"--x-range", "50_60.5"})["sizes"];
  EXPECT_EQ(sizes["length"], Json({{"hull", {100.0, 800.001}},
                                   {"shown", {50.0, 60.5}},
                                   {"bounds", {100, 300, 350, 450, 500, 800}},
                                   {"slider", {{"from", 1.0}, {"to", 880.0}, {"step", 1.0}}}}));
  EXPECT_EQ(sizes["weight"], Json({{"hull", {0.0, 999999.001}},
                                   {"shown", {0.0, 1000.0}},
                                   {"bounds", Json::array()},
                                   {"slider", {{"from", 0.0}, {"to", 1000.0}, {"step", 1.0}}}}));
}

TEST_F(MapCommand, AHullWithoutAnEndHasNone) {
  folder_.WriteTable("规则.csv", "模板所在图层,长度范围\n12,100_inf\n");
  const Json map = Map();
  EXPECT_EQ(map["hull"]["length"], Json({100.0, nullptr}));
  EXPECT_EQ(map["regions"][0]["matches"], Boxes({{100, 110, 0, 1000}}));
}

TEST_F(MapCommand, AnswersThatNoPlateGivesAreSaid) {
  const Json map = Map({"--profile", "--wire-cutting", "--body-color", "7"});
  EXPECT_EQ(map["possible"], false);
  EXPECT_EQ(map["hull"], nullptr);
  EXPECT_EQ(map["sizes"]["length"]["hull"], nullptr);
  EXPECT_EQ(map["regions"], Json::array());
  EXPECT_EQ(map["plate"], Json({{"bodyColor", 7}, {"profile", true}, {"wireCutting", true}}));
  EXPECT_EQ(map["choices"]["answers"], Json::array({{{"profile", false}, {"wireCutting", false}}}));
  EXPECT_EQ(map["choices"]["colors"], Json::array({{{"colors", Json::array()}, {"example", 1}}}));
}

TEST_F(MapCommand, TwoDifferentSizesAreWantedAndTheOthersFixedOnce) {
  const std::string folder = Path("");
  ExpectRefused({"map", "--config", folder}, "a map spans two sizes: give --x SIZE and --y SIZE",
                "规则图由两个尺寸展开：请给出 --x 尺寸 和 --y 尺寸");
  ExpectRefused({"map", "--config", folder, "--x", "width", "--y", "width"},
                "--x and --y are both width; a map spans two sizes",
                "--x 和 --y 都是 width；规则图由两个不同的尺寸展开");
  for (const char* fixed : {"length=3", "width=3", "weight=1,weight=0"})
    ExpectRefused({"map", "--config", folder, "--x", "length", "--y", "width", "--fixed", fixed},
                  std::string("--fixed ") + (fixed[0] == 'w' && fixed[1] == 'e' ? "weight=0" : fixed) +
                      ": this size is an axis of the map, or given twice",
                  std::string("--fixed ") + (fixed[0] == 'w' && fixed[1] == 'e' ? "weight=0" : fixed) +
                      "：此尺寸是规则图的坐标轴，或重复给出");
}

TEST_F(MapCommand, WithoutARuleTableThereIsNoMap) {
  folder_.WriteBytes("tables.json", "{}");
  const auto none = Picture({"map", "--config", Path(""), "--x", "length", "--y", "width"});
  EXPECT_EQ(none.exitCode, 2);
  EXPECT_THAT(none.out, IsEmpty());
  EXPECT_THAT(none.err, HasSubstr("no table plays the role process-rules"));
  folder_.WriteBytes("tables.json", R"({"process-rules": "fehlt.csv"})");
  const auto missing = Picture({"map", "--config", Path(""), "--x", "length", "--y", "width"});
  EXPECT_EQ(missing.exitCode, 2);
  EXPECT_THAT(missing.out, IsEmpty());
  EXPECT_THAT(missing.err, HasSubstr("fehlt.csv"));
}

TEST_F(MapCommand, ATableInAnotherFormIsReported) {
  folder_.WriteBytes("规则.csv", "模板所在图层,长度范围\n12,100_500\n");
  const auto result = Picture({"map", "--config", Path(""), "--x", "length", "--y", "width"});
  EXPECT_THAT(result.err, HasSubstr("UTF-8"));
  EXPECT_EQ(Json::parse(result.out)["regions"], Json::array());
}

// ---- changes ----

class ChangesCommand : public PictureCommand {
 protected:
  static constexpr const char* kHeader =
      "通用要求,通用参数,排工艺顺序,排顺序工艺类型,模板所在图层,长度范围,宽度范围,下料\n";

  void Write(const std::string& folder, const std::string& rows) const {
    folder_.WriteBytes(folder + "/tables.json", R"({"process-rules": "规则.csv"})");
    folder_.WriteTable(folder + "/规则.csv", kHeader + rows);
  }

  std::vector<std::string> Arguments(std::vector<std::string> options) const {
    std::vector<std::string> arguments = {"changes", Path("old"), Path("new"), "--x",
                                          "length",  "--y",       "width"};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return arguments;
  }
};

TEST_F(ChangesCommand, ABoxHasTheRowsOfBothTables) {
  Write("old", ",,下料,自定义追加工艺,12,100_500,100_400,锯\n");
  Write("new", ",,下料,自定义追加工艺,12,100_300,100_400,铣\n,,,,13,301_500,100_400,锯\n");
  const Json json = Drawn(Arguments({"--fixed", "thickness=30,weight=8"}));
  EXPECT_EQ(json["x"], Json({{"size", "length"}, {"from", 0.0}, {"to", 550.0}}));
  EXPECT_EQ(json["y"], Json({{"size", "width"}, {"from", 0.0}, {"to", 440.0}}));
  EXPECT_EQ(json["plate"], Json({{"bodyColor", 1}, {"profile", false}, {"wireCutting", false}}));
  EXPECT_EQ(json["fixed"], Json({{"thickness", 30.0}, {"weight", 8.0}}));
  EXPECT_EQ(json["sizes"]["length"], Json({{"shown", {0.0, 550.0}}, {"bounds", {100, 300, 301, 500}}}));
  EXPECT_EQ(json["answersAgree"], true);
  EXPECT_EQ(json["complete"], true);
  Json regions = Boxes(
      {{100, 300.001, 100, 400.001}, {std::nextafter(300.001, 400), std::nextafter(301, 0), 100, 400.001}});
  regions[0].update({{"oldRow", 2}, {"newRow", 2}});
  regions[1].update({{"oldRow", 2}, {"newRow", nullptr}});
  EXPECT_EQ(json["regions"], regions);
  ASSERT_EQ(json["groups"].size(), 1U);
  EXPECT_EQ(json["groups"][0]["regions"], 2);
  EXPECT_EQ(json["groups"][0]["colors"], Json::array());
  EXPECT_EQ(json["groups"][0]["example"]["length"], 200);
}

TEST_F(ChangesCommand, WhereAnswersDifferEachBoxTellsItsGroup) {
  Write("old", "有型面,190,下料,自定义追加工艺,12,100_500,100_400,锯\n");
  Write("new", "有型面,191,下料,自定义追加工艺,12,100_500,100_400,铣\n");
  const Json json = Drawn(Arguments({}));
  EXPECT_EQ(json["answersAgree"], false);
  ASSERT_EQ(json["regions"].size(), 2U);  // With and without the old table's profile.
  EXPECT_EQ(json["regions"][0]["group"]["newProfile"], false);
  EXPECT_NE(json["regions"][0]["group"]["oldProfile"], json["regions"][1]["group"]["oldProfile"]);
}

TEST_F(ChangesCommand, TwoFoldersAreWanted) {
  for (const std::vector<std::string>& folders : {std::vector<std::string>{}, {"a"}, {"a", "b", "c"}}) {
    std::vector<std::string> arguments = {"changes"};
    arguments.insert(arguments.end(), folders.begin(), folders.end());
    ExpectRefused(arguments, "give two configuration folders, the old one and the new one",
                  "请给出两个配置文件夹：先旧后新");
  }
  ExpectRefused({"changes", "a", "b"}, "a map spans two sizes: give --x SIZE and --y SIZE",
                "规则图由两个尺寸展开：请给出 --x 尺寸 和 --y 尺寸");
  Write("old", "");
  const auto missing = Picture(Arguments({}));
  EXPECT_EQ(missing.exitCode, 2);
  EXPECT_THAT(missing.out, IsEmpty());
  EXPECT_THAT(missing.err, HasSubstr("this configuration folder does not exist"));
}

// ---- holes ----

TEST_F(PictureCommand, HolesStandInSectionBesideTheirTypes) {
  folder_.WriteTable("types.csv",
                     "名称,结构,顶颜色,通颜色,底颜色,顶直径,通直径,底直径,说明\n"
                     "通用,1_1_0,0,0,,0,0,,\nM8,1_1_0,36,31,,14,9,,螺丝\n");
  folder_.WriteTable("holes.csv",
                     "孔名称,位置,直径,高度,R高度,颜色,X,Y,Z\n"
                     "K1,顶,14,9,2,36,1,2,90\nK1,通,9,81,,31,1,2,81\nK2,顶,8,,,6,0,0,0\n");
  const Json json = Drawn({"holes", "--types", Path("types.csv"), Path("holes.csv")});
  ASSERT_EQ(json["holes"].size(), 2U);
  EXPECT_EQ(json["holes"][0], Json({{"name", "K1"},
                                    {"structure", "1_1_0"},
                                    {"through", true},
                                    {"length", 90},
                                    {"maxDiameter", 14},
                                    {"origin", {1, 2, 90}},
                                    {"segments",
                                     {{{"group", "top"},
                                       {"shape", "cylinder"},
                                       {"diameter", 14},
                                       {"from", 0},
                                       {"to", 9},
                                       {"height", 9},
                                       {"rHeight", 2},
                                       {"color", 36}},
                                      {{"group", "through"},
                                       {"shape", "cylinder"},
                                       {"diameter", 9},
                                       {"from", 9},
                                       {"to", 90},
                                       {"height", 81},
                                       {"rHeight", nullptr},
                                       {"color", 31}}}},
                                    {"tied", false},
                                    {"types",
                                     {{{"name", "M8"}, {"score", 5}, {"best", true}, {"content", "螺丝"}},
                                      {{"name", "通用"}, {"score", 0}, {"best", false}, {"content", ""}}}}}));
  EXPECT_EQ(json["holes"][1]["through"], nullptr);
  EXPECT_EQ(json["holes"][1]["length"], nullptr);
  EXPECT_EQ(json["holes"][1]["segments"][0]["to"], nullptr);
  EXPECT_EQ(json["holes"][1]["types"], Json::array());
}

TEST_F(PictureCommand, HolesAreDrawnWithoutAnyType) {
  folder_.WriteTable("holes.csv", "孔名称,位置,直径,颜色\nK1,通,9,31\n");
  EXPECT_EQ(Drawn({"holes", Path("holes.csv")})["holes"][0]["types"], Json::array());
}

TEST_F(PictureCommand, HolesWantAFileOfThem) {
  ExpectRefused({"holes"}, "give a file of combined holes to draw", "请给出要画的组合孔文件");
  const auto missing = Picture({"holes", Path("fehlt.csv")});
  EXPECT_EQ(missing.exitCode, 2);
  EXPECT_THAT(missing.err, EndsWith("there is no such file\n"));
}

// ---- sheet ----

class SheetCommand : public PictureCommand {
 protected:
  SheetCommand() {
    folder_.WriteBytes("tables.json", R"({"layout-defaults": "布局.csv", "frame-info": "图框.csv"})");
    folder_.WriteTable("布局.csv",
                       "图框的颜色,图框的图层,俯视图左上角交点X坐标所占图纸长度的比例,"
                       "俯视图左上角交点Y坐标所占图纸高度的比例,"
                       "表头-X位置比例,表头-Y位置比例,表头-显示名称,表头-属性名称,表头-文字样式,"
                       "基准圆的标准直径,加工要求左上角交点X坐标所占图纸长度的比例-小图\n"
                       "7,230,0.25,0.75,0.5,0.125,序号,NO,宋体|5|1|1|1|1,12,0.125\n");
    folder_.WriteTable("图框.csv", "图框信息-左边距,图框信息-顶边距,图框信息-属性名称\n0.5,0.25,MOLD\n");
  }

  Json Sheet(std::vector<std::string> options = {}) const {
    std::vector<std::string> arguments = {"sheet", "--config", Path("")};
    arguments.insert(arguments.end(), options.begin(), options.end());
    return Drawn(arguments);
  }

  Json Key(const std::string& column, const std::string& cell, const std::string& value) const {
    return {{"role", "layout-defaults"},
            {"column", column},
            {"file", Path("布局.csv")},
            {"cell", cell},
            {"value", value},
            {"source", "table"}};
  }

  /// The first entry of a list whose label is this in Chinese.
  static Json Named(const Json& list, const std::string& member, const std::string& name) {
    for (const Json& entry : list) {
      if (entry[member]["zh"] == name) return entry;
    }
    ADD_FAILURE() << name;
    return {};
  }
};

TEST_F(SheetCommand, PartsStandInMillimetresWithTheirCells) {
  const Json json = Sheet({"--paper", "400x200"});
  EXPECT_EQ(json["paper"], Json({{"width", 400.0}, {"height", 200.0}, {"given", true}}));
  EXPECT_EQ(json["size"], "large");
  ASSERT_EQ(json["sheets"].size(), 3U);
  const Json& sheet = json["sheets"][0];
  EXPECT_EQ(sheet["name"], "layout-defaults");
  EXPECT_EQ(sheet["title"], Json({{"zh", "布局默认值"}, {"en", "layout defaults"}}));
  EXPECT_EQ(sheet["width"], 400);
  EXPECT_EQ(sheet["height"], 200);
  EXPECT_EQ(sheet["parts"][0],
            Json({{"kind", "rectangle"},
                  {"x", 0},
                  {"y", 0},
                  {"width", 400},
                  {"height", 200},
                  {"color", 7},
                  {"layer", 230},
                  {"label", {{"zh", "图框"}, {"en", "frame"}}},
                  {"assumes", {"paper", "frame"}},
                  {"keys", {Key("图框的颜色", "A2", "7"), Key("图框的图层", "B2", "230")}}}));
  const Json corner = sheet["parts"][1];
  EXPECT_EQ(corner["kind"], "point");
  EXPECT_EQ(corner["x"], 100);
  EXPECT_EQ(corner["y"], 150);
  EXPECT_EQ(corner["anchor"], "top-left");
  EXPECT_EQ(corner["color"], nullptr);
  const Json column = Named(sheet["parts"], "label", "材料表表头的一列");
  EXPECT_EQ(column["kind"], "text");
  EXPECT_EQ(column["x"], 200);
  EXPECT_EQ(column["y"], 25);
  EXPECT_EQ(column["anchor"], nullptr);
  EXPECT_EQ(column["text"], "序号");
  EXPECT_EQ(column["attribute"], "NO");
  EXPECT_EQ(column["textHeight"], 5);
  EXPECT_EQ(column["font"], "宋体");
  EXPECT_EQ(column["layer"], 1);
  EXPECT_EQ(column["keys"].back()["source"], "absent column");
  EXPECT_EQ(column["keys"].back()["cell"], nullptr);
  const Json text = Named(json["sheets"][2]["parts"], "label", "图框信息");
  EXPECT_EQ(text["text"], nullptr);
  EXPECT_EQ(text["attribute"], "MOLD");
  EXPECT_EQ(text["y"], 150);
}

TEST_F(SheetCommand, WhatHasNoPlaceSaysWhyAndShowsASpecimen) {
  const Json json = Sheet();
  EXPECT_EQ(json["paper"], Json({{"width", 420.0}, {"height", 297.0}, {"given", false}}));
  const Json& unknown = json["sheets"][0]["unknown"];
  const Json circle = Named(unknown, "what", "爆炸图基准圆");
  EXPECT_EQ(circle["why"]["en"], "no table says where on the sheet it is drawn");
  EXPECT_EQ(circle["specimen"], Json({{"kind", "circle"}, {"diameter", 12}, {"color", 1}, {"layer", 1}}));
  EXPECT_EQ(circle["keys"][0], Key("基准圆的标准直径", "J2", "12"));
  EXPECT_EQ(Named(unknown, "what", "图层间距")["specimen"],
            Json({{"kind", "length"}, {"length", 5000}, {"color", nullptr}, {"layer", nullptr}}));
  EXPECT_EQ(Named(unknown, "what", "视图外框")["specimen"],
            Json({{"kind", "line"}, {"color", 1}, {"layer", nullptr}}));
  EXPECT_EQ(Named(unknown, "what", "全部视图合起来的范围")["specimen"]["width"], 336);
  const Json& custom = json["sheets"][1]["unknown"];
  EXPECT_EQ(Named(custom, "what", "特征代号")["specimen"]["textHeight"], 3);
  EXPECT_EQ(Named(custom, "what", "外形注解")["specimen"], nullptr);
  EXPECT_EQ(Named(custom, "what", "代号文字")["keys"][0]["source"], "class");
  EXPECT_EQ(Named(custom, "what", "代号文字")["keys"][0]["file"], nullptr);
}

TEST_F(SheetCommand, SmallSheetsHaveTheirOwnPlaces) {
  const Json json = Sheet({"--size", "small", "--paper", "400x200"});
  EXPECT_EQ(json["size"], "small");
  EXPECT_EQ(Named(json["sheets"][0]["parts"], "label", "加工要求")["x"], 50);
}

TEST_F(SheetCommand, WhatIsAssumedIsSaidInBothLanguages) {
  const Json assumed = Sheet()["assumed"];
  ASSERT_EQ(assumed.size(), 8U);
  EXPECT_EQ(assumed[0],
            Json({{"id", "paper"},
                  {"text", {{"zh", "各表中没有纸张的大小"}, {"en", "no table has the size of the paper"}}}}));
}

TEST_F(SheetCommand, AFolderThatCanNotBeUsedGivesNoSheet) {
  const auto none = Picture({"sheet", "--config", Path("fehlt")});
  EXPECT_EQ(none.exitCode, 2);
  EXPECT_THAT(none.out, IsEmpty());
}

TEST_F(SheetCommand, ATableThatIsMissingIsReportedAndTheSheetDrawnWithoutIt) {
  folder_.WriteBytes("tables.json", R"({"layout-defaults": "fehlt.csv"})");
  const auto result = Picture({"sheet", "--config", Path("")});
  EXPECT_THAT(result.err, HasSubstr("fehlt.csv"));
  EXPECT_EQ(Json::parse(result.out)["sheets"].size(), 3U);
}

TEST_F(SheetCommand, ATableCanStandInForTheFoldersOwn) {
  folder_.WriteTable("neu.csv", "俯视图左上角交点X坐标所占图纸长度的比例\n0.5\n");
  const Json json = Sheet({"--layout-defaults", Path("neu.csv"), "--paper", "400x200"});
  EXPECT_EQ(json["sheets"][0]["parts"][1]["x"], 200);
  EXPECT_EQ(json["sheets"][0]["parts"][1]["keys"][0]["file"], Path("neu.csv"));
  EXPECT_EQ(Named(json["sheets"][2]["parts"], "label", "图框信息")["attribute"], "MOLD");
}

TEST_F(SheetCommand, PaperIsTwoNumbersAboveZero) {
  for (const char* paper : {"a4", "420", "420x", "x297", "0x297", "420x0", "420x297x1", "-1x2"})
    ExpectRefused({"sheet", "--paper", paper},
                  "--paper: \"" + std::string(paper) + "\" is no paper size in mm; write it like 420x297",
                  "--paper: “" + std::string(paper) + "”不是以毫米计的纸张尺寸；请写成 420x297 这样的形式");
}

TEST_F(PictureCommand, APictureGoesIntoAFile) {
  folder_.WriteTable("a.csv", "a\n");
  const auto result = Picture({"cells", Path("a.csv"), "-o", Path("a.json")});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(Json::parse(test::ReadBytes(folder_.Path() / "a.json"))["columns"], 1);
}

}  // namespace
}  // namespace plateconfig
