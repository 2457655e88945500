#pragma once

// Puts a sheet together: a part whose numbers give no place becomes an unknown one.

#include <optional>
#include <utility>
#include <vector>

#include "analysis/pictures/sheet_parts.h"
#include "analysis/pictures/sheet_settings.h"

namespace plateconfig {

/// mm.
struct PaperSize {
  double width = 0;
  double height = 0;
};

enum class SheetSize { kSmall, kLarge };

/// What no table says and the reader chooses.
struct SheetQuestion {
  PaperSize paper = {420, 297};
  SheetSize size = SheetSize::kLarge;
};

/// Of the sheet; nothing else could be meant.
bool IsShare(double value);

SheetPart PartOf(PartKind kind, const Words& label);

/// The keys of the settings, in their order.
std::vector<SheetKey> KeysOf(const std::vector<SheetSetting>& settings);

/// A text in a style, as a specimen.
Specimen TextSpecimen(SheetText text, std::optional<int> layer);
Specimen CircleSpecimen(const SheetSetting& diameter, const SheetSetting& color, const SheetSetting& layer);
Specimen LengthSpecimen(double length);
/// A line of which nothing but its colour is known, and its layer when there is one alone.
Specimen LineSpecimen(const SheetSetting& color, std::optional<int> layer);

class SheetBuilder {
 public:
  SheetBuilder(std::string_view name, const Words& title, const PaperSize& paper)
      : paper_(paper), sheet_{name, title, {}, {}} {}

  /// The frame, drawn on the edge of the paper.
  void AddFrame(const SheetSetting& color, const SheetSetting& layer);
  /// A part at a place that settings say as shares of the sheet from its lower left corner.
  void AddAtShares(SheetPart part, const SheetSetting& x, const SheetSetting& y);
  /// A part with its upper left corner at margins from the left and the top, taken as shares.
  void AddAtMargins(SheetPart part, const SheetSetting& left, const SheetSetting& top);
  void AddUnknown(const Words& what, const Words& why, const std::vector<SheetSetting>& settings,
                  std::optional<Specimen> specimen = {});

  Sheet Take() { return std::move(sheet_); }

 private:
  void Add(SheetPart part, const SheetSetting& x, const SheetSetting& y);

  PaperSize paper_;
  Sheet sheet_;
};

}  // namespace plateconfig
