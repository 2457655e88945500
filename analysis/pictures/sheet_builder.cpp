#include "analysis/pictures/sheet_builder.h"

#include <algorithm>
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

bool AreNumbers(const std::vector<SheetSetting>& settings) {
  return std::all_of(settings.begin(), settings.end(),
                     [](const SheetSetting& setting) { return std::isfinite(setting.Number()); });
}

bool AreShares(const std::vector<SheetSetting>& settings) {
  return std::all_of(settings.begin(), settings.end(),
                     [](const SheetSetting& setting) { return IsShare(setting.Number()); });
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

std::optional<Specimen> SpanSpecimen(const SheetSetting& share, const PaperSize& paper) {
  if (!AreShares({share})) return std::nullopt;
  return LengthSpecimen(share.Number() * paper.width);
}

std::optional<Specimen> RoomSpecimen(const SheetSetting& length, const SheetSetting& height,
                                     const PaperSize& paper) {
  if (!AreShares({length, height})) return std::nullopt;
  return Specimen{
      SpecimenKind::kRectangle, length.Number() * paper.width, height.Number() * paper.height, {}, {}, {}};
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
  Add(std::move(part), {x, y});
}

void SheetBuilder::AddAtMargins(SheetPart part, const SheetSetting& left, const SheetSetting& top) {
  part.isTopLeft = part.kind == PartKind::kText;
  PutAtMargins(left, top, part);
  Add(std::move(part), {left, top});
}

void SheetBuilder::AddViewGroup(const SheetSetting& left, const SheetSetting& top,
                                const SheetSetting& share) {
  SheetPart group = PartOf(PartKind::kRectangle, names::kViewGroup);
  group.width = share.Number() * paper_.width;
  group.height = share.Number() * paper_.height;
  group.assumes = {Assumption::kViewGroup};
  PutAtMargins(left, top, group);
  Add(std::move(group), {left, top, share});
}

void SheetBuilder::AddUnknown(const Words& what, const Words& why, const std::vector<SheetSetting>& settings,
                              std::optional<Specimen> specimen) {
  sheet_.unknown.push_back({what, why, std::move(specimen), KeysOf(settings)});
}

void SheetBuilder::PutAtMargins(const SheetSetting& left, const SheetSetting& top, SheetPart& part) const {
  part.x = left.Number() * paper_.width;
  part.y = (1 - top.Number()) * paper_.height - part.height;
  part.assumes.insert(part.assumes.begin(), {Assumption::kPaper, Assumption::kMargins});
}

void SheetBuilder::Add(SheetPart part, const std::vector<SheetSetting>& shares) {
  const std::vector<SheetKey> keys = KeysOf(shares);
  part.keys.insert(part.keys.begin(), keys.begin(), keys.end());
  if (part.kind == PartKind::kText) part.assumes.push_back(Assumption::kTextSize);
  if (AreShares(shares)) return sheet_.parts.push_back(std::move(part));
  const Words& why = AreNumbers(shares) ? reasons::kOutside : reasons::kNoNumber;
  // Its size is one of the shares, perhaps the one that is none.
  const bool hasSize = part.kind != PartKind::kRectangle || IsShare(shares.back().Number());
  sheet_.unknown.push_back(
      {part.label, why, hasSize ? SpecimenOf(part) : std::nullopt, std::move(part.keys)});
}

}  // namespace plateconfig
