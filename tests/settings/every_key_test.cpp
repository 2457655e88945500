// Walks every key of every settings table: absent column, empty first cell, a value of its own, no number.

#include <gmock/gmock.h>

#include <algorithm>
#include <set>

#include "platform/desktop_folder.h"
#include "settings/stated_keys.h"
#include "support/environment.h"
#include "support/gbk_text.h"
#include "support/settings_tables.h"
#include "support/temporary_folder.h"

namespace plateconfig::test {
namespace {

using enum Reads;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAreArray;

constexpr std::string_view kDefaultStyle = "chinesef_fs|3|0.5|0.5|0.5|1";

/// All classes with all their tables read from the same file, as every table knows its own columns alone.
LoadedClasses LoadAll(const std::string& path) {
  LoadedClasses classes{{}, CustomDefault(path, path), SystemDefault(path, path)};
  classes.layout.InitilDefaultValues(path);
  classes.custom.InitialThreadHoleAndCharmferConfig(path);
  classes.system.InitialText(path);
  classes.system.InitialConnectString(path);
  classes.system.InitialTriangleSymbol(path);
  classes.system.InitialBomConfigFile(path);
  classes.system.InitialDwgFolder(path);
  classes.system.InitialReplaceContent(path);
  return classes;
}

/// Loads tables with no desktop to fall back to.
class EveryKey : public ::testing::Test {
 protected:
  LoadedClasses Load(const std::string& utf8) { return LoadAll(folder_.WriteTable("table.csv", utf8)); }

  /// A table of this column alone (and one that nobody knows), its cells below each other.
  LoadedClasses LoadColumn(const StatedKey& key, const std::string& cell) {
    return Load(std::string(key.column) + ",无人知道\n" + cell + ",1\n");
  }

  TemporaryFolder folder_;

 private:
  ScopedVariable desktop_{"XDG_DESKTOP_DIR", std::nullopt};
  ScopedVariable home_{"HOME", std::nullopt};
};

constexpr std::string_view kDrawingFolder = "出图的路径";

/// A Windows user always has a desktop, and drawings go there while no folder is named.
std::string WhenAbsent(const StatedKey& key) {
  return key.column == kDrawingFolder ? GbkToUtf8(DesktopFolder()) : std::string(key.whenAbsent);
}

std::string ForEmptyCell(const StatedKey& key) {
  if (key.column == kDrawingFolder) return WhenAbsent(key);
  switch (key.reads) {
    case kNumber:
    case kInteger:
      return "0";
    case kIntegerOrEmpty:
      return std::string(key.whenAbsent);
    case kStyle:
      return std::string(kDefaultStyle);
    case kYesIfUpperY:
    case kYesIfY:
      return "N";
    case kNoIfUpperN:
    case kNoIfN:
      return "Y";
    case kTriangleList:
      return "12,6";
    default:
      return "";
  }
}

std::string ForNoNumber(const StatedKey& key) {
  switch (key.reads) {
    case kNumber:
    case kInteger:
    case kIntegerOrEmpty:
    case kFilledList:
      return "0";
    case kText:
    case kTexts:
    case kFilledTexts:
      return "abc";
    case kNonZeroList:
    case kLayerList:
      return "";
    default:
      return ForEmptyCell(key);
  }
}

/// A cell of the key's own, and what it reads as. Numbers differ from key to key.
struct OwnValue {
  std::string cell;
  std::string shown;
};

OwnValue OwnValueOf(const StatedKey& key, std::size_t index) {
  const std::string integer = std::to_string(20 + index);
  switch (key.reads) {
    case kNumber:
      return {integer + ".25", integer + ".25"};
    case kText:
    case kTexts:
    case kFilledTexts:
      return {"文字" + integer, "文字" + integer};
    case kStyle:
      return {"仿宋|" + integer + "|0.1|0.2|0.3|2", "仿宋|" + integer + "|0.1|0.2|0.3|2"};
    case kYesIfUpperY:
    case kYesIfY:
    case kNoIfUpperN:
    case kNoIfN:
      return key.whenAbsent == "Y" ? OwnValue{"N", "N"} : OwnValue{"Y", "Y"};
    default:
      return {integer, integer};
  }
}

TEST_F(EveryKey, AnAbsentColumnGivesTheValueOfTheAbsentColumn) {
  const LoadedClasses classes = Load("无人知道\n1\n");
  for (const StatedKey& key : StatedKeys()) {
    EXPECT_EQ(key.value(classes), WhenAbsent(key)) << key.role << " " << key.column;
  }
}

TEST_F(EveryKey, AColumnWithoutRowsCountsAsAbsent) {
  std::string header;
  std::set<std::string_view> known;
  for (const StatedKey& key : StatedKeys()) {
    if (known.insert(key.column).second) header += std::string(key.column) + ",";
  }
  const LoadedClasses classes = Load(header + "无人知道\n");
  for (const StatedKey& key : StatedKeys()) {
    EXPECT_EQ(key.value(classes), WhenAbsent(key)) << key.role << " " << key.column;
  }
}

TEST_F(EveryKey, AnEmptyFirstCellIsReadAsTheKindOfTheKeySays) {
  for (const StatedKey& key : StatedKeys()) {
    EXPECT_EQ(key.value(LoadColumn(key, "")), ForEmptyCell(key)) << key.role << " " << key.column;
  }
}

TEST_F(EveryKey, ACellThatIsNoNumberIsReadAsTheKindOfTheKeySays) {
  for (const StatedKey& key : StatedKeys()) {
    EXPECT_EQ(key.value(LoadColumn(key, "abc")), ForNoNumber(key)) << key.role << " " << key.column;
  }
}

TEST_F(EveryKey, AValueOfItsOwnReachesItsFieldAndNoOther) {
  for (std::size_t index = 0; index < StatedKeys().size(); ++index) {
    const StatedKey& key = StatedKeys()[index];
    const OwnValue own = OwnValueOf(key, index);
    const LoadedClasses classes = LoadColumn(key, own.cell);
    EXPECT_EQ(key.value(classes), own.shown) << key.role << " " << key.column;
    for (const StatedKey& other : StatedKeys()) {
      if (other.column == key.column) continue;
      // The folder for drawings has two columns of one name, and the second table read decides.
      EXPECT_EQ(other.value(classes), WhenAbsent(other))
          << own.cell << " in " << key.column << " reached " << other.column;
    }
  }
}

// What follows looks at the schema, which prints the values that the tests above have looked at.

std::vector<std::string> ColumnsOf(const TableSchema& table) {
  std::vector<std::string> columns;
  for (const ColumnSchema& column : table.columns) {
    if (!column.isRowColumn) columns.push_back(GbkToUtf8(column.column));
  }
  return columns;
}

std::string Joined(const Cells& cells) {
  std::string text;
  for (const std::string& cell : cells) text += (text.empty() ? "" : ",") + GbkToUtf8(cell);
  return text;
}

const StatedKey& FindStated(std::string_view role, std::string_view gbkColumn) {
  const auto keys = StatedKeys();
  return *std::find_if(keys.begin(), keys.end(), [&](const StatedKey& key) {
    return key.role == role && key.column == GbkToUtf8(gbkColumn);
  });
}

TEST_F(EveryKey, TheSchemaHoldsExactlyTheStatedColumns) {
  for (const TableSchema& table : SettingsSchema()) {
    std::vector<std::string> stated;
    for (const StatedKey& key : StatedKeys()) {
      if (key.role == NameOf(table.role)) stated.emplace_back(key.column);
    }
    EXPECT_THAT(ColumnsOf(table), UnorderedElementsAreArray(stated)) << NameOf(table.role);
  }
}

TEST_F(EveryKey, TheSchemaTellsTheValueOfTheAbsentColumn) {
  for (const TableSchema& table : SettingsSchema()) {
    for (const ColumnSchema& column : table.columns) {
      if (column.isRowColumn) continue;
      EXPECT_EQ(Joined(column.whenAbsent), FindStated(NameOf(table.role), column.column).whenAbsent)
          << NameOf(table.role) << " " << GbkToUtf8(column.column);
    }
  }
}

TEST_F(EveryKey, TheSchemaPrintsWhatTheClassHolds) {
  std::size_t index = 0;
  for (const TableSchema& table : SettingsSchema()) {
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
      if (table.columns[i].isRowColumn) continue;
      const StatedKey& key = FindStated(NameOf(table.role), table.columns[i].column);
      const OwnValue own = OwnValueOf(key, index++);
      const std::string path =
          folder_.WriteTable("table.csv", std::string(key.column) + ",无人知道\n" + own.cell + ",1\n");
      EXPECT_EQ(Joined(LoadSettings(table.role, path)[i]), own.shown) << key.role << " " << key.column;
    }
  }
}

TEST_F(EveryKey, TheSchemaSaysWhatEachColumnIs) {
  for (const TableSchema& table : SettingsSchema()) {
    for (const ColumnSchema& column : table.columns) {
      EXPECT_FALSE(column.help.english.empty()) << GbkToUtf8(column.column);
    }
  }
}

/// A whole row of each list of records: column, cell.
struct RowOfRecords {
  std::string_view role;
  std::vector<std::pair<std::string, std::string>> cells;
  std::vector<std::string> required;  // A row without one of these is no row.
};

const std::vector<RowOfRecords>& RowsOfRecords() {
  static const std::vector<RowOfRecords> rows = {
      {"layout-defaults",
       {{"表头-X位置比例", "0.25"},
        {"表头-Y位置比例", "0.75"},
        {"表头-显示名称", "名称"},
        {"表头-属性名称", "PART_NAME"},
        {"表头-文字样式", "仿宋|5|0.1|0.2|0.3|2"}},
       {"表头-X位置比例"}},
      {"frame-info",
       {{"图框信息-左边距", "0.125"},
        {"图框信息-顶边距", "0.5"},
        {"图框信息-注解图层", "7"},
        {"图框信息-属性名称", "图号"},
        {"图框信息-注解样式", "黑体|4|0.1|0.2|0.3|3"}},
       {"图框信息-属性名称"}},
      {"thread-hole-chamfer",
       {{"穿线孔-孔直径范围", "5_10"}, {"穿线孔-画穿线孔的直径", "3"}},
       {"穿线孔-孔直径范围"}},
      {"system-settings",
       {{"实体最小重量", "0.5"}, {"实体最大重量", "90"}, {"实体面最大数量", "400"}},
       {"实体面最大数量"}},
      {"replace-content",
       {{"小数位数-面颜色标准", "12_6"}, {"小数位数", "2"}},
       {"小数位数-面颜色标准", "小数位数"}},
      {"replace-content",
       {{"替换内容-孔颜色", "1_36"},
        {"替换内容-最小孔直径", "3"},
        {"替换内容-最大孔直径", "8.5"},
        {"替换内容-替换前内容", "M6"},
        {"替换内容-替换后内容", "M6x1"}},
       {"替换内容-孔颜色", "替换内容-替换前内容", "替换内容-替换后内容"}},
  };
  return rows;
}

class EveryRowColumn : public EveryKey {
 protected:
  /// What the schema shows for the column of a table with one row, in which `cell` stands instead of the
  /// row's own.
  Cells Load(const RowOfRecords& row, const std::string& column, const std::string& cell) {
    std::string header = "无人知道";
    std::string line = "1";
    for (const auto& [name, own] : row.cells) {
      header += "," + name;
      line += "," + (name == column ? cell : own);
    }
    return Find(row.role, column, folder_.WriteTable("table.csv", header + "\n" + line + "\n"));
  }

  /// The same for a table that lacks the column.
  Cells LoadWithout(const RowOfRecords& row, const std::string& column) {
    std::string header = "无人知道";
    std::string line = "1";
    for (const auto& [name, own] : row.cells) {
      if (name == column) continue;
      header += "," + name;
      line += "," + own;
    }
    return Find(row.role, column, folder_.WriteTable("table.csv", header + "\n" + line + "\n"));
  }

  static Cells Find(std::string_view role, const std::string& column, const std::string& path) {
    const std::vector<Cells> values = LoadSettings(role, path);
    for (const TableSchema& table : SettingsSchema()) {
      for (std::size_t i = 0; NameOf(table.role) == role && i < table.columns.size(); ++i) {
        if (GbkToUtf8(table.columns[i].column) == column) return values[i];
      }
    }
    ADD_FAILURE() << column << " is not in the schema";
    return {};
  }

  static bool IsRequired(const RowOfRecords& row, const std::string& column) {
    return std::find(row.required.begin(), row.required.end(), column) != row.required.end();
  }

  /// What an empty cell reads as: a text stays empty, a style is the default one, anything else 0.
  static std::string EmptyCellOf(const std::string& cell) {
    if (cell.find('|') != std::string::npos) return std::string(kDefaultStyle);
    return cell.find_first_not_of("0123456789.") == std::string::npos ? "0" : "";
  }
};

TEST_F(EveryRowColumn, TheSchemaHoldsExactlyTheStatedRowColumns) {
  std::multiset<std::string> stated;
  for (const RowOfRecords& row : RowsOfRecords()) {
    for (const auto& [column, cell] : row.cells) stated.insert(std::string(row.role) + " " + column);
  }
  std::multiset<std::string> known;
  for (const TableSchema& table : SettingsSchema()) {
    for (const ColumnSchema& column : table.columns) {
      if (column.isRowColumn) known.insert(std::string(NameOf(table.role)) + " " + GbkToUtf8(column.column));
    }
  }
  EXPECT_EQ(known, stated);
}

TEST_F(EveryRowColumn, ACellOfARowIsKept) {
  for (const RowOfRecords& row : RowsOfRecords()) {
    for (const auto& [column, cell] : row.cells) {
      EXPECT_THAT(Load(row, column, cell), ElementsAre(Gbk(cell))) << column;
    }
  }
}

TEST_F(EveryRowColumn, AnEmptyCellIsZeroOrEmptyUnlessTheRowNeedsIt) {
  for (const RowOfRecords& row : RowsOfRecords()) {
    for (const auto& [column, cell] : row.cells) {
      if (IsRequired(row, column)) {
        EXPECT_THAT(Load(row, column, ""), IsEmpty()) << column;
      } else {
        EXPECT_THAT(Load(row, column, ""), ElementsAre(EmptyCellOf(cell))) << column;
      }
    }
  }
}

TEST_F(EveryRowColumn, AnAbsentColumnIsAColumnOfEmptyCells) {
  for (const RowOfRecords& row : RowsOfRecords()) {
    for (const auto& [column, cell] : row.cells) {
      EXPECT_EQ(LoadWithout(row, column), Load(row, column, "")) << column;
    }
  }
}

TEST_F(EveryRowColumn, ACellThatIsNoNumberIsZeroWhereANumberBelongs) {
  const std::vector<std::string> texts = {"表头-显示名称", "表头-属性名称", "图框信息-属性名称",
                                          "替换内容-替换前内容", "替换内容-替换后内容"};
  for (const RowOfRecords& row : RowsOfRecords()) {
    for (const auto& [column, cell] : row.cells) {
      const bool isText = std::find(texts.begin(), texts.end(), column) != texts.end();
      const bool isStyle = cell.find('|') != std::string::npos;
      const std::string expected = isText ? "abc" : isStyle ? std::string(kDefaultStyle) : "0";
      if (column == "穿线孔-孔直径范围") {
        EXPECT_THAT(Load(row, column, "abc"), IsEmpty());
      } else {
        EXPECT_THAT(Load(row, column, "abc"), ElementsAre(expected)) << column;
      }
    }
  }
}

}  // namespace
}  // namespace plateconfig::test
