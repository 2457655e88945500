#include "analysis/pictures/custom_sheets.h"

#include "analysis/pictures/sheet_words.h"

namespace plateconfig {
namespace {

using Normal = CustomDefault::NormalInfo;
using Main = CustomDefault::MainSheetInfo;
using Sub = CustomDefault::SubSheetInfo;
using Machine = CustomDefault::MachineInfo;
using Material = CustomDefault::MaterialInfo;
using FeatureMark = CustomDefault::FeatureMarkInfo;
using SubSheetMark = CustomDefault::SubSheetMarkInfo;
using BallMark = CustomDefault::BallMarkInfo;
using FrameText = CustomDefault::FrameInfo;

struct DatumCircle {
  Words what;
  int SystemDefault::*layer;
};

constexpr DatumCircle kDatumCircles[] = {
    {names::kExplodedCircle, &SystemDefault::explodedDatumCircleLayer},
    {names::kMaterialCircle, &SystemDefault::materialDatumCircleLayer},
    {names::kStandardPartCircle, &SystemDefault::standardPartDatumCircleLayer},
};

/// A share that gives no length.
struct Share {
  Words what;
  Words why;
  double SystemDefault::*share;
};

constexpr Share kShares[] = {
    {{"gap between note and line", "注解与线之间的间距"}, reasons::kNoBase, &SystemDefault::noteLineGapRatio},
    {{"distance between columns of notes", "各列注解之间的距离"},
     reasons::kNoBase,
     &SystemDefault::columnGapRatio},
    {{"length of an underline", "下划线的长度"}, reasons::kNote, &SystemDefault::underlineRatio},
};

class CustomDrawing {
 public:
  CustomDrawing(std::string_view name, const Words& title, const SheetSettings& settings,
                const SheetQuestion& question)
      : settings_(settings), paper_(question.paper), builder_(name, title, question.paper) {
    builder_.AddFrame(settings.Of(&SystemDefault::frameColor), settings.Of(&SystemDefault::frameLayer));
  }

  /// Where all views lie together.
  void AddViewGroup(const SheetSetting& left, const SheetSetting& top, const SheetSetting& share) {
    SheetPart group = PartOf(PartKind::kRectangle, names::kViewGroup);
    group.width = share.Number() * paper_.width;
    group.height = share.Number() * paper_.height;
    group.assumes = {Assumption::kViewGroup};
    group.keys = KeysOf({share});
    builder_.AddAtMargins(std::move(group), left, top);
  }

  void AddSubSheetCode() {
    const SheetSetting style = settings_.Of(&SubSheetMark::style);
    const SheetSetting layer = settings_.Of(&SubSheetMark::layer);
    SheetPart code = PartOf(PartKind::kText, {"code of the sub-sheet", "分图代号"});
    code.text = style.Style();
    code.layer = layer.Integer();
    code.keys = KeysOf({style, layer});
    builder_.AddAtMargins(std::move(code), settings_.Of(&SubSheetMark::leftMargin),
                          settings_.Of(&SubSheetMark::topMargin));
  }

  void AddLength(const Words& what, const Words& why, double Normal::*length) {
    const SheetSetting setting = settings_.Of(length);
    builder_.AddUnknown(what, why, {setting}, LengthSpecimen(setting.Number()));
  }

  void AddShare(const Words& what, const Words& why, const SheetSetting& share) {
    builder_.AddUnknown(what, why, {share});
  }

  /// What no table assigns to one of the sheets.
  Sheet WithTheRest() {
    AddMachiningNotes();
    for (std::size_t i = 0; i < settings_.CountOf(&FrameText::attrName); ++i) AddFrameText(i);
    for (const DatumCircle& circle : kDatumCircles) AddDatumCircle(circle);
    AddBallMark();
    AddNotes();
    AddLines();
    for (const Share& share : kShares) AddShare(share.what, share.why, settings_.Of(share.share));
    return builder_.Take();
  }

 private:
  void AddMachiningNotes() {
    SheetPart notes = PartOf(PartKind::kText, {"machining notes", "加工注解"});
    const SheetSetting title = settings_.Of(&SystemDefault::processNoteTitle);
    const SheetSetting style = settings_.Of(&Machine::noteStyle);
    const SheetSetting layer = settings_.Of(&Machine::noteLayer);
    notes.text = style.Style();
    notes.text.text = title.Text();
    notes.layer = layer.Integer();
    notes.assumes = {Assumption::kEverySheet};
    notes.keys = KeysOf({title, style, layer});
    const SheetSetting landscape[] = {settings_.Of(&Machine::leftMarginLandscape),
                                      settings_.Of(&Machine::topMarginLandscape)};
    const SheetSetting portrait[] = {settings_.Of(&Machine::leftMarginPortrait),
                                     settings_.Of(&Machine::topMarginPortrait)};
    if (paper_.width == paper_.height)
      return builder_.AddUnknown(notes.label, reasons::kSquare,
                                 {landscape[0], landscape[1], portrait[0], portrait[1], title, style, layer},
                                 TextSpecimen(notes.text, notes.layer));
    const auto& place = paper_.width > paper_.height ? landscape : portrait;
    builder_.AddAtMargins(std::move(notes), place[0], place[1]);
  }

  void AddFrameText(std::size_t index) {
    const SheetSetting attribute = settings_.Of(&FrameText::attrName, index);
    const SheetSetting style = settings_.Of(&FrameText::style, index);
    const SheetSetting layer = settings_.Of(&FrameText::layer, index);
    SheetPart text = PartOf(PartKind::kText, {"text of the frame", "图框信息"});
    text.text = style.Style();
    text.text.attribute = attribute.Text();
    text.layer = layer.Integer();
    text.assumes = {Assumption::kEverySheet};
    text.keys = KeysOf({attribute, style, layer});
    builder_.AddAtMargins(std::move(text), settings_.Of(&FrameText::leftMargin, index),
                          settings_.Of(&FrameText::topMargin, index));
  }

  void AddDatumCircle(const DatumCircle& circle) {
    const SheetSetting diameter = settings_.Of(&SystemDefault::datumCircleDiameter);
    const SheetSetting color = settings_.Of(&SystemDefault::datumCircleColor);
    const SheetSetting layer = settings_.Of(circle.layer);
    builder_.AddUnknown(circle.what, reasons::kNoPlace, {diameter, color, layer},
                        CircleSpecimen(diameter, color, layer));
  }

  void AddBallMark() {
    const SheetSetting diameter = settings_.Of(&BallMark::circleDiameter);
    const SheetSetting color = settings_.Of(&BallMark::leaderColor);
    const SheetSetting layer = settings_.Of(&BallMark::layer);
    builder_.AddUnknown(
        names::kBallMark, reasons::kNoEdge,
        {settings_.Of(&BallMark::bottomMargin), settings_.Of(&BallMark::topMargin), diameter,
         settings_.Of(&BallMark::textToCircleRatio), color, layer, settings_.Of(&BallMark::style)},
        CircleSpecimen(diameter, color, layer));
  }

  /// Texts whose place the plate or nothing decides.
  void AddNotes() {
    const SheetSetting material = settings_.Of(&Material::style);
    const SheetSetting materialLayer = settings_.Of(&Material::layer);
    builder_.AddUnknown({"material information", "材料信息"}, reasons::kNoPlace,
                        {material, materialLayer, settings_.Of(&SystemDefault::materialInfoTexts)},
                        TextSpecimen(material.Style(), materialLayer.Integer()));
    const SheetSetting feature = settings_.Of(&FeatureMark::style);
    const SheetSetting featureLayer = settings_.Of(&FeatureMark::layer);
    builder_.AddUnknown(
        names::kFeatureCode, reasons::kPlate,
        {settings_.Of(&FeatureMark::angle), settings_.Of(&FeatureMark::distanceRatio), feature, featureLayer},
        TextSpecimen(feature.Style(), featureLayer.Integer()));
    const SheetSetting layerNote = settings_.Of(&SystemDefault::layerNoteFontSize);
    builder_.AddUnknown({"layer note", "图层注释"}, reasons::kNoPlace,
                        {settings_.Of(&SystemDefault::layerNoteOffsetRatio), layerNote},
                        TextSpecimen({{}, {}, layerNote.Number(), {}}, {}));
    builder_.AddUnknown({"outline notes", "外形注解"}, reasons::kNoPlace,
                        {settings_.Of(&SystemDefault::outlineNotes)});
    builder_.AddUnknown({"texts of the frame", "图框信息文字"}, reasons::kWhichText,
                        {settings_.Of(&SystemDefault::frameInfoTexts)});
    builder_.AddUnknown({"text of a code", "代号文字"}, reasons::kWhichText,
                        {settings_.Of(&SystemDefault::codeText)});
  }

  void AddLines() {
    const SheetSetting separator = settings_.Of(&Machine::separatorColor);
    const SheetSetting separatorLayer = settings_.Of(&Machine::separatorLayer);
    builder_.AddUnknown({"lines between the rows of the machining notes", "加工注解的分行线"},
                        reasons::kNoPlace, {separator, separatorLayer},
                        LineSpecimen(separator, separatorLayer.Integer()));
    const SheetSetting border = settings_.Of(&SystemDefault::borderLineColor);
    const SheetSetting borderLayer = settings_.Of(&SystemDefault::borderLineLayer);
    builder_.AddUnknown({"border", "边框"}, reasons::kNoOffset,
                        {settings_.Of(&SystemDefault::borderOffset), border, borderLayer},
                        LineSpecimen(border, borderLayer.Integer()));
    const SheetSetting viewFrame = settings_.Of(&SystemDefault::viewFrameColor);
    builder_.AddUnknown(names::kViewBox, reasons::kNoUnit,
                        {settings_.Of(&SystemDefault::viewFrameGap), viewFrame,
                         settings_.Of(&SystemDefault::materialTopFrameLayer),
                         settings_.Of(&SystemDefault::materialFrontFrameLayer),
                         settings_.Of(&SystemDefault::materialLeftFrameLayer),
                         settings_.Of(&SystemDefault::standardPartTopFrameLayer),
                         settings_.Of(&SystemDefault::standardPartFrontFrameLayer),
                         settings_.Of(&SystemDefault::standardPartLeftFrameLayer)},
                        LineSpecimen(viewFrame, {}));
  }

  const SheetSettings& settings_;
  PaperSize paper_;
  SheetBuilder builder_;
};

}  // namespace

Sheet ExplodedViewSheet(const SheetSettings& settings, const SheetQuestion& question) {
  CustomDrawing drawing("exploded-view", {"exploded view", "爆炸图"}, settings, question);
  drawing.AddViewGroup(settings.Of(&Main::leftMargin), settings.Of(&Main::topMargin),
                       settings.Of(&Main::viewGroupRatio));
  drawing.AddLength({"spacing of exploded views", "爆炸图间距"}, reasons::kNoDirection,
                    &Normal::explodedViewGap);
  drawing.AddLength({"spacing between exploded view and sub-sheets", "爆炸图与分图的间距"},
                    reasons::kNoDirection, &Normal::explodedSubSheetGap);
  return drawing.WithTheRest();
}

Sheet SubSheet(const SheetSettings& settings, const SheetQuestion& question) {
  CustomDrawing drawing("sub-sheet", {"sub-sheet", "分图"}, settings, question);
  drawing.AddViewGroup(settings.Of(&Sub::leftMargin), settings.Of(&Sub::topMargin),
                       settings.Of(&Sub::viewGroupRatio));
  drawing.AddSubSheetCode();
  drawing.AddLength({"spacing between sub-sheets", "分图间距"}, reasons::kNoDirection, &Normal::subSheetGap);
  drawing.AddLength({"size from which a sheet is large", "大图临界值"}, reasons::kNothingCompared,
                    &Normal::largeSheetThreshold);
  const bool isLarge = question.size == SheetSize::kLarge;
  drawing.AddShare(names::kViewGap, reasons::kNoBase,
                   isLarge ? settings.Of(&Normal::largeSheetViewGapRatio) : settings.Of(&Sub::viewGapRatio));
  return drawing.WithTheRest();
}

}  // namespace plateconfig
