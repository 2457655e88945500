#pragma once

// The process settings, one line per key. To add one: add its field to `RuleTables` and its line here, and
// write docs/tables.md anew.

#include "keys/key_table.h"
#include "rules/rule_tables.h"

namespace plateconfig {

using literals::operator""_gbk;

// clang-format off
inline constexpr Key<RuleTables> kProcessSettingsKeys[] = {
    {"连接符号"_gbk, Text{&RuleTables::connectText}, Unit::kNone, "text between two processes"},
    {"输入文字方式"_gbk, Flag{&RuleTables::singleLine, false, FlagLetters::kYesIfUpperY}, Unit::kNone, "place the processes as one line"},
    {"制造流程左边距"_gbk, Number{&RuleTables::leftMargin}, Unit::kNone, "left margin of the process text"},
    {"制造流程顶边距"_gbk, Number{&RuleTables::topMargin}, Unit::kNone, "top margin of the process text"},
    {"制造流程CAD图层"_gbk, Integer{&RuleTables::textLayer}, Unit::kLayer, "layer of the process text"},
    {"制造流程文字样式"_gbk, Text{&RuleTables::textFont}, Unit::kNone, "font of the process text"},
    {"输出行号"_gbk, Flag{&RuleTables::outputLineNumber, false, FlagLetters::kYesIfUpperY}, Unit::kNone, "write the line of the matching row in front"},
    {"追加到材料信息后面"_gbk, Flag{&RuleTables::appendAttribute, false, FlagLetters::kYesIfUpperY}, Unit::kNone, "put the process text behind the material information"},
};
// clang-format on

static_assert(ColumnsAreUnique(kProcessSettingsKeys));

template <typename Object, typename Walker>
void WalkProcessSettings(Object& tables, Walker&& walker) {
  walker.Walk(tables, kProcessSettingsKeys);
}

}  // namespace plateconfig
