#pragma once

// The custom settings, frame information and thread-hole and chamfer tables, one line per key in the order of
// reading.

#include "settings/custom_default.h"
#include "settings/style_kind.h"

namespace plateconfig {

template <typename Record>
using CustomKey = StyledKey<Record, CustomDefault::NoteStyle>;

using literals::operator""_gbk;

// Custom settings. Kept: margins that do not match each other (0.8 below a ball mark against 0.2 above it)
// are what the drawings were tuned with.

// clang-format off
inline constexpr CustomKey<CustomDefault::NormalInfo> kNormalKeys[] = {
    {"爆炸图间距"_gbk, Number{&CustomDefault::NormalInfo::explodedViewGap, 5000.0}, Unit::kMm, "spacing of exploded views"},
    {"爆炸图-分图间距"_gbk, Number{&CustomDefault::NormalInfo::explodedSubSheetGap, 2000.0}, Unit::kMm, "spacing between exploded view and sub-sheets"},
    {"分图间距"_gbk, Number{&CustomDefault::NormalInfo::subSheetGap, 200.0}, Unit::kMm, "spacing between sub-sheets"},
    {"大图临界值"_gbk, Number{&CustomDefault::NormalInfo::largeSheetThreshold, 300.0}, Unit::kMm, "size from which a sheet counts as large"},
    {"大图-视图间距比例"_gbk, Number{&CustomDefault::NormalInfo::largeSheetViewGapRatio, 0.6}, Unit::kRatio, "spacing of views on large sheets"},
};

inline constexpr CustomKey<CustomDefault::MainSheetInfo> kMainSheetKeys[] = {
    {"爆炸图-左边距"_gbk, Number{&CustomDefault::MainSheetInfo::leftMargin, 0.2}, Unit::kNone, "left margin of the exploded view"},
    {"爆炸图-顶边距"_gbk, Number{&CustomDefault::MainSheetInfo::topMargin, 0.2}, Unit::kNone, "top margin of the exploded view"},
    {"爆炸图-视图图组尺寸与图框尺寸比例"_gbk, Number{&CustomDefault::MainSheetInfo::viewGroupRatio, 0.6}, Unit::kRatio, "view group to frame, exploded view"},
};

inline constexpr CustomKey<CustomDefault::SubSheetInfo> kSubSheetKeys[] = {
    {"分图-左边距"_gbk, Number{&CustomDefault::SubSheetInfo::leftMargin, 0.1}, Unit::kNone, "left margin of a sub-sheet"},
    {"分图-顶边距"_gbk, Number{&CustomDefault::SubSheetInfo::topMargin, 0.1}, Unit::kNone, "top margin of a sub-sheet"},
    {"分图-视图图组尺寸与图框尺寸比例"_gbk, Number{&CustomDefault::SubSheetInfo::viewGroupRatio, 0.5}, Unit::kRatio, "view group to frame, sub-sheet"},
    {"分图-视图间距比例"_gbk, Number{&CustomDefault::SubSheetInfo::viewGapRatio, 0.05}, Unit::kRatio, "spacing of views on a sub-sheet"},
};

inline constexpr CustomKey<CustomDefault::MachineInfo> kMachineKeys[] = {
    {"加工注解-左边距-横版布局"_gbk, Number{&CustomDefault::MachineInfo::leftMarginLandscape, 0.75}, Unit::kNone, "left margin of the machining notes, landscape"},
    {"加工注解-顶边距-横版布局"_gbk, Number{&CustomDefault::MachineInfo::topMarginLandscape, 0.1}, Unit::kNone, "top margin of the machining notes, landscape"},
    {"加工注解-左边距-竖版布局"_gbk, Number{&CustomDefault::MachineInfo::leftMarginPortrait, 0.1}, Unit::kNone, "left margin of the machining notes, portrait"},
    {"加工注解-顶边距-竖版布局"_gbk, Number{&CustomDefault::MachineInfo::topMarginPortrait, 0.75}, Unit::kNone, "top margin of the machining notes, portrait"},
    {"加工注解-分行线图层"_gbk, Integer{&CustomDefault::MachineInfo::separatorLayer, 1}, Unit::kLayer, "layer of the lines between the note rows"},
    {"加工注解-注解图层"_gbk, Integer{&CustomDefault::MachineInfo::noteLayer, 1}, Unit::kLayer, "layer of the machining notes"},
    {"加工注解-分行线颜色"_gbk, Integer{&CustomDefault::MachineInfo::separatorColor, 1}, Unit::kColor, "colour of the lines between the note rows"},
    {"加工注解-注解样式"_gbk, Style{&CustomDefault::MachineInfo::noteStyle}, Unit::kNone, "style of the machining notes"},
};

inline constexpr CustomKey<CustomDefault::MaterialInfo> kMaterialKeys[] = {
    {"材料信息-图层"_gbk, Integer{&CustomDefault::MaterialInfo::layer, 1}, Unit::kLayer, "layer of the material information"},
    {"材料信息-样式"_gbk, Style{&CustomDefault::MaterialInfo::style}, Unit::kNone, "style of the material information"},
};

inline constexpr CustomKey<CustomDefault::FeatureMarkInfo> kFeatureMarkKeys[] = {
    {"特征代号-注解角度"_gbk, Number{&CustomDefault::FeatureMarkInfo::angle, 45.0}, Unit::kDegrees, "angle of the feature codes"},
    {"特征代号-注解距离比例"_gbk, Number{&CustomDefault::FeatureMarkInfo::distanceRatio, 0.05}, Unit::kRatio, "distance of the feature codes"},
    {"特征代号-注解图层"_gbk, Integer{&CustomDefault::FeatureMarkInfo::layer, 1}, Unit::kLayer, "layer of the feature codes"},
    {"特征代号-注解样式"_gbk, Style{&CustomDefault::FeatureMarkInfo::style}, Unit::kNone, "style of the feature codes"},
};

inline constexpr CustomKey<CustomDefault::SubSheetMarkInfo> kSubSheetMarkKeys[] = {
    {"分图代号-左边距"_gbk, Number{&CustomDefault::SubSheetMarkInfo::leftMargin, 0.05}, Unit::kNone, "left margin of a sub-sheet's code"},
    {"分图代号-顶边距"_gbk, Number{&CustomDefault::SubSheetMarkInfo::topMargin, 0.05}, Unit::kNone, "top margin of a sub-sheet's code"},
    {"分图代号-注解图层"_gbk, Integer{&CustomDefault::SubSheetMarkInfo::layer, 1}, Unit::kLayer, "layer of the sub-sheets' codes"},
    {"分图代号-注解样式"_gbk, Style{&CustomDefault::SubSheetMarkInfo::style}, Unit::kNone, "style of the sub-sheets' codes"},
};

inline constexpr CustomKey<CustomDefault::BallMarkInfo> kBallMarkKeys[] = {
    {"球标-底边距"_gbk, Number{&CustomDefault::BallMarkInfo::bottomMargin, 0.8}, Unit::kNone, "bottom margin of the ball marks"},
    {"球标-顶边距"_gbk, Number{&CustomDefault::BallMarkInfo::topMargin, 0.2}, Unit::kNone, "top margin of the ball marks"},
    {"球标-圆圈直径"_gbk, Number{&CustomDefault::BallMarkInfo::circleDiameter, 12.0}, Unit::kMm, "diameter of a ball mark's circle"},
    {"球标-文字大小与圆圈直径的比例"_gbk, Number{&CustomDefault::BallMarkInfo::textToCircleRatio, 0.8}, Unit::kRatio, "text of a ball mark to its circle"},
    {"球标-注解图层"_gbk, Integer{&CustomDefault::BallMarkInfo::layer, 1}, Unit::kLayer, "layer of the ball marks"},
    {"球标-引线颜色"_gbk, Integer{&CustomDefault::BallMarkInfo::leaderColor, 1}, Unit::kColor, "colour of the ball marks' leader lines"},
    {"球标-注解样式"_gbk, Style{&CustomDefault::BallMarkInfo::style}, Unit::kNone, "style of the ball marks"},
};

// Frame information.

inline constexpr CustomKey<CustomDefault::FrameInfo> kFrameKeys[] = {
    {"图框信息-左边距"_gbk, Number{&CustomDefault::FrameInfo::leftMargin}, Unit::kNone, "left margin of a frame text"},
    {"图框信息-顶边距"_gbk, Number{&CustomDefault::FrameInfo::topMargin}, Unit::kNone, "top margin of a frame text"},
    {"图框信息-注解图层"_gbk, Integer{&CustomDefault::FrameInfo::layer}, Unit::kLayer, "layer of a frame text"},
    {"图框信息-属性名称"_gbk, Text{&CustomDefault::FrameInfo::attrName}, Unit::kNone, "part attribute that the frame shows", RowRule::kRequired},
    {"图框信息-注解样式"_gbk, Style{&CustomDefault::FrameInfo::style}, Unit::kNone, "style of a frame text"},
};

// Threading holes and chamfers. The diameter table stands in the middle, where it is read.

inline constexpr CustomKey<CustomDefault::ThreadingHoleInfo> kThreadingColorKeys[] = {
    {"穿线孔-槽类型分割尺寸"_gbk, Number{&CustomDefault::ThreadingHoleInfo::slotSplitSize, 20.0}, Unit::kMm, "size that separates the slot types"},
    {"穿线孔-槽的颜色"_gbk, IntList{&CustomDefault::ThreadingHoleInfo::slotColors, TakenCells::kFilled}, Unit::kColor, "colours that mark slots"},
    {"穿线孔-孔的颜色"_gbk, IntList{&CustomDefault::ThreadingHoleInfo::holeColors, TakenCells::kFilled}, Unit::kColor, "colours that mark holes"},
};

inline constexpr CustomKey<CustomDefault::ThreadingHoleParam> kThreadingParamKeys[] = {
    {"穿线孔-孔直径范围"_gbk, Range{&CustomDefault::ThreadingHoleParam::minDiameter, &CustomDefault::ThreadingHoleParam::maxDiameter}, Unit::kMm, "hole diameters of a row, bounds excluded", RowRule::kRequired},
    {"穿线孔-画穿线孔的直径"_gbk, Number{&CustomDefault::ThreadingHoleParam::drawDiameter}, Unit::kMm, "diameter to draw for the holes of the row"},
};

inline constexpr CustomKey<CustomDefault::ThreadingHoleInfo> kThreadingHoleKeys[] = {
    {"特小异性槽-距边的长度"_gbk, Number{&CustomDefault::ThreadingHoleInfo::smallSlotEdgeDistance, 1.0}, Unit::kMm, "distance from the edge, extra-small irregular slots"},
    {"穿线孔-画穿线孔中心的直径"_gbk, Number{&CustomDefault::ThreadingHoleInfo::centerDiameter, 1.0}, Unit::kMm, "diameter of the drawn centre"},
    {"穿线孔-距边的长度"_gbk, Number{&CustomDefault::ThreadingHoleInfo::edgeDistance, 3.0}, Unit::kMm, "distance from the edge"},
    {"穿线孔-图层"_gbk, Integer{&CustomDefault::ThreadingHoleInfo::layer, 1}, Unit::kLayer, "layer of the threading holes"},
    {"穿线孔-颜色"_gbk, Integer{&CustomDefault::ThreadingHoleInfo::color, 1}, Unit::kColor, "colour of the threading holes"},
};

inline constexpr CustomKey<CustomDefault::CharmferBlendInfo> kChamferKeys[] = {
    {"R角标注-注解距离比例"_gbk, Number{&CustomDefault::CharmferBlendInfo::noteDistanceRatio, 0.5}, Unit::kRatio, "distance of a corner radius' note"},
    {"R角标注-注解图层"_gbk, Integer{&CustomDefault::CharmferBlendInfo::noteLayer, 1}, Unit::kLayer, "layer of the corner radius' notes"},
    {"R角标注-精度"_gbk, Integer{&CustomDefault::CharmferBlendInfo::precision, 2}, Unit::kDecimals, "decimals of a noted corner radius"},
    {"C角X方向最大值"_gbk, Number{&CustomDefault::CharmferBlendInfo::chamferMaxX, 10.0}, Unit::kMm, "largest chamfer in X"},
    {"C角Y方向最大值"_gbk, Number{&CustomDefault::CharmferBlendInfo::chamferMaxY, 10.0}, Unit::kMm, "largest chamfer in Y"},
    {"R角标注-注解样式"_gbk, Style{&CustomDefault::CharmferBlendInfo::noteStyle}, Unit::kNone, "style of the corner radius' notes"},
};
// clang-format on

static_assert(ColumnsAreUnique(kNormalKeys, kMainSheetKeys, kSubSheetKeys, kMachineKeys, kMaterialKeys,
                               kFeatureMarkKeys, kSubSheetMarkKeys, kBallMarkKeys));
static_assert(ColumnsAreUnique(kFrameKeys));
static_assert(ColumnsAreUnique(kThreadingColorKeys, kThreadingParamKeys, kThreadingHoleKeys, kChamferKeys));

template <typename Object, typename Walker>
void WalkCustomSettings(Object& custom, Walker&& walker) {
  walker.Walk(custom.normalInfo, kNormalKeys);
  walker.Walk(custom.mainSheetInfo, kMainSheetKeys);
  walker.Walk(custom.subSheetInfo, kSubSheetKeys);
  walker.Walk(custom.machineInfo, kMachineKeys);
  walker.Walk(custom.materialInfo, kMaterialKeys);
  walker.Walk(custom.featureMarkInfo, kFeatureMarkKeys);
  walker.Walk(custom.subSheetMarkInfo, kSubSheetMarkKeys);
  walker.Walk(custom.ballMarkInfo, kBallMarkKeys);
}

template <typename Object, typename Walker>
void WalkFrameInfo(Object& custom, Walker&& walker) {
  walker.WalkRows(custom.frameInfos, kFrameKeys);
}

template <typename Object, typename Walker>
void WalkThreadHoleAndChamfer(Object& custom, Walker&& walker) {
  walker.Walk(custom.threadingHoleInfo, kThreadingColorKeys);
  walker.WalkRows(custom.threadingHoleInfo.params, kThreadingParamKeys);
  walker.Walk(custom.threadingHoleInfo, kThreadingHoleKeys);
  walker.Walk(custom.charmferBlendInfo, kChamferKeys);
}

}  // namespace plateconfig
