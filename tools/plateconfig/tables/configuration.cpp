#include "plateconfig/tables/configuration.h"

#include <string_view>
#include <vector>

#include "analysis/text/shown_text.h"
#include "analysis/text/similar_name.h"
#include "config/configuration_index.h"
#include "plateconfig/input/json_node.h"
#include "plateconfig/input/json_values.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/system/console.h"
#include "plateconfig/system/file_kind.h"
#include "platform/file.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

constexpr const char* kManifestName = "tables.json";

TableFile FromCommandLine(const std::string& path) {
  return {HostPathFromUtf8(path), path};
}

std::string_view WithoutByteOrderMark(std::string_view utf8) {
  constexpr std::string_view kMark = "\xEF\xBB\xBF";
  return utf8.starts_with(kMark) ? utf8.substr(kMark.size()) : utf8;
}

std::string UnknownRole(const std::string& name) {
  const std::vector<std::string_view> known = NamesOf(ManifestRoles());
  const std::string similar = MostSimilarName(name, {known.begin(), known.end()});
  return Say("\"{}\" is no role and is ignored", "“{}”不是角色，已忽略", ShownText(name)) +
         DidYouMean(similar);
}

bool EndsWithSeparator(const std::string& path) {
  return path.ends_with('/') || path.ends_with('\\');
}

}  // namespace

std::optional<TableFile> Configuration::Find(Role role) {
  const std::optional<TableFile> table = NamedTable(role);
  if (table) return ReadableAgain(*table);
  if (isUsable_) {
    reporter_.Error({"plateconfig"}, Say("no table plays the role {0}: name it in {1}, or give --{0} FILE",
                                         "没有文件担任 {0} 角色：请在 {1} 中指定，或使用 --{0} 文件",
                                         NameOf(role), folder_.shownAs + kManifestName));
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

bool Configuration::FindFolder() {
  if (!options_.folder.empty()) {
    folder_ = FromCommandLine(EndsWithSeparator(options_.folder) ? options_.folder : options_.folder + "/");
    return true;
  }
  const std::optional<std::string> root = ConfigurationRoot();
  if (!root) {
    reporter_.Error({"plateconfig"}, Say("{} is not set, and no configuration folder was given with --config",
                                         "没有设置 {}，也没有用 --config 指定配置文件夹", kRootVariable));
    return false;
  }
  const std::string active = ReadConfigurationIndex(*root).activeFolder + "\\";
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
  if (!bytes && !FileExists(folder_.hostPath)) {
    reporter_.Error({folder_.shownAs}, Say("this configuration folder does not exist", "此配置文件夹不存在"));
    return;
  }
  if (!bytes) {
    reporter_.Error({manifest.shownAs},
                    Say("this manifest, which says what file plays which role, can not be read",
                        "无法读取此清单（它说明各个文件的角色）"));
    return;
  }
  if (!IsValidUtf8(bytes->View())) {
    reporter_.Error({manifest.shownAs},
                    Say("this manifest is not UTF-8; save it as UTF-8", "此清单不是 UTF-8；请存为 UTF-8"));
    return;
  }
  JsonNode root;
  if (!ParseJson(WithoutByteOrderMark(bytes->View()), {manifest.shownAs, 1, 1}, reporter_, root)) return;
  if (root.kind != JsonNode::Kind::kObject) {
    reporter_.Error(PlaceIn(manifest.shownAs, root.position),
                    Say("the manifest should be an object {{ role: file name, … }}",
                        "清单应当是一个对象 {{ 角色: 文件名, … }}"));
    return;
  }
  isUsable_ = true;
  JsonValues(manifest.shownAs, reporter_)
      .ForEachMember(root,
                     [&](const std::string& name, const JsonNode& file) { ReadRole(name, file, manifest); });
}

void Configuration::ReadRole(const std::string& name, const JsonNode& file, const TableFile& manifest) {
  const Place place = PlaceIn(manifest.shownAs, file.position);
  const auto role = FindRole(name, ManifestRoles());
  if (!role) {
    reporter_.Warning(place, UnknownRole(name));
  } else if (file.kind != JsonNode::Kind::kString) {
    reporter_.Error(place, Say("the file of the role {} should be a text in quotes",
                               "角色 {} 的文件名应当是带引号的文本", name));
  } else {
    manifest_[*role] = file.text;
  }
}

}  // namespace plateconfig
