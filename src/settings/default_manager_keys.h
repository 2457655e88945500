#pragma once

// The layout defaults table, one line per key in the order of reading.
//
// Kept: many values for an absent column differ from those of a fresh DefaultManager (0.2 degrees for an
// angle of 45). Drawings were made with tables that lack the column, and must come out the same again.

#include "settings/default_manager.h"
#include "settings/style_kind.h"

namespace plateconfig {

template <typename Record>
using LayoutKey = StyledKey<Record, DefaultManager::NoteStyle>;

using literals::operator""_gbk;

// clang-format off
inline constexpr LayoutKey<DefaultManager> kLayoutKeys[] = {
    {"出二个视图的图层"_gbk, IntList{&DefaultManager::twoViewLayers, TakenCells::kNonZero}, Unit::kLayer, {"layers drawn with two views", "这些图层上的零件画两个视图"}},
    {"不放球标的图层"_gbk, IntList{&DefaultManager::noBallMarkLayers, TakenCells::kNonZero}, Unit::kLayer, {"layers that get no ball mark", "这些图层上的零件不放球标（带圈的件号）"}},
    {"标准件的图层"_gbk, IntList{&DefaultManager::standardPartLayers, TakenCells::kNonZero}, Unit::kLayer, {"layers of standard parts", "这些图层上的零件算作标准件"}},
    {"不出分图的图层"_gbk, IntList{&DefaultManager::noSubSheetLayers, TakenCells::kNonZero}, Unit::kLayer, {"layers that get no sub-sheet", "这些图层上的零件不单独出分图"}},

    {"图层间距"_gbk, Number{&DefaultManager::layerSpacing, 5000.0}, Unit::kMm, {"spacing between layers", "各图层的图排开时，相邻两层隔开多远"}},
    {"同一个图层图框之间的距离"_gbk, Number{&DefaultManager::sameLayerFrameGap, 100.0}, Unit::kMm, {"gap between the frames of one layer", "同一图层有多张图时，相邻图框隔开多远"}},
    {"爆炸图和分图图框之间的距离"_gbk, Number{&DefaultManager::explodedSubSheetFrameGap, 2000.0}, Unit::kMm, {"gap between the frames of exploded view and sub-sheets", "爆炸图的图框与分图的图框隔开多远"}},
    {"水平方向所有视图总长度与图纸长度的比例"_gbk, Number{&DefaultManager::viewsLengthRatio, 0.8}, Unit::kRatio, {"length of all views in a row to length of the sheet", "横向各视图的总长占图纸长度的几成；0.8 即八成"}},
    {"竖直方向所有视图总长度与图纸高度的比例"_gbk, Number{&DefaultManager::viewsHeightRatio, 0.8}, Unit::kRatio, {"height of all views in a column to height of the sheet", "纵向各视图的总高占图纸高度的几成；0.8 即八成"}},
    {"俯视图左上角交点X坐标所占图纸长度的比例"_gbk, Number{&DefaultManager::topViewXRatio, 0.3}, Unit::kRatio, {"upper left corner of the top view: X to length of the sheet", "俯视图左上角的横向位置，按图纸长度的比例"}},
    {"俯视图左上角交点Y坐标所占图纸高度的比例"_gbk, Number{&DefaultManager::topViewYRatio, 0.7}, Unit::kRatio, {"upper left corner of the top view: Y to height of the sheet", "俯视图左上角的纵向位置，按图纸高度的比例"}},
    {"大图纸小图纸的分割距离"_gbk, Number{&DefaultManager::sheetSplitSize, 300.0}, Unit::kMm, {"size that separates large from small sheets", "图纸以此尺寸为界，分为大图和小图；注释的位置可以分别指定"}},

    {"注释文件所在的图层"_gbk, Integer{&DefaultManager::noteLayer, 1}, Unit::kLayer, {"layer of the notes", "各种注释写在此图层"}},
    {"表头注释所占的图层"_gbk, Integer{&DefaultManager::headerNoteLayer, 1}, Unit::kLayer, {"layer of the header notes", "表头的文字写在此图层"}},
    {"图框的图层"_gbk, Integer{&DefaultManager::frameLayer, 1}, Unit::kLayer, {"layer of the frame", "图框的线画在此图层"}},
    {"图框的颜色"_gbk, Integer{&DefaultManager::frameColor, 1}, Unit::kColor, {"colour of the frame", "图框的线用此颜色"}},

    {"爆炸图基准圆的图层"_gbk, Integer{&DefaultManager::explodedCircleLayer, 1}, Unit::kLayer, {"datum circle layer, exploded view", "爆炸图上的基准圆画在此图层"}},
    {"材料图基准圆的图层"_gbk, Integer{&DefaultManager::materialCircleLayer, 1}, Unit::kLayer, {"datum circle layer, material drawing", "材料图上的基准圆画在此图层"}},
    {"标准件基准圆的图层"_gbk, Integer{&DefaultManager::standardCircleLayer, 1}, Unit::kLayer, {"datum circle layer, standard parts", "标准件图上的基准圆画在此图层"}},
    {"基准圆的颜色"_gbk, Integer{&DefaultManager::circleColor, 1}, Unit::kColor, {"colour of the datum circles", "所有基准圆的线用此颜色"}},
    {"基准圆的标准直径"_gbk, Number{&DefaultManager::circleDiameter, 0.2}, Unit::kMm, {"standard diameter of the datum circles", "基准圆通常画成此直径"}},

    {"视图间距与图纸长度的比例"_gbk, Number{&DefaultManager::viewGapRatio, 0.2}, Unit::kRatio, {"gap between views to length of the sheet", "相邻视图之间的空隙，按图纸长度的比例"}},
    {"视图外框与视图的距离"_gbk, Number{&DefaultManager::viewBoxMargin, 0.05}, Unit::kNone, {"distance of a view's box from the view", "视图四周的外框离视图多远"}},
    {"视图外框的颜色"_gbk, Integer{&DefaultManager::viewBoxColor, 1}, Unit::kColor, {"colour of the view boxes", "视图四周的外框用此颜色"}},
    {"材料图俯视图外框的图层"_gbk, Integer{&DefaultManager::materialTopBoxLayer, 1}, Unit::kLayer, {"view box layer, material drawing, top view", "材料图上，俯视图四周的外框画在此图层"}},
    {"材料图主视图外框的图层"_gbk, Integer{&DefaultManager::materialFrontBoxLayer, 1}, Unit::kLayer, {"view box layer, material drawing, front view", "材料图上，主视图四周的外框画在此图层"}},
    {"材料图左视图外框的图层"_gbk, Integer{&DefaultManager::materialLeftBoxLayer, 1}, Unit::kLayer, {"view box layer, material drawing, left view", "材料图上，左视图四周的外框画在此图层"}},
    {"标准件俯视图外框的图层"_gbk, Integer{&DefaultManager::standardTopBoxLayer, 1}, Unit::kLayer, {"view box layer, standard parts, top view", "标准件图上，俯视图四周的外框画在此图层"}},
    {"标准件主视图外框的图层"_gbk, Integer{&DefaultManager::standardFrontBoxLayer, 1}, Unit::kLayer, {"view box layer, standard parts, front view", "标准件图上，主视图四周的外框画在此图层"}},
    {"标准件左视图外框的图层"_gbk, Integer{&DefaultManager::standardLeftBoxLayer, 1}, Unit::kLayer, {"view box layer, standard parts, left view", "标准件图上，左视图四周的外框画在此图层"}},

    {"穿丝孔的图层"_gbk, Integer{&DefaultManager::wireHoleLayer, 1}, Unit::kLayer, {"layer of wire-threading holes", "图上的穿丝孔画在此图层"}},
    {"穿丝孔的颜色"_gbk, Integer{&DefaultManager::wireHoleColor, 1}, Unit::kColor, {"colour of wire-threading holes", "图上的穿丝孔用此颜色"}},
    {"大槽小槽的分割尺寸"_gbk, Number{&DefaultManager::slotSplitSize, 20.0}, Unit::kMm, {"size that separates large from small slots", "槽以此尺寸为界，分为大槽和小槽"}},
    {"大穿丝孔直径"_gbk, Number{&DefaultManager::largeWireHoleDiameter, 1.0}, Unit::kMm, {"diameter of large wire-threading holes", "大穿丝孔在图上画成此直径"}},
    {"小穿丝孔直径"_gbk, Number{&DefaultManager::smallWireHoleDiameter, 0.5}, Unit::kMm, {"diameter of small wire-threading holes", "小穿丝孔在图上画成此直径"}},

    {"代号左上角交点X坐标所占图纸长度的比例"_gbk, Number{&DefaultManager::codeXRatio, 0.2}, Unit::kRatio, {"upper left corner of the code: X to length of the sheet", "代号左上角的横向位置，按图纸长度的比例"}},
    {"代号左上角交点Y坐标所占图纸高度的比例"_gbk, Number{&DefaultManager::codeYRatio, 0.8}, Unit::kRatio, {"upper left corner of the code: Y to height of the sheet", "代号左上角的纵向位置，按图纸高度的比例"}},
    {"代号注释的样式"_gbk, Style{&DefaultManager::codeStyle}, Unit::kNone, {"style of the code", "写代号用的字体和大小"}},

    {"特征代号注释角度"_gbk, Number{&DefaultManager::featureCodeAngle, 0.2}, Unit::kDegrees, {"angle of the feature codes", "特征代号引出的角度"}},
    {"特征代号注释距离比例"_gbk, Number{&DefaultManager::featureCodeDistanceRatio, 0.8}, Unit::kRatio, {"distance of the feature codes", "特征代号离所标的特征多远，按比例"}},
    {"特征代号注释的样式"_gbk, Style{&DefaultManager::featureCodeStyle}, Unit::kNone, {"style of the feature codes", "写特征代号用的字体和大小"}},

    {"加工要求左上角交点X坐标所占图纸长度的比例-大图"_gbk, Number{&DefaultManager::processXRatioLarge, 0.2}, Unit::kRatio, {"process note on large sheets: X to length of the sheet", "大图上，加工要求左上角的横向位置，按图纸长度的比例"}},
    {"加工要求左上角交点Y坐标所占图纸高度的比例-大图"_gbk, Number{&DefaultManager::processYRatioLarge, 0.8}, Unit::kRatio, {"process note on large sheets: Y to height of the sheet", "大图上，加工要求左上角的纵向位置，按图纸高度的比例"}},
    {"加工要求左上角交点X坐标所占图纸长度的比例-小图"_gbk, Number{&DefaultManager::processXRatioSmall, 0.2}, Unit::kRatio, {"process note on small sheets: X to length of the sheet", "小图上，加工要求左上角的横向位置，按图纸长度的比例"}},
    {"加工要求左上角交点Y坐标所占图纸高度的比例-小图"_gbk, Number{&DefaultManager::processYRatioSmall, 0.8}, Unit::kRatio, {"process note on small sheets: Y to height of the sheet", "小图上，加工要求左上角的纵向位置，按图纸高度的比例"}},
    {"加工要求注释的样式"_gbk, Style{&DefaultManager::processStyle}, Unit::kNone, {"style of the process note", "写加工要求用的字体和大小"}},

    {"属性注释左上角交点X坐标所占图纸长度的比例-大图"_gbk, Number{&DefaultManager::attributeXRatioLarge, 0.2}, Unit::kRatio, {"attribute note on large sheets: X to length of the sheet", "大图上，属性注释左上角的横向位置，按图纸长度的比例"}},
    {"属性注释左上角交点Y坐标所占图纸高度的比例-大图"_gbk, Number{&DefaultManager::attributeYRatioLarge, 0.8}, Unit::kRatio, {"attribute note on large sheets: Y to height of the sheet", "大图上，属性注释左上角的纵向位置，按图纸高度的比例"}},
    {"属性注释左上角交点X坐标所占图纸长度的比例-小图"_gbk, Number{&DefaultManager::attributeXRatioSmall, 0.2}, Unit::kRatio, {"attribute note on small sheets: X to length of the sheet", "小图上，属性注释左上角的横向位置，按图纸长度的比例"}},
    {"属性注释左上角交点Y坐标所占图纸高度的比例-小图"_gbk, Number{&DefaultManager::attributeYRatioSmall, 0.8}, Unit::kRatio, {"attribute note on small sheets: Y to height of the sheet", "小图上，属性注释左上角的纵向位置，按图纸高度的比例"}},
    {"属性注释的样式"_gbk, Style{&DefaultManager::attributeStyle}, Unit::kNone, {"style of the attribute note", "写属性注释用的字体和大小"}},

    {"改模注释左上角交点X坐标所占图纸长度的比例-大图"_gbk, Number{&DefaultManager::modifyXRatioLarge, 0.2}, Unit::kRatio, {"mould-change note on large sheets: X to length of the sheet", "大图上，改模注释左上角的横向位置，按图纸长度的比例"}},
    {"改模注释左上角交点Y坐标所占图纸高度的比例-大图"_gbk, Number{&DefaultManager::modifyYRatioLarge, 0.8}, Unit::kRatio, {"mould-change note on large sheets: Y to height of the sheet", "大图上，改模注释左上角的纵向位置，按图纸高度的比例"}},
    {"改模注释左上角交点X坐标所占图纸长度的比例-小图"_gbk, Number{&DefaultManager::modifyXRatioSmall, 0.2}, Unit::kRatio, {"mould-change note on small sheets: X to length of the sheet", "小图上，改模注释左上角的横向位置，按图纸长度的比例"}},
    {"改模注释左上角交点Y坐标所占图纸高度的比例-小图"_gbk, Number{&DefaultManager::modifyYRatioSmall, 0.8}, Unit::kRatio, {"mould-change note on small sheets: Y to height of the sheet", "小图上，改模注释左上角的纵向位置，按图纸高度的比例"}},
    {"改模注释的样式"_gbk, Style{&DefaultManager::modifyStyle}, Unit::kNone, {"style of the mould-change note", "写改模注释用的字体和大小"}},

    {"球标顶边距"_gbk, Number{&DefaultManager::ballMarkTopMargin, 0.95}, Unit::kNone, {"top margin of the ball marks", "球标与顶边之间留出的距离"}},
    {"球标底边距"_gbk, Number{&DefaultManager::ballMarkBottomMargin, 0.05}, Unit::kNone, {"bottom margin of the ball marks", "球标与底边之间留出的距离"}},
    {"球标基准圆直径"_gbk, Number{&DefaultManager::ballMarkDiameter, 10.0}, Unit::kMm, {"diameter of a ball mark's circle", "球标的圆圈画成此直径"}},
    {"文字与外圆的比例"_gbk, Number{&DefaultManager::ballMarkTextRatio, 0.8}, Unit::kRatio, {"text of a ball mark to its circle", "球标中的文字有多大，按圆圈的比例"}},
    {"球标所在图层"_gbk, Integer{&DefaultManager::ballMarkLayer, 1}, Unit::kLayer, {"layer of the ball marks", "球标画在此图层"}},
    {"线条颜色"_gbk, Integer{&DefaultManager::ballMarkLineColor, 1}, Unit::kColor, {"colour of the ball marks' leader lines", "球标的引线用此颜色"}},
    {"球标文字的样式"_gbk, Style{&DefaultManager::ballMarkStyle}, Unit::kNone, {"style of the ball marks' text", "写球标中的文字用的字体和大小"}},
};

inline constexpr LayoutKey<DefaultManager::BomAttrInfo> kBomHeaderKeys[] = {
    {"表头-X位置比例"_gbk, Number{&DefaultManager::BomAttrInfo::xRatio}, Unit::kRatio, {"bill of materials: X of a header column", "材料表表头每一列的横向位置；填到哪一行，表头就有几列"}, RowRule::kBounds},
    {"表头-Y位置比例"_gbk, Number{&DefaultManager::BomAttrInfo::yRatio}, Unit::kRatio, {"bill of materials: Y of a header column", "材料表表头每一列的纵向位置"}},
    {"表头-显示名称"_gbk, Text{&DefaultManager::BomAttrInfo::displayName}, Unit::kNone, {"bill of materials: caption of a header column", "材料表表头这一列显示的标题"}},
    {"表头-属性名称"_gbk, Text{&DefaultManager::BomAttrInfo::attrName}, Unit::kNone, {"bill of materials: part attribute that fills a column", "材料表这一列填哪个零件属性的值"}},
    {"表头-文字样式"_gbk, Style{&DefaultManager::BomAttrInfo::style}, Unit::kNone, {"bill of materials: style of a header column", "写材料表表头这一列用的字体和大小"}},
};
// clang-format on

static_assert(ColumnsAreUnique(kLayoutKeys, kBomHeaderKeys));

template <typename Object, typename Walker>
void WalkLayoutDefaults(Object& defaults, Walker&& walker) {
  walker.template Walk<kLayoutKeys>(defaults);
  walker.template WalkRows<kBomHeaderKeys>(defaults.bomAttrInfos);
}

}  // namespace plateconfig
