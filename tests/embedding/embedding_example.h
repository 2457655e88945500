#pragma once

#include <optional>
#include <string>
#include <vector>

class BodyInfo;

/// What a module of the host finds on a plate.
struct PlateFeatures {
  std::vector<int> presentFeatures;        // values of ProcessRule::RuleType
  std::vector<int> roundHoleColors;        // colour indices
  std::vector<int> machiningColors;        // colour indices
  std::vector<double> roundHoleDiameters;  // mm
  int holeCount = 0;
};

/// A text on the drawing, GBK.
struct PlateNote {
  std::string text;
  int layer;
  double leftMargin;
  double topMargin;
  std::string font;
};

/// Nothing when there is no configuration or no text for this plate.
std::optional<PlateNote> WriteProcessNote(const PlateFeatures& plate, BodyInfo& body, double weight);
