#pragma once

// The conditions of the process list: the texts that select each type, and how a plate feeds it. A further
// text is one line below. A further type has a line below and a case in `FedByOf`; the compiler tells every
// place that must know it.

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

/// The line of a condition text (GBK); null for a text that is none of them.
const ConditionText* FindConditionText(std::string_view text);

/// The type that a condition text (GBK) selects; nothing for a text that is none of them.
std::optional<ProcessRule::RuleType> FindRuleType(std::string_view text);

/// What is known of a plate decides a condition in one of these ways.
enum class FedBy {
  kPresence,   ///< The feature is there or not.
  kColors,     ///< The NX colour indices found on the feature.
  kDiameters,  ///< The diameters of the round holes, mm.
  kCount,      ///< The number of holes.
  kByHand,     ///< Somebody orders the process for this plate.
};

constexpr FedBy FedByOf(ProcessRule::RuleType type) {
  switch (type) {
    case ProcessRule::CustomProcess:
      return FedBy::kByHand;
    case ProcessRule::HasRoundHole:
    case ProcessRule::HasIrregularSlot:
    case ProcessRule::HasThroughSlot:
    case ProcessRule::HasThroughVerticalSlot:
    case ProcessRule::HasThroughSpecialSlot:
    case ProcessRule::HasBlindSlot:
    case ProcessRule::HasBlindNormalSlot:
    case ProcessRule::HasBlindSpecialSlot4:
    case ProcessRule::HasBlindSpecialSlot5:
      return FedBy::kPresence;
    case ProcessRule::RoundHoleDiameter:
      return FedBy::kDiameters;
    case ProcessRule::HoleCountAtLeast:
    case ProcessRule::HoleCountBelow:
      return FedBy::kCount;
    case ProcessRule::MachiningColor:
    case ProcessRule::RoundHoleColor:
    case ProcessRule::ThroughSlotColor:
    case ProcessRule::ThroughVerticalSlotColor:
    case ProcessRule::ThroughSpecialSlotColor:
    case ProcessRule::BlindSlotColor:
    case ProcessRule::BlindNormalSlotColor:
    case ProcessRule::BlindSpecialSlotColor4:
    case ProcessRule::BlindSpecialSlotColor5:
      return FedBy::kColors;
  }
  return FedBy::kByHand;  // A number that is no type: as a text that is no condition.
}

}  // namespace plateconfig
