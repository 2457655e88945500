// `init`: the manifest of a folder of tables, its roles found by the columns of the tables.

#include <algorithm>
#include <filesystem>
#include <map>
#include <memory>
#include <optional>
#include <system_error>

#include "analysis/schema/table_schema.h"
#include "analysis/text/strict_values.h"
#include "config/table.h"
#include "plateconfig/commands/options.h"
#include "plateconfig/commands/verbs.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/messages/screen_text.h"
#include "plateconfig/output/json_output.h"
#include "plateconfig/output/output_file.h"
#include "plateconfig/system/console.h"
#include "plateconfig/system/file_kind.h"

namespace plateconfig {
namespace {

namespace fs = std::filesystem;

constexpr const char* kManifestName = "tables.json";

struct InitJob {
  std::string folder;  ///< UTF-8
};

/// A table of the folder with the roles that its columns fit best.
struct FoundTable {
  std::string name;         ///< UTF-8
  std::vector<Role> roles;  ///< More than one when they fit equally well.
  bool isGuess = false;     ///< No column says so.
};

std::string Utf8Name(const fs::path& path) {
  const std::u8string name = path.filename().u8string();
  return {name.begin(), name.end()};
}

/// How many columns of the role the table has.
std::size_t Fit(const Table& table, Role role) {
  const std::vector<ColumnSchema>& columns = SchemaOf(role).columns;
  return static_cast<std::size_t>(
      std::count_if(columns.begin(), columns.end(), [&](const ColumnSchema& column) {
        return column.use != ColumnUse::kPlaceholder && table.FindColumn(column.column).has_value();
      }));
}

/// The roles that share the best fit; none when no column is known.
std::vector<Role> BestRoles(const Table& table) {
  std::vector<Role> best;
  std::size_t most = 1;
  for (const RoleRow& row : ManifestRoles()) {
    const std::size_t fit = Fit(table, row.role);
    if (fit < most) continue;
    if (fit > most) best.clear();
    most = fit;
    best.push_back(row.role);
  }
  return best;
}

/// A table of column widths has columns of any name, and numbers below them.
bool HasNumbersOnly(const Table& table) {
  if (table.RowCount() == 0) return false;
  for (std::size_t column = 0; column < table.ColumnCount(); ++column) {
    if (!StrictInteger(table.Cell(1, column))) return false;
  }
  return true;
}

FoundTable Found(const std::string& name, const std::optional<Table>& table) {
  FoundTable found{name, table ? BestRoles(*table) : std::vector<Role>()};
  found.isGuess = found.roles.empty() && table && HasNumbersOnly(*table);
  if (found.isGuess) found.roles = {Role::kColumnWidths};
  return found;
}

std::vector<FoundTable> TablesOf(const fs::path& folder, std::error_code& error) {
  std::vector<FoundTable> tables;
  for (const fs::directory_entry& entry : fs::directory_iterator(folder, error)) {
    const std::string name = Utf8Name(entry.path());
    if (!name.ends_with(".csv") && !name.ends_with(".CSV")) continue;
    const std::u8string path = entry.path().u8string();
    const auto table = Table::Read(HostPathFromUtf8(std::string(path.begin(), path.end())));
    tables.push_back(Found(name, table));
  }
  std::sort(tables.begin(), tables.end(),
            [](const FoundTable& a, const FoundTable& b) { return a.name < b.name; });
  return tables;
}

/// The roles that only one table can play, of those whose columns fit no other role.
std::map<Role, std::string> OnlyChoices(const std::vector<FoundTable>& tables) {
  std::map<Role, std::string> certain;
  for (const FoundTable& table : tables) {
    if (table.roles.size() != 1 || table.isGuess) continue;
    const auto rivals = std::count_if(tables.begin(), tables.end(),
                                      [&](const FoundTable& other) { return other.roles == table.roles; });
    if (rivals == 1) certain[table.roles.front()] = table.name;
  }
  return certain;
}

/// Which table plays a role for certain. A role that has its table is none for the others, which may decide
/// them too.
std::map<Role, std::string> Certain(std::vector<FoundTable> tables) {
  std::map<Role, std::string> certain;
  for (std::map<Role, std::string> more = OnlyChoices(tables); !more.empty(); more = OnlyChoices(tables)) {
    certain.merge(more);
    for (FoundTable& table : tables)
      std::erase_if(table.roles, [&](const Role role) { return certain.contains(role); });
  }
  return certain;
}

std::string Manifest(const std::map<Role, std::string>& files) {
  nlohmann::ordered_json json = nlohmann::ordered_json::object();
  for (const auto& [role, file] : files) json[std::string(NameOf(role))] = file;
  return json.dump(2) + "\n";
}

std::string RoleNames(const std::vector<Role>& roles) {
  std::vector<std::string> names;
  names.reserve(roles.size());
  for (const Role role : roles) names.emplace_back(NameOf(role));
  return Listed(names);
}

/// What is left to the user.
void WriteDoubts(const std::vector<FoundTable>& tables, const std::map<Role, std::string>& certain,
                 Context& context) {
  std::ostream& out = context.streams.out;
  for (const FoundTable& table : tables) {
    const bool isCertain = std::any_of(certain.begin(), certain.end(),
                                       [&](const auto& entry) { return entry.second == table.name; });
    if (isCertain) continue;
    context.reporter.CountFinding();
    out << "  " << OnOneLine(table.name) << ": "
        << (table.roles.empty()
                ? Say("no column of any role", "没有任何用途的列")
                : Say("may be {}; add it by hand", "可能是 {}；请手工加入", RoleNames(table.roles)))
        << "\n";
  }
}

void WriteSummary(const std::map<Role, std::string>& certain, Context& context) {
  for (const auto& [role, file] : certain)
    context.streams.out << "  " << NameOf(role) << ": " << OnOneLine(file) << "\n";
  std::vector<std::string> missing;
  for (const RoleRow& row : ManifestRoles()) {
    if (!certain.contains(row.role)) missing.emplace_back(row.name);
  }
  if (!missing.empty())
    context.streams.out << Say("without a table: {}", "未指定表的用途：{}", Listed(missing)) << "\n";
}

void RunInit(const InitJob& job, Context& context) {
  const fs::path folder = PathFromUtf8(job.folder);
  std::error_code error;
  if (!fs::is_directory(folder, error))
    return context.reporter.Error({job.folder}, Say("this folder does not exist", "此文件夹不存在"));
  const std::string path =
      job.folder + (job.folder.ends_with('/') || job.folder.ends_with('\\') ? "" : "/") + kManifestName;
  const std::vector<FoundTable> tables = TablesOf(folder, error);
  const std::map<Role, std::string> certain = Certain(tables);
  if (certain.empty())
    return context.reporter.Error({job.folder},
                                  Say("no table here has the columns of a role, so there is nothing to write",
                                      "此处没有一个表具有任何用途的列，因此没有可写的内容"));
  const auto file = OutputFile::Open(path, IfPresent::kMustNotExist, context.reporter);
  if (!file) return;
  file->Stream() << Manifest(certain);
  if (!file->Finish(context.reporter)) return;
  context.streams.out << OnOneLine(path) << "\n";
  WriteSummary(certain, context);
  WriteDoubts(tables, certain, context);
}

}  // namespace

Run InitOptions(CLI::App& command) {
  const auto job = std::make_shared<InitJob>();
  command
      .add_option(
          "folder", job->folder,
          Say("the folder of the tables; what is there stays as it is", "表所在的文件夹；已有的文件保持不变"))
      ->type_name(Say("FOLDER", "文件夹"))
      ->required()
      ->check(NotEmpty());
  return [job](Context& context) { RunInit(*job, context); };
}

}  // namespace plateconfig
