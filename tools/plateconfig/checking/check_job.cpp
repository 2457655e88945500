#include "plateconfig/checking/check_job.h"

#include <algorithm>
#include <optional>

#include "analysis/checks/rule_values.h"
#include "analysis/text/strict_values.h"

namespace plateconfig {
namespace {

bool Has(const std::vector<std::string>& codes, const CodeRow& row) {
  return std::find(codes.begin(), codes.end(), row.name) != codes.end();
}

}  // namespace

bool IsWanted(const CheckJob& job, const CodeRow& row) {
  if (Has(job.skip, row)) return false;
  if (!job.only.empty()) return Has(job.only, row);
  return row.habit == Habit::kOn || Has(job.enable, row);
}

bool TakeDomain(std::string_view text, GapOptions& gaps) {
  const std::size_t equals = text.find('=');
  const auto size = SizeNamed(text.substr(0, equals));
  if (!size || equals == std::string::npos) return false;
  const auto bounds = StrictNumbers(text.substr(equals + 1));
  if (!bounds || bounds->size() != 2 || bounds->front() < 0 || bounds->front() > bounds->back()) return false;
  gaps.domain[*size] = Interval{bounds->front(), bounds->back()};
  return true;
}

}  // namespace plateconfig
