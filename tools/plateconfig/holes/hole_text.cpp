#include <string>

#include "plateconfig/holes/hole_fields.h"
#include "plateconfig/holes/hole_output.h"
#include "plateconfig/messages/language.h"
#include "plateconfig/messages/screen_text.h"
#include "plateconfig/messages/shown_numbers.h"
#include "text/gbk.h"

namespace plateconfig {
namespace {

/// What a list says about a value. `list` is null when there is none for this segment.
template <typename Item>
std::string VerdictText(Verdict verdict, const std::vector<Item>* list) {
  if (verdict == Verdict::kExplicit) return Say("is listed", "已列出");
  if (verdict == Verdict::kWildcard) return Say("is accepted like any", "任意皆可");
  if (list == nullptr) return Say("has no list", "没有对应的列表");
  return Say("is none of {}", "不在 {} 之中", list->empty() ? Say("nothing", "空列表") : ShownList(*list));
}

template <typename List>
const List* ListOf(const std::vector<List>& lists, std::size_t segment) {
  return segment < lists.size() ? &lists[segment] : nullptr;
}

std::string SegmentText(const CombHole& hole, const HoleTypeInfo& type, const SegmentVerdict& verdict) {
  const HoleGroup& group = kHoleGroups[verdict.group];
  const HoleInfo& segment = (hole.*group.segments)[verdict.segment];
  const HoleGroupNames& names = kHoleGroupNames[verdict.group];
  return Say("{0} {1}: colour {2} {3}, diameter {4} {5}", "{0}第 {1} 段：颜色 {2} {3}，直径 {4} {5}",
             names.name.In(CurrentLanguage()), verdict.segment + 1, segment.color,
             VerdictText(verdict.color, ListOf(type.*group.colors, verdict.segment)),
             ShownNumber(segment.diameter),
             VerdictText(verdict.diameter, ListOf(type.*group.diameters, verdict.segment)));
}

void WriteHeading(const HoleInput& input, std::ostream& out) {
  NXOpen::Point3d origin;
  double diameter = 0;
  HoleTypeInfo::GetCombHoleMaxDiameterAndOrigin(input.hole, &origin, &diameter);
  out << OnOneLine(input.name)
      << Say(": structure {}, largest diameter {} mm, at {}, {}, {}",
             "：结构 {}，最大直径 {} mm，位置 {}, {}, {}", StructureKey(input.hole), ShownNumber(diameter),
             ShownNumber(origin.X), ShownNumber(origin.Y), ShownNumber(origin.Z))
      << "\n";
}

void WriteType(const HoleInput& input, const TypeVerdict& verdict, const std::string& remark, bool inFull,
               std::ostream& out) {
  out << fmt::format("  {:>5}  ", ShownNumber(verdict.result.Accuracy())) << OnOneLine(verdict.type->name)
      << remark << "\n";
  if (!inFull) return;
  for (const SegmentVerdict& segment : verdict.segments) {
    out << "           " << SegmentText(input.hole, verdict.type->type, segment) << "\n";
  }
}

void WriteNoType(const HoleAnswer& answer, bool inFull, std::ostream& out) {
  if (!inFull) {
    out << Say("  no type accepts it (--explain tells why)", "  没有类型接受此孔（用 --explain 查看原因）")
        << "\n";
  } else if (answer.refusing.empty()) {
    out << Say("  no type has this structure; the nearest:", "  没有这种结构的类型；最接近的：") << "\n";
    for (const HoleTypeInput* type : answer.nearStructure) {
      out << "         " << OnOneLine(GbkToUtf8(type->type.countKey)) << "  " << OnOneLine(type->name)
          << "\n";
    }
  } else {
    out << Say("  no type accepts it; the nearest first:", "  没有类型接受此孔；最接近的排在最前：") << "\n";
  }
}

}  // namespace

void WriteHoleText(const HoleInput& input, const HoleAnswer& answer, bool inFull, std::ostream& out) {
  WriteHeading(input, out);
  const std::size_t tied = answer.IsTied() ? answer.BestCount() : 0;
  for (std::size_t i = 0; i < answer.accepting.size(); ++i) {
    const std::string remark = i < tied ? Say(" (one of {} best)", "（{} 个并列最高分之一）", tied) : "";
    WriteType(input, answer.accepting[i], remark, inFull, out);
  }
  if (answer.accepting.empty()) WriteNoType(answer, inFull, out);
  if (!inFull) return;
  if (!answer.accepting.empty() && !answer.refusing.empty()) {
    out << Say("  refused by, the nearest first:", "  不接受此孔的类型，最接近的排在最前：") << "\n";
  }
  for (const TypeVerdict& verdict : answer.refusing) WriteType(input, verdict, "", true, out);
  out << "\n";
}

}  // namespace plateconfig
