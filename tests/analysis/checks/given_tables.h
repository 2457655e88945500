#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "analysis/analysis.h"
#include "analysis/findings/sentence.h"
#include "support/gbk_text.h"

namespace plateconfig::test {

/// A table with these bytes.
inline GivenTable GivenBytes(Role role, const std::string& bytes) {
  FileBytes file;
  file.data = std::make_unique<char[]>(bytes.size());
  file.size = bytes.copy(file.data.get(), bytes.size());
  return {role, "t.csv", true, std::make_shared<const Table>(std::move(file))};
}

/// The same, of readable text.
inline GivenTable Given(Role role, const std::string& utf8) {
  return GivenBytes(role, Gbk(utf8));
}

/// Every code, those that are off by default included.
inline CheckOptions AllCodes() {
  CheckOptions options;
  options.wants = [](const CodeRow&) { return true; };
  return options;
}

inline std::vector<std::string> CodesOf(const std::vector<Finding>& findings) {
  std::vector<std::string> codes;
  for (const Finding& finding : findings) codes.emplace_back(finding.code.Name());
  return codes;
}

}  // namespace plateconfig::test
