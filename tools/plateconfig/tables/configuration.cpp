#include "plateconfig/tables/configuration.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <sstream>
#include <string_view>
#include <system_error>
#include <vector>

#include "analysis/text/file_form.h"
#include "analysis/text/position_counter.h"
#include "analysis/text/similar_name.h"
#include "config/configuration_index.h"
#include "plateconfig/input/json_node.h"
#include "plateconfig/input/json_values.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/system/console.h"
#include "plateconfig/system/file_kind.h"
#include "plateconfig/tables/reported_index.h"
#include "platform/file.h"
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

Finding UnknownRole(const std::string& name, const Place& place) {
  const std::vector<std::string_view> known = NamesOf(ManifestRoles());
  Finding finding{"manifest-role-unknown", place};
  finding.text = name;
  const std::string similar = MostSimilarName(name, {known.begin(), known.end()});
  if (!similar.empty()) finding.fix = similar;
  return finding;
}

/// A path that begins at a root: of a drive, of a server, of the file system.
bool IsAbsolute(std::string_view path) {
  return path.starts_with('/') || path.starts_with('\\') || (path.size() > 1 && path[1] == ':');
}

struct FullWidth {
  std::string_view character;
  std::string_view half;
};

/// What a Chinese keyboard writes between the texts of a manifest.
constexpr FullWidth kFullWidth[] = {{"\u201C", "\""}, {"\u201D", "\""}, {"\uFF1A", ":"}, {"\uFF0C", ","},
                                    {"\uFF5B", "{"},  {"\uFF5D", "}"},  {"\u3001", ","}};

/// The first full-width sign outside of the texts, of a manifest that is no JSON.
std::optional<Finding> FullWidthSign(std::string_view text, const std::string& file) {
  PositionCounter counter;
  bool isInText = false;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const auto sign = std::find_if(std::begin(kFullWidth), std::end(kFullWidth), [&](const FullWidth& each) {
      return text.substr(at).starts_with(each.character);
    });
    if (!isInText && sign != std::end(kFullWidth)) {
      Finding finding{"manifest-full-width", PlaceIn(file, counter.At())};
      finding.text = std::string(sign->character);
      finding.fix = std::string(sign->half);
      return finding;
    }
    if (text[at] == '"' || text[at] == '\n') isInText = text[at] == '"' && !isInText;
    counter.Take(text[at]);
  }
  return std::nullopt;
}

/// A comma with nothing but the closing brace behind it, outside of the texts.
std::optional<Finding> CommaBehindTheLast(std::string_view text, const std::string& file) {
  PositionCounter counter;
  bool isInText = false;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const std::size_t next = text.find_first_not_of(" \t\r\n", at + 1);
    if (!isInText && text[at] == ',' && next != std::string_view::npos && text[next] == '}')
      return Finding{"manifest-comma-last", PlaceIn(file, counter.At())};
    if (text[at] == '"') isInText = !isInText;
    counter.Take(text[at]);
  }
  return std::nullopt;
}

/// What a hand got wrong in a manifest that is no JSON; where that is not known, what the parser says.
Finding MistakeIn(std::string_view text, const std::string& file, const Finding& parsers) {
  if (const auto sign = FullWidthSign(text, file)) return *sign;
  return CommaBehindTheLast(text, file).value_or(parsers);
}

bool EndsWithSeparator(const std::string& path) {
  return path.ends_with('/') || path.ends_with('\\');
}

}  // namespace

std::optional<std::string> RootThatIsSet() {
  std::optional<std::string> root = ConfigurationRoot();
  return root && !root->empty() ? root : std::nullopt;
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
      reporter_.Error({options_.folder}, Say("this is a file, not a folder; give the folder that it lies in",
                                             "这是文件，不是文件夹；请给出它所在的文件夹"));
      return false;
    }
    folder_ = FromCommandLine(EndsWithSeparator(options_.folder) ? options_.folder : options_.folder + "/");
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
  if (!bytes) return reporter_.Report({"manifest-unreadable", {manifest.shownAs}});
  if (!IsValidUtf8(bytes->View())) return reporter_.Report({"manifest-encoding", {manifest.shownAs}});
  const std::string_view text = WithoutByteOrderMark(bytes->View());
  JsonNode root;
  std::ostringstream nowhere;
  std::vector<Finding> told;
  Reporter parsers(nowhere);
  parsers.CollectInto(&told);
  if (!ParseJson(text, {manifest.shownAs, 1, 1}, parsers, root))
    return reporter_.Report(MistakeIn(text, manifest.shownAs, told.front()));
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
