#include "plateconfig/tables/full_schema.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "analysis/schema/role.h"
#include "config/configuration_index.h"
#include "plateconfig/messages/language.h"
#include "rules/rule_columns.h"

namespace plateconfig {
namespace {

ColumnSchema Single(std::string_view column, CellForm form, CellType type, const std::string& whenAbsent) {
  return {std::string(column), form, type, Unit::kNone, {}, {whenAbsent}};
}

ColumnSchema Number(std::string_view column, std::string_view help) {
  ColumnSchema schema = Single(column, CellForm::kNumber, CellType::kNumber, "0");
  schema.unit = Unit::kMm;
  schema.help = help;
  return schema;
}

ColumnSchema Flag(std::string_view column, std::string_view help) {
  ColumnSchema schema = Single(column, CellForm::kFlagYesIfUpperY, CellType::kFlag, "N");
  schema.help = help;
  return schema;
}

ColumnSchema Text(std::string_view column, std::string_view help) {
  ColumnSchema schema = Single(column, CellForm::kText, CellType::kText, "");
  schema.help = help;
  return schema;
}

/// A column of rows; `unit` and `form` as in the settings' own schema.
ColumnSchema Row(std::string_view column, CellForm form, Unit unit, std::string_view help) {
  ColumnSchema schema{std::string(column), form, CellType::kText, unit, help, {}};
  schema.isRowColumn = true;
  return schema;
}

ColumnSchema Placeholder(ColumnSchema column) {
  column.isPlaceholder = true;
  return column;
}

TableSchema IndexTable() {
  return {
      kIndexRole,
      WhenUnreadable::kCountsAsEmpty,
      true,
      {Row(kIndexFolderColumn, CellForm::kText, Unit::kNone, "name of a configuration folder below config"),
       Row(kIndexFlagColumn, CellForm::kFlagYesIfY, Unit::kNone, "whether the folder is the active one")}};
}

TableSchema ColumnWidthTable() {
  ColumnSchema width = Single("列名"_gbk, CellForm::kIntegerOrAbsent, CellType::kInteger, "100");
  width.help = "width of the column of this name; every column of the table is one";
  width.emptyIsAbsent = true;
  return {NameOf(Role::kColumnWidths), WhenUnreadable::kCountsAsEmpty, true, {Placeholder(width)}};
}

TableSchema ProcessSettingsTable() {
  ColumnSchema layer = Single(columns::kTextLayer, CellForm::kInteger, CellType::kInteger, "0");
  layer.unit = Unit::kLayer;
  layer.help = "layer of the process text";
  return {NameOf(Role::kProcessSettings),
          WhenUnreadable::kCountsAsEmpty,
          true,
          {Text(columns::kConnectText, "text between two processes"),
           Flag(columns::kSingleLine, "place the processes as one line"),
           Number(columns::kLeftMargin, "left margin of the process text"),
           Number(columns::kTopMargin, "top margin of the process text"), layer,
           Text(columns::kTextFont, "font of the process text"),
           Flag(columns::kOutputLineNumber, "write the line of the matching row in front"),
           Flag(columns::kAppendAttribute, "put the process text behind the material information")}};
}

TableSchema ProcessRuleTable() {
  ColumnSchema parameters =
      Row(columns::kParameterName, CellForm::kText, Unit::kNone, "name of a general parameter");
  parameters.whenAbsent = {std::string(columns::kSoftMaterial), std::string(columns::kHardMaterial),
                           std::string(columns::kWireCuttingColors), std::string(columns::kProfileColors)};
  ColumnSchema layer = Row(columns::kLayer, CellForm::kInteger, Unit::kLayer,
                           "layer of the plates of a rule row; a row without it is no rule row");
  layer.type = CellType::kInteger;
  return {
      NameOf(Role::kProcessRules),
      WhenUnreadable::kCountsAsEmpty,
      true,
      {parameters,
       Row(columns::kParameterValue, CellForm::kJoinedIntegers, Unit::kColor, "colours of the parameter"),
       Row(columns::kProcessName, CellForm::kText, Unit::kNone,
           "name of a process, in the order of the text"),
       Row(columns::kConditionType, CellForm::kConditionText, Unit::kNone,
           "condition under which the process applies"),
       Row(columns::kConditionValue, CellForm::kJoinedNumbers, Unit::kNone, "parameter of the condition"),
       layer, Row(columns::kLengthRange, CellForm::kRange, Unit::kMm, "lengths; empty = any"),
       Row(columns::kWidthRange, CellForm::kRange, Unit::kMm, "widths; empty = any"),
       Row(columns::kHeightRange, CellForm::kRange, Unit::kMm, "thicknesses; empty = any"),
       Row(columns::kWeightRange, CellForm::kRange, Unit::kKg, "weights; empty = any"),
       Row(columns::kHasProfile, CellForm::kExactParameter, Unit::kNone, "with or without a profile"),
       Row(columns::kHasWireCutting, CellForm::kExactParameter, Unit::kNone, "with or without wire cutting"),
       Row(columns::kMaterial, CellForm::kExactSoftParameter, Unit::kNone, "soft or hard material"),
       Placeholder(Row("工艺名称"_gbk, CellForm::kText, Unit::kNone,
                       "text of the process of this name; every process of the list is a column"))}};
}

struct Title {
  std::string_view role;
  std::string_view english;
  std::string_view chinese;
};

constexpr Title kTitles[] = {
    {kIndexRole, "Which configuration folder is active; config/standard.csv.",
     "哪个配置文件夹有效；config/standard.csv。"},
    {NameOf(Role::kColumnWidths), "Widths of named table columns.", "各列的宽度。"},
    {NameOf(Role::kProcessSettings), "How the process text is placed and joined.",
     "工艺文本的放置和连接方式。"},
    {NameOf(Role::kProcessRules),
     "Processes, their conditions, and the text of each for every kind of plate.",
     "各工艺、其条件，以及各类板的工艺文本。"},
    {NameOf(Role::kLayoutDefaults), "Layout of sheets, views and notes; the bill of materials' header.",
     "图纸、视图和注释的布局；材料表的表头。"},
    {NameOf(Role::kCustomSettings), "Margins, layers and styles that a designer adjusts.",
     "由设计人员调整的边距、图层和样式。"},
    {NameOf(Role::kFrameInfo), "Part attributes that the drawing frame shows.", "图框中显示的零件属性。"},
    {NameOf(Role::kThreadHoleChamfer), "Threading holes by diameter, notes of radii, chamfers.",
     "按直径分的穿线孔、R角标注和C角。"},
    {NameOf(Role::kSystemSettings), "Layers, export to the CAD program, weight rules.",
     "图层、导出到 CAD 的设置、重量规则。"},
    {NameOf(Role::kLayers), "Lists of layers.", "图层列表。"},
    {NameOf(Role::kTexts), "Texts and spacings of notes.", "注释的文字和间距。"},
    {NameOf(Role::kConnectString), "Text between codes.", "代号之间的连接字符。"},
    {NameOf(Role::kTriangleSymbol), "The triangle symbol on faces of certain colours.",
     "特定颜色面上的三角符号。"},
    {NameOf(Role::kBom), "Density of the material.", "材料密度。"},
    {NameOf(Role::kDwgFolder), "Folder for exported drawings.", "出图的文件夹。"},
    {NameOf(Role::kReplaceContent), "Decimals by face colour, texts replaced by hole colour and diameter.",
     "按面颜色的小数位数，按孔颜色和直径替换的文字。"},
};

std::vector<TableSchema> Compose() {
  std::vector<TableSchema> tables = {IndexTable(), ColumnWidthTable(), ProcessSettingsTable(),
                                     ProcessRuleTable()};
  std::vector<TableSchema> settings = SettingsSchema();
  std::move(settings.begin(), settings.end(), std::back_inserter(tables));
  return tables;
}

}  // namespace

const std::vector<TableSchema>& FullSchema() {
  static const std::vector<TableSchema> schema = Compose();
  return schema;
}

const TableSchema* FindTableSchema(std::string_view role) {
  const auto found = std::find_if(FullSchema().begin(), FullSchema().end(),
                                  [&](const TableSchema& table) { return table.role == role; });
  return found == FullSchema().end() ? nullptr : &*found;
}

std::vector<std::string_view> SchemaRoles() {
  std::vector<std::string_view> roles;
  for (const TableSchema& table : FullSchema()) roles.push_back(table.role);
  return roles;
}

std::string TitleOf(std::string_view role) {
  const auto title =
      std::find_if(std::begin(kTitles), std::end(kTitles), [&](const Title& t) { return t.role == role; });
  return title == std::end(kTitles) ? std::string() : Say(title->english, title->chinese);
}

}  // namespace plateconfig
