#pragma once

// A library, plates for it, and lines of their traces.

#include <string>
#include <string_view>

#include "rules/process_rule_library.h"
#include "rules/rule_texts.h"

namespace plateconfig::test {

inline constexpr std::string_view kColors =
    "通用要求,通用参数,模板所在图层,长度范围,宽度范围,厚度范围,重量范围,有无型面,有无线割,材质要求,钻孔,"
    "磨平\n"
    "软料（体颜色）,12_87,,,,,,,,,,\n"
    "有型面,186_108,,,,,,,,,,\n"
    "有线割,103,,,,,,,,,,\n";

/// A library of the colours above and `rows`, which begin in line 5.
inline ProcessRuleLibrary LibraryOf(std::string_view rows) {
  return MakeLibrary(Joined(kColors, rows), "连接符号\n→\n");
}

inline constexpr std::string_view kBodyLines =
    "dbBodyLength:450\n"
    "dbBodyWidth:400\n"
    "dbBodyHeight:90\n"
    "dbBodyWeight:127.2\n"
    "nBodyLayer:12\n"
    "nBodyColor:12\n";

inline constexpr std::string_view kNoFaceLines =
    "======================FaceColor===================\n"
    "======================FaceColor===================\n";

inline constexpr std::string_view kColorLines =
    "======================型面颜色===================\n"
    "型面颜色:186\n"
    "型面颜色:108\n"
    "======================型面颜色===================\n"
    "======================线割颜色===================\n"
    "线割颜色:103\n"
    "======================线割颜色===================\n";

/// The lines of a plate without faces and of the table's colours.
inline std::string Head() {
  return Joined(kBodyLines, kNoFaceLines, kColorLines);
}

/// Rows of which the fourth fits, and what their tests write for a plate without faces.
inline constexpr std::string_view kSeveralRows =
    ",,3,500_600,,,,,,,,\n"
    ",,,,,,,,,,,\n"
    ",,3,,,,,有型面,,软料（体颜色）,,\n"
    ",,3,,,,,,,软料（体颜色）,钻5,\n"
    ",,3,,,,,,,软料（体颜色）,,\n";

inline constexpr std::string_view kSeveralLines =
    "当前行号:5\n"
    "长度不符合此规则！\n"
    "最小长度：500\n"
    "最大长度：600\n"
    "当前行号:7\n"
    "bHaveProfileColor :1\n"
    "bInclude:0\n"
    "!bInclude && bHaveProfileColor！\n"
    "当前行号:8\n"
    "bHaveProfileColor :0\n"
    "bInclude:0\n"
    "bHaveWireCuttingColor :0\n"
    "bInclude:0\n"
    "vecRuleInfos[i].dbMinLength；0\n"
    "vecRuleInfos[i].dbMaxLength；999999\n"
    "vecRuleInfos[i].dbMinWidth；0\n"
    "vecRuleInfos[i].dbMaxWidth；999999\n"
    "vecRuleInfos[i].dbMinHeight；0\n"
    "vecRuleInfos[i].dbMaxHeight；999999\n"
    "钻5\n";

}  // namespace plateconfig::test
