#include "analysis/pictures/sheet_builder.h"

#include <cmath>

#include "analysis/pictures/sheet_words.h"

namespace plateconfig {
namespace {

/// Of the sheet; nothing else could be meant.
bool IsShare(double value) {
  return value >= 0 && value <= 1;
}

/// What is known of a part that has no place.
std::optional<Specimen> SpecimenOf(const SheetPart& part) {
  if (part.kind == PartKind::kPoint) return std::nullopt;
  if (part.kind == PartKind::kText) return TextSpecimen(part.text, part.layer);
  return Specimen{SpecimenKind::kRectangle, part.width, part.height, {}, part.color, part.layer};
}

}  // namespace

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
  if (std::isfinite(part.x) && std::isfinite(part.y) && !(IsShare(left.Number()) && IsShare(top.Number()))) {
    part.keys.insert(part.keys.begin(), {left.key, top.key});
    sheet_.unknown.push_back({part.label, reasons::kOutside, SpecimenOf(part), std::move(part.keys)});
    return;
  }
  Add(std::move(part), left, top);
}

void SheetBuilder::AddUnknown(const Words& what, const Words& why, const std::vector<SheetSetting>& settings,
                              std::optional<Specimen> specimen) {
  sheet_.unknown.push_back({what, why, std::move(specimen), KeysOf(settings)});
}

void SheetBuilder::Add(SheetPart part, const SheetSetting& x, const SheetSetting& y) {
  part.keys.insert(part.keys.begin(), {x.key, y.key});
  if (part.kind == PartKind::kText) part.assumes.push_back(Assumption::kTextSize);
  // A size that is no number is in the place.
  const bool hasPlace = std::isfinite(part.x) && std::isfinite(part.y);
  if (hasPlace) return sheet_.parts.push_back(std::move(part));
  sheet_.unknown.push_back({part.label, reasons::kNoNumber, SpecimenOf(part), std::move(part.keys)});
}

}  // namespace plateconfig
