#include "plateconfig/tables/shown_settings.h"

#include <exception>
#include <string>

#include "plateconfig/tables/reported_table.h"
#include "platform/file.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

bool IsException(Role role, const TableFile& file) {
  return RowOf(role).whenUnreadable == WhenUnreadable::kThrowsIfMissing && !FileExists(file.hostPath);
}

/// The one exception of the library, as a message for the user.
std::vector<Setting> WithoutTable(Role role, const TableFile& file, Reporter& reporter) {
  try {
    // The message names the path, and all of it is GBK.
    return SettingsOf(role, Utf8ToGbk(file.shownAs));
  } catch (const std::exception& error) {
    reporter.Error({file.shownAs}, GbkToUtf8(error.what()));
    return SettingsOf(role, std::nullopt);
  }
}

}  // namespace

std::vector<Setting> ReportedSettings(Role role, const std::optional<TableFile>& file, Reporter& reporter) {
  if (!file) return SettingsOf(role, std::nullopt);
  if (IsException(role, *file)) return WithoutTable(role, *file, reporter);
  ReportTable(GivenFrom(role, *file), reporter);
  return SettingsOf(role, file->hostPath);
}

}  // namespace plateconfig
