#include "analysis/pictures/drawing_sheets.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <set>
#include <stdexcept>
#include <string>

#include "analysis/pictures/sheet_words.h"
#include "analysis/schema/table_schema.h"
#include "support/gbk_text.h"
#include "support/temporary_folder.h"

namespace plateconfig {
namespace {

using test::Gbk;
using testing::ElementsAre;
using testing::IsEmpty;

/// Tables of a test's own, each named by its role.
class Tables {
 public:
  Tables& With(Role role, std::string_view utf8) {
    const std::string name = std::string(NameOf(role)) + ".csv";
    tables_[role] = {folder_.WriteTable(name, utf8), name};
    return *this;
  }

  DrawingSheets Draw(const SheetQuestion& question = {}) const { return DrawSheets(tables_, question); }
  Sheet Layout(const SheetQuestion& question = {}) const { return Draw(question).sheets[0]; }
  Sheet ExplodedView(const SheetQuestion& question = {}) const { return Draw(question).sheets[1]; }
  Sheet Sub(const SheetQuestion& question = {}) const { return Draw(question).sheets[2]; }

 private:
  test::TemporaryFolder folder_;
  SheetTables tables_;
};

/// The first part or unknown part of this English name.
const SheetPart& Part(const Sheet& sheet, std::string_view label) {
  const auto found = std::find_if(sheet.parts.begin(), sheet.parts.end(),
                                  [&](const SheetPart& part) { return part.label.english == label; });
  if (found == sheet.parts.end()) throw std::runtime_error("no part " + std::string(label));
  return *found;
}

const UnknownPart& Unknown(const Sheet& sheet, std::string_view what) {
  const auto found = std::find_if(sheet.unknown.begin(), sheet.unknown.end(),
                                  [&](const UnknownPart& part) { return part.what.english == what; });
  if (found == sheet.unknown.end()) throw std::runtime_error("no unknown part " + std::string(what));
  return *found;
}

bool HasPart(const Sheet& sheet, std::string_view label) {
  return std::any_of(sheet.parts.begin(), sheet.parts.end(),
                     [&](const SheetPart& part) { return part.label.english == label; });
}

std::vector<std::string> Cells(const std::vector<SheetKey>& keys) {
  std::vector<std::string> cells;
  for (const SheetKey& key : keys) cells.push_back(key.cell);
  return cells;
}

SheetQuestion Paper(double width, double height, SheetSize size = SheetSize::kLarge) {
  return {{width, height}, size};
}

// ---- layout defaults ----

TEST(LayoutSheet, TheFrameLiesOnTheEdgeOfThePaper) {
  Tables tables;
  tables.With(Role::kLayoutDefaults, "图框的颜色,图框的图层\n7,230\n");
  const SheetPart frame = Part(tables.Layout(Paper(200, 100)), "frame");
  EXPECT_EQ(frame.kind, PartKind::kRectangle);
  EXPECT_EQ(frame.x, 0);
  EXPECT_EQ(frame.y, 0);
  EXPECT_EQ(frame.width, 200);
  EXPECT_EQ(frame.height, 100);
  EXPECT_EQ(frame.color, 7);
  EXPECT_EQ(frame.layer, 230);
  EXPECT_THAT(frame.assumes, ElementsAre(Assumption::kPaper, Assumption::kFrame));
  EXPECT_THAT(Cells(frame.keys), ElementsAre("A2", "B2"));
}

TEST(LayoutSheet, PlacesAreSharesOfLengthAndHeightFromTheLowerLeftCorner) {
  Tables tables;
  tables.With(Role::kLayoutDefaults,
              "俯视图左上角交点X坐标所占图纸长度的比例,俯视图左上角交点Y坐标所占图纸高度的比例\n0.25,0.75\n");
  const SheetPart corner = Part(tables.Layout(Paper(400, 200)), "upper left corner of the top view");
  EXPECT_EQ(corner.kind, PartKind::kPoint);
  EXPECT_EQ(corner.x, 100);
  EXPECT_EQ(corner.y, 150);
  EXPECT_TRUE(corner.isTopLeft);
  EXPECT_THAT(corner.assumes, ElementsAre(Assumption::kPaper, Assumption::kOrigin));
  EXPECT_THAT(Cells(corner.keys), ElementsAre("A2", "B2"));
  EXPECT_EQ(corner.keys[1].file, "layout-defaults.csv");
  EXPECT_THAT(corner.keys[1].value, ElementsAre("0.75"));
  EXPECT_EQ(corner.keys[1].source, Source::kTable);
}

TEST(LayoutSheet, LargeAndSmallSheetsHaveTheirOwnPlacesOfANote) {
  Tables tables;
  tables.With(Role::kLayoutDefaults,
              "加工要求左上角交点X坐标所占图纸长度的比例-大图,加工要求左上角交点Y坐标所占图纸高度的比例-大图,"
              "加工要求左上角交点X坐标所占图纸长度的比例-小图,加工要求左上角交点Y坐标所占图纸高度的比例-小图,"
              "加工要求注释的样式,注释文件所在的图层\n0.5,0.25,0.75,0.125,宋体|4|1|1|1|1,205\n");
  const SheetPart large = Part(tables.Layout(Paper(400, 200)), "process note");
  EXPECT_EQ(large.kind, PartKind::kText);
  EXPECT_EQ(large.x, 200);
  EXPECT_EQ(large.y, 50);
  EXPECT_TRUE(large.isTopLeft);
  EXPECT_EQ(large.text.height, 4);
  EXPECT_EQ(large.text.font, Gbk("宋体"));
  EXPECT_THAT(large.text.text, IsEmpty());
  EXPECT_EQ(large.layer, 205);
  EXPECT_EQ(large.color, std::nullopt);
  EXPECT_THAT(Cells(large.keys), ElementsAre("A2", "B2", "E2", "F2"));
  const SheetPart small = Part(tables.Layout(Paper(400, 200, SheetSize::kSmall)), "process note");
  EXPECT_EQ(small.x, 300);
  EXPECT_EQ(small.y, 25);
  EXPECT_THAT(Cells(small.keys), ElementsAre("C2", "D2", "E2", "F2"));
}

TEST(LayoutSheet, EachColumnOfTheHeaderStandsAtItsPointWithCaptionAndAttribute) {
  Tables tables;
  tables.With(Role::kLayoutDefaults,
              "表头-X位置比例,表头-Y位置比例,表头-显示名称,表头-属性名称,表头-文字样式,表头注释所占的图层\n"
              "0.25,0.5,序号,NO,宋体|5|1|1|1|1,7\n0.5,0.5,名称,NAME,,\n");
  const Sheet sheet = tables.Layout(Paper(400, 200));
  std::vector<SheetPart> columns;
  std::copy_if(sheet.parts.begin(), sheet.parts.end(), std::back_inserter(columns),
               [](const SheetPart& part) { return part.text.attribute != ""; });
  ASSERT_EQ(columns.size(), 2U);
  EXPECT_EQ(columns[0].x, 100);
  EXPECT_EQ(columns[0].y, 100);
  EXPECT_FALSE(columns[0].isTopLeft);
  EXPECT_EQ(columns[0].text.text, Gbk("序号"));
  EXPECT_EQ(columns[0].text.height, 5);
  EXPECT_EQ(columns[1].x, 200);
  EXPECT_EQ(columns[1].text.attribute, "NAME");
  EXPECT_EQ(columns[1].text.height, 3);  // The default style.
  EXPECT_EQ(columns[1].layer, 7);
  EXPECT_THAT(Cells(columns[1].keys), ElementsAre("A3", "B3", "C3", "D3", "E3", "F2"));
}

TEST(LayoutSheet, WhatHasASizeButNoPlaceIsASpecimen) {
  Tables tables;
  tables.With(Role::kLayoutDefaults,
              "基准圆的标准直径,基准圆的颜色,爆炸图基准圆的图层,视图间距与图纸长度的比例,"
              "水平方向所有视图总长度与图纸长度的比例,竖直方向所有视图总长度与图纸高度的比例,图层间距\n"
              "12,3,210,0.125,0.5,0.25,4000\n");
  const Sheet sheet = tables.Layout(Paper(400, 200));
  const UnknownPart circle = Unknown(sheet, "datum circle of the exploded view");
  ASSERT_TRUE(circle.specimen);
  EXPECT_EQ(circle.specimen->kind, SpecimenKind::kCircle);
  EXPECT_EQ(circle.specimen->size, 12);
  EXPECT_EQ(circle.specimen->color, 3);
  EXPECT_EQ(circle.specimen->layer, 210);
  EXPECT_THAT(Cells(circle.keys), ElementsAre("A2", "B2", "C2"));
  EXPECT_EQ(Unknown(sheet, "gap between views").specimen->size, 50);
  const Specimen views = *Unknown(sheet, "room of all views together").specimen;
  EXPECT_EQ(views.kind, SpecimenKind::kRectangle);
  EXPECT_EQ(views.size, 200);
  EXPECT_EQ(views.height, 50);
  const Specimen spacing = *Unknown(sheet, "spacing between layers").specimen;
  EXPECT_EQ(spacing.kind, SpecimenKind::kLength);
  EXPECT_EQ(spacing.size, 4000);
}

TEST(LayoutSheet, APlaceThatIsNoNumberIsUnknown) {
  Tables tables;
  tables.With(Role::kLayoutDefaults,
              "俯视图左上角交点X坐标所占图纸长度的比例,代号左上角交点Y坐标所占图纸高度的比例,代号注释的样式\n"
              "inf,nan,宋体|6|1|1|1|1\n");
  const Sheet sheet = tables.Layout();
  EXPECT_FALSE(HasPart(sheet, "code"));
  const UnknownPart& corner = Unknown(sheet, "upper left corner of the top view");
  EXPECT_EQ(corner.why.english, reasons::kNoNumber.english);
  EXPECT_FALSE(corner.specimen);
  EXPECT_EQ(Unknown(sheet, "code").specimen->text.height, 6);
  EXPECT_EQ(Unknown(sheet, "code").keys[1].cell, "B2");
}

TEST(LayoutSheet, APlaceThatIsNoShareIsOutsideOfTheSheet) {
  Tables tables;
  tables.With(Role::kLayoutDefaults,
              "俯视图左上角交点X坐标所占图纸长度的比例,代号左上角交点Y坐标所占图纸高度的比例,代号注释的样式\n"
              "28,-0.1,宋体|6|1|1|1|1\n");
  const Sheet sheet = tables.Layout(Paper(400, 200));
  EXPECT_FALSE(HasPart(sheet, "upper left corner of the top view"));
  const UnknownPart& corner = Unknown(sheet, "upper left corner of the top view");
  EXPECT_EQ(corner.why.english, reasons::kOutside.english);
  EXPECT_FALSE(corner.specimen);
  EXPECT_EQ(Unknown(sheet, "code").why.english, reasons::kOutside.english);
  EXPECT_EQ(Unknown(sheet, "code").specimen->text.height, 6);
}

TEST(LayoutSheet, AShareThatIsNoneHasNoSpecimen) {
  Tables tables;
  tables.With(Role::kLayoutDefaults,
              "视图间距与图纸长度的比例,水平方向所有视图总长度与图纸长度的比例,"
              "竖直方向所有视图总长度与图纸高度的比例\n"
              "8,0.5,-0.25\n");
  const Sheet sheet = tables.Layout(Paper(400, 200));
  EXPECT_FALSE(Unknown(sheet, "gap between views").specimen);
  EXPECT_FALSE(Unknown(sheet, "room of all views together").specimen);
}

// ---- where values come from ----

TEST(SheetSettings, WithoutATableTheClassesOwnValuesAreDrawn) {
  const DrawingSheets drawn = Tables().Draw(Paper(400, 200));
  const SheetPart corner = Part(drawn.sheets[0], "upper left corner of the top view");
  EXPECT_EQ(corner.x, 120);  // 0.3 of the length.
  EXPECT_EQ(corner.keys[0].source, Source::kClass);
  EXPECT_THAT(corner.keys[0].file, IsEmpty());
  EXPECT_THAT(corner.keys[0].cell, IsEmpty());
  const SheetPart code = Part(drawn.sheets[2], "code of the sub-sheet");
  EXPECT_EQ(code.x, 20);  // 0.05.
  EXPECT_EQ(code.keys[0].source, Source::kAbsent);
}

TEST(SheetSettings, AnAbsentColumnHasNoCellAndAMissingFileNoneAtAll) {
  Tables tables;
  tables.With(Role::kLayoutDefaults, "图框的颜色\n7\n");
  const SheetPart frame = Part(tables.Layout(), "frame");
  EXPECT_THAT(Cells(frame.keys), ElementsAre("A2", ""));
  EXPECT_EQ(frame.keys[1].source, Source::kAbsent);
  EXPECT_EQ(frame.keys[1].file, "layout-defaults.csv");
  const DrawingSheets missing = DrawSheets({{Role::kFrameInfo, {"/fehlt/a.csv", "a.csv"}}}, {});
  EXPECT_FALSE(HasPart(missing.sheets[1], "text of the frame"));
}

TEST(SheetSettings, ARecordsCellsAreThoseOfItsRowWhateverRowsAreSkipped) {
  Tables tables;
  tables.With(Role::kFrameInfo,
              "图框信息-左边距,图框信息-顶边距,图框信息-注解图层,图框信息-属性名称\n"
              "0.5,0.5,1,A\n0.1,0.1,1,\n0.25,0.75,9,B\n");
  const Sheet sheet = tables.Sub(Paper(400, 200));
  const auto last = std::find_if(sheet.parts.rbegin(), sheet.parts.rend(),
                                 [](const SheetPart& part) { return part.text.attribute == "B"; });
  ASSERT_NE(last, sheet.parts.rend());
  EXPECT_EQ(last->x, 100);
  EXPECT_EQ(last->y, 50);
  EXPECT_TRUE(last->isTopLeft);
  EXPECT_EQ(last->layer, 9);
  EXPECT_THAT(Cells(last->keys), ElementsAre("A4", "B4", "D4", "", "C4"));
}

// ---- custom settings ----

TEST(CustomSheets, TheRoomOfTheViewsBeginsAtItsMargins) {
  Tables tables;
  tables.With(Role::kCustomSettings,
              "爆炸图-左边距,爆炸图-顶边距,爆炸图-视图图组尺寸与图框尺寸比例,分图-左边距,分图-顶边距,"
              "分图-视图图组尺寸与图框尺寸比例\n0.25,0.125,0.5,0.5,0.25,0.25\n");
  const SheetPart exploded = Part(tables.ExplodedView(Paper(400, 200)), "room of all views together");
  EXPECT_EQ(exploded.x, 100);
  EXPECT_EQ(exploded.width, 200);
  EXPECT_EQ(exploded.height, 100);
  EXPECT_EQ(exploded.y, 75);  // 200 - 25 - 100
  EXPECT_FALSE(exploded.isTopLeft);
  EXPECT_THAT(exploded.assumes,
              ElementsAre(Assumption::kPaper, Assumption::kMargins, Assumption::kViewGroup));
  EXPECT_THAT(Cells(exploded.keys), ElementsAre("A2", "B2", "C2"));
  const SheetPart sub = Part(tables.Sub(Paper(400, 200)), "room of all views together");
  EXPECT_EQ(sub.x, 200);
  EXPECT_EQ(sub.y, 100);
  EXPECT_EQ(sub.width, 100);
}

TEST(CustomSheets, AMarginThatIsNoShareGivesNoPlace) {
  Tables tables;
  tables.With(Role::kCustomSettings,
              "分图-左边距,分图代号-顶边距,分图代号-注解样式\n20,-0.1,宋体|6|1|1|1|1\n");
  const Sheet sheet = tables.Sub(Paper(400, 200));
  EXPECT_FALSE(HasPart(sheet, "room of all views together"));
  const UnknownPart& group = Unknown(sheet, "room of all views together");
  EXPECT_EQ(group.why.english, reasons::kOutside.english);
  EXPECT_EQ(group.specimen->kind, SpecimenKind::kRectangle);
  EXPECT_EQ(group.specimen->size, 200);
  EXPECT_EQ(group.keys[0].cell, "A2");
  EXPECT_EQ(Unknown(sheet, "code of the sub-sheet").why.english, reasons::kOutside.english);
  EXPECT_EQ(Unknown(sheet, "code of the sub-sheet").specimen->text.height, 6);
}

TEST(CustomSheets, AShareOfMoreThanTheSheetOrLessThanNothingGivesNoSize) {
  for (const char* share : {"-0.6", "20", "1.001"}) {
    SCOPED_TRACE(share);
    Tables tables;
    tables.With(Role::kCustomSettings, "分图-视图图组尺寸与图框尺寸比例\n" + std::string(share) + "\n");
    const Sheet sheet = tables.Sub(Paper(400, 200));
    EXPECT_FALSE(HasPart(sheet, "room of all views together"));
    const UnknownPart& group = Unknown(sheet, "room of all views together");
    EXPECT_EQ(group.why.english, reasons::kNoSize.english);
    EXPECT_FALSE(group.specimen);
    EXPECT_EQ(group.keys[2].cell, "A2");
  }
}

TEST(CustomSheets, AShareOfNothingAndOfAllIsASize) {
  Tables tables;
  tables.With(Role::kCustomSettings,
              "爆炸图-视图图组尺寸与图框尺寸比例,分图-视图图组尺寸与图框尺寸比例\n0,1\n");
  EXPECT_EQ(Part(tables.ExplodedView(Paper(400, 200)), "room of all views together").width, 0);
  EXPECT_EQ(Part(tables.Sub(Paper(400, 200)), "room of all views together").height, 200);
}

TEST(CustomSheets, MarginsOfNothingAndOfAllAreShares) {
  Tables tables;
  tables.With(Role::kCustomSettings, "分图代号-左边距,分图代号-顶边距\n0,1\n");
  const SheetPart code = Part(tables.Sub(Paper(400, 200)), "code of the sub-sheet");
  EXPECT_EQ(code.x, 0);
  EXPECT_EQ(code.y, 0);
}

TEST(CustomSheets, AMarginThatIsNoNumberIsSaidToBeNone) {
  Tables tables;
  tables.With(Role::kCustomSettings, "分图代号-左边距,爆炸图-视图图组尺寸与图框尺寸比例\nnan,inf\n");
  EXPECT_EQ(Unknown(tables.Sub(), "code of the sub-sheet").why.english, reasons::kNoNumber.english);
  EXPECT_EQ(Unknown(tables.ExplodedView(), "room of all views together").why.english,
            reasons::kNoNumber.english);
}

TEST(CustomSheets, TheShapeOfThePaperChoosesThePlaceOfTheMachiningNotes) {
  Tables tables;
  tables.With(
      Role::kCustomSettings,
      "加工注解-左边距-横版布局,加工注解-顶边距-横版布局,加工注解-左边距-竖版布局,加工注解-顶边距-竖版布局,"
      "加工注解-注解图层\n0.75,0.5,0.25,0.125,201\n");
  tables.With(Role::kTexts, "加工说明文字\n加工说明\n");
  const SheetPart landscape = Part(tables.ExplodedView(Paper(400, 200)), "machining notes");
  EXPECT_EQ(landscape.x, 300);
  EXPECT_EQ(landscape.y, 100);
  EXPECT_EQ(landscape.layer, 201);
  EXPECT_EQ(landscape.text.text, Gbk("加工说明"));
  EXPECT_THAT(landscape.assumes, ElementsAre(Assumption::kPaper, Assumption::kMargins,
                                             Assumption::kEverySheet, Assumption::kTextSize));
  const SheetPart portrait = Part(tables.Sub(Paper(200, 400)), "machining notes");
  EXPECT_EQ(portrait.x, 50);
  EXPECT_EQ(portrait.y, 350);
  EXPECT_THAT(Cells(portrait.keys), ElementsAre("C2", "D2", "A2", "", "E2"));
  const Sheet square = tables.Sub(Paper(300, 300));
  EXPECT_FALSE(HasPart(square, "machining notes"));
  const UnknownPart& notes = Unknown(square, "machining notes");
  EXPECT_EQ(notes.why.english, reasons::kSquare.english);
  EXPECT_EQ(notes.specimen->text.text, Gbk("加工说明"));
  EXPECT_EQ(notes.specimen->layer, 201);
  EXPECT_THAT(Cells(notes.keys), ElementsAre("A2", "B2", "C2", "D2", "A2", "", "E2"));
}

TEST(CustomSheets, LinesHaveTheirColourAndTheLayerWhenThereIsOne) {
  Tables tables;
  tables.With(Role::kSystemSettings, "边框线颜色,边框线图层,视图外框的颜色\n8,232,9\n");
  const Specimen border = *Unknown(tables.Sub(), "border").specimen;
  EXPECT_EQ(border.kind, SpecimenKind::kLine);
  EXPECT_EQ(border.color, 8);
  EXPECT_EQ(border.layer, 232);
  const Specimen box = *Unknown(tables.Sub(), "box around a view").specimen;
  EXPECT_EQ(box.color, 9);
  EXPECT_EQ(box.layer, std::nullopt);
}

TEST(CustomSheets, TheGapOfTheViewsIsThatOfTheSheetsSize) {
  Tables tables;
  tables.With(Role::kCustomSettings, "大图-视图间距比例,分图-视图间距比例\n0.6,0.05\n");
  EXPECT_THAT(Cells(Unknown(tables.Sub(Paper(400, 200)), "gap between views").keys), ElementsAre("A2"));
  EXPECT_THAT(Cells(Unknown(tables.Sub(Paper(400, 200, SheetSize::kSmall)), "gap between views").keys),
              ElementsAre("B2"));
}

// ---- all of it ----

/// The columns of a role that no sheet uses, UTF-8.
std::set<std::string> ColumnsLeftOut(Role role) {
  std::set<std::string> columns;
  for (const ColumnSchema& column : SchemaOf(role).columns) columns.insert(GbkToUtf8(column.column));
  const auto drop = [&](const std::vector<SheetKey>& keys) {
    for (const SheetKey& key : keys) {
      if (key.role == role) columns.erase(GbkToUtf8(key.column));
    }
  };
  Tables tables;
  tables.With(Role::kLayoutDefaults, "表头-X位置比例\n0.5\n")
      .With(Role::kFrameInfo, "图框信息-属性名称\nA\n");
  for (const SheetQuestion& question : {Paper(400, 200), Paper(200, 400, SheetSize::kSmall)}) {
    for (const Sheet& sheet : tables.Draw(question).sheets) {
      for (const SheetPart& part : sheet.parts) drop(part.keys);
      for (const UnknownPart& part : sheet.unknown) drop(part.keys);
    }
  }
  return columns;
}

TEST(DrawingSheets, EverySettingThatIsAboutASheetIsOnOne) {
  EXPECT_THAT(ColumnsLeftOut(Role::kLayoutDefaults),
              ElementsAre("不出分图的图层", "不放球标的图层", "出二个视图的图层", "大槽小槽的分割尺寸",
                          "标准件的图层"));
  EXPECT_THAT(ColumnsLeftOut(Role::kCustomSettings), IsEmpty());
  EXPECT_THAT(ColumnsLeftOut(Role::kFrameInfo), IsEmpty());
  EXPECT_THAT(ColumnsLeftOut(Role::kTexts), ElementsAre("第三视角转图"));
}

TEST(DrawingSheets, EveryPartHasItsWordsAndTheSettingsThatItIsMadeOf) {
  for (const Sheet& sheet : Tables().Draw().sheets) {
    EXPECT_FALSE(sheet.title.english.empty() || sheet.title.chinese.empty());
    for (const SheetPart& part : sheet.parts) {
      EXPECT_FALSE(part.label.english.empty() || part.label.chinese.empty());
      EXPECT_FALSE(part.keys.empty()) << part.label.english;
      EXPECT_FALSE(part.assumes.empty()) << part.label.english;
    }
    for (const UnknownPart& part : sheet.unknown) {
      EXPECT_FALSE(part.what.english.empty() || part.what.chinese.empty());
      EXPECT_FALSE(part.why.english.empty() || part.why.chinese.empty());
      EXPECT_FALSE(part.keys.empty()) << part.what.english;
    }
  }
}

TEST(DrawingSheets, WhatIsAssumedIsListedOnceInItsOrder) {
  EXPECT_THAT(Tables().Draw().assumed,
              ElementsAre(Assumption::kPaper, Assumption::kFrame, Assumption::kOrigin, Assumption::kMargins,
                          Assumption::kViewGroup, Assumption::kEverySheet, Assumption::kTextSize));
  Tables withHeader;
  withHeader.With(Role::kLayoutDefaults, "表头-X位置比例\n0.5\n");
  const std::vector<Assumption> all = withHeader.Draw().assumed;
  EXPECT_EQ(all.size(), 8U);
  std::set<std::string_view> names;
  std::set<std::string_view> words;
  for (const Assumption assumption : all) {
    names.insert(NameOf(assumption));
    words.insert({WordsOf(assumption).english, WordsOf(assumption).chinese});
  }
  EXPECT_EQ(names.size(), 8U);
  EXPECT_EQ(words.size(), 16U);
}

}  // namespace
}  // namespace plateconfig
