#pragma once

// The names that a rule table and its settings table are read by.

#include <string_view>

#include "text/gbk.h"

namespace plateconfig::columns {

using namespace literals;

// Settings table, values in the first data row.
inline constexpr std::string_view kConnectText = "连接符号"_gbk;
inline constexpr std::string_view kSingleLine = "输入文字方式"_gbk;
inline constexpr std::string_view kLeftMargin = "制造流程左边距"_gbk;
inline constexpr std::string_view kTopMargin = "制造流程顶边距"_gbk;
inline constexpr std::string_view kTextLayer = "制造流程CAD图层"_gbk;
inline constexpr std::string_view kTextFont = "制造流程文字样式"_gbk;
inline constexpr std::string_view kOutputLineNumber = "输出行号"_gbk;
inline constexpr std::string_view kAppendAttribute = "追加到材料信息后面"_gbk;

// Rule table: general parameters, by name.
inline constexpr std::string_view kParameterName = "通用要求"_gbk;
inline constexpr std::string_view kParameterValue = "通用参数"_gbk;
inline constexpr std::string_view kSoftMaterial = "软料（体颜色）"_gbk;
inline constexpr std::string_view kHardMaterial = "硬料（体颜色）"_gbk;
inline constexpr std::string_view kWireCuttingColors = "有线割"_gbk;
inline constexpr std::string_view kProfileColors = "有型面"_gbk;

// Rule table: process list.
inline constexpr std::string_view kProcessName = "排工艺顺序"_gbk;
inline constexpr std::string_view kConditionType = "排顺序工艺类型"_gbk;
inline constexpr std::string_view kConditionValue = "顺序工艺参数值"_gbk;

// Rule table: rule rows.
inline constexpr std::string_view kLayer = "模板所在图层"_gbk;
inline constexpr std::string_view kLengthRange = "长度范围"_gbk;
inline constexpr std::string_view kWidthRange = "宽度范围"_gbk;
inline constexpr std::string_view kHeightRange = "厚度范围"_gbk;
inline constexpr std::string_view kWeightRange = "重量范围"_gbk;
inline constexpr std::string_view kHasProfile = "有无型面"_gbk;
inline constexpr std::string_view kHasWireCutting = "有无线割"_gbk;
inline constexpr std::string_view kMaterial = "材质要求"_gbk;

}  // namespace plateconfig::columns
