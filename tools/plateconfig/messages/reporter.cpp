#include "plateconfig/messages/reporter.h"

#include "analysis/findings/sentence.h"
#include "plateconfig/messages/language.h"

namespace plateconfig {

void Reporter::Error(const Place& place, const std::string& text) {
  hasErrors_ = true;
  Write(place, Severity::kError, text);
}

void Reporter::Warning(const Place& place, const std::string& text) {
  hasFindings_ = hasFindings_ || warningsCount_;
  Write(place, Severity::kWarning, text);
}

void Reporter::Report(const Finding& finding) {
  if (collected_ != nullptr) return collected_->push_back(finding);
  const Severity severity = finding.code.Row().severity;
  hasErrors_ = hasErrors_ || severity == Severity::kError;
  hasFindings_ = hasFindings_ || (warningsCount_ && severity == Severity::kWarning);
  Write(finding.place, severity, LineOf(finding, CurrentLanguage()));
}

void Reporter::Write(const Place& place, Severity severity, const std::string& text) {
  if (prepare_) prepare_();
  err_ << ToString(place) << ": " << WordsOf(severity).In(CurrentLanguage()) << ": " << text << "\n";
}

}  // namespace plateconfig
