#pragma once

// Messages about the user's files, one a line on the error stream:
//
//   plates.csv:3:12: error: C3: the width "45o" is not a number; write it like 450 or 12.5

#include <cstddef>
#include <functional>
#include <map>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

#include "analysis/findings/finding.h"
#include "analysis/text/place.h"

namespace plateconfig {

/// The exit codes of the companion.
enum ExitCode { kFine = 0, kFindings = 1, kUnusable = 2 };

class Reporter {
 public:
  explicit Reporter(std::ostream& err) : err_(err) {}

  /// Something of the input could not be used.
  void Error(const Place& place, const std::string& text);
  /// Something looks wrong but was used as it is.
  void Warning(const Place& place, const std::string& text);
  /// The same as data: it counts as its severity says. A hint is not a finding for the exit code.
  void Report(const Finding& finding);
  /// A result that the user should look at, already shown in the output.
  void CountFinding() { Count(Severity::kWarning); }
  /// From now on warnings do not count: whether the input looks wrong is not what the verb answers.
  void ShowWarningsOnly() { warningsCount_ = false; }

  /// What is less than this does not count for the exit code.
  void FailOn(Severity severity) { failOn_ = severity; }

  /// From now on findings go there, instead of onto the stream, and do not count; null ends it. Gives where
  /// they went before.
  std::vector<Finding>* CollectInto(std::vector<Finding>* findings) {
    return std::exchange(collected_, findings);
  }

  /// The files themselves are the question, so that also what only might be amiss in them is told.
  void LookAtFiles() { looksAtFiles_ = true; }
  bool LooksAtFiles() const { return looksAtFiles_; }

  /// To be called before each message: whoever draws on the error stream cleans up there. An empty function
  /// ends it.
  void BeforeMessage(std::function<void()> prepare) { prepare_ = std::move(prepare); }

  /// Says how many messages of each kind were left out, which happens to a kind that repeats itself in one
  /// file. To be called at the end.
  void TellHowManyMore();

  ExitCode Result() const { return hasErrors_ ? kUnusable : hasFindings_ ? kFindings : kFine; }

 private:
  void Count(Severity severity) { hasFindings_ = hasFindings_ || severity <= failOn_; }
  void Write(const Place& place, Severity severity, const std::string& text);

  /// A kind of messages: the code and the file.
  using Kind = std::pair<std::string, std::string>;

  std::ostream& err_;
  std::map<Kind, std::size_t> told_;  ///< How often each kind was met.
  std::vector<Finding>* collected_ = nullptr;
  std::function<void()> prepare_;
  Severity failOn_ = Severity::kWarning;
  bool hasErrors_ = false;
  bool hasFindings_ = false;
  bool warningsCount_ = true;
  bool looksAtFiles_ = false;
};

/// Holds findings back until it is known whether they are to be told.
class HeldFindings {
 public:
  explicit HeldFindings(Reporter& reporter)
      : reporter_(reporter), before_(reporter.CollectInto(&findings_)) {}
  ~HeldFindings() { reporter_.CollectInto(before_); }
  HeldFindings(const HeldFindings&) = delete;
  HeldFindings& operator=(const HeldFindings&) = delete;

  /// From now on findings are reported as before.
  void Drop() { reporter_.CollectInto(before_); }

  void Tell() {
    Drop();
    for (const Finding& finding : findings_) reporter_.Report(finding);
  }

 private:
  Reporter& reporter_;
  std::vector<Finding> findings_;
  std::vector<Finding>* before_;
};

}  // namespace plateconfig
