#pragma once

// The user's own settings of the automatic drawing: spacings and margins of the sheets, places and styles of
// the notes, the frame's attribute texts, threading holes and chamfers.
//
//   CustomDefault custom(settingsPath, framePath);
//   custom.InitialThreadHoleAndCharmferConfig(threadHolePath);   // for whoever needs those two records
//   double gap = custom.GetNormalInfo().subSheetGap;

#include <string>
#include <vector>

#include "plateconfig_export.h"

/// Lengths are mm, layers NX layer numbers, colours colour indices, ratios fractions; margins are
/// whatever the drawing takes them for. Texts are GBK. What a missing column or an empty cell gives is said
/// at the loaders.
class PLATECONFIG_API CustomDefault {
 public:
  /// A text style, in a table one cell of six fields joined by "|". Empty until a cell is read.
  struct PLATECONFIG_API NoteStyle {
    std::string fontName;
    double size = 0;
    double factor1 = 0;
    double factor2 = 0;
    double factor3 = 0;
    int option = 0;
  };

  /// General spacing, mm.
  struct PLATECONFIG_API NormalInfo {
    double explodedViewGap = 0;
    double explodedSubSheetGap = 0;
    double subSheetGap = 0;
    double largeSheetThreshold = 0;  ///< Size from which a sheet counts as large.
    double largeSheetViewGapRatio = 0;
  };

  /// The sheet of the exploded view.
  struct PLATECONFIG_API MainSheetInfo {
    double leftMargin = 0;
    double topMargin = 0;
    double viewGroupRatio = 0;  ///< Size of the view group to size of the frame.
  };

  struct PLATECONFIG_API SubSheetInfo {
    double leftMargin = 0;
    double topMargin = 0;
    double viewGroupRatio = 0;
    double viewGapRatio = 0;
  };

  /// Machining notes; the separators are the lines between their rows.
  struct PLATECONFIG_API MachineInfo {
    double leftMarginLandscape = 0;
    double topMarginLandscape = 0;
    double leftMarginPortrait = 0;
    double topMarginPortrait = 0;
    int separatorLayer = 0;
    int noteLayer = 0;
    int separatorColor = 0;
    NoteStyle noteStyle;
  };

  struct PLATECONFIG_API MaterialInfo {
    int layer = 0;
    NoteStyle style;
  };

  /// Feature codes.
  struct PLATECONFIG_API FeatureMarkInfo {
    double angle = 0;  ///< Degrees.
    double distanceRatio = 0;
    int layer = 0;
    NoteStyle style;
  };

  /// Codes of the sub-sheets.
  struct PLATECONFIG_API SubSheetMarkInfo {
    double leftMargin = 0;
    double topMargin = 0;
    int layer = 0;
    NoteStyle style;
  };

  /// One row of the diameter table: holes between the bounds (both exclusive) are drawn with `drawDiameter`.
  struct PLATECONFIG_API ThreadingHoleParam {
    double minDiameter = 0;
    double maxDiameter = 0;
    double drawDiameter = 0;
  };

  /// Threading holes, from which wire cutting starts.
  struct PLATECONFIG_API ThreadingHoleInfo {
    double slotSplitSize = 0;     ///< Separates the slot types.
    std::vector<int> slotColors;  ///< Colours that mark slots, in row order.
    std::vector<int> holeColors;  ///< Colours that mark holes, in row order.
    double edgeDistance = 0;
    int layer = 0;
    int color = 0;
    std::vector<ThreadingHoleParam> params;  ///< In row order.
    double smallSlotEdgeDistance = 0;        ///< For extra-small irregular slots.
    double centerDiameter = 0;               ///< Diameter of the drawn centre.
  };

  /// Notes of rounded corners, and the largest chamfers.
  struct PLATECONFIG_API CharmferBlendInfo {
    double noteDistanceRatio = 0;
    int precision = 0;  ///< Decimals of the noted radius.
    int noteLayer = 0;
    double chamferMaxX = 0;
    double chamferMaxY = 0;
    NoteStyle noteStyle;
  };

  /// Ball marks, the circled item numbers.
  struct PLATECONFIG_API BallMarkInfo {
    double bottomMargin = 0;
    double topMargin = 0;
    double circleDiameter = 0;
    double textToCircleRatio = 0;  ///< Size of the text to diameter of the circle.
    int layer = 0;
    int leaderColor = 0;
    NoteStyle style;
  };

  /// One attribute text of the drawing frame.
  struct PLATECONFIG_API FrameInfo {
    double leftMargin = 0;
    double topMargin = 0;
    int layer = 0;
    NoteStyle style;
    std::string attrName;  ///< Part attribute that is shown.
  };

  std::string settingsPath;
  std::string frameConfigPath;
  NormalInfo normalInfo;
  MainSheetInfo mainSheetInfo;
  SubSheetInfo subSheetInfo;
  MachineInfo machineInfo;
  MaterialInfo materialInfo;
  FeatureMarkInfo featureMarkInfo;
  SubSheetMarkInfo subSheetMarkInfo;
  ThreadingHoleInfo threadingHoleInfo;
  CharmferBlendInfo charmferBlendInfo;
  BallMarkInfo ballMarkInfo;
  std::vector<FrameInfo> frameInfos;
  NoteStyle frameStyle;  ///< Style of the frame's texts as a whole: that of its first text.

  /// Reads the custom settings table and the frame information table (host paths). A setting is the first
  /// cell of its column (no number: 0; no style of six fields: the default style); a column that is missing
  /// or has no rows, and with it a table that can not be opened, gives the column's own value. A frame row
  /// counts when it names an attribute. Threading holes and chamfers stay empty.
  CustomDefault(const std::string& settings, const std::string& frame);

  /// Reads threading holes and chamfers from the table at the host path `path`, by the same rules. Colours
  /// are the filled cells of their columns. A diameter row counts when its range reads min_max. A second call
  /// appends to colours and diameter rows and overwrites everything else.
  void InitialThreadHoleAndCharmferConfig(const std::string& path);

  NormalInfo GetNormalInfo() const;
  MainSheetInfo GetMainSheetInfo() const;
  SubSheetInfo GetSubSheetInfo() const;
  MachineInfo GetMachineInfo() const;
  MaterialInfo GetMaterialInfo() const;
  FeatureMarkInfo GetFeatureMarkInfo() const;
  SubSheetMarkInfo GetSubSheetMarkInfo() const;
  ThreadingHoleInfo GetThreadingHoleInfo() const;
  CharmferBlendInfo GetCharmferBlendInfo() const;
  BallMarkInfo GetBallMarkInfo() const;
  std::vector<FrameInfo> GetFrameInfos() const;

  /// Every layer of the settings once, ascending: of machining notes and their separators, material, feature
  /// codes, sub-sheet codes, threading holes (0 before they are read), ball marks and frame texts.
  std::vector<int> GetAllLayers() const;

  /// The first diameter row whose bounds enclose `diameter` (mm, bounds excluded); null when there is none.
  /// Points into this object, until its settings are loaded again.
  ThreadingHoleParam* FindTheadingParam(double diameter);
  const ThreadingHoleParam* FindTheadingParam(double diameter) const;

  /// The style that a cell says. Fewer than six fields give the whole default style,
  /// chinesef_fs|3|0.5|0.5|0.5|1; fields beyond the sixth are ignored; a field that is no number is 0.
  /// Nothing is trimmed.
  static NoteStyle StringToNoteStyle(const std::string& text);

  /// The style as a cell, numbers with three decimals: chinesef_fs|3.000|0.500|0.500|0.500|1. A number is cut
  /// to 221 characters.
  static std::string NoteStyleToString(const NoteStyle& style);
};
