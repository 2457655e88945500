#include "plateconfig/tables/found_roles.h"

#include <fmt/format.h>

#include <algorithm>
#include <array>
#include <functional>
#include <optional>
#include <set>
#include <sstream>
#include <string_view>
#include <system_error>

#include "analysis/checks/column_check.h"
#include "analysis/checks/file_check.h"
#include "analysis/findings/sentence.h"
#include "analysis/schema/table_schema.h"
#include "analysis/text/folded_name.h"
#include "analysis/text/strict_values.h"
#include "config/table.h"
#include "plateconfig/input/csv_stream.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/messages/reporter.h"
#include "plateconfig/system/console.h"
#include "platform/file.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

namespace fs = std::filesystem;

/// How well a table fits a role, from 0 to `kWhole`.
using Strength = std::size_t;
constexpr Strength kWhole = 1000;
/// A table of column widths is known by its numbers at best. Less than half of the whole, so that one whose
/// name says it as well is no rival's.
constexpr Strength kOfNumbers = 400;

/// A table with the roles that it fits best.
struct Candidate {
  std::string name;  ///< UTF-8
  std::vector<Role> roles;
  Strength strength = 0;
  bool isClear = false;        ///< What its columns tell is more than that a few names are the same.
  std::string why;             ///< Why it is none, when that is known already.
  std::string_view otherKind;  ///< Empty, or the other kind that it is of.
};

std::string Utf8(const fs::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

// ---- what is no table ----

/// The names of the columns (UTF-8), whatever the encoding; none for what is no text.
std::set<std::string> HeaderOf(const Table& table) {
  std::istringstream in{std::string(table.Bytes())};
  std::ostringstream nowhere;
  Reporter silent(nowhere);
  CsvStream rows(in, {}, silent);
  std::set<std::string> names;
  const CsvRow* header = rows.ReadHeader();
  if (header == nullptr) return names;
  for (const CsvCell& cell : header->cells) names.emplace(cell.text);
  return names;
}

const OtherKind* KindOf(const std::set<std::string>& header, const std::vector<OtherKind>& others) {
  const auto kind = std::find_if(others.begin(), others.end(), [&](const OtherKind& other) {
    return std::all_of(other.columns.begin(), other.columns.end(),
                       [&](const std::string& column) { return header.contains(column); });
  });
  return kind == others.end() ? nullptr : &*kind;
}

/// The columns (GBK) that a table of any role may have.
const std::set<std::string>& ColumnsOfAllRoles() {
  static const std::set<std::string> columns = [] {
    std::set<std::string> all;
    for (const RoleRow& row : ManifestRoles()) all.merge(ReadColumns(SchemaOf(row.role), Table()));
    return all;
  }();
  return columns;
}

/// Why no column is found in the file, as a check would tell it; empty when that is not the file's fault.
std::string FaultOf(const std::string& name, const Table& table) {
  if (table.ColumnCount() == 0) return Say("an empty file", "空文件");
  std::vector<Finding> findings;
  const auto isColumn = [](std::string_view column) {
    return ColumnsOfAllRoles().contains(std::string(column));
  };
  const Consequences untold = {Words(), Words()};
  const auto keep = [&](const Finding& finding) { findings.push_back(finding); };
  const bool mayHaveColumns = CheckFile(TableText(name, table), isColumn, untold, keep);
  return mayHaveColumns ? std::string() : LineOf(findings.back(), CurrentLanguage());
}

// ---- what its columns tell ----

/// How many columns the table, the role and both have.
struct Share {
  std::size_t ofTable = 0;
  std::size_t ofRole = 0;
  std::size_t ofBoth = 0;

  /// Both shares in one number: that of the table's columns and that of the role's.
  Strength AsStrength() const { return 2 * kWhole * ofBoth / (ofTable + ofRole); }
  /// One or two names of many may be the same by chance.
  bool IsClear() const { return 2 * ofBoth > ofTable && (ofBoth > 2 || 10 * ofBoth >= ofRole); }
};

std::size_t CountColumns(const Table& table, const std::function<bool(const std::string& name)>& counts) {
  std::size_t count = 0;
  for (std::size_t column = 0; column < table.ColumnCount(); ++column) {
    if (counts(table.Cell(0, column))) ++count;
  }
  return count;
}

Share ShareOf(const Table& table, Role role) {
  const std::set<std::string> read = ReadColumns(SchemaOf(role), table);
  const auto isRead = [&](const std::string& name) { return read.contains(name); };
  const auto counts = [&](const std::string& name) {
    return isRead(name) || !IsRemarkColumn(GbkToUtf8(name));
  };
  return {CountColumns(table, counts), read.size(), CountColumns(table, isRead)};
}

/// Takes the roles that share the best fit; none when no column is known.
void TakeBestRoles(const Table& table, Candidate& candidate) {
  for (const RoleRow& row : ManifestRoles()) {
    const Share share = ShareOf(table, row.role);
    if (share.ofBoth == 0 || share.AsStrength() < candidate.strength) continue;
    if (share.AsStrength() > candidate.strength) candidate.roles.clear();
    candidate.strength = share.AsStrength();
    candidate.isClear = share.IsClear();
    candidate.roles.push_back(row.role);
  }
}

// ---- column widths, whose columns have any names ----

bool IsNamedForWidths(const std::string& name) {
  const RoleRow& row = RowOf(Role::kColumnWidths);
  const std::string folded = FoldedName(name);
  return folded.find(FoldedName(row.chineseName)) != std::string::npos ||
         folded.find(FoldedName(row.name)) != std::string::npos;
}

/// Numbers in the first row; a column whose width is left open has an empty cell.
bool HasWidths(const Table& table) {
  std::size_t numbers = 0;
  for (std::size_t column = 0; table.RowCount() > 0 && column < table.ColumnCount(); ++column) {
    const std::string cell = table.Cell(1, column);
    if (!cell.empty() && !StrictNumber(cell)) return false;
    if (!cell.empty()) ++numbers;
  }
  return 2 * numbers > table.ColumnCount();
}

void TakeWidths(const Table& table, Candidate& candidate) {
  if (candidate.isClear || !HasWidths(table)) return;
  candidate.roles = {Role::kColumnWidths};
  candidate.strength = IsNamedForWidths(candidate.name) ? kWhole : kOfNumbers;
  candidate.isClear = true;
}

// ---- the tables of a folder ----

Candidate CandidateFrom(const fs::path& path, const std::vector<OtherKind>& others) {
  Candidate candidate;
  candidate.name = Utf8(path.filename());
  if (!IsValidUtf8(candidate.name)) {  // No manifest could hold it.
    candidate.why = Say("its name is not UTF-8; give it another", "文件名不是 UTF-8；请改名");
    return candidate;
  }
  const std::optional<Table> table = Table::Read(HostPathFromUtf8(Utf8(path)));
  if (!table) {
    ForgetFailedRead();  // It is told here.
    candidate.why = Say("this file can not be read", "无法读取此文件");
    return candidate;
  }
  if (const OtherKind* kind = KindOf(HeaderOf(*table), others)) {
    candidate.why = Say("{}, which has no role", "{}，不作配置表", kind->name.In(CurrentLanguage()));
    candidate.otherKind = kind->id;
    return candidate;
  }
  candidate.why = FaultOf(candidate.name, *table);
  if (!candidate.why.empty()) return candidate;
  TakeBestRoles(*table, candidate);
  TakeWidths(*table, candidate);
  return candidate;
}

/// What a table may be saved as. The spreadsheet program keeps a file of its own beside one that is open.
bool MayBeTable(const fs::directory_entry& entry) {
  constexpr std::array<std::string_view, 3> kEndings = {".csv", ".xlsx", ".xls"};
  const std::string name = FoldedName(Utf8(entry.path().filename()));
  std::error_code error;
  return !entry.is_directory(error) && !name.starts_with("_$") &&
         std::any_of(kEndings.begin(), kEndings.end(),
                     [&](std::string_view ending) { return name.ends_with(ending); });
}

std::vector<Candidate> CandidatesIn(const fs::path& folder, const std::vector<OtherKind>& others) {
  std::vector<Candidate> candidates;
  std::error_code error;
  // A loop over the folder itself would throw where it can not be read on.
  for (fs::directory_iterator at(folder, error); !error && at != fs::directory_iterator();
       at.increment(error)) {
    if (MayBeTable(*at)) candidates.push_back(CandidateFrom(at->path(), others));
  }
  std::sort(candidates.begin(), candidates.end(),
            [](const Candidate& a, const Candidate& b) { return a.name < b.name; });
  return candidates;
}

// ---- which of them it is ----

bool HasRival(const Candidate& candidate, const std::vector<Candidate>& all) {
  return std::any_of(all.begin(), all.end(), [&](const Candidate& other) {
    return other.name != candidate.name && other.isClear && other.roles == candidate.roles &&
           2 * other.strength > candidate.strength;
  });
}

/// The roles that one table alone can play, of those that fit no other role.
std::map<Role, std::string> OnlyChoices(const std::vector<Candidate>& candidates) {
  std::map<Role, std::string> certain;
  for (const Candidate& candidate : candidates) {
    if (candidate.isClear && candidate.roles.size() == 1 && !HasRival(candidate, candidates))
      certain[candidate.roles.front()] = candidate.name;
  }
  return certain;
}

/// A role that has its table is none for the others, which may decide them too.
std::map<Role, std::string> Certain(std::vector<Candidate> candidates) {
  std::map<Role, std::string> certain;
  for (auto more = OnlyChoices(candidates); !more.empty(); more = OnlyChoices(candidates)) {
    certain.merge(more);
    for (Candidate& candidate : candidates)
      std::erase_if(candidate.roles, [&](const Role role) { return certain.contains(role); });
  }
  return certain;
}

std::string Doubt(const Candidate& candidate) {
  if (!candidate.why.empty()) return candidate.why;
  if (candidate.roles.empty()) return Say("no column of any role", "没有任何用途的列");
  std::vector<std::string_view> names;
  for (const Role role : candidate.roles) names.push_back(NameOf(role));
  const std::string listed = fmt::format("{}", fmt::join(names, ", "));
  return candidate.isClear ? Say("may be {}; add it by hand", "可能是 {}；请手工加入", listed)
                           : Say("few of its columns are known; if it is {}, add it by hand",
                                 "只有个别列对得上；如果确实是 {}，请手工加入", listed);
}

}  // namespace

FoundRoles FindRoles(const std::filesystem::path& folder, const std::vector<OtherKind>& others) {
  const std::vector<Candidate> candidates = CandidatesIn(folder, others);
  FoundRoles found{Certain(candidates), {}};
  for (const Candidate& candidate : candidates) {
    const bool isCertain = std::any_of(found.certain.begin(), found.certain.end(),
                                       [&](const auto& entry) { return entry.second == candidate.name; });
    if (!isCertain)
      found.leftOut.push_back(
          {candidate.name, Doubt(candidate), candidate.otherKind, candidate.otherKind.empty()});
  }
  return found;
}

}  // namespace plateconfig
