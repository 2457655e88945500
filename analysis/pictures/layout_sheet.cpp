#include "analysis/pictures/layout_sheet.h"

#include "analysis/pictures/sheet_words.h"

namespace plateconfig {
namespace {

using Layout = DefaultManager;
using NumberField = double Layout::*;
using IntField = int Layout::*;
using StyleField = Layout::NoteStyle Layout::*;

struct PlaceFields {
  NumberField x;
  NumberField y;
};

/// A note with its upper left corner, which differs between large and small sheets for most.
struct Note {
  Words label;
  PlaceFields large;
  PlaceFields small;
  StyleField style;
};

constexpr Note kNotes[] = {
    {{"code", "代号"},
     {&Layout::codeXRatio, &Layout::codeYRatio},
     {&Layout::codeXRatio, &Layout::codeYRatio},
     &Layout::codeStyle},
    {{"process note", "加工要求"},
     {&Layout::processXRatioLarge, &Layout::processYRatioLarge},
     {&Layout::processXRatioSmall, &Layout::processYRatioSmall},
     &Layout::processStyle},
    {{"attribute note", "属性注释"},
     {&Layout::attributeXRatioLarge, &Layout::attributeYRatioLarge},
     {&Layout::attributeXRatioSmall, &Layout::attributeYRatioSmall},
     &Layout::attributeStyle},
    {{"mould-change note", "改模注释"},
     {&Layout::modifyXRatioLarge, &Layout::modifyYRatioLarge},
     {&Layout::modifyXRatioSmall, &Layout::modifyYRatioSmall},
     &Layout::modifyStyle},
};

struct Circle {
  Words what;
  Words why;
  NumberField diameter;
  IntField color;
  IntField layer;
};

constexpr Circle kCircles[] = {
    {names::kExplodedCircle, reasons::kNoPlace, &Layout::circleDiameter, &Layout::circleColor,
     &Layout::explodedCircleLayer},
    {names::kMaterialCircle, reasons::kNoPlace, &Layout::circleDiameter, &Layout::circleColor,
     &Layout::materialCircleLayer},
    {names::kStandardPartCircle, reasons::kNoPlace, &Layout::circleDiameter, &Layout::circleColor,
     &Layout::standardCircleLayer},
    {{"large wire-threading hole", "大穿丝孔"},
     reasons::kPlate,
     &Layout::largeWireHoleDiameter,
     &Layout::wireHoleColor,
     &Layout::wireHoleLayer},
    {{"small wire-threading hole", "小穿丝孔"},
     reasons::kPlate,
     &Layout::smallWireHoleDiameter,
     &Layout::wireHoleColor,
     &Layout::wireHoleLayer},
};

struct Length {
  Words what;
  Words why;
  NumberField length;
};

constexpr Length kLengths[] = {
    {{"spacing between layers", "图层间距"}, reasons::kNoDirection, &Layout::layerSpacing},
    {{"gap between the frames of one layer", "同一图层图框的间距"},
     reasons::kNoDirection,
     &Layout::sameLayerFrameGap},
    {{"gap between exploded view and sub-sheets", "爆炸图和分图图框的间距"},
     reasons::kNoDirection,
     &Layout::explodedSubSheetFrameGap},
    {{"size that separates large from small sheets", "大图小图的分割尺寸"},
     reasons::kNothingCompared,
     &Layout::sheetSplitSize},
};

class LayoutDrawing {
 public:
  LayoutDrawing(const SheetSettings& settings, const SheetQuestion& question)
      : settings_(settings),
        question_(question),
        builder_("layout-defaults", {"layout defaults", "布局默认值"}, question.paper) {}

  Sheet Draw() {
    builder_.AddFrame(settings_.Of(&Layout::frameColor), settings_.Of(&Layout::frameLayer));
    AddTopView();
    for (const Note& note : kNotes) AddNote(note);
    for (std::size_t i = 0; i < settings_.CountOf(&Layout::BomAttrInfo::xRatio); ++i) AddHeaderColumn(i);
    AddViews();
    for (const Circle& circle : kCircles) AddCircle(circle);
    AddFeatureCode();
    AddBallMark();
    for (const Length& length : kLengths) AddLength(length);
    return builder_.Take();
  }

 private:
  void AddTopView() {
    SheetPart corner = PartOf(PartKind::kPoint, {"upper left corner of the top view", "俯视图左上角"});
    corner.isTopLeft = true;
    builder_.AddAtShares(std::move(corner), settings_.Of(&Layout::topViewXRatio),
                         settings_.Of(&Layout::topViewYRatio));
  }

  void AddNote(const Note& note) {
    const PlaceFields& place = question_.size == SheetSize::kLarge ? note.large : note.small;
    const SheetSetting style = settings_.Of(note.style);
    const SheetSetting layer = settings_.Of(&Layout::noteLayer);
    SheetPart part = PartOf(PartKind::kText, note.label);
    part.isTopLeft = true;
    part.text = style.Style();
    part.layer = layer.Integer();
    part.keys = KeysOf({style, layer});
    builder_.AddAtShares(std::move(part), settings_.Of(place.x), settings_.Of(place.y));
  }

  void AddHeaderColumn(std::size_t index) {
    using Column = Layout::BomAttrInfo;
    const SheetSetting style = settings_.Of(&Column::style, index);
    const SheetSetting caption = settings_.Of(&Column::displayName, index);
    const SheetSetting attribute = settings_.Of(&Column::attrName, index);
    const SheetSetting layer = settings_.Of(&Layout::headerNoteLayer);
    SheetPart part = PartOf(PartKind::kText, {"column of the bill of materials' header", "材料表表头的一列"});
    part.text = style.Style();
    part.text.text = caption.Text();
    part.text.attribute = attribute.Text();
    part.layer = layer.Integer();
    part.assumes = {Assumption::kHeaderShares};
    part.keys = KeysOf({caption, attribute, style, layer});
    builder_.AddAtShares(std::move(part), settings_.Of(&Column::xRatio, index),
                         settings_.Of(&Column::yRatio, index));
  }

  void AddViews() {
    const SheetSetting length = settings_.Of(&Layout::viewsLengthRatio);
    const SheetSetting height = settings_.Of(&Layout::viewsHeightRatio);
    const SheetSetting gap = settings_.Of(&Layout::viewGapRatio);
    const SheetSetting color = settings_.Of(&Layout::viewBoxColor);
    builder_.AddUnknown(names::kViewGroup, reasons::kNoStart, {length, height},
                        RoomSpecimen(length.Number(), height.Number()));
    builder_.AddUnknown(names::kViewGap, reasons::kViews, {gap}, GapSpecimen(gap.Number()));
    builder_.AddUnknown(
        names::kViewBox, reasons::kNoUnit,
        {settings_.Of(&Layout::viewBoxMargin), color, settings_.Of(&Layout::materialTopBoxLayer),
         settings_.Of(&Layout::materialFrontBoxLayer), settings_.Of(&Layout::materialLeftBoxLayer),
         settings_.Of(&Layout::standardTopBoxLayer), settings_.Of(&Layout::standardFrontBoxLayer),
         settings_.Of(&Layout::standardLeftBoxLayer)},
        LineSpecimen(color, {}));
  }

  std::optional<Specimen> RoomSpecimen(double length, double height) const {
    if (!IsShare(length) || !IsShare(height)) return std::nullopt;
    const auto& [paperWidth, paperHeight] = question_.paper;
    return Specimen{SpecimenKind::kRectangle, length * paperWidth, height * paperHeight, {}, {}, {}};
  }

  std::optional<Specimen> GapSpecimen(double share) const {
    if (!IsShare(share)) return std::nullopt;
    return LengthSpecimen(share * question_.paper.width);
  }

  void AddCircle(const Circle& circle) {
    const SheetSetting diameter = settings_.Of(circle.diameter);
    const SheetSetting color = settings_.Of(circle.color);
    const SheetSetting layer = settings_.Of(circle.layer);
    builder_.AddUnknown(circle.what, circle.why, {diameter, color, layer},
                        CircleSpecimen(diameter, color, layer));
  }

  void AddFeatureCode() {
    const SheetSetting style = settings_.Of(&Layout::featureCodeStyle);
    builder_.AddUnknown(
        names::kFeatureCode, reasons::kPlate,
        {settings_.Of(&Layout::featureCodeAngle), settings_.Of(&Layout::featureCodeDistanceRatio), style},
        TextSpecimen(style.Style(), {}));
  }

  void AddBallMark() {
    const SheetSetting diameter = settings_.Of(&Layout::ballMarkDiameter);
    const SheetSetting color = settings_.Of(&Layout::ballMarkLineColor);
    const SheetSetting layer = settings_.Of(&Layout::ballMarkLayer);
    builder_.AddUnknown(
        names::kBallMark, reasons::kNoEdge,
        {settings_.Of(&Layout::ballMarkTopMargin), settings_.Of(&Layout::ballMarkBottomMargin), diameter,
         settings_.Of(&Layout::ballMarkTextRatio), color, layer, settings_.Of(&Layout::ballMarkStyle)},
        CircleSpecimen(diameter, color, layer));
  }

  void AddLength(const Length& length) {
    const SheetSetting setting = settings_.Of(length.length);
    builder_.AddUnknown(length.what, length.why, {setting}, LengthSpecimen(setting.Number()));
  }

  const SheetSettings& settings_;
  const SheetQuestion& question_;
  SheetBuilder builder_;
};

}  // namespace

Sheet LayoutSheet(const SheetSettings& settings, const SheetQuestion& question) {
  return LayoutDrawing(settings, question).Draw();
}

}  // namespace plateconfig
