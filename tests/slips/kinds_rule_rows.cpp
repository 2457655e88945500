// Slips in the rows of the rule table: their conditions and process texts.

#include "slips/grid_slips.h"
#include "slips/kinds.h"

namespace plateconfig::slips {
namespace {

const std::vector<What> kRanges = {What::kRange};
const std::vector<What> kExact = {What::kWish, What::kMaterial};
const std::vector<What> kWishes = {What::kWish};
const std::vector<What> kMaterials = {What::kMaterial};
const std::vector<What> kLayers = {What::kRuleLayer};
const std::vector<What> kProcessTexts = {What::kProcessText};
const std::vector<What> kConditions = {What::kRange, What::kWish, What::kMaterial, What::kOpposite};

/// Both bounds with something behind them.
TextSlip BothBounds(const std::string& unit) {
  return [unit](const std::string& text, std::uint64_t) {
    const std::size_t bar = text.find('_');
    return text.substr(0, bar) + unit + text.substr(bar) + unit;
  };
}

const std::vector<TextKind> kRangeTexts = {
    {"range: dropped character", DroppedCharacter(), kRanges, Result::kMayBeFaultless},
    {"range: doubled character", DoubledCharacter(), kRanges, Result::kMayBeFaultless},
    {"range: swapped characters", SwappedCharacters(), kRanges, Result::kMayBeFaultless},
    {"range: － for _", Replaced("_", "－"), kRanges},
    {"range: – for _", Replaced("_", "–"), kRanges},
    {"range: - for _", Replaced("_", "-"), kRanges},
    {"range: — for _", Replaced("_", "—"), kRanges},
    {"range: ~ for _", Replaced("_", "~"), kRanges},
    {"range: ～ for _", Replaced("_", "～"), kRanges},
    {"range: ＿ for _", Replaced("_", "＿"), kRanges},
    {"range: __ for _", Replaced("_", "__"), kRanges},
    {"range: blank for _", Replaced("_", " "), kRanges},
    {"range: . for _", Replaced("_", "."), kRanges},
    {"range: / for _", Replaced("_", "/"), kRanges},
    {"range: 到 for _", Replaced("_", "到"), kRanges},
    {"range: blanks around _", Replaced("_", " _ "), kRanges},
    {"range: O for 0", Replaced("0", "O"), kRanges},
    {"range: o for 0", Replaced("0", "o"), kRanges},
    {"range: l for 1", Replaced("1", "l"), kRanges},
    {"range: I for 1", Replaced("1", "I"), kRanges},
    {"range: S for 5", Replaced("5", "S"), kRanges},
    {"range: 〇 for 0", Replaced("0", "〇"), kRanges},
    {"range: digit of full width", OneFullWidth(), kRanges},
    {"range: all of full width", AllFullWidth(), kRanges},
    {"range: blank in front", Front(" "), kRanges},
    {"range: blank behind", Behind(" "), kRanges},
    {"range: blank inside", Inside(" "), kRanges},
    {"range: blank of full width in front", Front("　"), kRanges},
    {"range: blank of full width inside", Inside("　"), kRanges},
    {"range: no-break blank, saved as ?", Front("?"), kRanges},
    {"range: tab in front", Front("\t"), kRanges},
    {"range: line break inside", Inside("\n"), kRanges},
    {"range: mm behind", Behind("mm"), kRanges},
    {"range: mm behind both", BothBounds("mm"), kRanges},
    {"range: turned round", TurnedRound(), kRanges},
    {"range: one bound alone",
     [](const std::string& text, std::uint64_t) { return text.substr(0, text.find('_')); }, kRanges},
    {"range: third bound", Behind("_9999"), kRanges},
    {"range: _ behind", Behind("_"), kRanges},
    {"range: ≥ in front", Front("≥"), kRanges},
    {"range: 约 in front", Front("约"), kRanges},
    {"range: apostrophe in front", Front("'"), kRanges},
    {"range: in brackets", [](const std::string& text, std::uint64_t) { return "(" + text + ")"; }, kRanges},
    {"range: ≤ in front of the maximum", Replaced("_", "_≤"), kRanges},
    {"range: thousands' comma", Replaced("00_", ",000_"), kRanges},
    {"range: a date made of it", Become("6月30日"), kRanges},
    {"range: ####### of a narrow column", Become("#######"), kRanges},
    {"range: #REF! of a formula", Become("#REF!"), kRanges},
    {"range: 不限 in its place", Become("不限"), kRanges},
    {"range: / in its place", Become("/"), kRanges},
    {"range: 0 in its place", Become("0"), kRanges},
};

const std::vector<TextKind> kExactTexts = {
    {"wish or material: dropped character", DroppedCharacter(), kExact},
    {"wish or material: doubled character", DoubledCharacter(), kExact},
    {"wish or material: swapped characters", SwappedCharacters(), kExact},
    {"wish or material: traditional character", Traditional(), kExact},
    {"wish or material: similar character", SimilarCharacter(), kExact},
    {"wish or material: blank in front", Front(" "), kExact},
    {"wish or material: blank behind", Behind(" "), kExact},
    {"wish or material: blank inside", Inside(" "), kExact},
    {"wish or material: blank of full width behind", Behind("　"), kExact},
    {"wish or material: no-break blank, saved as ?", Behind("?"), kExact},
    {"wish or material: tab behind", Behind("\t"), kExact},
    {"wish or material: line break behind", Behind("\n"), kExact},
    {"wish or material: full stop behind", Behind("。"), kExact},
    {"wish: 有 alone", FirstCharacters(1), kWishes},
    {"wish: without 有", WithoutFirst(), kWishes},
    {"wish: Y", Become("Y"), kWishes},
    {"wish: y", Become("y"), kWishes},
    {"wish: 是", Become("是"), kWishes},
    {"wish: √", Become("√"), kWishes},
    {"wish: 1", Become("1"), kWishes},
    {"wish: 需要", Become("需要"), kWishes},
    {"wish: the column's name", PieceOf({{"有", "有无"}}), kWishes},
    {"wish: 有线切割", OneOf({{"有线割", "有线切割"}, {"有型面", "有成型面"}}), kWishes},
    {"material: 软料", PieceOf({{"（体颜色）", ""}}), kMaterials},
    {"material: 软", FirstCharacters(1), kMaterials},
    {"material: brackets of half width", AllHalfWidth(), kMaterials},
    {"material: one bracket of half width", Replaced("（", "("), kMaterials},
    {"material: bracket not closed", WithoutLast(), kMaterials},
    {"material: other brackets", PieceOf({{"（体颜色）", "【体颜色】"}}), kMaterials},
    {"material: 颜色 alone", PieceOf({{"体颜色", "颜色"}}), kMaterials},
    {"material: 体色", PieceOf({{"体颜色", "体色"}}), kMaterials},
    {"material: a steel's name", Become("45#钢"), kMaterials},
    {"material: 软材", PieceOf({{"软料", "软材"}, {"硬料", "硬材"}}), kMaterials},
    {"material: Y", Become("Y"), kMaterials},
};

const std::vector<TextKind> kLayerTexts = {
    {"row layer: dropped character", DroppedCharacter(), kLayers, Result::kMayBeFaultless},
    {"row layer: doubled character", DoubledCharacter(), kLayers, Result::kMayBeFaultless},
    {"row layer: swapped characters", SwappedCharacters(), kLayers, Result::kMayBeFaultless},
    {"row layer: emptied", Become(""), kLayers},
    {"row layer: O for 0", Replaced("0", "O"), kLayers},
    {"row layer: l for 1", Replaced("1", "l"), kLayers},
    {"row layer: digits of full width", AllFullWidth(), kLayers},
    {"row layer: blank of full width in front", Front("　"), kLayers},
    {"row layer: no-break blank, saved as ?", Front("?"), kLayers},
    {"row layer: blank inside", Inside(" "), kLayers},
    {"row layer: L in front", Front("L"), kLayers},
    {"row layer: 图层 in front", Front("图层"), kLayers},
    {"row layer: 257", Become("257"), kLayers},
    {"row layer: 0", Become("0"), kLayers},
    {"row layer: negative", Front("-"), kLayers},
    {"row layer: two layers", Front("1_"), kLayers},
    {"row layer: a blank alone", Become(" "), kLayers},
    {"row layer: #N/A of a formula", Become("#N/A"), kLayers},
};

const std::vector<TextKind> kProcessTextTexts = {
    {"process text: dropped character", DroppedCharacter(), kProcessTexts, Result::kMayBeFaultless},
    {"process text: doubled character", DoubledCharacter(), kProcessTexts, Result::kMayBeFaultless},
    {"process text: swapped characters", SwappedCharacters(), kProcessTexts, Result::kMayBeFaultless},
    {"process text: traditional character", Traditional(), kProcessTexts, Result::kMayBeFaultless},
    {"process text: blank in front", Front(" "), kProcessTexts},
    {"process text: blank behind", Behind(" "), kProcessTexts},
    {"process text: blank of full width behind", Behind("　"), kProcessTexts},
    {"process text: tab behind", Behind("\t"), kProcessTexts},
    {"process text: line break behind", Behind("\n"), kProcessTexts},
    {"process text: a blank alone", Become(" "), kProcessTexts},
    {"process text: ± saved as ?", PieceOf({{"±", "?"}, {"≤", "?"}, {"°", "?"}, {"；", "?"}, {"，", "?"}}),
     kProcessTexts},
    {"process text: O for 0 in a number", PieceOf({{"0.", "O."}, {"10", "1O"}, {"60", "6O"}}), kProcessTexts},
    {"process text: #REF! of a formula", Become("#REF!"), kProcessTexts},
    {"process text: #NAME? of a formula", Become("#NAME?"), kProcessTexts},
    {"process text: emptied", Become(""), kProcessTexts},
    {"process text: 0", Become("0"), kProcessTexts},
    {"process text: /", Become("/"), kProcessTexts},
};

std::optional<Touched> WithRawInFront(Grid& grid, const Site& at, const std::string& raw) {
  if (grid.Rows()[at.row][at.column].starts_with('"')) return std::nullopt;
  grid.SetRaw(at.row, at.column, raw + grid.Text(at.row, at.column));
  return Touched{{at.row}, {at.column}};
}

std::optional<Touched> OpensQuote(Grid& grid, const Site& at) {
  return WithRawInFront(grid, at, "\"");
}

std::optional<Touched> LosesClosingQuote(Grid& grid, const Site& at) {
  std::string raw = grid.Rows()[at.row][at.column];
  if (!raw.starts_with('"')) return std::nullopt;
  raw.pop_back();
  grid.SetRaw(at.row, at.column, raw);
  return Touched{{at.row}, {at.column}};
}

/// The comma of the text separates cells now.
std::optional<Touched> LosesQuotes(Grid& grid, const Site& at) {
  const std::string text = grid.Text(at.row, at.column);
  if (text.find(',') == std::string::npos) return std::nullopt;
  grid.SetRaw(at.row, at.column, text);
  return Touched{{at.row}, {at.column}};
}

/// Two rows that are far from each other change places.
std::optional<Touched> SwapsWithFarRow(Grid& grid, const Site& at) {
  const std::size_t other = (at.row + grid.RowCount() / 2) % grid.RowCount();
  if (other == 0) return std::nullopt;
  std::swap(grid.Rows()[at.row], grid.Rows()[other]);
  return Touched{{at.row, other}, {}};
}

std::optional<Touched> PasteRowAtEnd(Grid& grid, const Site& at) {
  grid.Rows().push_back(grid.Rows()[at.row]);
  return Touched{{at.row, grid.RowCount() - 1}, {}};
}

std::optional<Touched> IsEmptied(Grid& grid, const Site& at) {
  grid.SetText(at.row, at.column, "");
  return Touched{{at.row}, {at.column}};
}

const std::vector<GridKind> kGrids = {
    {"condition: emptied", IsEmptied, kConditions},
    {"condition: that of the row above", RepeatAbove, kConditions, Result::kMayBeFaultless},
    {"condition: changes places with the row below", SwapWithBelow, kConditions, Result::kMayBeFaultless},
    {"condition: moved right", MoveRight, kConditions},
    {"condition: changes places with the right", SwapWithRight, kConditions, Result::kAmongEquals},
    {"condition: moved down", MoveDown, kConditions},
    {"condition: cell inserted in the row", InsertCellInRow, kConditions},
    {"condition: cell deleted in the row", DeleteCellInRow, kConditions},
    {"condition: cell inserted in the column", InsertCellInColumn, kConditions},
    {"condition: cell deleted in the column", DeleteCellInColumn, kConditions},
    {"row layer: moved right", MoveRight, kLayers},
    {"row layer: changes places with the right", SwapWithRight, kLayers},
    {"row layer: moved down", MoveDown, kLayers},
    {"row layer: cell inserted in the row", InsertCellInRow, kLayers},
    {"row layer: cell deleted in the row", DeleteCellInRow, kLayers},
    {"row layer: cell inserted in the column", InsertCellInColumn, kLayers},
    {"process text: that of the row above", RepeatAbove, kProcessTexts, Result::kMayBeFaultless},
    {"process text: changes places with the right", SwapWithRight, kProcessTexts, Result::kAmongEquals},
    {"process text: cell inserted in the row", InsertCellInRow, kProcessTexts},
    {"process text: cell deleted in the row", DeleteCellInRow, kProcessTexts},
    {"process text: a quote opened", OpensQuote, kProcessTexts},
    {"process text: its quote not closed", LosesClosingQuote, kProcessTexts},
    {"process text: with a comma, but no quotes", LosesQuotes, kProcessTexts},
    {"row: pasted twice", PasteRowTwice, kLayers},
    {"row: pasted again at the end", PasteRowAtEnd, kLayers},
    {"row: changes places with the next", SwapRowWithNext, kLayers, Result::kMayBeFaultless},
    {"row: changes places with one far away", SwapsWithFarRow, kLayers, Result::kMayBeFaultless},
    {"row: deleted", DeleteRow, kLayers, Result::kMayBeFaultless},
    {"row: a blank one above", InsertBlankRow, kLayers, Result::kMayBeFaultless},
};

}  // namespace

void AddRuleRowKinds(std::vector<Kind>& kinds) {
  AddKinds(Group::kRuleRows, kRangeTexts, kinds);
  AddKinds(Group::kRuleRows, kExactTexts, kinds);
  AddKinds(Group::kRuleRows, kLayerTexts, kinds);
  AddKinds(Group::kRuleRows, kProcessTextTexts, kinds);
  AddKinds(Group::kRuleRows, kGrids, kinds);
  // Most process texts are of rows that no sample plate gets.
  constexpr std::size_t kManyPlaces = 18;
  for (Kind& kind : kinds) {
    if (kind.whats == kProcessTexts) kind.mostPlaces = kManyPlaces;
  }
}

}  // namespace plateconfig::slips
