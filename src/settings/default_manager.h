#pragma once

// Layout defaults of the automatic drawing of a mould plate assembly: layers, spacings, places of the notes,
// datum circles, view boxes, wire holes, ball marks and the columns of the bill-of-materials header.
//
//   DefaultManager defaults;                  // built-in values
//   defaults.InitilDefaultValues(path);       // what the layout defaults table says

#include <string>
#include <vector>

#include "plateconfig_export.h"

/// A plain value: the drawing reads the public fields. Lengths are mm, layers NX layer numbers, colours
/// colour indices, ratios fractions of the sheet's length (X) or height (Y). The values here are those of a
/// fresh object; a table that opens but lacks a column gives that column's own value instead, which differs
/// for some fields.
class PLATECONFIG_API DefaultManager {
 public:
  /// A text style. In a table it is one cell of six fields joined by "|", in this order. The library only
  /// carries it; its numbers mean what the drawing makes of them.
  struct PLATECONFIG_API NoteStyle {
    std::string fontName = "chinesef_fs";  ///< GBK
    double size = 3.0;
    double factor1 = 0.5;
    double factor2 = 0.5;
    double factor3 = 0.5;
    int option = 1;
  };

  /// One column of the bill-of-materials header.
  struct PLATECONFIG_API BomAttrInfo {
    double xRatio = 0.5;
    double yRatio = 0.5;
    std::string displayName;  ///< Caption, GBK.
    std::string attrName;     ///< Part attribute whose value fills the column, GBK.
    NoteStyle style;
  };

  // Lists of layers: the non-zero numbers of a column, in row order, duplicates kept.
  std::vector<int> twoViewLayers;
  std::vector<int> noBallMarkLayers;
  std::vector<int> standardPartLayers;
  std::vector<int> noSubSheetLayers;

  double layerSpacing = 5000.0;
  double sameLayerFrameGap = 100.0;
  double explodedSubSheetFrameGap = 1000.0;
  double viewsLengthRatio = 0.8;
  double viewsHeightRatio = 0.8;
  double topViewXRatio = 0.3;
  double topViewYRatio = 0.7;

  // No column fills the spare fields.
  double spareRatio1 = 0.2;
  double spareRatio2 = 0.4;
  double spareRatio3 = 0.3;
  double spareRatio4 = 0.3;
  double spareRatio5 = 0.3;
  double spareRatio6 = 0.3;
  double spareRatio7 = 0.2;
  double spareRatio8 = 0.4;
  double spareDistance = 30.0;
  int spareCount = 10;

  double sheetSplitSize = 300.0;  ///< Separates large from small sheets.

  int noteLayer = 1;
  int headerNoteLayer = 1;
  int frameLayer = 1;
  int frameColor = 1;

  int explodedCircleLayer = 1;
  int materialCircleLayer = 1;
  int standardCircleLayer = 1;
  int circleColor = 1;
  double circleDiameter = 10.0;

  double viewGapRatio = 0.3;
  double viewBoxMargin = 0.05;
  int viewBoxColor = 1;
  int materialTopBoxLayer = 1;
  int materialFrontBoxLayer = 1;
  int materialLeftBoxLayer = 1;
  int standardTopBoxLayer = 1;
  int standardFrontBoxLayer = 1;
  int standardLeftBoxLayer = 1;

  int wireHoleLayer = 1;
  int wireHoleColor = 1;
  double slotSplitSize = 20.0;  ///< Separates large from small slots.
  double largeWireHoleDiameter = 5.0;
  double smallWireHoleDiameter = 3.0;

  double codeXRatio = 0.2;
  double codeYRatio = 0.8;
  NoteStyle codeStyle;

  double featureCodeAngle = 45.0;  ///< Degrees.
  double featureCodeDistanceRatio = 0.5;
  NoteStyle featureCodeStyle;

  double processXRatioLarge = 0.5;
  double processYRatioLarge = 0.4;
  double processXRatioSmall = 0.7;
  double processYRatioSmall = 0.7;
  NoteStyle processStyle;

  double attributeXRatioLarge = 0.5;
  double attributeYRatioLarge = 0.5;
  double attributeXRatioSmall = 0.5;
  double attributeYRatioSmall = 0.5;
  NoteStyle attributeStyle;

  double modifyXRatioLarge = 0.5;
  double modifyYRatioLarge = 0.5;
  double modifyXRatioSmall = 0.5;
  double modifyYRatioSmall = 0.5;
  NoteStyle modifyStyle;

  double ballMarkTopMargin = 0.95;
  double ballMarkBottomMargin = 0.05;
  double ballMarkDiameter = 10.0;
  double ballMarkTextRatio = 0.8;
  int ballMarkLayer = 1;
  int ballMarkLineColor = 1;
  NoteStyle ballMarkStyle;

  std::vector<BomAttrInfo> bomAttrInfos;  ///< The header's columns, in row order.
  std::vector<int> spareLayerList;        ///< No column fills it.
  std::string configPath;                 ///< The path last given to `InitilDefaultValues`.

  /// Reads the layout defaults table at the host path `path`, which is kept in `configPath` in any case. A
  /// table that can not be opened changes nothing else. Otherwise every number and style is overwritten: by
  /// the first cell of its column (no number: 0; no style of six fields: the default style), or, when the
  /// column is missing or has no rows, by the column's own value. Lists and header columns are appended to,
  /// so that a second call adds a second time. The header has as many columns as the X column has cells down
  /// to its last filled one; what the other header columns lack there reads as empty text.
  void InitilDefaultValues(const std::string& path);

  /// Fifteen layers in a fixed order, neither sorted nor freed of duplicates: the notes, the header notes,
  /// the frame, the three datum circles, the six view boxes, the wire holes, and the header notes twice more.
  /// Ball marks and lists are not among them.
  std::vector<int> GetAllLayers() const;

  /// The data rows that the longest list occupies in the table, at least 1. Counted are the layers with two
  /// views, without ball marks and of standard parts, and the header's columns; not the layers without
  /// sub-sheets.
  int GetMaxRow() const;

  /// The style that a cell (GBK) says. Fewer than six fields give the whole default style; fields beyond the
  /// sixth are ignored; a field that is no number is 0. Nothing is trimmed.
  static NoteStyle StringToNoteStyle(const std::string& text);

  /// The style as a cell, numbers with three decimals: chinesef_fs|3.000|0.500|0.500|0.500|1. A number is cut
  /// to 221 characters.
  static std::string NoteStyleToString(const NoteStyle& style);

  /// The style as a cell, numbers rounded to whole ones.
  static std::string FontStyleToString(const NoteStyle& style);
};
