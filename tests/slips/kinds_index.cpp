// Slips in config/standard.csv, which says what configuration is active, and in the variable that leads to
// it.

#include "slips/grid_slips.h"
#include "slips/kinds.h"

namespace plateconfig::slips {
namespace {

const std::vector<What> kHeaders = {What::kIndexHeader};
const std::vector<What> kFolders = {What::kIndexFolder};
const std::vector<What> kFlags = {What::kIndexFlag};
const std::vector<What> kCells = {What::kIndexHeader, What::kIndexFolder, What::kIndexFlag};

const std::vector<TextKind> kTexts = {
    {"index: dropped character", DroppedCharacter(), {What::kIndexHeader, What::kIndexFolder}},
    {"index: doubled character", DoubledCharacter(), kCells},
    {"index: swapped characters", SwappedCharacters(), kCells},
    {"index: traditional character", Traditional(), kCells},
    {"index: blank in front", Front(" "), kCells},
    {"index: blank behind", Behind(" "), kCells},
    {"index: blank of full width behind", Behind("　"), kCells},
    {"index: no-break blank, saved as ?", Behind("?"), kCells},
    {"index: tab behind", Behind("\t"), kCells},
    {"index: line break behind", Behind("\n"), kCells},
    {"index: emptied", Become(""), kCells},
    {"index header: shortened", OneOf({{"文件夹名称", "文件夹"}, {"有效配置", "有效"}}), kHeaders},
    {"index header: another word", OneOf({{"文件夹名称", "配置名称"}, {"有效配置", "是否有效"}}), kHeaders},
    {"index header: remark behind", Behind("(Y/N)"), kHeaders},
    {"index folder: ..", Become(".."), kFolders},
    {"index folder: .", Become("."), kFolders},
    {"index folder: \\ behind", Behind("\\"), kFolders},
    {"index folder: config\\ in front", Front("config\\"), kFolders},
    {"index folder: absolute path", Front("D:\\配置\\"), kFolders},
    {"index folder: another word", Become("标准件库"), kFolders},
    {"index flag: 是", Become("是"), kFlags},
    {"index flag: Ｙ of full width", AllFullWidth(), kFlags},
    {"index flag: Yes", Become("Yes"), kFlags},
    {"index flag: YES", Become("YES"), kFlags},
    {"index flag: 1", Become("1"), kFlags},
    {"index flag: √", Become("√"), kFlags},
    {"index flag: TRUE", Become("TRUE"), kFlags},
    {"index flag: both Y", OneOf({{"N", "Y"}}), kFlags},
    {"index flag: both y", OneOf({{"N", "y"}}), kFlags},
    {"index flag: none Y", OneOf({{"Y", "N"}}), kFlags},
};

const std::vector<GridKind> kGrids = {
    {"index: cell changes places with the right", SwapWithRight, kCells},
    {"index: cell inserted in the row", InsertCellInRow, kCells},
    {"index: cell deleted in the row", DeleteCellInRow, kCells},
    {"index: cell inserted in the column", InsertCellInColumn, {What::kIndexFolder, What::kIndexFlag}},
    {"index: flags change places", SwapWithBelow, kFlags, Result::kMayBeFaultless},
    {"index: row pasted twice", PasteRowTwice, kFolders},
    {"index: row deleted", DeleteRow, kFolders},
    {"index: column deleted", DeleteColumn, kHeaders},
};

std::optional<Change> RootWith(const Site& site, const std::string& suffix) {
  return Change{site.file->bytes, {}, "", "TQConfig=…" + suffix, false, suffix};
}

Kind RootKind(const std::string& name, const std::string& suffix) {
  const auto make = [suffix](const Site& site, std::uint64_t) { return RootWith(site, suffix); };
  return {Group::kIndex, name, {What::kIndexFile}, make};
}

}  // namespace

void AddIndexKinds(std::vector<Kind>& kinds) {
  AddKinds(Group::kIndex, kTexts, kinds);
  AddKinds(Group::kIndex, kGrids, kinds);
  kinds.push_back(RootKind("root: already ends in config", "/config"));
  kinds.push_back(RootKind("root: a blank behind", " "));
  kinds.push_back(RootKind("root: the configuration's own folder", "/config/标准"));
}

}  // namespace plateconfig::slips
