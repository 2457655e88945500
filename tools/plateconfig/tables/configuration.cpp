#include "plateconfig/tables/configuration.h"

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <string_view>
#include <system_error>
#include <vector>

#include "analysis/text/folded_name.h"
#include "analysis/text/similar_name.h"
#include "config/configuration_index.h"
#include "plateconfig/input/json_node.h"
#include "plateconfig/input/json_slip.h"
#include "plateconfig/input/json_values.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/system/console.h"
#include "plateconfig/system/file_kind.h"
#include "plateconfig/tables/reported_index.h"
#include "platform/file.h"
#include "text/byte_order_mark.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

constexpr const char* kManifestName = "tables.json";

TableFile FromCommandLine(const std::string& path) {
  return {HostPathFromUtf8(path), path};
}

std::string_view WithoutByteOrderMark(std::string_view utf8) {
  return utf8.starts_with(kByteOrderMark) ? utf8.substr(kByteOrderMark.size()) : utf8;
}

/// The role that a name was probably meant to be: almost its own, or what the keepers call its table, as it
/// is or as the name of a file.
std::string MeantRole(const std::string& name) {
  const std::vector<std::string_view> roles = NamesOf(ManifestRoles());
  if (std::string role = MeantNames({roles.begin(), roles.end()}).Find(name); !role.empty()) return role;
  constexpr std::string_view kEnding = ".csv";
  const std::string folded = FoldedName(name);
  const std::string table =
      folded.ends_with(kEnding) ? folded.substr(0, folded.size() - kEnding.size()) : folded;
  const auto row = std::find_if(ManifestRoles().begin(), ManifestRoles().end(),
                                [&](const RoleRow& each) { return FoldedName(each.chineseName) == table; });
  return row == ManifestRoles().end() ? std::string() : std::string(row->name);
}

Finding UnknownRole(const std::string& name, const Place& place) {
  Finding finding{"manifest-role-unknown", place};
  finding.text = name;
  const std::string meant = MeantRole(name);
  if (!meant.empty()) finding.fix = meant;
  return finding;
}

/// A path that begins at a root: of a drive, of a server, of the file system.
bool IsAbsolute(std::string_view path) {
  return path.starts_with('/') || path.starts_with('\\') || (path.size() > 1 && path[1] == ':');
}

constexpr JsonSlipCodes kSlips = {"manifest-full-width", "manifest-comma-last", "manifest-comma-missing"};

bool EndsWithSeparator(const std::string& path) {
  return path.ends_with('/') || path.ends_with('\\');
}

/// A path as a command line takes it.
std::string AsArgument(const std::string& path) {
  return path.find(' ') == std::string::npos ? path : "\"" + path + "\"";
}

std::string WithSeparator(const std::string& folder) {
  return EndsWithSeparator(folder) ? folder : folder + "/";
}

}  // namespace

std::optional<std::string> RootThatIsSet() {
  std::optional<std::string> root = ConfigurationRoot();
  return root && !root->empty() ? root : std::nullopt;
}

std::string ManifestIn(const std::string& folder) {
  return WithSeparator(folder) + kManifestName;
}

std::string FileInsteadOfFolder() {
  return Say("this is a file, not a folder; give the folder that it lies in",
             "这是文件，不是文件夹；请给出它所在的文件夹");
}

std::optional<TableFile> Configuration::Find(Role role) {
  const std::optional<TableFile> table = NamedTable(role);
  if (table) return ReadableAgain(*table);
  if (isUsable_) {
    reporter_.Error({"plateconfig"}, Say("no table plays the role {0}: name it in {1}, or give --{0} FILE",
                                         "未指定 {0} 表：请在 {1} 中指定，或使用 --{0} 文件", NameOf(role),
                                         folder_.shownAs + kManifestName));
  }
  return std::nullopt;
}

std::optional<TableFile> Configuration::FindOptional(Role role) {
  const std::optional<TableFile> table = NamedTable(role);
  return table ? ReadableAgain(*table) : std::nullopt;
}

std::optional<TableFile> Configuration::ReadableAgain(const TableFile& table) {
  if (!IsPipeOrDevice(PathFromUtf8(table.shownAs))) return table;
  const std::optional<std::string> copy = copies_.CopyOf(table.hostPath);
  if (copy) return TableFile{*copy, table.shownAs};
  reporter_.Error({table.shownAs},
                  Say("this pipe or device can not be copied into the folder of temporary files, which a "
                      "table from it needs; give a file instead",
                      "无法把此管道或设备复制到临时文件夹，而由它提供的表需要这样做；请改用文件"));
  return std::nullopt;
}

std::optional<TableFile> Configuration::NamedTable(Role role) {
  if (const auto named = options_.tables.find(role); named != options_.tables.end()) {
    return FromCommandLine(named->second);
  }
  if (!isRead_) {
    isRead_ = true;
    if (FindFolder()) ReadManifest();
  }
  const auto named = manifest_.find(role);
  if (named == manifest_.end()) return std::nullopt;
  return InFolder(named->second);
}

const std::string& Configuration::FolderName() {
  NamedTable(Role::kIndex);
  return folder_.shownAs;
}

std::string Configuration::FolderThatWasRead() const {
  std::string name = folder_.shownAs;
  if (name.size() > 1 && EndsWithSeparator(name)) name.pop_back();
  return name;
}

bool Configuration::FindFolder() {
  if (!options_.folder.empty()) {
    std::error_code error;
    if (std::filesystem::is_regular_file(PathFromUtf8(options_.folder), error)) {
      reporter_.Error({options_.folder}, FileInsteadOfFolder());
      return false;
    }
    folder_ = FromCommandLine(WithSeparator(options_.folder));
    return true;
  }
  const std::optional<std::string> root = RootThatIsSet();
  if (!root) {
    reporter_.Error({"plateconfig"}, Say("{} is not set, and no configuration folder was given with --config",
                                         "没有设置 {}，也没有用 --config 指定配置文件夹", kRootVariable));
    return false;
  }
  const ConfigurationIndex index = ReadConfigurationIndex(*root);
  ReportIndex(*root, index, reporter_);
  const std::string active = index.activeFolder + "\\";
  folder_ = {active, ShownPath(active)};
  return true;
}

std::optional<TableFile> Configuration::InFolder(const std::string& name) const {
  if (!options_.folder.empty()) return FromCommandLine(folder_.shownAs + name);
  return TableFile{folder_.hostPath + Utf8ToGbk(name), folder_.shownAs + name};
}

void Configuration::ReadManifest() {
  const TableFile manifest = *InFolder(kManifestName);
  const std::optional<FileBytes> bytes = ReadWholeFile(manifest.hostPath);
  if (!bytes && !FileExists(folder_.hostPath))
    return reporter_.Report({"config-folder-missing", {folder_.shownAs}});
  if (!bytes && !FileExists(manifest.hostPath)) return ReportMissing(manifest);
  if (!bytes) return reporter_.Report({"manifest-unreadable", {manifest.shownAs}});
  if (!IsValidUtf8(bytes->View())) return reporter_.Report({"manifest-encoding", {manifest.shownAs}});
  const std::string_view text = WithoutByteOrderMark(bytes->View());
  JsonNode root;
  std::ostringstream nowhere;
  std::vector<Finding> told;
  Reporter parsers(nowhere);
  parsers.CollectInto(&told);
  if (!ParseJson(text, {manifest.shownAs, 1, 1}, parsers, root))
    return reporter_.Report(FindJsonSlip(text, {manifest.shownAs, 1, 1}, kSlips).value_or(told.front()));
  if (root.kind != JsonNode::Kind::kObject) {
    Finding finding{"manifest-no-object", PlaceIn(manifest.shownAs, root.position)};
    finding.words = {{"{ role: file name, … }", "{ 用途: 文件名, … }"}};
    return reporter_.Report(finding);
  }
  isUsable_ = true;
  JsonValues(manifest.shownAs, reporter_)
      .ForEachMember(root,
                     [&](const std::string& name, const JsonNode& file) { ReadRole(name, file, manifest); });
}

void Configuration::ReportMissing(const TableFile& manifest) {
  const TableFile renamed = *InFolder(kManifestName + std::string(".txt"));
  if (FileExists(renamed.hostPath)) return reporter_.Report({"manifest-ending", {renamed.shownAs}});
  Finding finding{"manifest-missing", {manifest.shownAs}};
  finding.words = {AsArgument(FolderThatWasRead())};
  reporter_.Report(finding);
}

void Configuration::ReadRole(const std::string& name, const JsonNode& file, const TableFile& manifest) {
  const Place place = PlaceIn(manifest.shownAs, file.position);
  const auto role = FindRole(name, ManifestRoles());
  if (!role) return reporter_.Report(UnknownRole(name, place));
  if (file.kind != JsonNode::Kind::kString) {
    Finding finding{"manifest-file-kind", place};
    finding.text = name;
    return reporter_.Report(finding);
  }
  if (file.text.empty()) {
    Finding finding{"manifest-file-empty", place};
    finding.text = name;
    return reporter_.Report(finding);
  }
  CheckName(file.text, place);
  manifest_[*role] = file.text;
}

/// Names are relative to the folder, and each file plays one role.
void Configuration::CheckName(const std::string& name, const Place& place) {
  const auto other = std::find_if(manifest_.begin(), manifest_.end(),
                                  [&](const auto& entry) { return entry.second == name; });
  if (other != manifest_.end()) {
    Finding finding{"manifest-file-twice", place};
    finding.text = name;
    finding.words = {std::string(NameOf(other->first))};
    reporter_.Report(finding);
  }
  if (!IsAbsolute(name)) return;
  Finding finding{"manifest-absolute-path", place};
  finding.text = name;
  reporter_.Report(finding);
}

}  // namespace plateconfig
