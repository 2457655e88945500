#include "plateconfig/tables/shown_settings.h"

#include <exception>
#include <string>

#include "plateconfig/messages/language.h"
#include "plateconfig/tables/table_check.h"
#include "platform/file.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

/// Of a table that is there, whatever else is wrong with it: only a missing one is an exception.
std::string Consequence(WhenUnreadable whenUnreadable) {
  switch (whenUnreadable) {
    case WhenUnreadable::kChangesNothing:
      return Say("the settings stay as the library's classes start", "各设置保持库中类的初始值");
    case WhenUnreadable::kThrowsIfMissing:
    case WhenUnreadable::kCountsAsEmpty:
      break;
  }
  return Say("every setting gets the value of an absent column", "各设置取缺列时的值");
}

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
  // A table that is there counts as read, whatever it lacks.
  CheckTable(*file, SchemaOf(role),
             {Consequence(RowOf(role).whenUnreadable), Consequence(WhenUnreadable::kCountsAsEmpty)},
             reporter);
  return SettingsOf(role, file->hostPath);
}

}  // namespace plateconfig
