// Slips in the cells of the tables of settings.

#include "slips/grid_slips.h"
#include "slips/kinds.h"

namespace plateconfig::slips {
namespace {

const std::vector<What> kNumbers = {What::kNumber, What::kColor, What::kLayer, What::kColumnWidth};
const std::vector<What> kNumbersAndLists = {What::kNumber,      What::kColor,     What::kLayer,
                                            What::kColumnWidth, What::kColorList, What::kDiameterRange};
const std::vector<What> kLengths = {What::kNumber, What::kColumnWidth};
const std::vector<What> kPlainNumbers = {What::kNumber};
const std::vector<What> kColors = {What::kColor};
const std::vector<What> kLayers = {What::kLayer};
const std::vector<What> kWidths = {What::kColumnWidth};
const std::vector<What> kLists = {What::kColorList, What::kDiameterRange};
const std::vector<What> kDiameters = {What::kDiameterRange};
const std::vector<What> kStyles = {What::kStyle};
const std::vector<What> kFlags = {What::kFlag};
const std::vector<What> kTexts = {What::kText};
const std::vector<What> kAll = {What::kNumber,    What::kColor,         What::kLayer, What::kColumnWidth,
                                What::kColorList, What::kDiameterRange, What::kStyle, What::kFlag};

const std::vector<TextKind> kNumberTexts = {
    {"number: dropped character", DroppedCharacter(), kNumbersAndLists, Result::kMayBeFaultless},
    {"number: doubled character", DoubledCharacter(), kNumbersAndLists, Result::kMayBeFaultless},
    {"number: swapped characters", SwappedCharacters(), kNumbersAndLists, Result::kMayBeFaultless},
    {"number: another digit", PieceOf({{"2", "3"}, {"5", "6"}, {"7", "4"}, {"8", "9"}}), kNumbersAndLists,
     Result::kMayBeFaultless},
    {"number: O for 0", Replaced("0", "O"), kNumbersAndLists},
    {"number: O for all 0", AllReplaced("0", "O"), kNumbersAndLists},
    {"number: l for 1", Replaced("1", "l"), kNumbersAndLists},
    {"number: S for 5", Replaced("5", "S"), kNumbersAndLists},
    {"number: one digit of full width", OneFullWidth(), kNumbersAndLists},
    {"number: all of full width", AllFullWidth(), kNumbersAndLists},
    {"number: blank of full width in front", Front("　"), kNumbersAndLists},
    {"number: blank inside", Inside(" "), kNumbersAndLists},
    {"number: no-break blank, saved as ?", Front("?"), kNumbersAndLists},
    {"number: apostrophe in front", Front("'"), kNumbersAndLists},
    {"number: = in front", Front("="), kNumbersAndLists},
    {"number: 约 in front", Front("约"), kNumbers},
    {"number: minus in front", Front("-"), kNumbers},
    {"number: two of them", Behind("_1"), kNumbers},
    {"number: abc in its place", Become("abc"), kNumbers},
    {"number: 无 in its place", Become("无"), kNumbersAndLists},
    {"number: - in its place", Become("-"), kNumbersAndLists},
    {"number: #VALUE! of a formula", Become("#VALUE!"), kNumbersAndLists},
    {"number: ##### of a narrow column", Become("#####"), kNumbersAndLists},
    {"number: thousands' comma", PieceOf({{"000", ",000"}, {"500", ",500"}, {"200", ",200"}}), kLengths},
    {"number: of the first cell emptied", Become(""), kNumbersAndLists},
    {"number: decimal comma", Replaced(".", ","), kPlainNumbers},
    {"number: 。 for .", Replaced(".", "。"), kPlainNumbers},
    {"number: ． for .", Replaced(".", "．"), kPlainNumbers},
    {"number: · for .", Replaced(".", "·"), kPlainNumbers},
    {"number: two points", Replaced(".", ".."), kPlainNumbers},
    {"number: per cent", AllReplaced("0.", "%"), kPlainNumbers},
    {"number: a fraction", PieceOf({{"0.5", "1/2"}, {"0.25", "1/4"}, {"0.2", "1/5"}, {"0.75", "3/4"}}),
     kPlainNumbers},
    {"number: a date made of it", Become("3月8日"), kPlainNumbers},
    {"colour: 0", Become("0"), kColors},
    {"colour: 217", Become("217"), kColors},
    {"colour: 999", Become("999"), kColors},
    {"colour: its name", Become("红"), kColors},
    {"colour: # in front", Front("#"), kColors},
    {"layer: 0", Become("0"), kLayers},
    {"layer: 257", Become("257"), kLayers},
    {"layer: 1000", Become("1000"), kLayers},
    {"layer: L in front", Front("L"), kLayers},
    {"layer: 图层 in front", Front("图层"), kLayers},
    {"width: 0", Become("0"), kWidths},
    {"width: 宽 in front", Front("宽"), kWidths},
    {"width: 自动", Become("自动"), kWidths},
    {"list: － for _", Replaced("_", "－"), kLists},
    {"list: - for _", Replaced("_", "-"), kLists},
    {"list: ~ for _", Replaced("_", "~"), kLists},
    {"list: ＿ for _", Replaced("_", "＿"), kLists},
    {"list: , for _", Replaced("_", ","), kLists},
    {"list: 、 for _", Replaced("_", "、"), kLists},
    {"list: blank for _", Replaced("_", " "), kLists},
    {"list: __ for _", Replaced("_", "__"), kLists},
    {"range of diameters: turned round", TurnedRound(), kDiameters},
    {"range of diameters: third bound", Behind("_9"), kDiameters},
    {"range of diameters: Φ in front", Front("Φ"), kDiameters},
};

/// One field is missing.
std::string WithoutField(const std::string& text, std::size_t field) {
  std::size_t begin = 0;
  for (std::size_t i = 0; i < field; ++i) begin = text.find('|', begin) + 1;
  return text.substr(0, begin) + text.substr(text.find('|', begin) + 1);
}

TextSlip MissingField(std::size_t field) {
  return [field](const std::string& text, std::uint64_t) { return WithoutField(text, field); };
}

const std::vector<TextKind> kStyleTexts = {
    {"style: dropped character", DroppedCharacter(), kStyles, Result::kMayBeFaultless},
    {"style: doubled character", DoubledCharacter(), kStyles, Result::kMayBeFaultless},
    {"style: swapped characters", SwappedCharacters(), kStyles, Result::kMayBeFaultless},
    {"style: one ｜ of full width", Replaced("|", "｜"), kStyles},
    {"style: every ｜ of full width", AllReplaced("|", "｜"), kStyles},
    {"style: / for |", Replaced("|", "/"), kStyles},
    {"style: l for |", Replaced("|", "l"), kStyles},
    {"style: , for every |", AllReplaced("|", ","), kStyles},
    {"style: _ for every |", AllReplaced("|", "_"), kStyles},
    {"style: blank for |", Replaced("|", " "), kStyles},
    {"style: || for |", Replaced("|", "||"), kStyles},
    {"style: no font", MissingField(0), kStyles},
    {"style: no size", MissingField(1), kStyles},
    {"style: five fields",
     [](const std::string& text, std::uint64_t) { return text.substr(0, text.rfind('|')); }, kStyles},
    {"style: seven fields", Behind("|1"), kStyles},
    {"style: the font alone",
     [](const std::string& text, std::uint64_t) { return text.substr(0, text.find('|')); }, kStyles},
    {"style: letters for the size", InField(1, Become("abc")), kStyles},
    {"style: 。 in a number", Replaced("0.5", "0。5"), kStyles},
    {"style: , in a number", Replaced("0.5", "0,5"), kStyles},
    {"style: O for 0", Replaced("0", "O"), kStyles},
    {"style: size of full width", InField(1, AllFullWidth()), kStyles},
    {"style: size emptied", InField(1, Become("")), kStyles},
    {"style: size 0", InField(1, Become("0")), kStyles},
    {"style: font emptied", InField(0, Become("")), kStyles},
    {"style: blank in front", Front(" "), kStyles},
    {"style: blank behind the font", InField(0, Behind(" ")), kStyles},
    {"style: blank of full width in the size", InField(1, Front("　")), kStyles},
    {"style: emptied", Become(""), kStyles},
    {"style: one blank", Become(" "), kStyles},
};

const std::vector<TextKind> kFlagTexts = {
    {"flag: 是", OneOf({{"Y", "是"}, {"N", "否"}}), kFlags},
    {"flag: 有", OneOf({{"Y", "有"}, {"N", "无"}}), kFlags},
    {"flag: small letter", LowerCase(), kFlags},
    {"flag: full width", AllFullWidth(), kFlags},
    {"flag: yes", OneOf({{"Y", "yes"}, {"N", "no"}}), kFlags},
    {"flag: YES", OneOf({{"Y", "YES"}, {"N", "NO"}}), kFlags},
    {"flag: TRUE", OneOf({{"Y", "TRUE"}, {"N", "FALSE"}}), kFlags},
    {"flag: 1", OneOf({{"Y", "1"}, {"N", "0"}}), kFlags},
    {"flag: √", OneOf({{"Y", "√"}, {"N", "×"}}), kFlags},
    {"flag: doubled", DoubledCharacter(), kFlags},
    {"flag: blank in front", Front(" "), kFlags},
    {"flag: blank behind", Behind(" "), kFlags},
    {"flag: blank of full width behind", Behind("　"), kFlags},
    {"flag: no-break blank, saved as ?", Behind("?"), kFlags},
    {"flag: tab behind", Behind("\t"), kFlags},
    {"flag: line break behind", Behind("\n"), kFlags},
    {"flag: full stop behind", Behind("."), kFlags},
    {"flag: the key beside it", OneOf({{"Y", "U"}, {"N", "M"}}), kFlags},
    {"flag: emptied", Become(""), kFlags},
};

const std::vector<TextKind> kTextTexts = {
    {"text: dropped character", DroppedCharacter(), kTexts, Result::kMayBeFaultless},
    {"text: doubled character", DoubledCharacter(), kTexts, Result::kMayBeFaultless},
    {"text: swapped characters", SwappedCharacters(), kTexts, Result::kMayBeFaultless},
    {"text: sign of full width", OneFullWidth(), kTexts, Result::kMayBeFaultless},
    {"text: blank in front", Front(" "), kTexts},
    {"text: blank behind", Behind(" "), kTexts},
    {"text: blank of full width behind", Behind("　"), kTexts},
    {"text: tab behind", Behind("\t"), kTexts},
    {"text: line break behind", Behind("\n"), kTexts},
    {"text: no-break blank, saved as ?", Behind("?"), kTexts},
    {"text: ? for its Chinese", Become("???"), kTexts},
    {"text: #REF! of a formula", Become("#REF!"), kTexts},
    {"text: emptied", Become(""), kTexts},
};

std::optional<Touched> FirstCellOnly(const Site& at, std::optional<Touched> (*slip)(Grid&, const Site&),
                                     Grid& grid) {
  return at.row == 1 ? slip(grid, at) : std::nullopt;
}

std::optional<Touched> FirstMovesDown(Grid& grid, const Site& at) {
  return FirstCellOnly(at, MoveDown, grid);
}

/// The table has one row, and the value stands in the next.
std::optional<Touched> FirstMovesToNewRow(Grid& grid, const Site& at) {
  if (at.row != 1 || grid.RowCount() != 2) return std::nullopt;
  grid.Rows().emplace_back(grid.ColumnCount());
  return MoveDown(grid, at);
}

std::optional<Touched> BlankRowAbove(Grid& grid, const Site& at) {
  return FirstCellOnly(at, InsertBlankRow, grid);
}

std::optional<Touched> OpensQuote(Grid& grid, const Site& at) {
  const std::string raw = grid.Rows()[at.row][at.column];
  if (raw.starts_with('"')) return std::nullopt;
  grid.SetRaw(at.row, at.column, "\"" + raw);
  return Touched{{at.row}, {at.column}};
}

std::optional<Touched> GapInList(Grid& grid, const Site& at) {
  const bool isInside =
      at.row > 1 && at.row + 1 < grid.RowCount() && !grid.Text(at.row + 1, at.column).empty();
  return isInside ? InsertCellInColumn(grid, at) : std::nullopt;
}

std::optional<Touched> EmptiedInList(Grid& grid, const Site& at) {
  const bool isInside = at.row + 1 < grid.RowCount() && !grid.Text(at.row + 1, at.column).empty();
  if (!isInside) return std::nullopt;
  grid.SetText(at.row, at.column, "");
  return Touched{{at.row}, {at.column}};
}

const std::vector<GridKind> kGrids = {
    {"cell: in the second row instead", FirstMovesDown, kAll},
    {"cell: in a row below the only one", FirstMovesToNewRow, kAll},
    {"cell: moved right", MoveRight, kAll},
    {"cell: inserted in the row", InsertCellInRow, kAll},
    {"cell: deleted in the row", DeleteCellInRow, kAll},
    {"cell: a gap in its list", GapInList, kAll},
    {"cell: emptied within its list", EmptiedInList, kAll},
    {"cell: a quote opened",
     OpensQuote,
     {What::kNumber, What::kFlag, What::kStyle, What::kText, What::kLayer}},
    {"row: a blank one below the header", BlankRowAbove, kAll},
    {"row: a blank one in between",
     InsertBlankRow,
     {What::kLayer, What::kText, What::kDiameterRange, What::kColorList}},
};

}  // namespace

void AddSettingKinds(std::vector<Kind>& kinds) {
  AddKinds(Group::kSettings, kNumberTexts, kinds);
  AddKinds(Group::kSettings, kStyleTexts, kinds);
  AddKinds(Group::kSettings, kFlagTexts, kinds);
  AddKinds(Group::kSettings, kTextTexts, kinds);
  AddKinds(Group::kSettings, kGrids, kinds);
}

}  // namespace plateconfig::slips
