#include "plateconfig/output/difference_report.h"

#include "plateconfig/messages/language.h"

namespace plateconfig {
namespace {

std::string ColorsText(const std::vector<int>& colors) {
  return colors.empty() ? Say("any other body colour", "其他体颜色")
                        : Say("body colour {}", "体颜色 {}", fmt::format("{}", fmt::join(colors, "_")));
}

std::string AnswersText(const FaceAnswers& answers) {
  return (answers.profile ? Say("profile", "有型面") : Say("no profile", "无型面")) + Say(", ", "，") +
         (answers.wireCutting ? Say("wire cutting", "有线割") : Say("no wire cutting", "无线割"));
}

}  // namespace

std::string GroupText(const RegionGroup& group, bool answersAgree) {
  const std::string before = AnswersText(group.before);
  const std::string answers =
      answersAgree ? before : Say("was {}; now {}", "原 {}；现 {}", before, AnswersText(group.after));
  return ColorsText(group.colors) + Say(", ", "，") + answers;
}

std::vector<std::string> IncompleteTexts(const RuleRegions& regions) {
  std::vector<std::string> texts;
  for (const RegionsLeftOut& leftOut : regions.incomplete) {
    const std::string group = GroupText(leftOut.group, regions.answersAgree);
    if (leftOut.boxes > 0) {
      texts.push_back(Say("{}: {} not listed; --limit 0 lists all",
                          "{}：另有 {} 个区域未列出；用 --limit 0 列出全部", group,
                          Counted(leftOut.boxes, "more region")));
    }
    if (leftOut.searchEnded) {
      texts.push_back(Say("{}: not all plates were compared, the tables differ in too many places",
                          "{}：未能比较所有的板，两个表的差别太多", group));
    }
  }
  return texts;
}

}  // namespace plateconfig
