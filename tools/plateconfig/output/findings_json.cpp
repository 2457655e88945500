#include "plateconfig/output/findings_json.h"

#include "analysis/findings/sentence.h"
#include "analysis/schema/role.h"
#include "plateconfig/output/json_output.h"

namespace plateconfig {
namespace {

using Json = nlohmann::ordered_json;

Json OrNull(const std::string& text) {
  return text.empty() ? Json(nullptr) : Json(text);
}

Json OrNull(std::size_t number) {
  return number == 0 ? Json(nullptr) : Json(number);
}

/// What each alternative of a value is in JSON.
struct JsonOf {
  Json operator()(const List& list) const {
    Json json = Json::array();
    for (const Value& item : list) json.push_back(ToJson(item));
    return json;
  }
  Json operator()(const Object& object) const {
    Json json = Json::object();
    for (const auto& [name, member] : object) json[name] = ToJson(member);
    return json;
  }
  template <typename Plain>
  Json operator()(const Plain& plain) const {
    return Json(plain);
  }
};

Json ToJson(const CheckedTable& table) {
  const RoleRow& role = RowOf(table.role);
  return {{"role", role.name},
          {"chineseName", role.chineseName},
          {"file", table.file},
          {"sha256", table.sha256},
          {"rows", table.rows}};
}

Json Texts(const std::vector<Word>& words, Language language) {
  Json json = Json::array();
  for (const Word& word : words) json.push_back(word.In(language));
  return json;
}

Json Checked(const CheckReport& report, Language language) {
  Json tables = Json::array();
  for (const CheckedTable& table : report.tables) tables.push_back(ToJson(table));
  return {{"folder", report.folder},         {"tables", tables},
          {"ruleRows", report.ruleRows},     {"processes", report.processes},
          {"skipped", Json(report.skipped)}, {"incomplete", Texts(report.incomplete, language)}};
}

}  // namespace

Json ToJson(const Value& value) {
  return std::visit(JsonOf(), value.Get());
}

Json ToJson(const Finding& finding, Language language) {
  Json json = {{"code", finding.code.Name()},
               {"severity", NameOf(finding.code.Row().severity)},
               {"file", finding.place.file},
               {"line", OrNull(finding.place.line)},
               {"column", OrNull(finding.place.column)},
               {"cell", OrNull(finding.cell)},
               {"columnName", OrNull(finding.columnName)},
               {"text", OrNull(finding.text)},
               {"message", MessageOf(finding, language)},
               {"usedAs", OrNull(finding.usedAs)},
               {"fix", OrNull(finding.fix)}};
  for (const auto& [name, member] : finding.members) json[name] = ToJson(member);
  return json;
}

Json ToJson(const CheckReport& report, Language language) {
  Json findings = Json::array();
  for (const Finding& finding : report.findings) findings.push_back(ToJson(finding, language));
  return {{"checked", Checked(report, language)},
          {"findings", findings},
          {"summary",
           {{"errors", CountOf(report, Severity::kError)},
            {"warnings", CountOf(report, Severity::kWarning)},
            {"hints", CountOf(report, Severity::kHint)}}}};
}

}  // namespace plateconfig
