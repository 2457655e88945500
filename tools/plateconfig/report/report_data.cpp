#include "plateconfig/report/report_data.h"

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <utility>

#include "plateconfig/messages/language.h"
#include "plateconfig/system/file_kind.h"
#include "plateconfig/system/file_streams.h"
#include "platform/file.h"

namespace plateconfig {
namespace {

namespace fs = std::filesystem;

std::string Utf8(const fs::path& path) {
  const std::u8string text = path.generic_u8string();
  return {text.begin(), text.end()};
}

class Reading {
 public:
  Reading(const ReportInputs& inputs, Reporter& reporter) : inputs_(inputs), reporter_(reporter) {}

  std::optional<ReportData> Run() {
    AddConfiguration();
    const bool isWhole = AddAll(inputs_.plates, "plates") && AddAll(inputs_.holes, "holes") &&
                         AddAll(inputs_.holeTypes, "hole-types");
    return isWhole ? std::optional(std::move(data_)) : std::nullopt;
  }

 private:
  /// The manifest and the tables that it names. What is wrong with them is the check's to tell.
  void AddConfiguration() {
    std::ostringstream ignored;
    Reporter silent(ignored);
    Configuration configuration(inputs_.configuration, silent);
    const std::string folder = configuration.FolderName();
    if (folder.empty()) return;
    data_.name = Utf8(fs::absolute(PathFromUtf8(folder)).lexically_normal().parent_path().filename());
    if (data_.name.empty()) data_.name = "config";
    const std::string manifest = ManifestIn(folder);
    if (auto bytes = ReadAllBytes(PathFromUtf8(manifest))) {
      Add({data_.name + "/" + manifest.substr(folder.size()), std::move(*bytes), {}});
    }
    for (const RoleRow& role : ManifestRoles()) {
      if (const auto table = configuration.FindOptional(role.role)) AddTable(*table, folder);
    }
  }

  /// One that lies elsewhere has no place below the page's folder.
  void AddTable(const TableFile& table, const std::string& folder) {
    if (!table.shownAs.starts_with(folder)) return;
    std::string name = table.shownAs.substr(folder.size());
    std::replace(name.begin(), name.end(), '\\', '/');
    const std::string path = Utf8((PathFromUtf8(data_.name) / PathFromUtf8(name)).lexically_normal());
    if (!path.starts_with(data_.name + "/")) return;
    const auto bytes = ReadWholeFile(table.hostPath);
    if (bytes) Add({path, std::string(bytes->View()), {}});
  }

  bool AddAll(const std::vector<std::string>& files, const std::string& use) {
    return std::all_of(files.begin(), files.end(),
                       [&](const std::string& file) { return AddGiven(file, use); });
  }

  bool AddGiven(const std::string& file, const std::string& use) {
    const fs::path path = PathFromUtf8(file);
    std::error_code error;
    if (!fs::is_regular_file(path, error)) {
      reporter_.Error({file}, fs::exists(path, error) ? Say("a report takes files alone", "报告只接受文件")
                                                      : Say("there is no such file", "此文件不存在"));
      return false;
    }
    auto bytes = ReadAllBytes(path);
    if (!bytes) {
      reporter_.Error({file}, Say("reading this file failed", "读取此文件失败"));
      return false;
    }
    Add({FreePath(path), std::move(*bytes), use});
    return true;
  }

  bool IsTaken(const std::string& path) const {
    return std::any_of(data_.files.begin(), data_.files.end(),
                       [&](const ReportFile& file) { return file.path == path; });
  }

  /// The file's own name; with a number when another file has it.
  std::string FreePath(const fs::path& path) const {
    std::string free = Utf8(path.filename());
    for (int number = 2; IsTaken(free); ++number) {
      free = Utf8(path.stem()) + "-" + std::to_string(number) + Utf8(path.extension());
    }
    return free;
  }

  /// Several roles may have one file.
  void Add(ReportFile file) {
    if (!IsTaken(file.path)) data_.files.push_back(std::move(file));
  }

  const ReportInputs& inputs_;
  Reporter& reporter_;
  ReportData data_;
};

}  // namespace

std::optional<ReportData> ReadReportData(const ReportInputs& inputs, Reporter& reporter) {
  return Reading(inputs, reporter).Run();
}

}  // namespace plateconfig
