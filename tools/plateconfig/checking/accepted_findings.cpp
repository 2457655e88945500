#include "plateconfig/checking/accepted_findings.h"

#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

#include "analysis/findings/baseline.h"
#include "analysis/findings/sentence.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/output/output_file.h"
#include "plateconfig/system/file_kind.h"
#include "plateconfig/system/file_streams.h"

namespace plateconfig {

namespace {

/// False, for the caller to hand on.
bool NoBaseline(const std::string& file, Reporter& reporter) {
  reporter.Error({file}, Say("this file is no baseline of plateconfig check and stays as it is",
                             "此文件不是 plateconfig check 的基线文件，保持不变"));
  return false;
}

}  // namespace

bool LeaveOutAccepted(const std::string& file, CheckReport& report, Reporter& reporter) {
  const std::optional<std::string> text = ReadAllBytes(PathFromUtf8(file));
  if (!text) {
    reporter.Error({file}, Say("this file can not be read; --update-baseline writes it",
                               "无法读取此文件；--update-baseline 会写出它"));
    return false;
  }
  if (!IsBaseline(*text)) return NoBaseline(file, reporter);
  const std::size_t found = report.findings.size();
  Comparison comparison = CompareWithBaseline(std::move(report.findings), ReadBaseline(*text));
  report.accepted = found - comparison.fresh.size();
  report.findings = std::move(comparison.fresh);
  for (const AcceptedFinding& finding : comparison.vanished) {
    report.incomplete.push_back(
        {"accepted and no longer found: " + finding.text, "已接受但不再出现：" + finding.text});
  }
  return true;
}

bool AcceptAll(const std::string& file, CheckReport& report, Reporter& reporter) {
  const std::filesystem::path path = PathFromUtf8(file);
  const std::optional<std::string> present = IsPipeOrDevice(path) ? std::nullopt : ReadAllBytes(path);
  if (present && !IsBaseline(*present)) return NoBaseline(file, reporter);
  const std::vector<std::string> fingerprints = FingerprintsOf(report.findings);
  std::vector<AcceptedFinding> accepted;
  accepted.reserve(fingerprints.size());
  for (std::size_t i = 0; i < fingerprints.size(); ++i) {
    const Finding& finding = report.findings[i];
    accepted.push_back({fingerprints[i], finding.place.file + ": " + LineOf(finding, Language::kEnglish)});
  }
  report.accepted = report.findings.size();
  report.findings.clear();
  return WriteOutputFile(file, WriteBaseline(accepted), IfPresent::kReplace, reporter);
}

}  // namespace plateconfig
