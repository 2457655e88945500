#include "slips/report.h"

#include <iomanip>
#include <iterator>
#include <map>

namespace plateconfig::slips {
namespace {

double PercentOf(std::size_t part, std::size_t whole) {
  return whole == 0 ? 100 : 100.0 * static_cast<double>(part) / static_cast<double>(whole);
}

void PrintHead(std::ostream& out, const char* title) {
  out << "\n with effect   unhinted         all   as plausible (noticed)   no effect   " << title << "\n";
}

void Print(std::ostream& out, const Tally& tally, const std::string& name) {
  out << std::fixed << std::setprecision(1);
  out << std::setw(12) << tally.effects << std::setw(10) << tally.PercentUnhinted() << "%" << std::setw(11)
      << tally.Percent() << "%" << std::setw(15) << tally.faultless << " (" << tally.faultlessNoticed << ")"
      << std::setw(16) << tally.harmless << "   " << name << (tally.IsAtZero() ? "   ZERO" : "") << "\n";
}

/// In the order of the kinds.
std::vector<std::pair<const Kind*, Tally>> ByKind(const std::vector<Outcome>& outcomes) {
  std::vector<std::pair<const Kind*, Tally>> tallies;
  for (const Outcome& outcome : outcomes) {
    if (tallies.empty() || tallies.back().first != outcome.slip->kind)
      tallies.push_back({outcome.slip->kind, {}});
    tallies.back().second.Add(outcome);
  }
  return tallies;
}

/// On one line, and not too long.
std::string Shown(const std::string& text) {
  constexpr std::size_t kMost = 90;
  std::string shown;
  for (const char c : text) shown += c == '\n' ? "\\n" : c == '\t' ? "\\t" : std::string(1, c);
  if (shown.size() <= kMost) return shown;
  std::size_t end = kMost;
  while ((static_cast<unsigned char>(shown[end]) & 0xC0) == 0x80) --end;
  return shown.substr(0, end) + "…";
}

void PrintSlip(std::ostream& out, const Slip& slip) {
  const Site& site = slip.site;
  out << "  " << slip.kind->name << " | " << site.file->path;
  const bool isCell = !slip.change.touched.rows.empty() || !slip.change.touched.columns.empty();
  if (isCell) out << " " << ColumnLetters(site.column) << site.row + 1;
  out << " | " << Shown(slip.change.before) << " | " << Shown(slip.change.after) << "\n";
}

}  // namespace

void Tally::Add(const Outcome& outcome) {
  if (!outcome.hasEffect) {
    ++harmless;
  } else if (outcome.slip->change.isFaultless) {
    ++faultless;
    if (outcome.isNoticed) ++faultlessNoticed;
  } else {
    ++effects;
    if (outcome.isNoticed) ++noticed;
    if (outcome.isNoticedUnhinted) ++noticedUnhinted;
  }
}

double Tally::Percent() const {
  return PercentOf(noticed, effects);
}

double Tally::PercentUnhinted() const {
  return PercentOf(noticedUnhinted, effects);
}

Tally Report::Total() const {
  Tally total;
  for (const Outcome& outcome : outcomes_) total.Add(outcome);
  return total;
}

std::vector<std::string> Report::KindsAtZero() const {
  std::vector<std::string> names;
  for (const auto& [kind, tally] : ByKind(outcomes_)) {
    if (tally.IsAtZero()) names.push_back(kind->name);
  }
  return names;
}

void Report::PrintGroups(std::ostream& out) const {
  std::map<Group, Tally> tallies;
  for (const Outcome& outcome : outcomes_) tallies[outcome.slip->kind->group].Add(outcome);
  PrintHead(out, "group");
  for (const auto& [group, tally] : tallies) Print(out, tally, kGroupNames[static_cast<std::size_t>(group)]);
  Print(out, Total(), "all");
}

void Report::PrintKinds(std::ostream& out) const {
  PrintHead(out, "kind");
  for (const auto& [kind, tally] : ByKind(outcomes_)) Print(out, tally, kind->name);
}

void Report::PrintUnnoticed(std::ostream& out, std::size_t most) const {
  out << "\nunnoticed (kind | file and cell | old | new):\n";
  std::map<const Kind*, std::size_t> counts;
  for (const Outcome& outcome : outcomes_) {
    const bool isUnnoticed = outcome.hasEffect && !outcome.isNoticed && !outcome.slip->change.isFaultless;
    if (isUnnoticed && ++counts[outcome.slip->kind] <= most) PrintSlip(out, *outcome.slip);
  }
}

}  // namespace plateconfig::slips
