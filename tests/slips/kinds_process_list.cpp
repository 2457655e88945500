// Slips in the general parameters and in the process list of the rule table.

#include "slips/grid_slips.h"
#include "slips/kinds.h"

namespace plateconfig::slips {
namespace {

const std::vector<What> kParameterNames = {What::kParameterName};
const std::vector<What> kParameterValues = {What::kParameterValue};
const std::vector<What> kProcessNames = {What::kProcessName};
const std::vector<What> kConditions = {What::kCondition};
const std::vector<What> kConditionParameters = {What::kConditionParameter};
const std::vector<What> kNames = {What::kParameterName, What::kProcessName, What::kCondition};
const std::vector<What> kValues = {What::kParameterValue, What::kConditionParameter};

const std::map<std::string, std::string> kOtherProcesses = {
    {"钻孔", "打孔"},     {"下料", "开料"},   {"CNC粗加工", "CNC开粗"}, {"CNC精加工", "CNC光刀"},
    {"攻牙", "攻丝"},     {"慢走丝", "慢丝"}, {"中走丝", "中丝"},       {"电火花", "EDM"},
    {"抛光", "省模"},     {"晒纹", "蚀纹"},   {"检测", "检验"},         {"倒角", "C角"},
    {"穿丝孔", "穿线孔"}, {"平面磨", "磨床"}, {"三坐标", "CMM"},        {"淬火", "热处理"},
    {"铣通槽", "铣槽"},   {"刻字", "雕字"},   {"打字码", "打字"},       {"去毛刺", "去批锋"},
};

const std::map<std::string, std::string> kShortConditions = {
    {"自定义追加工艺", "自定义"},
    {"有无圆孔", "有圆孔"},
    {"有无异型槽", "异型槽"},
    {"有无通槽", "有通槽"},
    {"有无不通槽", "不通槽"},
    {"型面精加工色", "精加工色"},
    {"型面粗加工色", "粗加工色"},
    {"特殊加工颜色", "特殊颜色"},
    {"圆孔颜色", "孔颜色"},
    {"圆孔直径", "直径"},
    {"孔数量大于参数值", "孔数量大于"},
    {"孔数量小于参数值", "孔数量小于"},
    {"通槽颜色", "槽颜色"},
    {"不通槽颜色", "盲槽颜色"},
};

const std::vector<TextKind> kNameTexts = {
    {"name: dropped character", DroppedCharacter(), kNames},
    {"name: doubled character", DoubledCharacter(), kNames},
    {"name: swapped characters", SwappedCharacters(), kNames},
    {"name: traditional character", Traditional(), kNames},
    {"name: similar character", SimilarCharacter(), kNames},
    {"name: letter or sign of full width", OneFullWidth(), kNames},
    {"name: small letters", LowerCase(), kNames},
    {"name: signs of half width", AllHalfWidth(), kNames},
    {"name: one bracket of half width", Replaced("（", "("), kNames},
    {"name: bracket not closed", Replaced("）", ""), kNames},
    {"name: blank in front", Front(" "), kNames},
    {"name: blank behind", Behind(" "), kNames},
    {"name: blank inside", Inside(" "), kNames},
    {"name: blank of full width in front", Front("　"), kNames},
    {"name: blank of full width behind", Behind("　"), kNames},
    {"name: no-break blank, saved as ?", Behind("?"), kNames},
    {"name: tab behind", Behind("\t"), kNames},
    {"name: line break behind", Behind("\n"), kNames},
    {"name: first character missing", WithoutFirst(), kNames},
    {"name: last character missing", WithoutLast(), kNames},
    {"name: colon behind", Behind("："), kNames},
    {"name: number in front", Front("1."), kNames},
    {"name: emptied", Become(""), kNames},
    {"name: a blank alone", Become(" "), kNames},
    {"parameter name: shortened",
     OneOf({{"软料（体颜色）", "软料"}, {"硬料（体颜色）", "硬料"}, {"有线割", "线割"}, {"有型面", "型面"}}),
     kParameterNames},
    {"parameter name: first character alone", FirstCharacters(1), kParameterNames},
    {"parameter name: another word",
     OneOf({{"软料（体颜色）", "软料颜色"},
            {"硬料（体颜色）", "硬料颜色"},
            {"有线割", "线割颜色"},
            {"有型面", "型面颜色"}}),
     kParameterNames},
    {"process name: another word", OneOf(kOtherProcesses), kProcessNames},
    {"process name: remark behind", Behind("(外发)"), kProcessNames},
    {"condition: shortened", OneOf(kShortConditions), kConditions},
    {"condition: without its kind",
     PieceOf({{"（类型1）", ""}, {"（类型2）", ""}, {"（类型3）", ""}, {"（类型4）", ""}, {"（类型5）", ""}}),
     kConditions},
    {"condition: ＆ for &", Replaced("&", "＆"), kConditions},
    {"condition: 和 for &", Replaced("&", "和"), kConditions},
    {"condition: blanks around &", Replaced("&", " & "), kConditions},
    {"condition: 有没有 for 有无", Replaced("有无", "有没有"), kConditions},
    {"condition: 色 for 颜色", Replaced("颜色", "色"), kConditions},
    {"condition: 颜色 for 色",
     OneOf({{"型面精加工色", "型面精加工颜色"}, {"型面粗加工色", "型面粗加工颜色"}}), kConditions},
    {"condition: ≥ in its place",
     OneOf({{"孔数量大于参数值", "孔数量≥参数值"}, {"孔数量小于参数值", "孔数量<参数值"}}), kConditions},
};

const std::vector<TextKind> kValueTexts = {
    {"value: dropped character", DroppedCharacter(), kValues, Result::kMayBeFaultless},
    {"value: doubled character", DoubledCharacter(), kValues, Result::kMayBeFaultless},
    {"value: swapped characters", SwappedCharacters(), kValues, Result::kMayBeFaultless},
    {"value: another digit", Replaced("2", "3"), kValues, Result::kMayBeFaultless},
    {"value: O for 0", Replaced("0", "O"), kValues},
    {"value: l for 1", Replaced("1", "l"), kValues},
    {"value: digits of full width", AllFullWidth(), kValues},
    {"value: one digit of full width", OneFullWidth(), kValues},
    {"value: － for _", AllReplaced("_", "－"), kValues},
    {"value: - for _", AllReplaced("_", "-"), kValues},
    {"value: , for _", AllReplaced("_", ","), kValues},
    {"value: ， for _", AllReplaced("_", "，"), kValues},
    {"value: 、 for _", AllReplaced("_", "、"), kValues},
    {"value: ; for _", AllReplaced("_", ";"), kValues},
    {"value: / for _", AllReplaced("_", "/"), kValues},
    {"value: ~ for _", AllReplaced("_", "~"), kValues},
    {"value: ＿ for _", Replaced("_", "＿"), kValues},
    {"value: __ for _", Replaced("_", "__"), kValues},
    {"value: blank for _", AllReplaced("_", " "), kValues},
    {"value: blank of full width in front", Front("　"), kValues},
    {"value: blank inside", Inside(" "), kValues},
    {"value: no-break blank, saved as ?", Front("?"), kValues},
    {"value: _ in front", Front("_"), kValues},
    {"value: _ behind", Behind("_"), kValues},
    {"value: Φ in front", Front("Φ"), kConditionParameters},
    {"value: > in front", Front(">"), kConditionParameters},
    {"value: mm inside", Replaced("_", "mm_"), kConditionParameters},
    {"value: # in front", Front("#"), kParameterValues},
    {"value: a colour's name", Become("红色"), kParameterValues},
    {"value: 217", Become("217"), kParameterValues},
    {"value: 0", Become("0"), kValues},
    {"value: a number below 0", Front("-"), kValues},
    {"value: a date made of it", Become("3月8日"), kValues},
    {"value: ####### of a narrow column", Become("#######"), kValues},
    {"value: emptied", Become(""), kValues},
    {"value: 无 in its place", Become("无"), kValues},
};

std::optional<std::size_t> RowOf(const Grid& grid, std::size_t column, const std::string& text) {
  for (std::size_t row = 1; row < grid.RowCount(); ++row) {
    if (grid.Text(row, column) == text) return row;
  }
  return std::nullopt;
}

/// One colour is both soft and hard.
std::optional<Touched> ColorOfBoth(Grid& grid, const Site& at) {
  const std::string name = grid.Text(at.row, at.column - 1);
  const auto hard = RowOf(grid, at.column - 1, "硬料（体颜色）");
  if (name != "软料（体颜色）" || !hard) return std::nullopt;
  const std::string first = grid.Text(*hard, at.column).substr(0, grid.Text(*hard, at.column).find('_'));
  grid.SetText(at.row, at.column, grid.Text(at.row, at.column) + "_" + first);
  return Touched{{at.row, *hard}, {at.column}};
}

std::size_t FirstFreeRow(const Grid& grid, std::size_t column) {
  std::size_t row = 1;
  while (row < grid.RowCount() && !grid.Text(row, column).empty()) ++row;
  return row;
}

/// The parameter stands below all others now, and where it stood its name has another value.
std::optional<Touched> ListedWithAnotherValue(Grid& grid, const Site& at) {
  const std::size_t free = FirstFreeRow(grid, at.column);
  grid.SetText(free, at.column, grid.Text(at.row, at.column));
  grid.SetText(free, at.column + 1, grid.Text(at.row, at.column + 1));
  grid.SetText(at.row, at.column + 1, "99");
  return Touched{{at.row, free}, {at.column}};
}

/// The first row of the list without a process gets one that is listed already.
std::optional<Touched> ListedAgain(Grid& grid, const Site& at) {
  const std::size_t free = FirstFreeRow(grid, at.column);
  grid.SetText(free, at.column, grid.Text(at.row, at.column));
  return Touched{{at.row, free}, {at.column}};
}

std::optional<Touched> NameOfRowBelow(Grid& grid, const Site& at) {
  const std::string below = grid.Text(at.row + 1, at.column);
  if (below.empty() || below == grid.Text(at.row, at.column)) return std::nullopt;
  grid.SetText(at.row, at.column, below);
  return Touched{{at.row, at.row + 1}, {at.column}};
}

/// The three cells of the process list go one row up together, over the row above.
std::optional<Touched> OverwritesRowAbove(Grid& grid, const Site& at) {
  if (at.row < 2) return std::nullopt;
  for (std::size_t i = 0; i < 3; ++i) {
    grid.SetText(at.row - 1, at.column + i, grid.Text(at.row, at.column + i));
    grid.SetText(at.row, at.column + i, "");
  }
  return Touched{{at.row - 1, at.row}, {at.column}};
}

std::optional<Touched> SwapsListRows(Grid& grid, const Site& at) {
  if (at.row + 1 >= grid.RowCount() || grid.Text(at.row + 1, at.column).empty()) return std::nullopt;
  for (std::size_t i = 0; i < 3; ++i) SwapWithBelow(grid, {at.file, at.grid, at.what, at.row, at.column + i});
  return Touched{{at.row, at.row + 1}, {at.column}};
}

const std::vector<GridKind> kGrids = {
    {"value: of the row above", RepeatAbove, kParameterValues},
    {"value: one colour soft and hard", ColorOfBoth, kParameterValues},
    {"value: changes places with the row below", SwapWithBelow, kParameterValues, Result::kMayBeFaultless},
    {"value: moved down", MoveDown, kValues},
    {"value: cell inserted in the column", InsertCellInColumn, kValues},
    {"value: cell deleted in the column", DeleteCellInColumn, kValues},
    {"value: changes places with the right", SwapWithRight, kValues, Result::kAmongEquals},
    {"parameter name: listed twice", ListedWithAnotherValue, kParameterNames},
    {"parameter name: that of the row below", NameOfRowBelow, kParameterNames},
    {"parameter name: moved down", MoveDown, kParameterNames},
    {"parameter name: changes places with its value", SwapWithRight, kParameterNames},
    {"process name: that of the row below", NameOfRowBelow, kProcessNames},
    {"process name: listed again", ListedAgain, kProcessNames},
    {"process name: cell inserted in the column", InsertCellInColumn, kProcessNames},
    {"process name: cell deleted in the column", DeleteCellInColumn, kProcessNames},
    {"process name: changes places with its condition", SwapWithRight, kProcessNames},
    {"process name: its row over the row above", OverwritesRowAbove, kProcessNames, Result::kMayBeFaultless},
    {"process name: its row after the next", SwapsListRows, kProcessNames, Result::kMayBeFaultless},
    {"condition: cell inserted in the column (list)", InsertCellInColumn, kConditions},
    {"condition: cell deleted in the column (list)", DeleteCellInColumn, kConditions},
    {"condition: changes places with its parameter", SwapWithRight, kConditions},
    {"condition: that of the row below", SwapWithBelow, kConditions},
};

}  // namespace

void AddProcessListKinds(std::vector<Kind>& kinds) {
  AddKinds(Group::kProcessList, kNameTexts, kinds);
  AddKinds(Group::kProcessList, kValueTexts, kinds);
  AddKinds(Group::kProcessList, kGrids, kinds);
}

}  // namespace plateconfig::slips
