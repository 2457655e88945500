#include "plateconfig/checking/check_job.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "analysis/text/strict_values.h"

namespace plateconfig {
namespace {

bool Has(const std::vector<std::string>& codes, const CodeRow& row) {
  return std::find(codes.begin(), codes.end(), row.name) != codes.end();
}

/// The place of a size that --domain names.
std::optional<std::size_t> SizeNamed(std::string_view name) {
  constexpr std::string_view kNames[] = {"length", "width", "thickness", "weight"};
  static_assert(std::size(kNames) == kSizeCount);
  const auto found = std::find(std::begin(kNames), std::end(kNames), name);
  if (found == std::end(kNames)) return std::nullopt;
  return static_cast<std::size_t>(found - std::begin(kNames));
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
