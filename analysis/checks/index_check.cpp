#include "analysis/checks/index_check.h"

#include <algorithm>
#include <string_view>

#include "analysis/cells/checked_cell.h"
#include "analysis/checks/table_check.h"
#include "analysis/text/folded_name.h"
#include "analysis/text/table_text.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

constexpr Words kConfigItself = {"the folder config itself is active", "因此 config 文件夹本身有效"};

class IndexCheck {
 public:
  IndexCheck(const ConfigurationIndex& index, const GivenTable& given, const Raise& raise)
      : index_(index), given_(given), raise_(raise) {}

  void Run() {
    if (!index_.exists) return RaiseWhole("index-missing", {kConfigItself});
    if (!index_.isReadable) return RaiseWhole("index-unreadable", {kConfigItself});
    if (!index_.hasRows) return RaiseNoRows();
    CheckNames();
    CheckRows();
    const auto active = std::count_if(index_.rows.begin(), index_.rows.end(),
                                      [](const IndexRow& row) { return row.isActive; });
    if (active == 0) RaiseAt("index-none-active", 1, {kConfigItself});
    if (active > 1) RaiseAt("index-many-active", SecondActiveRow(), {std::to_string(active)});
  }

 private:
  void RaiseWhole(Code code, std::vector<Word> words) {
    Finding finding{code, {given_.name}};
    finding.words = std::move(words);
    raise_(finding);
  }

  /// At the flag of a data row, counted from 1.
  void RaiseAt(Code code, std::size_t row, std::vector<Word> words) {
    const auto flag = given_.table ? given_.table->FindColumn(kIndexFlagColumn) : std::nullopt;
    if (!flag) return RaiseWhole(code, std::move(words));
    Finding finding = CellFinding(code, TableText(given_.name, *given_.table), row, *flag);
    finding.words = std::move(words);
    raise_(finding);
  }

  std::size_t SecondActiveRow() const {
    const auto isActive = [](const IndexRow& row) { return row.isActive; };
    const auto first = std::find_if(index_.rows.begin(), index_.rows.end(), isActive);
    const auto second = std::find_if(first + 1, index_.rows.end(), isActive);
    return static_cast<std::size_t>(second - index_.rows.begin()) + 1;
  }

  void RaiseNoRows() {
    Finding finding{"index-no-rows", {given_.name}};
    finding.words = {GbkToUtf8(kIndexFolderColumn), GbkToUtf8(kIndexFlagColumn), kConfigItself};
    finding.columnName = MissingColumn();
    raise_(finding);
    CheckNames();
  }

  /// The name of the column that the table lacks; empty when it has both or neither.
  std::string MissingColumn() const {
    if (!given_.table) return {};
    const bool hasFolder = given_.table->FindColumn(kIndexFolderColumn).has_value();
    const bool hasFlag = given_.table->FindColumn(kIndexFlagColumn).has_value();
    if (hasFolder == hasFlag) return {};
    return GbkToUtf8(hasFolder ? kIndexFlagColumn : kIndexFolderColumn);
  }

  /// That there are no rows is said already.
  void CheckNames() {
    CheckHeader(given_, [&](const Finding& finding) {
      if (finding.code != Code("table-no-rows") && finding.code != Code("table-empty")) raise_(finding);
    });
  }

  void CheckRows() {
    if (!given_.table) return;
    const TableText table(given_.name, *given_.table);
    const auto folder = given_.table->FindColumn(kIndexFolderColumn);
    const auto flag = given_.table->FindColumn(kIndexFlagColumn);
    for (std::size_t i = 0; folder && flag && i < index_.rows.size(); ++i)
      CheckRow(table, index_.rows[i], i + 1, *folder, *flag);
  }

  void CheckRow(const TableText& table, const IndexRow& row, std::size_t at, std::size_t folder,
                std::size_t flag) {
    const bool isYes = row.flag == "Y" || row.flag == "y";
    const bool isNo = row.flag.empty() || row.flag == "N" || row.flag == "n";
    if (!isYes && !isNo) RaiseFlag(CellFinding("index-flag", table, at, flag));
    if (row.flag.empty() && !row.folderName.empty() && StatesNo())
      raise_(CellFinding("index-flag-empty", table, at, flag));
    if (isYes && row.folderName.empty()) raise_(CellFinding("index-folder-empty", table, at, folder));
    if (row.isActive && IsOdd(GbkToUtf8(row.folderName)))
      raise_(CellFinding("index-folder-odd", table, at, folder));
  }

  /// Whether a row that is not active says so.
  bool StatesNo() const {
    return std::any_of(index_.rows.begin(), index_.rows.end(),
                       [](const IndexRow& row) { return row.flag == "N" || row.flag == "n"; });
  }

  void RaiseFlag(Finding finding) {
    if (MeantYes(*finding.text) == true) finding.fix = "Y";
    finding.usedAs = "N";
    raise_(finding);
  }

  static bool IsOdd(std::string_view name) {
    return name == "." || name.find("..") != std::string_view::npos ||
           name.find_first_of("/\\:*?\"<>|") != std::string_view::npos ||
           WithoutOuterBlanks(name).size() != name.size();
  }

  const ConfigurationIndex& index_;
  const GivenTable& given_;
  const Raise& raise_;
};

bool EndsInConfig(std::string_view root) {
  while (root.ends_with('/') || root.ends_with('\\')) root.remove_suffix(1);
  const std::size_t separator = root.find_last_of("/\\");
  return FoldedName(root.substr(separator == std::string_view::npos ? 0 : separator + 1)) == "config";
}

/// At the last row that leads there, if one does.
Finding MissingFolder(const ConfigurationIndex& index, const GivenTable& given, const std::string& folder) {
  const auto row = std::find_if(index.rows.rbegin(), index.rows.rend(),
                                [](const IndexRow& each) { return each.isActive; });
  const auto column = given.table ? given.table->FindColumn(kIndexFolderColumn) : std::nullopt;
  const bool hasCell = row != index.rows.rend() && column;
  Finding finding{"index-folder-missing", {hasCell ? given.name : folder}};
  if (hasCell) {
    const auto at = static_cast<std::size_t>(index.rows.rend() - row);
    finding = CellFinding("index-folder-missing", TableText(given.name, *given.table), at, *column);
  }
  finding.words = {folder};
  return finding;
}

}  // namespace

void CheckIndex(const ConfigurationIndex& index, const GivenTable& given, const IndexNames& names,
                const Raise& raise) {
  IndexCheck(index, given, raise).Run();
  if (EndsInConfig(names.root)) raise({"root-ends-in-config", {given.name}});
  if (!names.activeFolderExists) raise(MissingFolder(index, given, names.activeFolder));
}

}  // namespace plateconfig
