#include "analysis/findings/baseline.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <utility>

#include "analysis/text/sha256.h"

namespace plateconfig {
namespace {

constexpr std::size_t kDigits = 32;

/// The parts behind each other, each with its length, so that no two findings run together.
std::string Joined(const std::vector<std::string>& parts) {
  std::string text;
  for (const std::string& part : parts) text += std::to_string(part.size()) + ":" + part;
  return text;
}

std::string IdentityOf(const Finding& finding) {
  return Joined({std::string(finding.code.Name()), finding.place.file, finding.columnName,
                 finding.text.value_or(""), finding.identity});
}

bool IsFingerprint(std::string_view text) {
  return text.size() == kDigits && text.find_first_not_of("0123456789abcdef") == std::string_view::npos;
}

/// Hands over each line without its line end.
template <typename Take>
void ForEachLine(std::string_view text, Take take) {
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    take(line);
  }
}

/// Of a line that begins with a fingerprint.
std::optional<AcceptedFinding> AcceptedIn(std::string_view line) {
  const std::string_view fingerprint = line.substr(0, kDigits);
  const std::string_view rest = line.substr(fingerprint.size());
  if (!IsFingerprint(fingerprint) || (!rest.empty() && rest.front() != ' ')) return std::nullopt;
  const std::size_t begin = std::min(rest.find_first_not_of(' '), rest.size());
  return AcceptedFinding{std::string(fingerprint), std::string(rest.substr(begin))};
}

}  // namespace

std::vector<std::string> FingerprintsOf(const std::vector<Finding>& findings) {
  std::map<std::string, int> met;
  std::vector<std::string> fingerprints;
  for (const Finding& finding : findings) {
    const std::string identity = IdentityOf(finding);
    const int number = ++met[identity];
    fingerprints.push_back(Sha256(Joined({identity, std::to_string(number)})).substr(0, kDigits));
  }
  return fingerprints;
}

Comparison CompareWithBaseline(std::vector<Finding> findings, const std::vector<AcceptedFinding>& accepted) {
  const std::vector<std::string> fingerprints = FingerprintsOf(findings);
  const std::set<std::string> found(fingerprints.begin(), fingerprints.end());
  std::set<std::string> known;
  Comparison comparison;
  for (const AcceptedFinding& finding : accepted) {
    known.insert(finding.fingerprint);
    if (!found.contains(finding.fingerprint)) comparison.vanished.push_back(finding);
  }
  for (std::size_t i = 0; i < findings.size(); ++i) {
    if (!known.contains(fingerprints[i])) comparison.fresh.push_back(std::move(findings[i]));
  }
  return comparison;
}

std::string WriteBaseline(const std::vector<AcceptedFinding>& accepted) {
  std::string text = "# Accepted findings of plateconfig check; a line is taken out by deleting it.\n";
  for (const AcceptedFinding& finding : accepted) text += finding.fingerprint + "  " + finding.text + "\n";
  return text;
}

bool IsBaseline(std::string_view text) {
  bool isBaseline = true;
  ForEachLine(text, [&](std::string_view line) {
    isBaseline = isBaseline && (line.empty() || line.starts_with('#') || AcceptedIn(line).has_value());
  });
  return isBaseline;
}

std::vector<AcceptedFinding> ReadBaseline(std::string_view text) {
  std::vector<AcceptedFinding> accepted;
  ForEachLine(text, [&](std::string_view line) {
    if (auto finding = AcceptedIn(line)) accepted.push_back(std::move(*finding));
  });
  return accepted;
}

}  // namespace plateconfig
