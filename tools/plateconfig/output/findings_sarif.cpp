#include "plateconfig/output/findings_sarif.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <vector>

#include "analysis/findings/baseline.h"
#include "analysis/findings/sentence.h"

namespace plateconfig {
namespace {

using Json = nlohmann::ordered_json;

const char* LevelOf(Severity severity) {
  switch (severity) {
    case Severity::kError:
      return "error";
    case Severity::kWarning:
      return "warning";
    case Severity::kHint:
      break;
  }
  return "note";
}

/// A text as SARIF has messages: braces, which stand for something there, are doubled.
Json MessageJson(std::string_view text) {
  std::string escaped;
  for (const char c : text) escaped.append(c == '{' || c == '}' ? 2 : 1, c);
  return {{"text", escaped}};
}

/// A path as the reference of a URI (RFC 3986): slashes, and every byte that is not plain as %XX.
std::string UriOf(const std::string& path) {
  constexpr std::string_view kPlain = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-._~/";
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string uri;
  for (const char c : path) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '\\') {
      uri += '/';
    } else if (kPlain.find(c) != std::string_view::npos) {
      uri += c;
    } else {
      uri.append({'%', kDigits[byte >> 4], kDigits[byte & 0xF]});
    }
  }
  return uri;
}

/// The codes that occur, in the order of the table of codes.
std::vector<const CodeRow*> RulesOf(const CheckReport& report) {
  std::vector<const CodeRow*> rules;
  for (const CodeRow& row : kCodes) {
    const bool occurs = std::any_of(report.findings.begin(), report.findings.end(),
                                    [&](const Finding& finding) { return &finding.code.Row() == &row; });
    if (occurs) rules.push_back(&row);
  }
  return rules;
}

Json RuleToJson(const CodeRow& row, Language language) {
  const Json page = MessageJson(row.page.In(language));
  return {{"id", row.name},
          {"defaultConfiguration", {{"level", LevelOf(row.severity)}}},
          {"fullDescription", page},
          {"help", page}};
}

Json LocationOf(const Place& place) {
  Json physical = {{"artifactLocation", {{"uri", UriOf(place.file)}}}};
  if (place.line > 0) {
    physical["region"] = {{"startLine", place.line}};
    if (place.column > 0) physical["region"]["startColumn"] = place.column;
  }
  return {{"physicalLocation", physical}};
}

Json ResultOf(const Finding& finding, const std::string& fingerprint,
              const std::vector<const CodeRow*>& rules, Language language) {
  const auto rule = std::find(rules.begin(), rules.end(), &finding.code.Row());
  return {{"ruleId", finding.code.Name()},
          {"ruleIndex", std::distance(rules.begin(), rule)},
          {"level", LevelOf(finding.code.Row().severity)},
          {"message", MessageJson(LineOf(finding, language))},
          {"locations", Json::array({LocationOf(finding.place)})},
          {"partialFingerprints", {{"plateconfigFinding/v1", fingerprint}}}};
}

}  // namespace

Json ToSarif(const CheckReport& report, Language language) {
  const std::vector<const CodeRow*> rules = RulesOf(report);
  Json ruleList = Json::array();
  for (const CodeRow* rule : rules) ruleList.push_back(RuleToJson(*rule, language));
  const std::vector<std::string> fingerprints = FingerprintsOf(report.findings);
  Json results = Json::array();
  for (std::size_t i = 0; i < report.findings.size(); ++i)
    results.push_back(ResultOf(report.findings[i], fingerprints[i], rules, language));
  const Json driver = {{"name", "plateconfig"}, {"version", PLATECONFIG_VERSION}, {"rules", ruleList}};
  return {
      {"$schema", "https://json.schemastore.org/sarif-2.1.0.json"},
      {"version", "2.1.0"},
      {"runs",
       Json::array(
           {{{"tool", {{"driver", driver}}}, {"columnKind", "unicodeCodePoints"}, {"results", results}}})}};
}

}  // namespace plateconfig
