#include "plateconfig/report/report_data.h"

#include <fmt/format.h>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <filesystem>
#include <sstream>
#include <utility>

#include "plateconfig/messages/language.h"
#include "plateconfig/system/file_kind.h"
#include "plateconfig/system/file_streams.h"
#include "platform/environment.h"
#include "platform/file.h"

namespace plateconfig {
namespace {

namespace fs = std::filesystem;

std::string Utf8(const fs::path& path) {
  const std::u8string text = path.generic_u8string();
  return {text.begin(), text.end()};
}

/// Now, in the form of ISO 8601. The variable sets another time: the same report is then the same, byte for
/// byte.
std::string TimeOfWriting() {
  using std::chrono::floor, std::chrono::seconds, std::chrono::days, std::chrono::sys_seconds;
  const std::string given = EnvironmentVariable("SOURCE_DATE_EPOCH").value_or("");
  long long fixed = 0;
  const bool isFixed = std::from_chars(given.data(), given.data() + given.size(), fixed).ec == std::errc();
  const sys_seconds now =
      isFixed ? sys_seconds(seconds(fixed)) : floor<seconds>(std::chrono::system_clock::now());
  const std::chrono::year_month_day day(floor<days>(now));
  const std::chrono::hh_mm_ss time(now - floor<days>(now));
  return fmt::format("{:04}-{:02}-{:02}T{:02}:{:02}:{:02}Z", static_cast<int>(day.year()),
                     static_cast<unsigned>(day.month()), static_cast<unsigned>(day.day()),
                     time.hours().count(), time.minutes().count(), time.seconds().count());
}

class Reading {
 public:
  Reading(const ReportInputs& inputs, Reporter& reporter) : inputs_(inputs), reporter_(reporter) {}

  std::optional<ReportData> Run() {
    data_.written = TimeOfWriting();
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
    if (!AddManifest(folder)) AddTablesOf(folder);
    for (const RoleRow& role : ManifestRoles()) {
      if (const auto table = configuration.FindOptional(role.role)) AddTable(*table, folder);
    }
  }

  /// False when there is none. One with a second ending is put in too, under the name that it has, since the
  /// check names it.
  bool AddManifest(const std::string& folder) {
    const std::string manifest = ManifestIn(folder);
    return AddFile(manifest, folder) || (AddFile(manifest + ".txt", folder), false);
  }

  /// Without a manifest nobody knows the tables' roles; the page helps to find them.
  void AddTablesOf(const std::string& folder) {
    std::error_code error;
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(PathFromUtf8(folder), error)) {
      if (entry.path().extension() == ".csv") names.push_back(Utf8(entry.path().filename()));
    }
    std::sort(names.begin(), names.end());
    for (const std::string& name : names) AddFile(folder + name, folder);
  }

  /// False when it can not be read.
  bool AddFile(const std::string& file, const std::string& folder) {
    auto bytes = ReadAllBytes(PathFromUtf8(file));
    if (!bytes) return false;
    Add({data_.name + "/" + file.substr(folder.size()), std::move(*bytes), {}});
    return true;
  }

  /// One that lies elsewhere has a path like 标准/../公用/x.csv, which leads there in the page too.
  void AddTable(const TableFile& table, const std::string& folder) {
    std::string name = table.shownAs.substr(folder.size());
    std::replace(name.begin(), name.end(), '\\', '/');
    const auto bytes = ReadWholeFile(table.hostPath);
    if (bytes) Add({data_.name + "/" + name, std::string(bytes->View()), {}});
  }

  bool AddAll(const std::vector<std::string>& files, const std::string& use) {
    return std::all_of(files.begin(), files.end(),
                       [&](const std::string& file) { return AddGiven(file, use); });
  }

  bool AddGiven(const std::string& file, const std::string& use) {
    const fs::path path = PathFromUtf8(file);
    std::error_code error;
    if (!fs::is_regular_file(path, error)) {
      const bool isOther = file == "-" || fs::exists(path, error);
      reporter_.Error({file}, isOther ? Say("a report takes files alone", "报告只接受文件")
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
