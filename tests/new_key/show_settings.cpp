// Prints the settings that a table gives as that of a role: column, unit, what it does in both languages,
// value when absent, value.
//
//   show_settings ROLE TABLE

#include <iostream>

#include "analysis/schema/settings.h"
#include "text/gbk.h"

namespace {

std::string Joined(const plateconfig::Cells& cells) {
  std::string text;
  for (const std::string& cell : cells) text += (text.empty() ? "" : ",") + plateconfig::GbkToUtf8(cell);
  return text;
}

}  // namespace

int main(int count, char** arguments) {
  const auto role = count == 3 ? plateconfig::FindRole(arguments[1]) : std::nullopt;
  if (!role) return 2;
  for (const plateconfig::Setting& setting : plateconfig::SettingsOf(*role, arguments[2])) {
    std::cout << plateconfig::GbkToUtf8(setting.schema.column) << "|"
              << plateconfig::WordsOf(setting.schema.unit).english << "|" << setting.schema.help.english
              << "|" << setting.schema.help.chinese << "|" << Joined(setting.schema.whenAbsent) << "|"
              << Joined(setting.value) << "\n";
  }
  return 0;
}
