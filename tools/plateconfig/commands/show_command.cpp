#include <algorithm>
#include <memory>

#include "plateconfig/answers/rule_rows.h"
#include "plateconfig/commands/options.h"
#include "plateconfig/commands/verbs.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/messages/screen_text.h"
#include "plateconfig/output/csv_output.h"
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

void WriteHeading(Role role, const std::optional<TableFile>& file, std::ostream& out) {
  out << NameOf(role) << "  "
      << (file ? OnOneLine(file->shownAs) : Say("no file plays this role", "未指定此表")) << "\n";
}

void WriteText(Role role, const std::optional<TableFile>& file, const std::vector<Setting>& settings,
               bool withMeanings, std::ostream& out) {
  WriteHeading(role, file, out);
  for (const Setting& setting : settings) WriteText(setting, withMeanings, out);
  out << "\n";
}

Json ToJson(Role role, const std::optional<TableFile>& file, const Setting& setting) {
  return {{"role", NameOf(role)},
          {"file", file ? Json(file->shownAs) : nullptr},
          {"column", GbkToUtf8(setting.schema.column)},
          {"value", SettingToJson(setting.schema, setting.value)},
          {"unit", WordsOf(setting.schema.unit).english},
          {"source", NameOf(setting.source)},
          {"help", InWords(setting.schema.help)}};
}

bool IsWanted(const ShowJob& job, std::string_view role) {
  return job.roles.empty() || std::find(job.roles.begin(), job.roles.end(), role) != job.roles.end();
}

/// GBK has no raised 3, and a table for a spreadsheet must do without.
std::string UnitCell(Unit unit) {
  constexpr std::string_view kRaised = "³";
  std::string text = unit == Unit::kNone ? std::string() : InWords(WordsOf(unit));
  if (const std::size_t at = text.find(kRaised); at != std::string::npos)
    text.replace(at, kRaised.size(), "3");
  return text;
}

/// Of a rule table for people: its rows instead of its columns.
bool IsOfRows(const Setting& setting) {
  return setting.schema.isRowColumn;
}

class ShowRun {
 public:
  ShowRun(const ShowJob& job, Context& context)
      : job_(job), context_(context), configuration_(job.configuration, context.reporter) {
    if (context.format == Format::kJson) array_.emplace(context.streams.out);
    if (context.format == Format::kCsv) csv_.emplace(context.streams.out, kColumns);
  }

  void Show() {
    if (job_.configuration.tables.empty() && !IsFolderUsable()) return;
    for (const RoleRow& row : ManifestRoles()) {
      if (!IsWanted(job_, row.name)) continue;
      const std::optional<TableFile> file = configuration_.FindOptional(row.role);
      Show(row.role, file, ReportedSettings(row.role, file, context_.reporter));
    }
    if (context_.summary != nullptr) WriteSummary();
  }

 private:
  /// Of a folder that can not be used there is nothing but defaults to show.
  bool IsFolderUsable() {
    configuration_.FolderName();
    return configuration_.IsUsable();
  }

  inline static const std::vector<std::string> kColumns = {"用途", "文件", "列",  "序号",
                                                           "值",   "单位", "来源"};

  void Show(Role role, const std::optional<TableFile>& file, const std::vector<Setting>& settings) {
    ++tables_;
    settings_ += settings.size();
    if (!array_ && !csv_) return WriteTable(role, file, settings);
    for (const Setting& setting : settings) {
      if (array_) array_->Add(ToJson(role, file, setting));
      if (csv_) WriteCsv(role, file, setting);
    }
  }

  void WriteTable(Role role, const std::optional<TableFile>& file, std::vector<Setting> settings) {
    if (role != Role::kProcessRules || !file)
      return WriteText(role, file, settings, job_.meanings, context_.streams.out);
    std::erase_if(settings, IsOfRows);
    WriteHeading(role, file, context_.streams.out);
    for (const Setting& setting : settings) WriteText(setting, job_.meanings, context_.streams.out);
    WriteRuleRows(file->hostPath, context_.streams.out);
    context_.streams.out << "\n";
  }

  /// A row for each value.
  void WriteCsv(Role role, const std::optional<TableFile>& file, const Setting& setting) {
    const std::string source =
        setting.source == Source::kTable ? Say("table", "表") : SourceText(setting.source);
    for (std::size_t i = 0; i < setting.value.size(); ++i) {
      csv_->Row({std::string(NameOf(role)), file ? file->shownAs : "", GbkToUtf8(setting.schema.column),
                 std::to_string(i + 1), GbkToUtf8(setting.value[i]), UnitCell(setting.schema.unit), source});
    }
  }

  void WriteSummary() {
    std::string line =
        Say("{} of {}", "{} 项设置，{} 个表", Counted(settings_, "setting"), Counted(tables_, "table"));
    const std::string folder = configuration_.FolderThatWasRead();
    if (!folder.empty()) line += Say("; configuration {}", "；配置 {}", OnOneLine(folder));
    *context_.summary << line << "\n";
  }

  const ShowJob& job_;
  Context& context_;
  Configuration configuration_;
  std::optional<JsonArray> array_;
  std::optional<CsvOutput> csv_;
  std::size_t tables_ = 0;
  std::size_t settings_ = 0;
};

void RunShow(const ShowJob& job, Context& context) {
  ShowRun(job, context).Show();
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
  return WithOutput(command, [job](Context& context) { RunShow(*job, context); });
}

}  // namespace plateconfig
