#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/checks/configuration_check.h"
#include "plateconfig/tables/configuration.h"

namespace plateconfig {

/// What `check` is asked to look at, and how to report it: its options as they were given (UTF-8).
struct CheckJob {
  ConfigurationOptions configuration;
  std::vector<std::string> plateFiles;
  std::vector<std::string> typeFiles;
  std::string format;
  Severity failOn = Severity::kWarning;
  std::vector<std::string> only;
  std::vector<std::string> skip;
  std::vector<std::string> enable;
  std::vector<std::string> domain;
  std::size_t limit = GapOptions().limit;
  std::string baseline;
  bool updateBaseline = false;
  std::string explained;
};

/// Whether findings of this code are wanted.
bool IsWanted(const CheckJob& job, const CodeRow& row);

/// Takes a size's bounds such as `length=50_800`; false, with nothing changed, for anything else.
bool TakeDomain(std::string_view text, GapOptions& gaps);

}  // namespace plateconfig
