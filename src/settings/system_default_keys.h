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
    {"模板图层"_gbk, IntList{&SystemDefault::templateLayers, TakenCells::kLayerNumbers}, Unit::kLayer, {"template layers", "这些图层上的实体当作模板；1 到 256 以外的数不算"}},
    {"出二个视图的图层"_gbk, IntList{&SystemDefault::twoViewLayers, TakenCells::kNonZero}, Unit::kLayer, {"layers whose parts get two views", "这些图层上的零件画两个视图"}},
    {"不放球标的图层"_gbk, IntList{&SystemDefault::noBallMarkLayers, TakenCells::kNonZero}, Unit::kLayer, {"layers that get no ball mark", "这些图层上的零件不放球标（带圈的件号）"}},
    {"标准件的图层"_gbk, IntList{&SystemDefault::standardPartLayers, TakenCells::kNonZero}, Unit::kLayer, {"layers of standard parts", "这些图层上的零件算作标准件"}},
    {"不出分图的图层"_gbk, IntList{&SystemDefault::noSubSheetLayers, TakenCells::kNonZero}, Unit::kLayer, {"layers that get no sheet of their own", "这些图层上的零件不单独出分图"}},
};

// System settings, up to the weight rules.
inline constexpr SystemKey kSystemKeys[] = {
    {"特征代号数量_控制特征文字"_gbk, TextList{&SystemDefault::featureCountsForFeatureText}, Unit::kCount, {"counts of feature codes that select the scale of feature texts", "特征代号有多少个，特征文字就换用哪一档比例"}},
    {"特征文字比例"_gbk, TextList{&SystemDefault::featureTextRatios}, Unit::kRatio, {"scales of feature texts", "特征文字的各档比例，与数量逐行对应"}},
    {"特征代号数量_控制加工注解"_gbk, TextList{&SystemDefault::featureCountsForProcessNote}, Unit::kCount, {"counts of feature codes that select the scale of machining notes", "特征代号有多少个，加工注解就换用哪一档比例"}},
    {"加工注解文字比例"_gbk, TextList{&SystemDefault::processNoteTextRatios}, Unit::kRatio, {"scales of machining notes", "加工注解文字的各档比例，与数量逐行对应"}},

    {"图框的图层"_gbk, Integer{&SystemDefault::frameLayer, 1}, Unit::kLayer, {"layer of the drawing frame", "图框的线画在此图层"}},
    {"图框的颜色"_gbk, Integer{&SystemDefault::frameColor, 1}, Unit::kColor, {"colour of the drawing frame", "图框的线用此颜色"}},
    {"爆炸图基准圆的图层"_gbk, Integer{&SystemDefault::explodedDatumCircleLayer, 1}, Unit::kLayer, {"datum circle layer, exploded view", "爆炸图上的基准圆画在此图层"}},
    {"材料图基准圆的图层"_gbk, Integer{&SystemDefault::materialDatumCircleLayer, 1}, Unit::kLayer, {"datum circle layer, material drawing", "材料图上的基准圆画在此图层"}},
    {"标准件基准圆的图层"_gbk, Integer{&SystemDefault::standardPartDatumCircleLayer, 1}, Unit::kLayer, {"datum circle layer, standard parts", "标准件图上的基准圆画在此图层"}},
    {"基准圆的颜色"_gbk, Integer{&SystemDefault::datumCircleColor, 1}, Unit::kColor, {"colour of the datum circles", "所有基准圆的线用此颜色"}},
    {"基准圆的标准直径"_gbk, Number{&SystemDefault::datumCircleDiameter, 0.2}, Unit::kMm, {"standard diameter of the datum circles", "基准圆通常画成此直径"}},
    {"视图外框与视图的距离"_gbk, Number{&SystemDefault::viewFrameGap, 0.05}, Unit::kNone, {"gap between a view and its outer frame", "视图四周的外框离视图多远"}},
    {"视图外框的颜色"_gbk, Integer{&SystemDefault::viewFrameColor, 1}, Unit::kColor, {"colour of the views' outer frames", "视图四周的外框用此颜色"}},
    {"材料图俯视图外框的图层"_gbk, Integer{&SystemDefault::materialTopFrameLayer, 1}, Unit::kLayer, {"view frame layer, material drawing, top view", "材料图上，俯视图四周的外框画在此图层"}},
    {"材料图主视图外框的图层"_gbk, Integer{&SystemDefault::materialFrontFrameLayer, 1}, Unit::kLayer, {"view frame layer, material drawing, front view", "材料图上，主视图四周的外框画在此图层"}},
    {"材料图左视图外框的图层"_gbk, Integer{&SystemDefault::materialLeftFrameLayer, 1}, Unit::kLayer, {"view frame layer, material drawing, left view", "材料图上，左视图四周的外框画在此图层"}},
    {"标准件俯视图外框的图层"_gbk, Integer{&SystemDefault::standardPartTopFrameLayer, 1}, Unit::kLayer, {"view frame layer, standard parts, top view", "标准件图上，俯视图四周的外框画在此图层"}},
    {"标准件主视图外框的图层"_gbk, Integer{&SystemDefault::standardPartFrontFrameLayer, 1}, Unit::kLayer, {"view frame layer, standard parts, front view", "标准件图上，主视图四周的外框画在此图层"}},
    {"标准件左视图外框的图层"_gbk, Integer{&SystemDefault::standardPartLeftFrameLayer, 1}, Unit::kLayer, {"view frame layer, standard parts, left view", "标准件图上，左视图四周的外框画在此图层"}},
    {"图层注释偏置比例"_gbk, Number{&SystemDefault::layerNoteOffsetRatio, 0.5}, Unit::kRatio, {"offset of the layer notes", "图层的注释偏开多远，按比例"}},
    {"图层注释标准字体大小"_gbk, Number{&SystemDefault::layerNoteFontSize, 8.0}, Unit::kMm, {"standard text size of the layer notes", "图层的注释通常写多大"}},
    {"CAD打开方式"_gbk, Integer{&SystemDefault::cadOpenMode, 0}, Unit::kNone, {"how the CAD program is opened", "转图时用哪种方式打开 CAD 程序"}},
    {"转图完成提示文字"_gbk, TextList{&SystemDefault::finishMessages}, Unit::kNone, {"texts shown when the conversion of a drawing is finished", "转图完成后弹出的提示，每行一句"}},
    {"CAD路径"_gbk, Text{&SystemDefault::cadPath}, Unit::kNone, {"path of the CAD program", "CAD 程序在电脑上的位置"}},
    {"出图的路径"_gbk, Text{&SystemDefault::dwgOutputFolder}, Unit::kNone, {"folder for exported drawings, until the folder's own table is read", "导出的图纸存到哪个文件夹；读取出图文件夹的表之后，以那张表为准"}},
    {"下划线与注释长度的比例"_gbk, Number{&SystemDefault::underlineRatio, 0.8}, Unit::kRatio, {"length of an underline to that of its note", "注释下面的线画多长，按注释长度的比例"}},
    {"竖直布局时每列加工注释的最大行数"_gbk, Integer{&SystemDefault::maxNoteRowsPerColumn, 10}, Unit::kRows, {"most machining-note rows per column in vertical layout", "竖直布局时，加工注释一列最多写几行"}},
    {"孔数量"_gbk, Integer{&SystemDefault::holeCountThreshold, 50}, Unit::kCount, {"holes from which a plate has many", "孔比这更多的板，代号注释另用一种大小"}},
    {"当孔的数量大于孔数量的值时代号注释字体大小与代号注释的比例"_gbk, Number{&SystemDefault::manyHolesCodeFontRatio, 0.3}, Unit::kRatio, {"text size of the codes on a plate with many holes", "孔多的板，代号注释的文字按此比例写"}},
    {"大槽小槽的分割尺寸"_gbk, Number{&SystemDefault::slotSplitSize, 20.0}, Unit::kMm, {"size that separates large from small slots", "槽以此尺寸为界，分为大槽和小槽"}},
    {"穿线孔到边的距离"_gbk, Number{&SystemDefault::threadHoleEdgeDistance, 5.0}, Unit::kMm, {"distance of a threading hole from the edge", "穿线孔离边多远"}},
    {"创建球标代号"_gbk, Flag{&SystemDefault::createBalloonCode, true, FlagLetters::kNoIfN}, Unit::kNone, {"create the codes of ball marks", "是否写出球标的代号"}},
    {"边框偏置距离"_gbk, Number{&SystemDefault::borderOffset, 0.0}, Unit::kMm, {"offset of the border", "边框偏开多远"}},
    {"边框线颜色"_gbk, Integer{&SystemDefault::borderLineColor, 1}, Unit::kColor, {"colour of the border", "边框的线用此颜色"}},
    {"边框线图层"_gbk, Integer{&SystemDefault::borderLineLayer, 1}, Unit::kLayer, {"layer of the border", "边框的线画在此图层"}},
};

inline constexpr Key<SystemDefault::WeightRule> kWeightRuleKeys[] = {
    {"实体最小重量"_gbk, Number{&SystemDefault::WeightRule::minWeight}, Unit::kNone, {"least weight of a body that counts", "实体至少多重才计入"}},
    {"实体最大重量"_gbk, Number{&SystemDefault::WeightRule::maxWeight}, Unit::kNone, {"largest weight of a body that counts", "实体最多多重才计入"}},
    {"实体面最大数量"_gbk, Integer{&SystemDefault::WeightRule::maxFaceCount}, Unit::kCount, {"most faces of a body that counts", "实体最多几个面才计入；空着的行不算"}, RowRule::kRequired},
};

// System settings, behind the weight rules. Kept: for two keys alone an empty first cell is as good as none.
inline constexpr SystemKey kExportKeys[] = {
    {"是否设置制图曲线颜色"_gbk, Flag{&SystemDefault::setDrawingCurveColor, false, FlagLetters::kYesIfUpperY}, Unit::kNone, {"set the colour of drawing curves", "是否给制图曲线设置颜色"}},
    {"视图精度"_gbk, Number{&SystemDefault::viewPrecision, 0.005}, Unit::kNone, {"precision of the views", "视图算到多精细"}},
    {"CAD注册表路径"_gbk, TextList{&SystemDefault::cadRegistryPaths}, Unit::kNone, {"registry keys of the CAD program", "CAD 程序在注册表中的位置，每行一个"}},
    {"CAD注册表字段名称"_gbk, TextList{&SystemDefault::cadRegistryValueNames}, Unit::kNone, {"registry values of the CAD program", "在注册表中取哪些字段，每行一个"}},
    {"UG导出CAD弹出没有DOC时间"_gbk, Integer{&SystemDefault::noDocWaitTime, 5, EmptyCell::kIsAbsent}, Unit::kNone, {"wait before the no-document prompt of the export", "导出到 CAD 时，弹出“没有 DOC”的提示之前等多久"}},
    {"CAD转换版本"_gbk, Integer{&SystemDefault::cadVersion, 9, EmptyCell::kIsAbsent}, Unit::kNone, {"version of the CAD file format written", "导出的图纸存成哪个版本的 CAD 文件"}},
};

// Texts.
inline constexpr SystemKey kTextKeys[] = {
    {"外形注解"_gbk, TextList{&SystemDefault::outlineNotes}, Unit::kNone, {"outline notes; here empty cells are left out", "写在图上的外形说明，每行一条；空单元格不算"}},
    {"代号文字"_gbk, Text{&SystemDefault::codeText}, Unit::kNone, {"text of a code", "代号处写的文字"}},
    {"注解与线之间的间距比例"_gbk, Number{&SystemDefault::noteLineGapRatio, 0.5}, Unit::kRatio, {"gap between note and line", "注解的文字与线之间的空隙，按比例"}},
    {"列之间的距离比例"_gbk, Number{&SystemDefault::columnGapRatio, 0.3}, Unit::kRatio, {"distance between columns", "相邻两列之间的距离，按比例"}},
    {"第三视角转图"_gbk, Flag{&SystemDefault::thirdAngleProjection, true, FlagLetters::kYesIfY}, Unit::kNone, {"convert in third-angle projection", "转图时是否用第三视角投影"}},
    {"加工说明文字"_gbk, Text{&SystemDefault::processNoteTitle, "加工说明:"_gbk}, Unit::kNone, {"heading of the machining notes", "加工注解前面的标题"}},
    {"材料信息文字"_gbk, TextList{&SystemDefault::materialInfoTexts}, Unit::kNone, {"texts of the material information", "材料信息中的各项文字；空单元格也算一项"}},
    {"图框信息文字"_gbk, TextList{&SystemDefault::frameInfoTexts}, Unit::kNone, {"texts of the drawing frame", "图框中的各项文字；空单元格也算一项"}},
};

// Connector.
inline constexpr SystemKey kConnectStringKeys[] = {
    {"连接字符"_gbk, Text{&SystemDefault::connectString}, Unit::kNone, {"text that joins codes", "写在两个代号之间的文字"}},
    {"是否导出图层代号"_gbk, Flag{&SystemDefault::exportLayerCode, true, FlagLetters::kNoIfUpperN}, Unit::kNone, {"export the codes of layers", "是否把图层的代号一起导出"}},
};

// Triangle symbol.
inline constexpr int kTriangleFaceColors[] = {12, 6};
inline constexpr SystemKey kTriangleSymbolKeys[] = {
    {"三角符号-颜色"_gbk, Integer{&SystemDefault::triangleColor, 78}, Unit::kColor, {"colour of the triangle symbol", "三角符号用此颜色"}},
    {"三角符号-图层"_gbk, Integer{&SystemDefault::triangleLayer, 200}, Unit::kLayer, {"layer of the triangle symbol", "三角符号画在此图层"}},
    {"三角符号-线型"_gbk, Integer{&SystemDefault::triangleLineFont, 0}, Unit::kNone, {"line font of the triangle symbol", "三角符号用此线型"}},
    {"三角符号-比例"_gbk, Number{&SystemDefault::triangleScale, 0.25}, Unit::kRatio, {"scale of the triangle symbol", "三角符号放大或缩小多少"}},
    {"三角符号-面颜色标准"_gbk, IntList{&SystemDefault::triangleFaceColors, TakenCells::kNonZero, kTriangleFaceColors}, Unit::kColor, {"colours of faces that get the symbol", "面是这些颜色的，加上三角符号"}},
};

// Bill of materials.
inline constexpr SystemKey kBomKeys[] = {
    {"密度(g/cm)"_gbk, Number{&SystemDefault::density}, Unit::kDensity, {"density of the material", "材料的密度，用来算材料表中的重量"}},
};

// Output folder.
inline constexpr SystemKey kDwgFolderKeys[] = {
    {"出图的路径"_gbk, Text{&SystemDefault::dwgOutputFolder, {}, EmptyCell::kIsAbsent}, Unit::kNone, {"folder for exported drawings; without one, the user's desktop", "导出的图纸存到哪个文件夹；空着就存到用户的桌面"}},
};

// Decimals and replaced texts.
inline constexpr Key<SystemDefault::DecimalRule> kDecimalRuleKeys[] = {
    {"小数位数-面颜色标准"_gbk, JoinedInts{&SystemDefault::DecimalRule::colors}, Unit::kColor, {"colours of the faces of a decimal rule", "面是这些颜色的，用这一行的小数位数"}, RowRule::kRequired},
    {"小数位数"_gbk, Integer{&SystemDefault::DecimalRule::decimals}, Unit::kDecimals, {"decimals for these faces", "这些面的数值保留几位小数"}, RowRule::kRequired},
};

inline constexpr SystemKey kReplaceLengthKeys[] = {
    {"替换内容-板长度"_gbk, Number{&SystemDefault::replacePlateLength, 300.0}, Unit::kMm, {"plate length of the replacement rules", "替换规则所看的板长度"}},
};

// Kept: an empty text after the replacement drops the rule, so that no rule can delete a text.
inline constexpr Key<SystemDefault::ReplaceRule> kReplaceRuleKeys[] = {
    {"替换内容-孔颜色"_gbk, JoinedInts{&SystemDefault::ReplaceRule::colors}, Unit::kColor, {"colours of the holes of a replacement rule", "孔是这些颜色的，按这一行替换"}, RowRule::kRequired},
    {"替换内容-最小孔直径"_gbk, Number{&SystemDefault::ReplaceRule::minDiameter}, Unit::kMm, {"least diameter of the holes", "孔直径从多少起替换"}},
    {"替换内容-最大孔直径"_gbk, Number{&SystemDefault::ReplaceRule::maxDiameter}, Unit::kMm, {"largest diameter of the holes", "孔直径到多少为止替换"}},
    {"替换内容-替换前内容"_gbk, Text{&SystemDefault::ReplaceRule::beforeText}, Unit::kNone, {"text to be replaced", "图上要换掉的文字"}, RowRule::kRequired},
    {"替换内容-替换后内容"_gbk, Text{&SystemDefault::ReplaceRule::afterText}, Unit::kNone, {"text in its place", "换成什么文字；空着的行不算，所以不能把文字删掉"}, RowRule::kRequired},
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
  walker.template Walk<kLayerListKeys>(system);
}

template <typename Object, typename Walker>
void WalkSystemSettings(Object& system, Walker&& walker) {
  walker.template Walk<kSystemKeys>(system);
  walker.template WalkRows<kWeightRuleKeys>(system.weightRules);
  walker.template Walk<kExportKeys>(system);
}

template <typename Object, typename Walker>
void WalkTexts(Object& system, Walker&& walker) {
  walker.template Walk<kTextKeys>(system);
}

template <typename Object, typename Walker>
void WalkConnectString(Object& system, Walker&& walker) {
  walker.template Walk<kConnectStringKeys>(system);
}

template <typename Object, typename Walker>
void WalkTriangleSymbol(Object& system, Walker&& walker) {
  walker.template Walk<kTriangleSymbolKeys>(system);
}

template <typename Object, typename Walker>
void WalkBom(Object& system, Walker&& walker) {
  walker.template Walk<kBomKeys>(system);
}

template <typename Object, typename Walker>
void WalkDwgFolder(Object& system, Walker&& walker) {
  walker.template Walk<kDwgFolderKeys>(system);
}

template <typename Object, typename Walker>
void WalkReplaceContent(Object& system, Walker&& walker) {
  walker.template WalkRows<kDecimalRuleKeys>(system.decimalRules);
  walker.template Walk<kReplaceLengthKeys>(system);
  walker.template WalkRows<kReplaceRuleKeys>(system.replaceRules);
}

}  // namespace plateconfig
