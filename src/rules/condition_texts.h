#pragma once

// The condition texts of the process list and the rule type that each selects.

#include <array>
#include <optional>
#include <string_view>

#include "rules/process_rule.h"
#include "text/gbk.h"

namespace plateconfig {

struct ConditionText {
  std::string_view text;  ///< GBK, compared as the whole cell.
  ProcessRule::RuleType type;
};

/// In the order in which a cell is compared with them. The three machining colours share one type on purpose.
inline constexpr auto kConditionTexts = [] {
  using namespace literals;
  return std::to_array<ConditionText>({
      {"自定义追加工艺"_gbk, ProcessRule::CustomProcess},
      {"有无圆孔"_gbk, ProcessRule::HasRoundHole},
      {"有无异型槽"_gbk, ProcessRule::HasIrregularSlot},
      {"有无通槽"_gbk, ProcessRule::HasThroughSlot},
      {"有无通槽&垂直槽（类型1）"_gbk, ProcessRule::HasThroughVerticalSlot},
      {"有无通槽&特殊槽（类型2）"_gbk, ProcessRule::HasThroughSpecialSlot},
      {"有无不通槽"_gbk, ProcessRule::HasBlindSlot},
      {"有无不通槽&正常槽（类型3）"_gbk, ProcessRule::HasBlindNormalSlot},
      {"有无不通槽&特殊槽（类型4）"_gbk, ProcessRule::HasBlindSpecialSlot4},
      {"有无不通槽&特殊槽（类型5）"_gbk, ProcessRule::HasBlindSpecialSlot5},
      {"型面精加工色"_gbk, ProcessRule::MachiningColor},
      {"型面粗加工色"_gbk, ProcessRule::MachiningColor},
      {"特殊加工颜色"_gbk, ProcessRule::MachiningColor},
      {"圆孔颜色"_gbk, ProcessRule::RoundHoleColor},
      {"圆孔直径"_gbk, ProcessRule::RoundHoleDiameter},
      {"孔数量大于参数值"_gbk, ProcessRule::HoleCountAtLeast},
      {"孔数量小于参数值"_gbk, ProcessRule::HoleCountBelow},
      {"通槽颜色"_gbk, ProcessRule::ThroughSlotColor},
      {"通槽&垂直槽颜色（类型1）"_gbk, ProcessRule::ThroughVerticalSlotColor},
      {"通槽&特殊槽颜色（类型2）"_gbk, ProcessRule::ThroughSpecialSlotColor},
      {"不通槽颜色"_gbk, ProcessRule::BlindSlotColor},
      {"不通槽&正常槽颜色（类型3）"_gbk, ProcessRule::BlindNormalSlotColor},
      {"不通槽&特殊槽颜色（类型4）"_gbk, ProcessRule::BlindSpecialSlotColor4},
      {"不通槽&特殊槽颜色（类型5）"_gbk, ProcessRule::BlindSpecialSlotColor5},
  });
}();

/// The type that a condition text (GBK) selects; nothing for a text that is none of them.
std::optional<ProcessRule::RuleType> FindRuleType(std::string_view text);

}  // namespace plateconfig
