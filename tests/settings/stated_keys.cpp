#include "settings/stated_keys.h"

#include "text/gbk.h"

namespace plateconfig::test {

std::string Shown(double value) {
  std::ostringstream text;
  text.imbue(std::locale::classic());
  text << value;
  return text.str();
}

std::string Shown(bool value) {
  return value ? "Y" : "N";
}

std::string Shown(const std::string& gbk) {
  return GbkToUtf8(gbk);
}

std::string Shown(const std::vector<int>& list) {
  std::string text;
  for (const int item : list) text += (text.empty() ? "" : ",") + std::to_string(item);
  return text;
}

std::string Shown(const std::vector<std::string>& list) {
  std::string text;
  for (const std::string& item : list) text += (text.empty() ? "" : ",") + GbkToUtf8(item);
  return text;
}

namespace {

using enum Reads;

constexpr std::string_view kDefaultStyle = "chinesef_fs|3|0.5|0.5|0.5|1";

template <auto kField>
std::string Layout(const LoadedClasses& classes) {
  return Shown(classes.layout.*kField);
}

template <auto kGetter, auto kField>
std::string Custom(const LoadedClasses& classes) {
  return Shown((classes.custom.*kGetter)().*kField);
}

template <auto kField>
std::string System(const LoadedClasses& classes) {
  return Shown(classes.system.*kField);
}

// clang-format off
constexpr StatedKey kStatedKeys[] = {
    // Layout defaults.
    {"layout-defaults", "出二个视图的图层", kNonZeroList, "", Layout<&DefaultManager::twoViewLayers>},
    {"layout-defaults", "不放球标的图层", kNonZeroList, "", Layout<&DefaultManager::noBallMarkLayers>},
    {"layout-defaults", "标准件的图层", kNonZeroList, "", Layout<&DefaultManager::standardPartLayers>},
    {"layout-defaults", "不出分图的图层", kNonZeroList, "", Layout<&DefaultManager::noSubSheetLayers>},
    {"layout-defaults", "图层间距", kNumber, "5000", Layout<&DefaultManager::layerSpacing>},
    {"layout-defaults", "同一个图层图框之间的距离", kNumber, "100", Layout<&DefaultManager::sameLayerFrameGap>},
    {"layout-defaults", "爆炸图和分图图框之间的距离", kNumber, "2000", Layout<&DefaultManager::explodedSubSheetFrameGap>},
    {"layout-defaults", "水平方向所有视图总长度与图纸长度的比例", kNumber, "0.8", Layout<&DefaultManager::viewsLengthRatio>},
    {"layout-defaults", "竖直方向所有视图总长度与图纸高度的比例", kNumber, "0.8", Layout<&DefaultManager::viewsHeightRatio>},
    {"layout-defaults", "俯视图左上角交点X坐标所占图纸长度的比例", kNumber, "0.3", Layout<&DefaultManager::topViewXRatio>},
    {"layout-defaults", "俯视图左上角交点Y坐标所占图纸高度的比例", kNumber, "0.7", Layout<&DefaultManager::topViewYRatio>},
    {"layout-defaults", "大图纸小图纸的分割距离", kNumber, "300", Layout<&DefaultManager::sheetSplitSize>},
    {"layout-defaults", "注释文件所在的图层", kInteger, "1", Layout<&DefaultManager::noteLayer>},
    {"layout-defaults", "表头注释所占的图层", kInteger, "1", Layout<&DefaultManager::headerNoteLayer>},
    {"layout-defaults", "图框的图层", kInteger, "1", Layout<&DefaultManager::frameLayer>},
    {"layout-defaults", "图框的颜色", kInteger, "1", Layout<&DefaultManager::frameColor>},
    {"layout-defaults", "爆炸图基准圆的图层", kInteger, "1", Layout<&DefaultManager::explodedCircleLayer>},
    {"layout-defaults", "材料图基准圆的图层", kInteger, "1", Layout<&DefaultManager::materialCircleLayer>},
    {"layout-defaults", "标准件基准圆的图层", kInteger, "1", Layout<&DefaultManager::standardCircleLayer>},
    {"layout-defaults", "基准圆的颜色", kInteger, "1", Layout<&DefaultManager::circleColor>},
    {"layout-defaults", "基准圆的标准直径", kNumber, "0.2", Layout<&DefaultManager::circleDiameter>},
    {"layout-defaults", "视图间距与图纸长度的比例", kNumber, "0.2", Layout<&DefaultManager::viewGapRatio>},
    {"layout-defaults", "视图外框与视图的距离", kNumber, "0.05", Layout<&DefaultManager::viewBoxMargin>},
    {"layout-defaults", "视图外框的颜色", kInteger, "1", Layout<&DefaultManager::viewBoxColor>},
    {"layout-defaults", "材料图俯视图外框的图层", kInteger, "1", Layout<&DefaultManager::materialTopBoxLayer>},
    {"layout-defaults", "材料图主视图外框的图层", kInteger, "1", Layout<&DefaultManager::materialFrontBoxLayer>},
    {"layout-defaults", "材料图左视图外框的图层", kInteger, "1", Layout<&DefaultManager::materialLeftBoxLayer>},
    {"layout-defaults", "标准件俯视图外框的图层", kInteger, "1", Layout<&DefaultManager::standardTopBoxLayer>},
    {"layout-defaults", "标准件主视图外框的图层", kInteger, "1", Layout<&DefaultManager::standardFrontBoxLayer>},
    {"layout-defaults", "标准件左视图外框的图层", kInteger, "1", Layout<&DefaultManager::standardLeftBoxLayer>},
    {"layout-defaults", "穿丝孔的图层", kInteger, "1", Layout<&DefaultManager::wireHoleLayer>},
    {"layout-defaults", "穿丝孔的颜色", kInteger, "1", Layout<&DefaultManager::wireHoleColor>},
    {"layout-defaults", "大槽小槽的分割尺寸", kNumber, "20", Layout<&DefaultManager::slotSplitSize>},
    {"layout-defaults", "大穿丝孔直径", kNumber, "1", Layout<&DefaultManager::largeWireHoleDiameter>},
    {"layout-defaults", "小穿丝孔直径", kNumber, "0.5", Layout<&DefaultManager::smallWireHoleDiameter>},
    {"layout-defaults", "代号左上角交点X坐标所占图纸长度的比例", kNumber, "0.2", Layout<&DefaultManager::codeXRatio>},
    {"layout-defaults", "代号左上角交点Y坐标所占图纸高度的比例", kNumber, "0.8", Layout<&DefaultManager::codeYRatio>},
    {"layout-defaults", "代号注释的样式", kStyle, kDefaultStyle, Layout<&DefaultManager::codeStyle>},
    {"layout-defaults", "特征代号注释角度", kNumber, "0.2", Layout<&DefaultManager::featureCodeAngle>},
    {"layout-defaults", "特征代号注释距离比例", kNumber, "0.8", Layout<&DefaultManager::featureCodeDistanceRatio>},
    {"layout-defaults", "特征代号注释的样式", kStyle, kDefaultStyle, Layout<&DefaultManager::featureCodeStyle>},
    {"layout-defaults", "加工要求左上角交点X坐标所占图纸长度的比例-大图", kNumber, "0.2", Layout<&DefaultManager::processXRatioLarge>},
    {"layout-defaults", "加工要求左上角交点Y坐标所占图纸高度的比例-大图", kNumber, "0.8", Layout<&DefaultManager::processYRatioLarge>},
    {"layout-defaults", "加工要求左上角交点X坐标所占图纸长度的比例-小图", kNumber, "0.2", Layout<&DefaultManager::processXRatioSmall>},
    {"layout-defaults", "加工要求左上角交点Y坐标所占图纸高度的比例-小图", kNumber, "0.8", Layout<&DefaultManager::processYRatioSmall>},
    {"layout-defaults", "加工要求注释的样式", kStyle, kDefaultStyle, Layout<&DefaultManager::processStyle>},
    {"layout-defaults", "属性注释左上角交点X坐标所占图纸长度的比例-大图", kNumber, "0.2", Layout<&DefaultManager::attributeXRatioLarge>},
    {"layout-defaults", "属性注释左上角交点Y坐标所占图纸高度的比例-大图", kNumber, "0.8", Layout<&DefaultManager::attributeYRatioLarge>},
    {"layout-defaults", "属性注释左上角交点X坐标所占图纸长度的比例-小图", kNumber, "0.2", Layout<&DefaultManager::attributeXRatioSmall>},
    {"layout-defaults", "属性注释左上角交点Y坐标所占图纸高度的比例-小图", kNumber, "0.8", Layout<&DefaultManager::attributeYRatioSmall>},
    {"layout-defaults", "属性注释的样式", kStyle, kDefaultStyle, Layout<&DefaultManager::attributeStyle>},
    {"layout-defaults", "改模注释左上角交点X坐标所占图纸长度的比例-大图", kNumber, "0.2", Layout<&DefaultManager::modifyXRatioLarge>},
    {"layout-defaults", "改模注释左上角交点Y坐标所占图纸高度的比例-大图", kNumber, "0.8", Layout<&DefaultManager::modifyYRatioLarge>},
    {"layout-defaults", "改模注释左上角交点X坐标所占图纸长度的比例-小图", kNumber, "0.2", Layout<&DefaultManager::modifyXRatioSmall>},
    {"layout-defaults", "改模注释左上角交点Y坐标所占图纸高度的比例-小图", kNumber, "0.8", Layout<&DefaultManager::modifyYRatioSmall>},
    {"layout-defaults", "改模注释的样式", kStyle, kDefaultStyle, Layout<&DefaultManager::modifyStyle>},
    {"layout-defaults", "球标顶边距", kNumber, "0.95", Layout<&DefaultManager::ballMarkTopMargin>},
    {"layout-defaults", "球标底边距", kNumber, "0.05", Layout<&DefaultManager::ballMarkBottomMargin>},
    {"layout-defaults", "球标基准圆直径", kNumber, "10", Layout<&DefaultManager::ballMarkDiameter>},
    {"layout-defaults", "文字与外圆的比例", kNumber, "0.8", Layout<&DefaultManager::ballMarkTextRatio>},
    {"layout-defaults", "球标所在图层", kInteger, "1", Layout<&DefaultManager::ballMarkLayer>},
    {"layout-defaults", "线条颜色", kInteger, "1", Layout<&DefaultManager::ballMarkLineColor>},
    {"layout-defaults", "球标文字的样式", kStyle, kDefaultStyle, Layout<&DefaultManager::ballMarkStyle>},
    // Custom settings.
    {"custom-settings", "爆炸图间距", kNumber, "5000", Custom<&CustomDefault::GetNormalInfo, &CustomDefault::NormalInfo::explodedViewGap>},
    {"custom-settings", "爆炸图-分图间距", kNumber, "2000", Custom<&CustomDefault::GetNormalInfo, &CustomDefault::NormalInfo::explodedSubSheetGap>},
    {"custom-settings", "分图间距", kNumber, "200", Custom<&CustomDefault::GetNormalInfo, &CustomDefault::NormalInfo::subSheetGap>},
    {"custom-settings", "大图临界值", kNumber, "300", Custom<&CustomDefault::GetNormalInfo, &CustomDefault::NormalInfo::largeSheetThreshold>},
    {"custom-settings", "大图-视图间距比例", kNumber, "0.6", Custom<&CustomDefault::GetNormalInfo, &CustomDefault::NormalInfo::largeSheetViewGapRatio>},
    {"custom-settings", "爆炸图-左边距", kNumber, "0.2", Custom<&CustomDefault::GetMainSheetInfo, &CustomDefault::MainSheetInfo::leftMargin>},
    {"custom-settings", "爆炸图-顶边距", kNumber, "0.2", Custom<&CustomDefault::GetMainSheetInfo, &CustomDefault::MainSheetInfo::topMargin>},
    {"custom-settings", "爆炸图-视图图组尺寸与图框尺寸比例", kNumber, "0.6", Custom<&CustomDefault::GetMainSheetInfo, &CustomDefault::MainSheetInfo::viewGroupRatio>},
    {"custom-settings", "分图-左边距", kNumber, "0.1", Custom<&CustomDefault::GetSubSheetInfo, &CustomDefault::SubSheetInfo::leftMargin>},
    {"custom-settings", "分图-顶边距", kNumber, "0.1", Custom<&CustomDefault::GetSubSheetInfo, &CustomDefault::SubSheetInfo::topMargin>},
    {"custom-settings", "分图-视图图组尺寸与图框尺寸比例", kNumber, "0.5", Custom<&CustomDefault::GetSubSheetInfo, &CustomDefault::SubSheetInfo::viewGroupRatio>},
    {"custom-settings", "分图-视图间距比例", kNumber, "0.05", Custom<&CustomDefault::GetSubSheetInfo, &CustomDefault::SubSheetInfo::viewGapRatio>},
    {"custom-settings", "加工注解-左边距-横版布局", kNumber, "0.75", Custom<&CustomDefault::GetMachineInfo, &CustomDefault::MachineInfo::leftMarginLandscape>},
    {"custom-settings", "加工注解-顶边距-横版布局", kNumber, "0.1", Custom<&CustomDefault::GetMachineInfo, &CustomDefault::MachineInfo::topMarginLandscape>},
    {"custom-settings", "加工注解-左边距-竖版布局", kNumber, "0.1", Custom<&CustomDefault::GetMachineInfo, &CustomDefault::MachineInfo::leftMarginPortrait>},
    {"custom-settings", "加工注解-顶边距-竖版布局", kNumber, "0.75", Custom<&CustomDefault::GetMachineInfo, &CustomDefault::MachineInfo::topMarginPortrait>},
    {"custom-settings", "加工注解-分行线图层", kInteger, "1", Custom<&CustomDefault::GetMachineInfo, &CustomDefault::MachineInfo::separatorLayer>},
    {"custom-settings", "加工注解-注解图层", kInteger, "1", Custom<&CustomDefault::GetMachineInfo, &CustomDefault::MachineInfo::noteLayer>},
    {"custom-settings", "加工注解-分行线颜色", kInteger, "1", Custom<&CustomDefault::GetMachineInfo, &CustomDefault::MachineInfo::separatorColor>},
    {"custom-settings", "加工注解-注解样式", kStyle, kDefaultStyle, Custom<&CustomDefault::GetMachineInfo, &CustomDefault::MachineInfo::noteStyle>},
    {"custom-settings", "材料信息-图层", kInteger, "1", Custom<&CustomDefault::GetMaterialInfo, &CustomDefault::MaterialInfo::layer>},
    {"custom-settings", "材料信息-样式", kStyle, kDefaultStyle, Custom<&CustomDefault::GetMaterialInfo, &CustomDefault::MaterialInfo::style>},
    {"custom-settings", "特征代号-注解角度", kNumber, "45", Custom<&CustomDefault::GetFeatureMarkInfo, &CustomDefault::FeatureMarkInfo::angle>},
    {"custom-settings", "特征代号-注解距离比例", kNumber, "0.05", Custom<&CustomDefault::GetFeatureMarkInfo, &CustomDefault::FeatureMarkInfo::distanceRatio>},
    {"custom-settings", "特征代号-注解图层", kInteger, "1", Custom<&CustomDefault::GetFeatureMarkInfo, &CustomDefault::FeatureMarkInfo::layer>},
    {"custom-settings", "特征代号-注解样式", kStyle, kDefaultStyle, Custom<&CustomDefault::GetFeatureMarkInfo, &CustomDefault::FeatureMarkInfo::style>},
    {"custom-settings", "分图代号-左边距", kNumber, "0.05", Custom<&CustomDefault::GetSubSheetMarkInfo, &CustomDefault::SubSheetMarkInfo::leftMargin>},
    {"custom-settings", "分图代号-顶边距", kNumber, "0.05", Custom<&CustomDefault::GetSubSheetMarkInfo, &CustomDefault::SubSheetMarkInfo::topMargin>},
    {"custom-settings", "分图代号-注解图层", kInteger, "1", Custom<&CustomDefault::GetSubSheetMarkInfo, &CustomDefault::SubSheetMarkInfo::layer>},
    {"custom-settings", "分图代号-注解样式", kStyle, kDefaultStyle, Custom<&CustomDefault::GetSubSheetMarkInfo, &CustomDefault::SubSheetMarkInfo::style>},
    {"custom-settings", "球标-底边距", kNumber, "0.8", Custom<&CustomDefault::GetBallMarkInfo, &CustomDefault::BallMarkInfo::bottomMargin>},
    {"custom-settings", "球标-顶边距", kNumber, "0.2", Custom<&CustomDefault::GetBallMarkInfo, &CustomDefault::BallMarkInfo::topMargin>},
    {"custom-settings", "球标-圆圈直径", kNumber, "12", Custom<&CustomDefault::GetBallMarkInfo, &CustomDefault::BallMarkInfo::circleDiameter>},
    {"custom-settings", "球标-文字大小与圆圈直径的比例", kNumber, "0.8", Custom<&CustomDefault::GetBallMarkInfo, &CustomDefault::BallMarkInfo::textToCircleRatio>},
    {"custom-settings", "球标-注解图层", kInteger, "1", Custom<&CustomDefault::GetBallMarkInfo, &CustomDefault::BallMarkInfo::layer>},
    {"custom-settings", "球标-引线颜色", kInteger, "1", Custom<&CustomDefault::GetBallMarkInfo, &CustomDefault::BallMarkInfo::leaderColor>},
    {"custom-settings", "球标-注解样式", kStyle, kDefaultStyle, Custom<&CustomDefault::GetBallMarkInfo, &CustomDefault::BallMarkInfo::style>},
    // Threading holes and chamfers.
    {"thread-hole-chamfer", "穿线孔-槽类型分割尺寸", kNumber, "20", Custom<&CustomDefault::GetThreadingHoleInfo, &CustomDefault::ThreadingHoleInfo::slotSplitSize>},
    {"thread-hole-chamfer", "穿线孔-槽的颜色", kFilledList, "", Custom<&CustomDefault::GetThreadingHoleInfo, &CustomDefault::ThreadingHoleInfo::slotColors>},
    {"thread-hole-chamfer", "穿线孔-孔的颜色", kFilledList, "", Custom<&CustomDefault::GetThreadingHoleInfo, &CustomDefault::ThreadingHoleInfo::holeColors>},
    {"thread-hole-chamfer", "特小异性槽-距边的长度", kNumber, "1", Custom<&CustomDefault::GetThreadingHoleInfo, &CustomDefault::ThreadingHoleInfo::smallSlotEdgeDistance>},
    {"thread-hole-chamfer", "穿线孔-画穿线孔中心的直径", kNumber, "1", Custom<&CustomDefault::GetThreadingHoleInfo, &CustomDefault::ThreadingHoleInfo::centerDiameter>},
    {"thread-hole-chamfer", "穿线孔-距边的长度", kNumber, "3", Custom<&CustomDefault::GetThreadingHoleInfo, &CustomDefault::ThreadingHoleInfo::edgeDistance>},
    {"thread-hole-chamfer", "穿线孔-图层", kInteger, "1", Custom<&CustomDefault::GetThreadingHoleInfo, &CustomDefault::ThreadingHoleInfo::layer>},
    {"thread-hole-chamfer", "穿线孔-颜色", kInteger, "1", Custom<&CustomDefault::GetThreadingHoleInfo, &CustomDefault::ThreadingHoleInfo::color>},
    {"thread-hole-chamfer", "R角标注-注解距离比例", kNumber, "0.5", Custom<&CustomDefault::GetCharmferBlendInfo, &CustomDefault::CharmferBlendInfo::noteDistanceRatio>},
    {"thread-hole-chamfer", "R角标注-注解图层", kInteger, "1", Custom<&CustomDefault::GetCharmferBlendInfo, &CustomDefault::CharmferBlendInfo::noteLayer>},
    {"thread-hole-chamfer", "R角标注-精度", kInteger, "2", Custom<&CustomDefault::GetCharmferBlendInfo, &CustomDefault::CharmferBlendInfo::precision>},
    {"thread-hole-chamfer", "C角X方向最大值", kNumber, "10", Custom<&CustomDefault::GetCharmferBlendInfo, &CustomDefault::CharmferBlendInfo::chamferMaxX>},
    {"thread-hole-chamfer", "C角Y方向最大值", kNumber, "10", Custom<&CustomDefault::GetCharmferBlendInfo, &CustomDefault::CharmferBlendInfo::chamferMaxY>},
    {"thread-hole-chamfer", "R角标注-注解样式", kStyle, kDefaultStyle, Custom<&CustomDefault::GetCharmferBlendInfo, &CustomDefault::CharmferBlendInfo::noteStyle>},
    // system-settings.
    {"system-settings", "图框的图层", kInteger, "1", System<&SystemDefault::frameLayer>},
    {"system-settings", "图框的颜色", kInteger, "1", System<&SystemDefault::frameColor>},
    {"system-settings", "爆炸图基准圆的图层", kInteger, "1", System<&SystemDefault::explodedDatumCircleLayer>},
    {"system-settings", "材料图基准圆的图层", kInteger, "1", System<&SystemDefault::materialDatumCircleLayer>},
    {"system-settings", "标准件基准圆的图层", kInteger, "1", System<&SystemDefault::standardPartDatumCircleLayer>},
    {"system-settings", "基准圆的颜色", kInteger, "1", System<&SystemDefault::datumCircleColor>},
    {"system-settings", "基准圆的标准直径", kNumber, "0.2", System<&SystemDefault::datumCircleDiameter>},
    {"system-settings", "视图外框与视图的距离", kNumber, "0.05", System<&SystemDefault::viewFrameGap>},
    {"system-settings", "视图外框的颜色", kInteger, "1", System<&SystemDefault::viewFrameColor>},
    {"system-settings", "材料图俯视图外框的图层", kInteger, "1", System<&SystemDefault::materialTopFrameLayer>},
    {"system-settings", "材料图主视图外框的图层", kInteger, "1", System<&SystemDefault::materialFrontFrameLayer>},
    {"system-settings", "材料图左视图外框的图层", kInteger, "1", System<&SystemDefault::materialLeftFrameLayer>},
    {"system-settings", "标准件俯视图外框的图层", kInteger, "1", System<&SystemDefault::standardPartTopFrameLayer>},
    {"system-settings", "标准件主视图外框的图层", kInteger, "1", System<&SystemDefault::standardPartFrontFrameLayer>},
    {"system-settings", "标准件左视图外框的图层", kInteger, "1", System<&SystemDefault::standardPartLeftFrameLayer>},
    {"system-settings", "图层注释偏置比例", kNumber, "0.5", System<&SystemDefault::layerNoteOffsetRatio>},
    {"system-settings", "图层注释标准字体大小", kNumber, "8", System<&SystemDefault::layerNoteFontSize>},
    {"system-settings", "CAD打开方式", kInteger, "0", System<&SystemDefault::cadOpenMode>},
    {"system-settings", "CAD路径", kText, "", System<&SystemDefault::cadPath>},
    {"system-settings", "出图的路径", kText, "", System<&SystemDefault::dwgOutputFolder>},
    {"system-settings", "下划线与注释长度的比例", kNumber, "0.8", System<&SystemDefault::underlineRatio>},
    {"system-settings", "竖直布局时每列加工注释的最大行数", kInteger, "10", System<&SystemDefault::maxNoteRowsPerColumn>},
    {"system-settings", "孔数量", kInteger, "50", System<&SystemDefault::holeCountThreshold>},
    {"system-settings", "当孔的数量大于孔数量的值时代号注释字体大小与代号注释的比例", kNumber, "0.3", System<&SystemDefault::manyHolesCodeFontRatio>},
    {"system-settings", "大槽小槽的分割尺寸", kNumber, "20", System<&SystemDefault::slotSplitSize>},
    {"system-settings", "创建球标代号", kNoIfN, "Y", System<&SystemDefault::createBalloonCode>},
    {"system-settings", "穿线孔到边的距离", kNumber, "5", System<&SystemDefault::threadHoleEdgeDistance>},
    {"system-settings", "特征代号数量_控制特征文字", kTexts, "", System<&SystemDefault::featureCountsForFeatureText>},
    {"system-settings", "特征文字比例", kTexts, "", System<&SystemDefault::featureTextRatios>},
    {"system-settings", "特征代号数量_控制加工注解", kTexts, "", System<&SystemDefault::featureCountsForProcessNote>},
    {"system-settings", "加工注解文字比例", kTexts, "", System<&SystemDefault::processNoteTextRatios>},
    {"system-settings", "转图完成提示文字", kTexts, "", System<&SystemDefault::finishMessages>},
    {"system-settings", "边框偏置距离", kNumber, "0", System<&SystemDefault::borderOffset>},
    {"system-settings", "边框线颜色", kInteger, "1", System<&SystemDefault::borderLineColor>},
    {"system-settings", "边框线图层", kInteger, "1", System<&SystemDefault::borderLineLayer>},
    {"system-settings", "是否设置制图曲线颜色", kYesIfUpperY, "N", System<&SystemDefault::setDrawingCurveColor>},
    {"system-settings", "视图精度", kNumber, "0.005", System<&SystemDefault::viewPrecision>},
    {"system-settings", "CAD注册表字段名称", kTexts, "", System<&SystemDefault::cadRegistryValueNames>},
    {"system-settings", "CAD注册表路径", kTexts, "", System<&SystemDefault::cadRegistryPaths>},
    {"system-settings", "UG导出CAD弹出没有DOC时间", kIntegerOrEmpty, "5", System<&SystemDefault::noDocWaitTime>},
    {"system-settings", "CAD转换版本", kIntegerOrEmpty, "9", System<&SystemDefault::cadVersion>},
    // texts.
    {"texts", "外形注解", kFilledTexts, "", System<&SystemDefault::outlineNotes>},
    {"texts", "代号文字", kText, "", System<&SystemDefault::codeText>},
    {"texts", "加工说明文字", kText, "加工说明:", System<&SystemDefault::processNoteTitle>},
    {"texts", "材料信息文字", kTexts, "", System<&SystemDefault::materialInfoTexts>},
    {"texts", "图框信息文字", kTexts, "", System<&SystemDefault::frameInfoTexts>},
    {"texts", "注解与线之间的间距比例", kNumber, "0.5", System<&SystemDefault::noteLineGapRatio>},
    {"texts", "列之间的距离比例", kNumber, "0.3", System<&SystemDefault::columnGapRatio>},
    {"texts", "第三视角转图", kYesIfY, "Y", System<&SystemDefault::thirdAngleProjection>},
    // layers.
    {"layers", "出二个视图的图层", kNonZeroList, "", System<&SystemDefault::twoViewLayers>},
    {"layers", "不放球标的图层", kNonZeroList, "", System<&SystemDefault::noBallMarkLayers>},
    {"layers", "不出分图的图层", kNonZeroList, "", System<&SystemDefault::noSubSheetLayers>},
    {"layers", "标准件的图层", kNonZeroList, "", System<&SystemDefault::standardPartLayers>},
    {"layers", "模板图层", kLayerList, "", System<&SystemDefault::templateLayers>},
    // connect-string.
    {"connect-string", "连接字符", kText, "", System<&SystemDefault::connectString>},
    {"connect-string", "是否导出图层代号", kNoIfUpperN, "Y", System<&SystemDefault::exportLayerCode>},
    // triangle-symbol.
    {"triangle-symbol", "三角符号-颜色", kInteger, "78", System<&SystemDefault::triangleColor>},
    {"triangle-symbol", "三角符号-图层", kInteger, "200", System<&SystemDefault::triangleLayer>},
    {"triangle-symbol", "三角符号-线型", kInteger, "0", System<&SystemDefault::triangleLineFont>},
    {"triangle-symbol", "三角符号-比例", kNumber, "0.25", System<&SystemDefault::triangleScale>},
    {"triangle-symbol", "三角符号-面颜色标准", kTriangleList, "12,6", System<&SystemDefault::triangleFaceColors>},
    // replace-content.
    {"replace-content", "替换内容-板长度", kNumber, "300", System<&SystemDefault::replacePlateLength>},
    // bom.
    {"bom", "密度(g/cm)", kNumber, "0", System<&SystemDefault::density>},
    {"dwg-folder", "出图的路径", kText, "", System<&SystemDefault::dwgOutputFolder>},
};
// clang-format on

}  // namespace

std::span<const StatedKey> StatedKeys() {
  return kStatedKeys;
}

}  // namespace plateconfig::test
