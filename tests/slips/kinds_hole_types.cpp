// Slips in the table of hole types.

#include "slips/grid_slips.h"
#include "slips/kinds.h"

namespace plateconfig::slips {
namespace {

const std::vector<What> kHeaders = {What::kHoleHeader};
const std::vector<What> kStructures = {What::kHoleStructure};
const std::vector<What> kNumbers = {What::kHoleColors, What::kHoleDiameters};
const std::vector<What> kLists = {What::kHoleStructure, What::kHoleColors, What::kHoleDiameters};
const std::vector<What> kNames = {What::kHoleName};

const std::vector<TextKind> kTexts = {
    {"hole header: dropped character", DroppedCharacter(), kHeaders},
    {"hole header: doubled character", DoubledCharacter(), kHeaders},
    {"hole header: swapped characters", SwappedCharacters(), kHeaders},
    {"hole header: traditional character", Traditional(), kHeaders},
    {"hole header: blank behind", Behind(" "), kHeaders},
    {"hole header: blank of full width behind", Behind("　"), kHeaders},
    {"hole header: unit (mm)", Behind("(mm)"), kHeaders},
    {"hole header: first character missing", WithoutFirst(), kHeaders},
    {"hole header: emptied", Become(""), kHeaders},
    {"hole: dropped character", DroppedCharacter(), kNumbers, Result::kMayBeFaultless},
    {"hole: doubled character", DoubledCharacter(), kNumbers, Result::kMayBeFaultless},
    {"hole: swapped characters", SwappedCharacters(), kNumbers, Result::kMayBeFaultless},
    {"hole: another digit", Replaced("6", "9"), kNumbers, Result::kMayBeFaultless},
    {"hole: O for 0", Replaced("0", "O"), kLists},
    {"hole: l for 1", Replaced("1", "l"), kLists},
    {"hole: digit of full width", OneFullWidth(), kLists},
    {"hole: － for _", Replaced("_", "－"), kLists},
    {"hole: - for _", Replaced("_", "-"), kLists},
    {"hole: , for _", Replaced("_", ","), kLists},
    {"hole: ～ for _", Replaced("_", "～"), kLists},
    {"hole: ； for ;", Replaced(";", "；"), kNumbers},
    {"hole: blank inside", Inside(" "), kLists},
    {"hole: blank of full width in front", Front("　"), kLists},
    {"hole: Φ in front", Front("Φ"), kNumbers},
    {"hole: mm behind", Behind("mm"), {What::kHoleDiameters}},
    {"hole: emptied", Become(""), kLists},
    {"hole: # in front", Front("#"), {What::kHoleColors}},
    {"hole structure: a third missing",
     [](const std::string& text, std::uint64_t) { return text.substr(0, text.rfind('_')); }, kStructures},
    {"hole structure: a fourth", Behind("_1"), kStructures},
    {"hole structure: 顶通底", Become("顶通"), kStructures},
    {"hole name: dropped character", DroppedCharacter(), kNames, Result::kMayBeFaultless},
    {"hole name: blank behind", Behind(" "), kNames},
    {"hole name: emptied", Become(""), kNames},
};

const std::vector<GridKind> kGrids = {
    {"hole: changes places with the right", SwapWithRight, kNumbers, Result::kAmongEquals},
    {"hole: moved right", MoveRight, kNumbers},
    {"hole: that of the row above", RepeatAbove, kLists, Result::kMayBeFaultless},
    {"hole: cell inserted in the row", InsertCellInRow, kLists},
    {"hole: cell deleted in the row", DeleteCellInRow, kLists},
    {"hole: cell inserted in the column", InsertCellInColumn, kLists},
    {"hole: row pasted twice", PasteRowTwice, kNames},
    {"hole: column deleted", DeleteColumn, kHeaders},
    {"hole header: changes places with the next", SwapWithRight, kHeaders, Result::kAmongEquals},
};

}  // namespace

void AddHoleTypeKinds(std::vector<Kind>& kinds) {
  AddKinds(Group::kHoleTypes, kTexts, kinds);
  AddKinds(Group::kHoleTypes, kGrids, kinds);
}

}  // namespace plateconfig::slips
