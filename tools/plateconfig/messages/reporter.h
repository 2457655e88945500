#pragma once

// Messages about the user's files, one a line on the error stream:
//
//   plates.csv:3:12: error: C3: the width "45o" is not a number; write it like 450 or 12.5

#include <functional>
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
  void CountFinding() { hasFindings_ = true; }
  /// From now on warnings do not count: whether the input looks wrong is not what the verb answers.
  void ShowWarningsOnly() { warningsCount_ = false; }

  /// From now on findings go there, instead of onto the stream, and do not count; null ends it.
  void CollectInto(std::vector<Finding>* findings) { collected_ = findings; }
  bool Collects() const { return collected_ != nullptr; }

  /// To be called before each message: whoever draws on the error stream cleans up there. An empty function
  /// ends it.
  void BeforeMessage(std::function<void()> prepare) { prepare_ = std::move(prepare); }

  ExitCode Result() const { return hasErrors_ ? kUnusable : hasFindings_ ? kFindings : kFine; }

 private:
  void Write(const Place& place, Severity severity, const std::string& text);

  std::ostream& err_;
  std::vector<Finding>* collected_ = nullptr;
  std::function<void()> prepare_;
  bool hasErrors_ = false;
  bool hasFindings_ = false;
  bool warningsCount_ = true;
};

}  // namespace plateconfig
