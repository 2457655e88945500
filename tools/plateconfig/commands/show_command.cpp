#include <algorithm>
#include <memory>

#include "plateconfig/commands/options.h"
#include "plateconfig/commands/verbs.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/output/json_output.h"
#include "plateconfig/output/setting_value.h"
#include "plateconfig/tables/schema_words.h"
#include "plateconfig/tables/shown_settings.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

using Json = nlohmann::ordered_json;

struct ShowJob {
  ConfigurationOptions configuration;
  std::vector<std::string> roles;  ///< Empty for all.
  bool meanings = false;           ///< In text; JSON always has them.
};

std::string SourceText(Source source) {
  switch (source) {
    case Source::kAbsent:
      return Say("default", "默认值");
    case Source::kClass:
      return Say("not read", "未读取");
    case Source::kTable:
      break;
  }
  return {};
}

void WriteText(const Setting& setting, bool withMeaning, std::ostream& out) {
  out << "  " << OneLine(setting.schema.column) << " = " << SettingText(setting.value);
  if (setting.schema.unit != Unit::kNone && !setting.value.empty())
    out << "  [" << InWords(WordsOf(setting.schema.unit)) << "]";
  if (setting.source != Source::kTable) out << "  (" << SourceText(setting.source) << ")";
  out << "\n";
  if (withMeaning) out << "      " << InWords(setting.schema.help) << "\n";
}

void WriteText(Role role, const std::optional<TableFile>& file, const std::vector<Setting>& settings,
               bool withMeanings, std::ostream& out) {
  out << NameOf(role) << "  " << (file ? file->shownAs : Say("no file plays this role", "未指定此表"))
      << "\n";
  for (const Setting& setting : settings) WriteText(setting, withMeanings, out);
  out << "\n";
}

const char* JsonName(Source source) {
  return source == Source::kTable ? "table" : source == Source::kAbsent ? "absent column" : "class";
}

Json ToJson(Role role, const std::optional<TableFile>& file, const Setting& setting) {
  return {{"role", NameOf(role)},
          {"file", file ? Json(file->shownAs) : nullptr},
          {"column", GbkToUtf8(setting.schema.column)},
          {"value", SettingToJson(setting.schema, setting.value)},
          {"unit", WordsOf(setting.schema.unit).english},
          {"source", JsonName(setting.source)},
          {"help", InWords(setting.schema.help)}};
}

bool IsWanted(const ShowJob& job, std::string_view role) {
  return job.roles.empty() || std::find(job.roles.begin(), job.roles.end(), role) != job.roles.end();
}

void RunShow(const ShowJob& job, Context& context) {
  Configuration configuration(job.configuration, context.reporter);
  std::optional<JsonArray> array;
  if (context.format == Format::kJson) array.emplace(context.streams.out);
  for (const RoleRow& row : ManifestRoles()) {
    const Role role = row.role;
    if (!IsWanted(job, row.name)) continue;
    const std::optional<TableFile> file = configuration.FindOptional(role);
    const std::vector<Setting> settings = ReportedSettings(role, file, context.reporter);
    if (!array) WriteText(role, file, settings, job.meanings, context.streams.out);
    for (const Setting& setting : settings) {
      if (array) array->Add(ToJson(role, file, setting));
    }
  }
}

std::vector<Role> AllRoles() {
  std::vector<Role> roles;
  for (const RoleRow& row : ManifestRoles()) roles.push_back(row.role);
  return roles;
}

std::vector<std::string> AllNames() {
  const std::vector<std::string_view> names = NamesOf(ManifestRoles());
  return {names.begin(), names.end()};
}

}  // namespace

Run ShowOptions(CLI::App& command) {
  const auto job = std::make_shared<ShowJob>();
  AddConfigurationOptions(command, AllRoles(), job->configuration);
  command.add_option("roles", job->roles, Say("only the tables of these roles", "仅显示这些用途的表"))
      ->type_name(Say("ROLE", "用途"))
      ->check(OneOf(AllNames()));
  command.add_flag("--meanings", job->meanings,
                   Say("also what each setting does on the drawing", "同时说明每项设置在图纸上起什么作用"));
  AddRolesToHelp(command, AllNames());
  return [job](Context& context) { RunShow(*job, context); };
}

}  // namespace plateconfig
