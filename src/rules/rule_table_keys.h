#pragma once

// The rule table, one line per column. It holds three lists side by side, and behind them a column of texts
// for each process.

#include <string>
#include <string_view>
#include <vector>

#include "rules/rule_kinds.h"
#include "rules/rule_tables.h"

namespace plateconfig {

using literals::operator""_gbk;

/// A row of the general parameters.
struct ParameterRow {
  std::string name;
  std::vector<int> colors;
};

/// A row of the process list.
struct ProcessRow {
  std::string name;
  const ConditionText* condition = nullptr;
  std::string parameter;
};

/// A general parameter: the row of this name, the first of several, holds these colours.
struct GeneralParameter {
  std::string_view name;  // GBK
  std::vector<int> RuleTables::*colors;
};

inline constexpr GeneralParameter kSoftMaterial = {"软料（体颜色）"_gbk, &RuleTables::softMaterialColors};
inline constexpr GeneralParameter kHardMaterial = {"硬料（体颜色）"_gbk, &RuleTables::hardMaterialColors};
inline constexpr GeneralParameter kWireCutting = {"有线割"_gbk, &RuleTables::wireCuttingColors};
inline constexpr GeneralParameter kProfile = {"有型面"_gbk, &RuleTables::profileColors};

inline constexpr GeneralParameter kGeneralParameters[] = {kSoftMaterial, kHardMaterial, kWireCutting,
                                                          kProfile};

template <typename Record>
using ListKey = Key<Record, Selected<Record>, Parameter<Record>>;

template <typename Record>
using ConditionKey = Key<Record, Sizes<Record>, Exactly<Record, bool>, Exactly<Record, Material>>;

// clang-format off
inline constexpr Key<ParameterRow> kParameterKeys[] = {
    {"通用要求"_gbk, Text{&ParameterRow::name}, Unit::kNone, {"name of a general parameter", "通用要求的名称，要与规定的完全一样"}, RowRule::kRequired, ColumnUse::kParameterNames},
    {"通用参数"_gbk, JoinedInts{&ParameterRow::colors}, Unit::kColor, {"colours of the parameter", "哪些颜色号代表这项要求"}, RowRule::kNone, ColumnUse::kParameterValues},
};

inline constexpr ListKey<ProcessRow> kProcessListKeys[] = {
    {"排工艺顺序"_gbk, Text{&ProcessRow::name}, Unit::kNone, {"name of a process, in the order of the text", "一道工艺的名称；文本按这里的顺序写，内容取自同名的列"}, RowRule::kDecides, ColumnUse::kColumnNames},
    {"排顺序工艺类型"_gbk, Selected{&ProcessRow::condition}, Unit::kNone, {"condition under which the process applies", "板有什么特征，才写这道工艺"}},
    {"顺序工艺参数值"_gbk, Parameter{&ProcessRow::parameter}, Unit::kNone, {"parameter of the condition", "与特征比较的数值：颜色号、直径或孔数"}},
};

inline constexpr ConditionKey<RuleRow> kRuleRowKeys[] = {
    {"模板所在图层"_gbk, Integer{&RuleRow::layer}, Unit::kLayer, {"layer of the plates of a rule row; a row without it is no rule row", "模板所在的图层，不参与比较；空着就不是规则行"}, RowRule::kDecides},
    {"长度范围"_gbk, Sizes{&RuleRow::length}, Unit::kMm, {"lengths; empty = any", "板的长度在此范围内才符合；空着不限"}},
    {"宽度范围"_gbk, Sizes{&RuleRow::width}, Unit::kMm, {"widths; empty = any", "板的宽度在此范围内才符合；空着不限"}},
    {"厚度范围"_gbk, Sizes{&RuleRow::height}, Unit::kMm, {"thicknesses; empty = any", "板的厚度在此范围内才符合；空着不限"}},
    {"重量范围"_gbk, Sizes{&RuleRow::weight}, Unit::kNone, {"weights; empty = any", "板的重量在此范围内才符合；空着不限"}},
    {"有无型面"_gbk, Exactly<RuleRow, bool>{&RuleRow::hasProfile, CellForm::kExactParameter, {kProfile.name, true}, {"无型面"_gbk, false}}, Unit::kNone, {"with or without a profile", "写“有型面”，板上要有型面的颜色；写别的或空着，板上不能有"}},
    {"有无线割"_gbk, Exactly<RuleRow, bool>{&RuleRow::hasWireCutting, CellForm::kExactParameter, {kWireCutting.name, true}, {"无线割"_gbk, false}}, Unit::kNone, {"with or without wire cutting", "写“有线割”，板上要有线割的颜色；写别的或空着，板上不能有"}},
    {"材质要求"_gbk, Exactly<RuleRow, Material>{&RuleRow::material, CellForm::kExactSoftParameter, {kSoftMaterial.name, Material::kSoft}, {kHardMaterial.name, Material::kHard}}, Unit::kNone, {"soft or hard material", "写“软料（体颜色）”，板要是软料；写别的或空着，板要是硬料"}},
};
// clang-format on

static_assert(ColumnsAreUnique(kParameterKeys, kProcessListKeys, kRuleRowKeys));

// The columns that others than the loader ask for, as their keys have them.
namespace columns {

inline constexpr std::string_view kParameterName = kParameterKeys[0].column;
inline constexpr std::string_view kParameterValue = kParameterKeys[1].column;
inline constexpr std::string_view kProcessName = kProcessListKeys[0].column;
inline constexpr std::string_view kConditionType = kProcessListKeys[1].column;
inline constexpr std::string_view kConditionValue = kProcessListKeys[2].column;
inline constexpr std::string_view kLayer = kRuleRowKeys[0].column;
inline constexpr std::string_view kLengthRange = kRuleRowKeys[1].column;
inline constexpr std::string_view kWidthRange = kRuleRowKeys[2].column;
inline constexpr std::string_view kHeightRange = kRuleRowKeys[3].column;
inline constexpr std::string_view kWeightRange = kRuleRowKeys[4].column;
inline constexpr std::string_view kHasProfile = kRuleRowKeys[5].column;
inline constexpr std::string_view kHasWireCutting = kRuleRowKeys[6].column;
inline constexpr std::string_view kMaterial = kRuleRowKeys[7].column;

}  // namespace columns

}  // namespace plateconfig
