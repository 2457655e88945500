#include "bench/ratio_reporter.h"

#include <algorithm>
#include <iomanip>
#include <ostream>

namespace plateconfig::bench {
namespace {

constexpr const char* kOurWay = "plateconfig";

}  // namespace

void RatioReporter::ReportRuns(const std::vector<Run>& runs) {
  ConsoleReporter::ReportRuns(runs);
  for (const Run& run : runs) Keep(run);
}

void RatioReporter::Keep(const Run& run) {
  if (run.run_type != Run::RT_Iteration || run.error_occurred || run.iterations == 0) return;
  const std::string& name = run.run_name.function_name;
  const std::size_t slash = name.rfind('/');
  if (slash == std::string::npos) return;
  const double seconds = run.cpu_accumulated_time / static_cast<double>(run.iterations);
  const auto [fastest, isFirst] = tasks_[name.substr(0, slash)].try_emplace(name.substr(slash + 1), seconds);
  if (!isFirst) fastest->second = std::min(fastest->second, seconds);
}

void RatioReporter::Finalize() {
  ConsoleReporter::Finalize();
  std::ostream& out = GetOutputStream();
  out << "\nTimes of " << kOurWay << " in units of the other ways (1.00: the same, 0.25: a quarter):\n";
  for (const auto& [task, ways] : tasks_) {
    const auto ours = ways.find(kOurWay);
    if (ours == ways.end()) continue;
    out << std::left << std::setw(40) << task << std::right << std::fixed << std::setprecision(2);
    for (const auto& [way, seconds] : ways) {
      if (way != kOurWay) out << "  " << ours->second / seconds << " x " << way;
    }
    out << '\n';
  }
}

}  // namespace plateconfig::bench
