#pragma once

// What both generations of settings have on their sheets, why a setting has no place there, and what is taken
// for granted, in words.

#include <string_view>

#include "analysis/pictures/sheet_parts.h"
#include "analysis/text/words.h"

namespace plateconfig {

namespace names {

inline constexpr Words kViewGroup = {"room of all views together", "全部视图合起来的范围"};
inline constexpr Words kViewGap = {"gap between views", "视图间距"};
inline constexpr Words kViewBox = {"box around a view", "视图外框"};
inline constexpr Words kExplodedCircle = {"datum circle of the exploded view", "爆炸图基准圆"};
inline constexpr Words kMaterialCircle = {"datum circle of the material drawing", "材料图基准圆"};
inline constexpr Words kStandardPartCircle = {"datum circle of the standard parts", "标准件基准圆"};
inline constexpr Words kBallMark = {"ball mark", "球标"};
inline constexpr Words kFeatureCode = {"feature code", "特征代号"};

}  // namespace names

namespace reasons {

inline constexpr Words kNoPlace = {"no table says where on the sheet it is drawn",
                                   "各表都没有说明它画在图纸的什么位置"};
inline constexpr Words kPlate = {"its place follows from the plate that is drawn, which no table knows",
                                 "它的位置由所画的板决定，各表中没有"};
inline constexpr Words kViews = {"its place follows from the views, whose sizes no table knows",
                                 "它的位置由各视图决定，而视图的大小不在表中"};
inline constexpr Words kNoStart = {"the room of all views together is known, but not where it begins",
                                   "只知道全部视图合起来有多大，不知道从哪里开始"};
inline constexpr Words kNoUnit = {"no table says in what its distance from the view is measured",
                                  "表中没有说明它与视图的距离以什么为单位"};
inline constexpr Words kNote = {"it is a share of the length of its note, which no table knows",
                                "它按注释的长度算，而注释的长度不在表中"};
inline constexpr Words kNoOffset = {"no table says from what it is offset, nor to which side",
                                    "表中没有说明从哪里偏开，也没有说明偏向哪一边"};
inline constexpr Words kNoEdge = {
    "no table says from which edge the two margins count, nor where along the edge the marks begin",
    "表中没有说明这两个边距从哪一边算起，也没有说明球标沿着边从哪里开始"};
inline constexpr Words kNoDirection = {"no table says in which direction the sheets follow each other",
                                       "表中没有说明各张图朝哪个方向排开"};
inline constexpr Words kNoBase = {"no table says of what it is a share", "表中没有说明它是什么的比例"};
inline constexpr Words kNothingCompared = {"no table says which size of a plate or sheet is compared with it",
                                           "表中没有说明用板或图纸的哪个尺寸与它比较"};
inline constexpr Words kOutside = {
    "read as a share of the sheet the place lies outside of it, and no table says another unit",
    "按图纸的比例算，这个位置在图纸之外，而表中没有说明别的单位"};
inline constexpr Words kNoSize = {
    "read as a share of the sheet it is larger than the sheet or less than nothing, and no table says "
    "another unit",
    "按图纸的比例算，它比图纸还大或者小于零，而表中没有说明别的单位"};
inline constexpr Words kNoNumber = {"its place is no number", "它的位置不是一个数"};
inline constexpr Words kSquare = {
    "on a square paper it may be the place for landscape or the one for portrait",
    "纸张是正方形时，分不清用横版还是竖版的位置"};
inline constexpr Words kWhichText = {"no table says which of the texts stands where",
                                     "表中没有说明哪一段文字写在哪里"};

}  // namespace reasons

/// The name for programs.
std::string_view NameOf(Assumption assumption);
Words WordsOf(Assumption assumption);

}  // namespace plateconfig
