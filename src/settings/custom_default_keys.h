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
    {"爆炸图间距"_gbk, Number{&CustomDefault::NormalInfo::explodedViewGap, 5000.0}, Unit::kMm, {"spacing of exploded views", "相邻爆炸图隔开多远"}},
    {"爆炸图-分图间距"_gbk, Number{&CustomDefault::NormalInfo::explodedSubSheetGap, 2000.0}, Unit::kMm, {"spacing between exploded view and sub-sheets", "爆炸图与分图隔开多远"}},
    {"分图间距"_gbk, Number{&CustomDefault::NormalInfo::subSheetGap, 200.0}, Unit::kMm, {"spacing between sub-sheets", "相邻分图隔开多远"}},
    {"大图临界值"_gbk, Number{&CustomDefault::NormalInfo::largeSheetThreshold, 300.0}, Unit::kMm, {"size from which a sheet counts as large", "达到此尺寸的图算大图"}},
    {"大图-视图间距比例"_gbk, Number{&CustomDefault::NormalInfo::largeSheetViewGapRatio, 0.6}, Unit::kRatio, {"spacing of views on large sheets", "大图上，视图之间的空隙，按比例"}},
};

inline constexpr CustomKey<CustomDefault::MainSheetInfo> kMainSheetKeys[] = {
    {"爆炸图-左边距"_gbk, Number{&CustomDefault::MainSheetInfo::leftMargin, 0.2}, Unit::kNone, {"left margin of the exploded view", "爆炸图左侧留出的空白"}},
    {"爆炸图-顶边距"_gbk, Number{&CustomDefault::MainSheetInfo::topMargin, 0.2}, Unit::kNone, {"top margin of the exploded view", "爆炸图上方留出的空白"}},
    {"爆炸图-视图图组尺寸与图框尺寸比例"_gbk, Number{&CustomDefault::MainSheetInfo::viewGroupRatio, 0.6}, Unit::kRatio, {"view group to frame, exploded view", "爆炸图的全部视图占图框的几成；0.6 即六成"}},
};

inline constexpr CustomKey<CustomDefault::SubSheetInfo> kSubSheetKeys[] = {
    {"分图-左边距"_gbk, Number{&CustomDefault::SubSheetInfo::leftMargin, 0.1}, Unit::kNone, {"left margin of a sub-sheet", "分图左侧留出的空白"}},
    {"分图-顶边距"_gbk, Number{&CustomDefault::SubSheetInfo::topMargin, 0.1}, Unit::kNone, {"top margin of a sub-sheet", "分图上方留出的空白"}},
    {"分图-视图图组尺寸与图框尺寸比例"_gbk, Number{&CustomDefault::SubSheetInfo::viewGroupRatio, 0.5}, Unit::kRatio, {"view group to frame, sub-sheet", "分图的全部视图占图框的几成；0.5 即五成"}},
    {"分图-视图间距比例"_gbk, Number{&CustomDefault::SubSheetInfo::viewGapRatio, 0.05}, Unit::kRatio, {"spacing of views on a sub-sheet", "分图上，视图之间的空隙，按比例"}},
};

inline constexpr CustomKey<CustomDefault::MachineInfo> kMachineKeys[] = {
    {"加工注解-左边距-横版布局"_gbk, Number{&CustomDefault::MachineInfo::leftMarginLandscape, 0.75}, Unit::kNone, {"left margin of the machining notes, landscape", "横版图上，加工注解离左边多远"}},
    {"加工注解-顶边距-横版布局"_gbk, Number{&CustomDefault::MachineInfo::topMarginLandscape, 0.1}, Unit::kNone, {"top margin of the machining notes, landscape", "横版图上，加工注解离顶边多远"}},
    {"加工注解-左边距-竖版布局"_gbk, Number{&CustomDefault::MachineInfo::leftMarginPortrait, 0.1}, Unit::kNone, {"left margin of the machining notes, portrait", "竖版图上，加工注解离左边多远"}},
    {"加工注解-顶边距-竖版布局"_gbk, Number{&CustomDefault::MachineInfo::topMarginPortrait, 0.75}, Unit::kNone, {"top margin of the machining notes, portrait", "竖版图上，加工注解离顶边多远"}},
    {"加工注解-分行线图层"_gbk, Integer{&CustomDefault::MachineInfo::separatorLayer, 1}, Unit::kLayer, {"layer of the lines between the note rows", "加工注解各行之间的线画在此图层"}},
    {"加工注解-注解图层"_gbk, Integer{&CustomDefault::MachineInfo::noteLayer, 1}, Unit::kLayer, {"layer of the machining notes", "加工注解的文字写在此图层"}},
    {"加工注解-分行线颜色"_gbk, Integer{&CustomDefault::MachineInfo::separatorColor, 1}, Unit::kColor, {"colour of the lines between the note rows", "加工注解各行之间的线用此颜色"}},
    {"加工注解-注解样式"_gbk, Style{&CustomDefault::MachineInfo::noteStyle}, Unit::kNone, {"style of the machining notes", "写加工注解用的字体和大小"}},
};

inline constexpr CustomKey<CustomDefault::MaterialInfo> kMaterialKeys[] = {
    {"材料信息-图层"_gbk, Integer{&CustomDefault::MaterialInfo::layer, 1}, Unit::kLayer, {"layer of the material information", "材料信息的文字写在此图层"}},
    {"材料信息-样式"_gbk, Style{&CustomDefault::MaterialInfo::style}, Unit::kNone, {"style of the material information", "写材料信息用的字体和大小"}},
};

inline constexpr CustomKey<CustomDefault::FeatureMarkInfo> kFeatureMarkKeys[] = {
    {"特征代号-注解角度"_gbk, Number{&CustomDefault::FeatureMarkInfo::angle, 45.0}, Unit::kDegrees, {"angle of the feature codes", "特征代号引出的角度"}},
    {"特征代号-注解距离比例"_gbk, Number{&CustomDefault::FeatureMarkInfo::distanceRatio, 0.05}, Unit::kRatio, {"distance of the feature codes", "特征代号离所标的特征多远，按比例"}},
    {"特征代号-注解图层"_gbk, Integer{&CustomDefault::FeatureMarkInfo::layer, 1}, Unit::kLayer, {"layer of the feature codes", "特征代号写在此图层"}},
    {"特征代号-注解样式"_gbk, Style{&CustomDefault::FeatureMarkInfo::style}, Unit::kNone, {"style of the feature codes", "写特征代号用的字体和大小"}},
};

inline constexpr CustomKey<CustomDefault::SubSheetMarkInfo> kSubSheetMarkKeys[] = {
    {"分图代号-左边距"_gbk, Number{&CustomDefault::SubSheetMarkInfo::leftMargin, 0.05}, Unit::kNone, {"left margin of a sub-sheet's code", "分图的代号离左边多远"}},
    {"分图代号-顶边距"_gbk, Number{&CustomDefault::SubSheetMarkInfo::topMargin, 0.05}, Unit::kNone, {"top margin of a sub-sheet's code", "分图的代号离顶边多远"}},
    {"分图代号-注解图层"_gbk, Integer{&CustomDefault::SubSheetMarkInfo::layer, 1}, Unit::kLayer, {"layer of the sub-sheets' codes", "分图的代号写在此图层"}},
    {"分图代号-注解样式"_gbk, Style{&CustomDefault::SubSheetMarkInfo::style}, Unit::kNone, {"style of the sub-sheets' codes", "写分图的代号用的字体和大小"}},
};

inline constexpr CustomKey<CustomDefault::BallMarkInfo> kBallMarkKeys[] = {
    {"球标-底边距"_gbk, Number{&CustomDefault::BallMarkInfo::bottomMargin, 0.8}, Unit::kNone, {"bottom margin of the ball marks", "球标与底边之间留出的距离"}},
    {"球标-顶边距"_gbk, Number{&CustomDefault::BallMarkInfo::topMargin, 0.2}, Unit::kNone, {"top margin of the ball marks", "球标与顶边之间留出的距离"}},
    {"球标-圆圈直径"_gbk, Number{&CustomDefault::BallMarkInfo::circleDiameter, 12.0}, Unit::kMm, {"diameter of a ball mark's circle", "球标的圆圈画成此直径"}},
    {"球标-文字大小与圆圈直径的比例"_gbk, Number{&CustomDefault::BallMarkInfo::textToCircleRatio, 0.8}, Unit::kRatio, {"text of a ball mark to its circle", "球标中的文字有多大，按圆圈直径的比例"}},
    {"球标-注解图层"_gbk, Integer{&CustomDefault::BallMarkInfo::layer, 1}, Unit::kLayer, {"layer of the ball marks", "球标画在此图层"}},
    {"球标-引线颜色"_gbk, Integer{&CustomDefault::BallMarkInfo::leaderColor, 1}, Unit::kColor, {"colour of the ball marks' leader lines", "球标的引线用此颜色"}},
    {"球标-注解样式"_gbk, Style{&CustomDefault::BallMarkInfo::style}, Unit::kNone, {"style of the ball marks", "写球标中的文字用的字体和大小"}},
};

// Frame information.

inline constexpr CustomKey<CustomDefault::FrameInfo> kFrameKeys[] = {
    {"图框信息-左边距"_gbk, Number{&CustomDefault::FrameInfo::leftMargin}, Unit::kNone, {"left margin of a frame text", "这段文字离图框左边多远"}},
    {"图框信息-顶边距"_gbk, Number{&CustomDefault::FrameInfo::topMargin}, Unit::kNone, {"top margin of a frame text", "这段文字离图框顶边多远"}},
    {"图框信息-注解图层"_gbk, Integer{&CustomDefault::FrameInfo::layer}, Unit::kLayer, {"layer of a frame text", "这段文字写在此图层"}},
    {"图框信息-属性名称"_gbk, Text{&CustomDefault::FrameInfo::attrName}, Unit::kNone, {"part attribute that the frame shows", "图框中写出哪个零件属性的值；空着的行不算"}, RowRule::kRequired},
    {"图框信息-注解样式"_gbk, Style{&CustomDefault::FrameInfo::style}, Unit::kNone, {"style of a frame text", "写这段文字用的字体和大小"}},
};

// Threading holes and chamfers. The diameter table stands in the middle, where it is read.

inline constexpr CustomKey<CustomDefault::ThreadingHoleInfo> kThreadingColorKeys[] = {
    {"穿线孔-槽类型分割尺寸"_gbk, Number{&CustomDefault::ThreadingHoleInfo::slotSplitSize, 20.0}, Unit::kMm, {"size that separates the slot types", "槽以此尺寸为界，分类画穿线孔"}},
    {"穿线孔-槽的颜色"_gbk, IntList{&CustomDefault::ThreadingHoleInfo::slotColors, TakenCells::kFilled}, Unit::kColor, {"colours that mark slots", "面是这些颜色的，当作槽"}},
    {"穿线孔-孔的颜色"_gbk, IntList{&CustomDefault::ThreadingHoleInfo::holeColors, TakenCells::kFilled}, Unit::kColor, {"colours that mark holes", "面是这些颜色的，当作孔"}},
};

inline constexpr CustomKey<CustomDefault::ThreadingHoleParam> kThreadingParamKeys[] = {
    {"穿线孔-孔直径范围"_gbk, Range{&CustomDefault::ThreadingHoleParam::minDiameter, &CustomDefault::ThreadingHoleParam::maxDiameter}, Unit::kMm, {"hole diameters of a row, bounds excluded", "这一行适用于多大的孔；两端的数值不在内"}, RowRule::kRequired},
    {"穿线孔-画穿线孔的直径"_gbk, Number{&CustomDefault::ThreadingHoleParam::drawDiameter}, Unit::kMm, {"diameter to draw for the holes of the row", "这一行的孔，穿线孔画成此直径"}},
};

inline constexpr CustomKey<CustomDefault::ThreadingHoleInfo> kThreadingHoleKeys[] = {
    {"特小异性槽-距边的长度"_gbk, Number{&CustomDefault::ThreadingHoleInfo::smallSlotEdgeDistance, 1.0}, Unit::kMm, {"distance from the edge, extra-small irregular slots", "特小的异型槽，穿线孔离边多远"}},
    {"穿线孔-画穿线孔中心的直径"_gbk, Number{&CustomDefault::ThreadingHoleInfo::centerDiameter, 1.0}, Unit::kMm, {"diameter of the drawn centre", "穿线孔的中心画成此直径"}},
    {"穿线孔-距边的长度"_gbk, Number{&CustomDefault::ThreadingHoleInfo::edgeDistance, 3.0}, Unit::kMm, {"distance from the edge", "穿线孔离边多远"}},
    {"穿线孔-图层"_gbk, Integer{&CustomDefault::ThreadingHoleInfo::layer, 1}, Unit::kLayer, {"layer of the threading holes", "穿线孔画在此图层"}},
    {"穿线孔-颜色"_gbk, Integer{&CustomDefault::ThreadingHoleInfo::color, 1}, Unit::kColor, {"colour of the threading holes", "穿线孔用此颜色"}},
};

inline constexpr CustomKey<CustomDefault::CharmferBlendInfo> kChamferKeys[] = {
    {"R角标注-注解距离比例"_gbk, Number{&CustomDefault::CharmferBlendInfo::noteDistanceRatio, 0.5}, Unit::kRatio, {"distance of a corner radius' note", "R 角的标注离圆角多远，按比例"}},
    {"R角标注-注解图层"_gbk, Integer{&CustomDefault::CharmferBlendInfo::noteLayer, 1}, Unit::kLayer, {"layer of the corner radius' notes", "R 角的标注写在此图层"}},
    {"R角标注-精度"_gbk, Integer{&CustomDefault::CharmferBlendInfo::precision, 2}, Unit::kDecimals, {"decimals of a noted corner radius", "标注的 R 角半径保留几位小数"}},
    {"C角X方向最大值"_gbk, Number{&CustomDefault::CharmferBlendInfo::chamferMaxX, 10.0}, Unit::kMm, {"largest chamfer in X", "C 角在 X 方向最大到多少"}},
    {"C角Y方向最大值"_gbk, Number{&CustomDefault::CharmferBlendInfo::chamferMaxY, 10.0}, Unit::kMm, {"largest chamfer in Y", "C 角在 Y 方向最大到多少"}},
    {"R角标注-注解样式"_gbk, Style{&CustomDefault::CharmferBlendInfo::noteStyle}, Unit::kNone, {"style of the corner radius' notes", "写 R 角的标注用的字体和大小"}},
};
// clang-format on

static_assert(ColumnsAreUnique(kNormalKeys, kMainSheetKeys, kSubSheetKeys, kMachineKeys, kMaterialKeys,
                               kFeatureMarkKeys, kSubSheetMarkKeys, kBallMarkKeys));
static_assert(ColumnsAreUnique(kFrameKeys));
static_assert(ColumnsAreUnique(kThreadingColorKeys, kThreadingParamKeys, kThreadingHoleKeys, kChamferKeys));

template <typename Object, typename Walker>
void WalkCustomSettings(Object& custom, Walker&& walker) {
  walker.template Walk<kNormalKeys>(custom.normalInfo);
  walker.template Walk<kMainSheetKeys>(custom.mainSheetInfo);
  walker.template Walk<kSubSheetKeys>(custom.subSheetInfo);
  walker.template Walk<kMachineKeys>(custom.machineInfo);
  walker.template Walk<kMaterialKeys>(custom.materialInfo);
  walker.template Walk<kFeatureMarkKeys>(custom.featureMarkInfo);
  walker.template Walk<kSubSheetMarkKeys>(custom.subSheetMarkInfo);
  walker.template Walk<kBallMarkKeys>(custom.ballMarkInfo);
}

template <typename Object, typename Walker>
void WalkFrameInfo(Object& custom, Walker&& walker) {
  walker.template WalkRows<kFrameKeys>(custom.frameInfos);
}

template <typename Object, typename Walker>
void WalkThreadHoleAndChamfer(Object& custom, Walker&& walker) {
  walker.template Walk<kThreadingColorKeys>(custom.threadingHoleInfo);
  walker.template WalkRows<kThreadingParamKeys>(custom.threadingHoleInfo.params);
  walker.template Walk<kThreadingHoleKeys>(custom.threadingHoleInfo);
  walker.template Walk<kChamferKeys>(custom.charmferBlendInfo);
}

}  // namespace plateconfig
