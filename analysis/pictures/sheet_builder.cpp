#include "analysis/pictures/sheet_builder.h"

#include <cmath>

#include "analysis/pictures/sheet_words.h"

namespace plateconfig {
namespace {

bool FitsOn(const SheetPart& part, const PaperSize& paper) {
  return IsShare(part.width / paper.width) && IsShare(part.height / paper.height);
}

/// What is known of a part that has no place.
std::optional<Specimen> SpecimenOf(const SheetPart& part, const PaperSize& paper) {
  if (part.kind == PartKind::kText) return TextSpecimen(part.text, part.layer);
  if (part.kind == PartKind::kPoint || !FitsOn(part, paper)) return std::nullopt;
  return Specimen{SpecimenKind::kRectangle, part.width, part.height, {}, part.color, part.layer};
}

/// Why a part has no place; nothing when it has one.
std::optional<Words> WhyUnplaced(const SheetPart& part, const PaperSize& paper, double x, double y) {
  // A size that is no number is in the place.
  if (!std::isfinite(part.x) || !std::isfinite(part.y)) return reasons::kNoNumber;
  if (!FitsOn(part, paper)) return reasons::kNoSize;
  if (!IsShare(x) || !IsShare(y)) return reasons::kOutside;
  return std::nullopt;
}

}  // namespace

bool IsShare(double value) {
  return value >= 0 && value <= 1;
}

SheetPart PartOf(PartKind kind, const Words& label) {
  SheetPart part;
  part.kind = kind;
  part.label = label;
  return part;
}

std::vector<SheetKey> KeysOf(const std::vector<SheetSetting>& settings) {
  std::vector<SheetKey> keys;
  keys.reserve(settings.size());
  for (const SheetSetting& setting : settings) keys.push_back(setting.key);
  return keys;
}

Specimen TextSpecimen(SheetText text, std::optional<int> layer) {
  return {SpecimenKind::kText, 0, 0, std::move(text), {}, layer};
}

Specimen CircleSpecimen(const SheetSetting& diameter, const SheetSetting& color, const SheetSetting& layer) {
  return {SpecimenKind::kCircle, diameter.Number(), 0, {}, color.Integer(), layer.Integer()};
}

Specimen LengthSpecimen(double length) {
  return {SpecimenKind::kLength, length, 0, {}, {}, {}};
}

Specimen LineSpecimen(const SheetSetting& color, std::optional<int> layer) {
  return {SpecimenKind::kLine, 0, 0, {}, color.Integer(), layer};
}

void SheetBuilder::AddFrame(const SheetSetting& color, const SheetSetting& layer) {
  SheetPart frame = PartOf(PartKind::kRectangle, {"frame", "图框"});
  frame.width = paper_.width;
  frame.height = paper_.height;
  frame.color = color.Integer();
  frame.layer = layer.Integer();
  frame.assumes = {Assumption::kPaper, Assumption::kFrame};
  frame.keys = KeysOf({color, layer});
  sheet_.parts.push_back(std::move(frame));
}

void SheetBuilder::AddAtShares(SheetPart part, const SheetSetting& x, const SheetSetting& y) {
  part.x = x.Number() * paper_.width;
  part.y = y.Number() * paper_.height;
  part.assumes.insert(part.assumes.begin(), {Assumption::kPaper, Assumption::kOrigin});
  Add(std::move(part), x, y);
}

void SheetBuilder::AddAtMargins(SheetPart part, const SheetSetting& left, const SheetSetting& top) {
  part.isTopLeft = part.kind == PartKind::kText;
  part.x = left.Number() * paper_.width;
  part.y = (1 - top.Number()) * paper_.height - part.height;
  part.assumes.insert(part.assumes.begin(), {Assumption::kPaper, Assumption::kMargins});
  Add(std::move(part), left, top);
}

void SheetBuilder::AddUnknown(const Words& what, const Words& why, const std::vector<SheetSetting>& settings,
                              std::optional<Specimen> specimen) {
  sheet_.unknown.push_back({what, why, std::move(specimen), KeysOf(settings)});
}

void SheetBuilder::Add(SheetPart part, const SheetSetting& x, const SheetSetting& y) {
  part.keys.insert(part.keys.begin(), {x.key, y.key});
  if (part.kind == PartKind::kText) part.assumes.push_back(Assumption::kTextSize);
  const auto why = WhyUnplaced(part, paper_, x.Number(), y.Number());
  if (!why) return sheet_.parts.push_back(std::move(part));
  sheet_.unknown.push_back({part.label, *why, SpecimenOf(part, paper_), std::move(part.keys)});
}

}  // namespace plateconfig
