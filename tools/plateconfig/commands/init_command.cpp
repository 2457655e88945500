// `init`: the manifest of a folder of tables, its roles found by the columns of the tables.

#include <filesystem>
#include <map>
#include <memory>
#include <system_error>

#include "analysis/schema/table_schema.h"
#include "plateconfig/commands/options.h"
#include "plateconfig/commands/verbs.h"
#include "plateconfig/holes/hole_fields.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/messages/screen_text.h"
#include "plateconfig/output/json_output.h"
#include "plateconfig/output/output_file.h"
#include "plateconfig/plates/plate_fields.h"
#include "plateconfig/system/file_kind.h"
#include "plateconfig/tables/configuration.h"
#include "plateconfig/tables/found_roles.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

struct InitJob {
  std::string folder;  ///< UTF-8
};

/// A file of records: it has the columns without which none can be read.
template <typename Record>
OtherKind FileOf(std::string_view id, const Words& name, const RecordKind<Record>& records) {
  OtherKind kind{id, name, {}};
  for (const Field<Record>& field : records.fields) {
    if (field.need == Need::kRequired && !field.names.column.empty())
      kind.columns.emplace_back(field.names.column);
  }
  return kind;
}

OtherKind IndexTable() {
  OtherKind kind{"index", {"the index of configurations", "配置索引表"}, {}};
  for (const ColumnSchema& column : SchemaOf(Role::kIndex).columns)
    kind.columns.push_back(GbkToUtf8(column.column));
  return kind;
}

/// What else a keeper has in the folder of the tables.
std::vector<OtherKind> OtherKinds() {
  return {FileOf("plates", {"a file of plates", "板文件"}, PlateFields(PlateVocabulary({}))),
          FileOf("holes", {"a file of combined holes", "组合孔文件"}, SegmentFields()),
          FileOf("hole-types", {"a file of hole types", "孔类型文件"}, HoleTypeFields()), IndexTable()};
}

using Json = nlohmann::ordered_json;

Json RolesOf(const std::map<Role, std::string>& files) {
  Json json = Json::object();
  for (const auto& [role, file] : files) json[std::string(NameOf(role))] = file;
  return json;
}

/// All that was found. `manifest` is the file that is written, empty without a role.
Json ToJson(const FoundRoles& found, const std::string& manifest) {
  Json leftOut = Json::array();
  for (const LeftOutFile& file : found.leftOut) {
    leftOut.push_back({{"file", file.name},
                       {"kind", file.kind.empty() ? Json(nullptr) : Json(file.kind)},
                       {"doubtful", file.isDoubtful},
                       {"why", file.why}});
  }
  return {{"manifest", manifest.empty() ? Json(nullptr) : Json(manifest)},
          {"roles", RolesOf(found.certain)},
          {"leftOut", leftOut}};
}

void WriteFound(const std::map<Role, std::string>& certain, Context& context) {
  for (const auto& [role, file] : certain)
    context.streams.out << "  " << NameOf(role) << ": " << OnOneLine(file) << "\n";
  std::vector<std::string> missing;
  for (const RoleRow& row : ManifestRoles()) {
    if (!certain.contains(row.role)) missing.emplace_back(row.name);
  }
  if (!missing.empty())
    context.streams.out << Say("without a table: {}", "未指定表的用途：{}", Listed(missing)) << "\n";
}

/// What is left to the user, and what is left out because it is no table.
void WriteLeftOut(const std::vector<LeftOutFile>& files, Context& context) {
  for (const LeftOutFile& file : files) {
    context.streams.out << "  " << Say("{}: {}", "{}：{}", OnOneLine(file.name), file.why) << "\n";
  }
}

void WriteAnswer(const FoundRoles& found, const std::string& manifest, Context& context) {
  for (const LeftOutFile& file : found.leftOut) {
    if (file.isDoubtful) context.reporter.CountFinding();
  }
  if (context.format == Format::kJson) {
    context.streams.out << JsonArray::ToText(ToJson(found, manifest)) << "\n";
    return;
  }
  if (!manifest.empty()) {
    context.streams.out << OnOneLine(manifest) << "\n";
    WriteFound(found.certain, context);
  }
  WriteLeftOut(found.leftOut, context);
}

/// False, with an error, when there is no such folder.
bool IsFolder(const std::string& name, Reporter& reporter) {
  std::error_code error;
  const std::filesystem::path path = PathFromUtf8(name);
  if (std::filesystem::is_directory(path, error)) return true;
  reporter.Error({name}, std::filesystem::exists(path, error)
                             ? FileInsteadOfFolder()
                             : Say("this folder does not exist", "此文件夹不存在"));
  return false;
}

void RunInit(const InitJob& job, Context& context) {
  if (!IsFolder(job.folder, context.reporter)) return;
  const FoundRoles found = FindRoles(PathFromUtf8(job.folder), OtherKinds());
  if (found.certain.empty()) {
    WriteAnswer(found, {}, context);
    return context.reporter.Error({job.folder},
                                  Say("no table here has the columns of a role, so there is nothing to write",
                                      "此处没有一个表具有任何用途的列，因此没有可写的内容"));
  }
  const std::string path = ManifestIn(job.folder);
  const auto file = OutputFile::Open(path, IfPresent::kMustNotExist, context.reporter);
  if (!file) return;
  file->Stream() << RolesOf(found.certain).dump(2) << "\n";
  if (!file->Finish(context.reporter)) return;
  WriteAnswer(found, path, context);
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
