#pragma once

// Whoever is to notice a slip. Today these are the messages that `show`, `process`, `folder` and `holes`
// print beside their results, and `check` as soon as the companion has that verb.

#include <memory>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "slips/slip.h"
#include "slips/trial.h"

namespace plateconfig::slips {

/// What a finding names; whatever it leaves open is empty.
struct Finding {
  bool isHint = false;
  std::string file;  ///< As it is printed.
  std::optional<std::size_t> line;
  std::string cell;  ///< C17
  std::string columnName;
  std::string text;            ///< The offending text.
  std::set<std::size_t> rows;  ///< Spreadsheet rows that it names beside its line.
  std::string message;
  std::string identity;  ///< Two findings that say the same have the same one.
};

class Detector {
 public:
  virtual ~Detector() = default;
  virtual const char* Name() const = 0;
  /// What it finds in the files as they are now, of which this one may have changed.
  virtual std::vector<Finding> Look(const Trial& trial, const SampleFile& file) const = 0;
};

/// `check` when there is such a verb, else the messages of the others.
std::unique_ptr<Detector> MakeDetector();

/// One line of the error stream; nothing for a line that is none.
std::optional<Finding> FindingInMessage(const std::string& line);
/// What `check --format json` printed; no finding when it is not such an object.
std::vector<Finding> FindingsInJson(const std::string& output);

/// True when the finding leads to the slip: to its file, and there to a cell, column or row that was touched,
/// or to the file when it is the whole file that is wrong.
bool LeadsTo(const Finding& finding, const Slip& slip);

}  // namespace plateconfig::slips
