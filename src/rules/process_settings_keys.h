#pragma once

// The process settings, one line per key. To add one: add its field to `RuleTables` and its line here, and
// write docs/tables.md anew.

#include "keys/key_table.h"
#include "rules/rule_tables.h"

namespace plateconfig {

using literals::operator""_gbk;

// clang-format off
inline constexpr Key<RuleTables> kProcessSettingsKeys[] = {
    {"连接符号"_gbk, Text{&RuleTables::connectText}, Unit::kNone, {"text between two processes", "写在两道工艺之间的符号"}},
    {"输入文字方式"_gbk, Flag{&RuleTables::singleLine, false, FlagLetters::kYesIfUpperY}, Unit::kNone, {"place the processes as one line", "为 Y 时，各道工艺写成一行"}},
    {"制造流程左边距"_gbk, Number{&RuleTables::leftMargin}, Unit::kNone, {"left margin of the process text", "工艺文本离左边多远"}},
    {"制造流程顶边距"_gbk, Number{&RuleTables::topMargin}, Unit::kNone, {"top margin of the process text", "工艺文本离顶边多远"}},
    {"制造流程CAD图层"_gbk, Integer{&RuleTables::textLayer}, Unit::kLayer, {"layer of the process text", "工艺文本写在此图层"}},
    {"制造流程文字样式"_gbk, Text{&RuleTables::textFont}, Unit::kNone, {"font of the process text", "写工艺文本用的字体"}},
    {"输出行号"_gbk, Flag{&RuleTables::outputLineNumber, false, FlagLetters::kYesIfUpperY}, Unit::kNone, {"write the line of the matching row in front", "为 Y 时，文本前面写出所符合的规则行的行号"}},
    {"追加到材料信息后面"_gbk, Flag{&RuleTables::appendAttribute, false, FlagLetters::kYesIfUpperY}, Unit::kNone, {"put the process text behind the material information", "为 Y 时，工艺文本接在材料信息后面"}},
};
// clang-format on

static_assert(ColumnsAreUnique(kProcessSettingsKeys));

template <typename Object, typename Walker>
void WalkProcessSettings(Object& tables, Walker&& walker) {
  walker.template Walk<kProcessSettingsKeys>(tables);
}

}  // namespace plateconfig
