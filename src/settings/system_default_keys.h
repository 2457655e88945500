#pragma once

// The tables of the system settings, one line per key in the order of reading.

#include "keys/key_table.h"
#include "settings/system_default.h"

namespace plateconfig {

using SystemKey = Key<SystemDefault>;

using literals::operator""_gbk;

// clang-format off

// Layers. Kept: only the template layers are held to the layers that the host has.
inline constexpr SystemKey kLayerListKeys[] = {
    {"模板图层"_gbk, IntList{&SystemDefault::templateLayers, TakenCells::kLayerNumbers}, Unit::kLayer, "template layers"},
    {"出二个视图的图层"_gbk, IntList{&SystemDefault::twoViewLayers, TakenCells::kNonZero}, Unit::kLayer, "layers whose parts get two views"},
    {"不放球标的图层"_gbk, IntList{&SystemDefault::noBallMarkLayers, TakenCells::kNonZero}, Unit::kLayer, "layers that get no ball mark"},
    {"标准件的图层"_gbk, IntList{&SystemDefault::standardPartLayers, TakenCells::kNonZero}, Unit::kLayer, "layers of standard parts"},
    {"不出分图的图层"_gbk, IntList{&SystemDefault::noSubSheetLayers, TakenCells::kNonZero}, Unit::kLayer, "layers that get no sheet of their own"},
};

// System settings, up to the weight rules.
inline constexpr SystemKey kSystemKeys[] = {
    {"特征代号数量_控制特征文字"_gbk, TextList{&SystemDefault::featureCountsForFeatureText}, Unit::kCount, "counts of feature codes that select the scale of feature texts"},
    {"特征文字比例"_gbk, TextList{&SystemDefault::featureTextRatios}, Unit::kRatio, "scales of feature texts"},
    {"特征代号数量_控制加工注解"_gbk, TextList{&SystemDefault::featureCountsForProcessNote}, Unit::kCount, "counts of feature codes that select the scale of machining notes"},
    {"加工注解文字比例"_gbk, TextList{&SystemDefault::processNoteTextRatios}, Unit::kRatio, "scales of machining notes"},

    {"图框的图层"_gbk, Integer{&SystemDefault::frameLayer, 1}, Unit::kLayer, "layer of the drawing frame"},
    {"图框的颜色"_gbk, Integer{&SystemDefault::frameColor, 1}, Unit::kColor, "colour of the drawing frame"},
    {"爆炸图基准圆的图层"_gbk, Integer{&SystemDefault::explodedDatumCircleLayer, 1}, Unit::kLayer, "datum circle layer, exploded view"},
    {"材料图基准圆的图层"_gbk, Integer{&SystemDefault::materialDatumCircleLayer, 1}, Unit::kLayer, "datum circle layer, material drawing"},
    {"标准件基准圆的图层"_gbk, Integer{&SystemDefault::standardPartDatumCircleLayer, 1}, Unit::kLayer, "datum circle layer, standard parts"},
    {"基准圆的颜色"_gbk, Integer{&SystemDefault::datumCircleColor, 1}, Unit::kColor, "colour of the datum circles"},
    {"基准圆的标准直径"_gbk, Number{&SystemDefault::datumCircleDiameter, 0.2}, Unit::kMm, "standard diameter of the datum circles"},
    {"视图外框与视图的距离"_gbk, Number{&SystemDefault::viewFrameGap, 0.05}, Unit::kNone, "gap between a view and its outer frame"},
    {"视图外框的颜色"_gbk, Integer{&SystemDefault::viewFrameColor, 1}, Unit::kColor, "colour of the views' outer frames"},
    {"材料图俯视图外框的图层"_gbk, Integer{&SystemDefault::materialTopFrameLayer, 1}, Unit::kLayer, "view frame layer, material drawing, top view"},
    {"材料图主视图外框的图层"_gbk, Integer{&SystemDefault::materialFrontFrameLayer, 1}, Unit::kLayer, "view frame layer, material drawing, front view"},
    {"材料图左视图外框的图层"_gbk, Integer{&SystemDefault::materialLeftFrameLayer, 1}, Unit::kLayer, "view frame layer, material drawing, left view"},
    {"标准件俯视图外框的图层"_gbk, Integer{&SystemDefault::standardPartTopFrameLayer, 1}, Unit::kLayer, "view frame layer, standard parts, top view"},
    {"标准件主视图外框的图层"_gbk, Integer{&SystemDefault::standardPartFrontFrameLayer, 1}, Unit::kLayer, "view frame layer, standard parts, front view"},
    {"标准件左视图外框的图层"_gbk, Integer{&SystemDefault::standardPartLeftFrameLayer, 1}, Unit::kLayer, "view frame layer, standard parts, left view"},
    {"图层注释偏置比例"_gbk, Number{&SystemDefault::layerNoteOffsetRatio, 0.5}, Unit::kRatio, "offset of the layer notes"},
    {"图层注释标准字体大小"_gbk, Number{&SystemDefault::layerNoteFontSize, 8.0}, Unit::kMm, "standard text size of the layer notes"},
    {"CAD打开方式"_gbk, Integer{&SystemDefault::cadOpenMode, 0}, Unit::kNone, "how the CAD program is opened"},
    {"转图完成提示文字"_gbk, TextList{&SystemDefault::finishMessages}, Unit::kNone, "texts shown when the conversion of a drawing is finished"},
    {"CAD路径"_gbk, Text{&SystemDefault::cadPath}, Unit::kNone, "path of the CAD program"},
    {"出图的路径"_gbk, Text{&SystemDefault::dwgOutputFolder}, Unit::kNone, "folder for exported drawings, until the folder's own table is read"},
    {"下划线与注释长度的比例"_gbk, Number{&SystemDefault::underlineRatio, 0.8}, Unit::kRatio, "length of an underline to that of its note"},
    {"竖直布局时每列加工注释的最大行数"_gbk, Integer{&SystemDefault::maxNoteRowsPerColumn, 10}, Unit::kRows, "most machining-note rows per column in vertical layout"},
    {"孔数量"_gbk, Integer{&SystemDefault::holeCountThreshold, 50}, Unit::kCount, "holes from which a plate has many"},
    {"当孔的数量大于孔数量的值时代号注释字体大小与代号注释的比例"_gbk, Number{&SystemDefault::manyHolesCodeFontRatio, 0.3}, Unit::kRatio, "text size of the codes on a plate with many holes"},
    {"大槽小槽的分割尺寸"_gbk, Number{&SystemDefault::slotSplitSize, 20.0}, Unit::kMm, "size that separates large from small slots"},
    {"穿线孔到边的距离"_gbk, Number{&SystemDefault::threadHoleEdgeDistance, 5.0}, Unit::kMm, "distance of a threading hole from the edge"},
    {"创建球标代号"_gbk, Flag{&SystemDefault::createBalloonCode, true, FlagLetters::kNoIfN}, Unit::kNone, "create the codes of ball marks"},
    {"边框偏置距离"_gbk, Number{&SystemDefault::borderOffset, 0.0}, Unit::kMm, "offset of the border"},
    {"边框线颜色"_gbk, Integer{&SystemDefault::borderLineColor, 1}, Unit::kColor, "colour of the border"},
    {"边框线图层"_gbk, Integer{&SystemDefault::borderLineLayer, 1}, Unit::kLayer, "layer of the border"},
};

inline constexpr Key<SystemDefault::WeightRule> kWeightRuleKeys[] = {
    {"实体最小重量"_gbk, Number{&SystemDefault::WeightRule::minWeight}, Unit::kNone, "least weight of a body that counts"},
    {"实体最大重量"_gbk, Number{&SystemDefault::WeightRule::maxWeight}, Unit::kNone, "largest weight of a body that counts"},
    {"实体面最大数量"_gbk, Integer{&SystemDefault::WeightRule::maxFaceCount}, Unit::kCount, "most faces of a body that counts", RowRule::kRequired},
};

// System settings, behind the weight rules. Kept: for two keys alone an empty first cell is as good as none.
inline constexpr SystemKey kExportKeys[] = {
    {"是否设置制图曲线颜色"_gbk, Flag{&SystemDefault::setDrawingCurveColor, false, FlagLetters::kYesIfUpperY}, Unit::kNone, "set the colour of drawing curves"},
    {"视图精度"_gbk, Number{&SystemDefault::viewPrecision, 0.005}, Unit::kNone, "precision of the views"},
    {"CAD注册表路径"_gbk, TextList{&SystemDefault::cadRegistryPaths}, Unit::kNone, "registry keys of the CAD program"},
    {"CAD注册表字段名称"_gbk, TextList{&SystemDefault::cadRegistryValueNames}, Unit::kNone, "registry values of the CAD program"},
    {"UG导出CAD弹出没有DOC时间"_gbk, Integer{&SystemDefault::noDocWaitTime, 5, EmptyCell::kIsAbsent}, Unit::kNone, "wait before the no-document prompt of the export"},
    {"CAD转换版本"_gbk, Integer{&SystemDefault::cadVersion, 9, EmptyCell::kIsAbsent}, Unit::kNone, "version of the CAD file format written"},
};

// Texts.
inline constexpr SystemKey kTextKeys[] = {
    {"外形注解"_gbk, TextList{&SystemDefault::outlineNotes}, Unit::kNone, "outline notes; here empty cells are left out"},
    {"代号文字"_gbk, Text{&SystemDefault::codeText}, Unit::kNone, "text of a code"},
    {"注解与线之间的间距比例"_gbk, Number{&SystemDefault::noteLineGapRatio, 0.5}, Unit::kRatio, "gap between note and line"},
    {"列之间的距离比例"_gbk, Number{&SystemDefault::columnGapRatio, 0.3}, Unit::kRatio, "distance between columns"},
    {"第三视角转图"_gbk, Flag{&SystemDefault::thirdAngleProjection, true, FlagLetters::kYesIfY}, Unit::kNone, "convert in third-angle projection"},
    {"加工说明文字"_gbk, Text{&SystemDefault::processNoteTitle, "加工说明:"_gbk}, Unit::kNone, "heading of the machining notes"},
    {"材料信息文字"_gbk, TextList{&SystemDefault::materialInfoTexts}, Unit::kNone, "texts of the material information"},
    {"图框信息文字"_gbk, TextList{&SystemDefault::frameInfoTexts}, Unit::kNone, "texts of the drawing frame"},
};

// Connector.
inline constexpr SystemKey kConnectStringKeys[] = {
    {"连接字符"_gbk, Text{&SystemDefault::connectString}, Unit::kNone, "text that joins codes"},
    {"是否导出图层代号"_gbk, Flag{&SystemDefault::exportLayerCode, true, FlagLetters::kNoIfUpperN}, Unit::kNone, "export the codes of layers"},
};

// Triangle symbol.
inline constexpr int kTriangleFaceColors[] = {12, 6};
inline constexpr SystemKey kTriangleSymbolKeys[] = {
    {"三角符号-颜色"_gbk, Integer{&SystemDefault::triangleColor, 78}, Unit::kColor, "colour of the triangle symbol"},
    {"三角符号-图层"_gbk, Integer{&SystemDefault::triangleLayer, 200}, Unit::kLayer, "layer of the triangle symbol"},
    {"三角符号-线型"_gbk, Integer{&SystemDefault::triangleLineFont, 0}, Unit::kNone, "line font of the triangle symbol"},
    {"三角符号-比例"_gbk, Number{&SystemDefault::triangleScale, 0.25}, Unit::kRatio, "scale of the triangle symbol"},
    {"三角符号-面颜色标准"_gbk, IntList{&SystemDefault::triangleFaceColors, TakenCells::kNonZero, kTriangleFaceColors}, Unit::kColor, "colours of faces that get the symbol"},
};

// Bill of materials.
inline constexpr SystemKey kBomKeys[] = {
    {"密度(g/cm)"_gbk, Number{&SystemDefault::density}, Unit::kDensity, "density of the material"},
};

// Output folder.
inline constexpr SystemKey kDwgFolderKeys[] = {
    {"出图的路径"_gbk, Text{&SystemDefault::dwgOutputFolder, {}, EmptyCell::kIsAbsent}, Unit::kNone, "folder for exported drawings; without one, the user's desktop"},
};

// Decimals and replaced texts.
inline constexpr Key<SystemDefault::DecimalRule> kDecimalRuleKeys[] = {
    {"小数位数-面颜色标准"_gbk, JoinedInts{&SystemDefault::DecimalRule::colors}, Unit::kColor, "colours of the faces of a decimal rule", RowRule::kRequired},
    {"小数位数"_gbk, Integer{&SystemDefault::DecimalRule::decimals}, Unit::kDecimals, "decimals for these faces", RowRule::kRequired},
};

inline constexpr SystemKey kReplaceLengthKeys[] = {
    {"替换内容-板长度"_gbk, Number{&SystemDefault::replacePlateLength, 300.0}, Unit::kMm, "plate length of the replacement rules"},
};

// Kept: an empty text after the replacement drops the rule, so that no rule can delete a text.
inline constexpr Key<SystemDefault::ReplaceRule> kReplaceRuleKeys[] = {
    {"替换内容-孔颜色"_gbk, JoinedInts{&SystemDefault::ReplaceRule::colors}, Unit::kColor, "colours of the holes of a replacement rule", RowRule::kRequired},
    {"替换内容-最小孔直径"_gbk, Number{&SystemDefault::ReplaceRule::minDiameter}, Unit::kMm, "least diameter of the holes"},
    {"替换内容-最大孔直径"_gbk, Number{&SystemDefault::ReplaceRule::maxDiameter}, Unit::kMm, "largest diameter of the holes"},
    {"替换内容-替换前内容"_gbk, Text{&SystemDefault::ReplaceRule::beforeText}, Unit::kNone, "text to be replaced", RowRule::kRequired},
    {"替换内容-替换后内容"_gbk, Text{&SystemDefault::ReplaceRule::afterText}, Unit::kNone, "text in its place", RowRule::kRequired},
};
// clang-format on

static_assert(ColumnsAreUnique(kLayerListKeys));
static_assert(ColumnsAreUnique(kSystemKeys, kWeightRuleKeys, kExportKeys));
static_assert(ColumnsAreUnique(kTextKeys));
static_assert(ColumnsAreUnique(kConnectStringKeys));
static_assert(ColumnsAreUnique(kTriangleSymbolKeys));
static_assert(ColumnsAreUnique(kBomKeys));
static_assert(ColumnsAreUnique(kDwgFolderKeys));
static_assert(ColumnsAreUnique(kDecimalRuleKeys, kReplaceLengthKeys, kReplaceRuleKeys));

template <typename Object, typename Walker>
void WalkLayerLists(Object& system, Walker&& walker) {
  walker.Walk(system, kLayerListKeys);
}

template <typename Object, typename Walker>
void WalkSystemSettings(Object& system, Walker&& walker) {
  walker.Walk(system, kSystemKeys);
  walker.WalkRows(system.weightRules, kWeightRuleKeys);
  walker.Walk(system, kExportKeys);
}

template <typename Object, typename Walker>
void WalkTexts(Object& system, Walker&& walker) {
  walker.Walk(system, kTextKeys);
}

template <typename Object, typename Walker>
void WalkConnectString(Object& system, Walker&& walker) {
  walker.Walk(system, kConnectStringKeys);
}

template <typename Object, typename Walker>
void WalkTriangleSymbol(Object& system, Walker&& walker) {
  walker.Walk(system, kTriangleSymbolKeys);
}

template <typename Object, typename Walker>
void WalkBom(Object& system, Walker&& walker) {
  walker.Walk(system, kBomKeys);
}

template <typename Object, typename Walker>
void WalkDwgFolder(Object& system, Walker&& walker) {
  walker.Walk(system, kDwgFolderKeys);
}

template <typename Object, typename Walker>
void WalkReplaceContent(Object& system, Walker&& walker) {
  walker.WalkRows(system.decimalRules, kDecimalRuleKeys);
  walker.Walk(system, kReplaceLengthKeys);
  walker.WalkRows(system.replaceRules, kReplaceRuleKeys);
}

}  // namespace plateconfig
