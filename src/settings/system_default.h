#pragma once

// System-wide settings of the drawing tool: layers, texts, ratios, the export to the external CAD program,
// and the rules for decimals, replaced texts and the weight of bodies.
//
//   SystemDefault system(systemPath, layerPath);
//   system.InitialText(textPath);              // each further table when its settings are needed
//   system.InitialConnectString(connectPath);  // throws when the file is missing

#include <string>
#include <vector>

#include "plateconfig_export.h"

/// A plain value: the host reads the public fields. Lengths are mm, layers NX layer numbers, colours colour
/// indices, texts GBK. The fields start empty (0, false, no text). The constructor and each `Initial...` fill
/// their own fields, as said there: an int, double or text is the first cell of its column (no number: 0), or
/// the column's own value when the column is missing or has no rows. Lists of texts are whole columns, one
/// text per data row, empty cells included; lists that belong together need not be equally long.
class PLATECONFIG_API SystemDefault {
 public:
  /// The number of decimals for faces of these colours.
  struct PLATECONFIG_API DecimalRule {
    std::vector<int> colors;
    int decimals = 0;
  };

  /// Replaces a text for holes of these colours and diameters (mm).
  struct PLATECONFIG_API ReplaceRule {
    std::vector<int> colors;
    double minDiameter = 0;
    double maxDiameter = 0;
    std::string beforeText;
    std::string afterText;
  };

  /// Bodies that count: weight bounds and the most faces.
  struct PLATECONFIG_API WeightRule {
    double minWeight = 0;
    double maxWeight = 0;
    int maxFaceCount = 0;
  };

  // Frames, datum circles and view frames.
  int frameLayer = 0;
  int frameColor = 0;
  int explodedDatumCircleLayer = 0;
  int materialDatumCircleLayer = 0;
  int standardPartDatumCircleLayer = 0;
  int datumCircleColor = 0;
  double datumCircleDiameter = 0;
  double viewFrameGap = 0;
  int viewFrameColor = 0;
  int materialTopFrameLayer = 0;
  int materialFrontFrameLayer = 0;
  int materialLeftFrameLayer = 0;
  int standardPartTopFrameLayer = 0;
  int standardPartFrontFrameLayer = 0;
  int standardPartLeftFrameLayer = 0;
  double layerNoteOffsetRatio = 0;
  double layerNoteFontSize = 0;

  int cadOpenMode = 0;
  std::string cadPath;
  std::string dwgOutputFolder;  ///< From the system settings table, then from `InitialDwgFolder`.

  double underlineRatio = 0;
  int maxNoteRowsPerColumn = 0;
  int holeCountThreshold = 0;
  double manyHolesCodeFontRatio = 0;
  double slotSplitSize = 0;
  std::vector<std::string> outlineNotes;  ///< By `InitialText`, without empty cells.
  bool createBalloonCode = false;
  double threadHoleEdgeDistance = 0;

  std::vector<std::string> featureCountsForFeatureText;
  std::vector<std::string> featureTextRatios;
  std::vector<std::string> featureCountsForProcessNote;
  std::vector<std::string> processNoteTextRatios;

  std::vector<int> twoViewLayers;
  std::vector<int> noBallMarkLayers;
  std::vector<int> noSubSheetLayers;
  std::vector<int> standardPartLayers;
  std::vector<int> templateLayers;  ///< Of these only, just the numbers 1 to 256.

  std::string codeText;                        ///< By `InitialText`.
  std::string processNoteTitle;                ///< By `InitialText`.
  std::vector<std::string> materialInfoTexts;  ///< By `InitialText`.
  std::vector<std::string> frameInfoTexts;     ///< By `InitialText`.
  std::vector<std::string> finishMessages;
  double noteLineGapRatio = 0;        ///< By `InitialText`.
  double columnGapRatio = 0;          ///< By `InitialText`.
  bool thirdAngleProjection = false;  ///< By `InitialText`.

  std::string connectString;     ///< By `InitialConnectString`.
  bool exportLayerCode = false;  ///< By `InitialConnectString`.

  double borderOffset = 0;
  int borderLineColor = 0;
  int borderLineLayer = 0;

  // By `InitialTriangleSymbol`.
  int triangleColor = 0;
  int triangleLayer = 0;
  int triangleLineFont = 0;
  double triangleScale = 0;
  std::vector<int> triangleFaceColors;

  // By `InitialReplaceContent`.
  std::vector<DecimalRule> decimalRules;
  double replacePlateLength = 0;
  std::vector<ReplaceRule> replaceRules;

  std::vector<WeightRule> weightRules;
  bool setDrawingCurveColor = false;
  double viewPrecision = 0;
  std::vector<std::string> cadRegistryValueNames;
  std::vector<std::string> cadRegistryPaths;
  int noDocWaitTime = 0;
  int cadVersion = 0;
  double density = 0;  ///< By `InitialBomConfigFile`, g/cm^3.
  std::string configFilePath;

  /// Reads the system settings table and the five layer lists of the layer table (host paths; a table that
  /// can not be opened counts as one without columns). A weight rule is a row with a face count.
  SystemDefault(const std::string& systemTablePath, const std::string& layerTablePath);

  /// Reads the texts and spacings of notes. A missing file counts as one without columns.
  void InitialText(const std::string& path);

  /// Reads the connector between codes. The only call that throws: when there is no such file, a
  /// `std::exception` whose text (GBK) names `path` and is meant for the user; nothing is changed then.
  void InitialConnectString(const std::string& path);

  /// Reads the triangle symbol. A missing file counts as one without columns. The face colours, the non-zero
  /// numbers of their column, are appended to those of an earlier call; as long as there are none at all they
  /// are 12 and 6.
  void InitialTriangleSymbol(const std::string& path);

  /// Reads the density, 0 when the column is missing or has no rows. A file that can not be opened leaves it
  /// as it is.
  void InitialBomConfigFile(const std::string& path);

  /// Reads the folder for exported drawings. A missing file or column and an empty cell give the user's
  /// desktop directory, empty when the system does not tell.
  void InitialDwgFolder(const std::string& path);

  /// Reads the rules for decimals and replaced texts in place of those of an earlier call. A decimal rule is
  /// a row with colours and decimals, a replacement one with colours and both texts. A missing file gives no
  /// rules.
  void InitialReplaceContent(const std::string& path);

  /// Every layer that the settings name, duplicates kept: the five lists, then the ten layers of frame, datum
  /// circles and view frames. Borders and triangle symbols are not among them.
  std::vector<int> GetAllLayers() const;

  /// Each cell as `atoi` reads it, same length and order.
  std::vector<int> VectorToInt(const std::vector<std::string>& cells) const;

 private:
  /// The cells that are not empty; one of blanks stays.
  static std::vector<std::string> TrimEmpty(const std::vector<std::string>& cells);
};
