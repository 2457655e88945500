#include "plateconfig/messages/reporter.h"

#include "analysis/findings/sentence.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/messages/screen_text.h"

namespace plateconfig {
namespace {

constexpr std::size_t kMostOfOneKind = 20;

}  // namespace

void Reporter::Error(const Place& place, const std::string& text) {
  hasErrors_ = true;
  Write(place, Severity::kError, text);
}

void Reporter::Warning(const Place& place, const std::string& text) {
  if (warningsCount_) Count(Severity::kWarning);
  Write(place, Severity::kWarning, text);
}

void Reporter::Report(const Finding& finding) {
  if (collected_ != nullptr) return collected_->push_back(finding);
  const Severity severity = finding.code.Row().severity;
  hasErrors_ = hasErrors_ || severity == Severity::kError;
  if (warningsCount_) Count(severity);
  if (++told_[{std::string(finding.code.Name()), finding.place.file}] > kMostOfOneKind) return;
  Write(finding.place, severity, LineOf(finding, CurrentLanguage()));
}

void Reporter::TellHowManyMore() {
  for (const auto& [kind, count] : told_) {
    if (count <= kMostOfOneKind) continue;
    if (prepare_) prepare_();
    err_ << OnOneLine(kind.second) << ": "
         << Say("{} of this kind not shown: {}", "另有 {} 条同类信息未显示：{}",
                Counted(count - kMostOfOneKind, "more message"), kind.first)
         << "\n";
  }
  told_.clear();
}

void Reporter::Write(const Place& place, Severity severity, const std::string& text) {
  if (prepare_) prepare_();
  err_ << OnOneLine(ToString(place)) << ": " << WordsOf(severity).In(CurrentLanguage()) << ": "
       << OnOneLine(text) << "\n";
}

}  // namespace plateconfig
