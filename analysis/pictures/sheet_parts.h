#pragma once

// What is seen of a drawing sheet, as numbers: parts with a place, and settings that do not say enough for
// one. Origin lower left, x to the right, y upwards, mm.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/schema/role.h"
#include "analysis/schema/settings.h"
#include "analysis/text/words.h"

namespace plateconfig {

/// A setting that a part is made of.
struct SheetKey {
  Role role;
  std::string column;  ///< GBK
  std::string file;    ///< As its user names it, UTF-8; empty when no file plays the role.
  std::string cell;    ///< Empty when no cell says it.
  Cells value;         ///< GBK, as it is used.
  Source source;
};

/// Something that no table says and that has to be taken for granted to draw at all.
enum class Assumption {
  kPaper,         ///< The size of the paper.
  kFrame,         ///< The frame is the paper's edge.
  kOrigin,        ///< Shares of the sheet count from its lower left corner.
  kMargins,       ///< Margins are shares: of the length from the left, of the height from the top.
  kViewGroup,     ///< The views fill their share in both directions.
  kHeaderShares,  ///< Places in the header are shares of the sheet.
  kEverySheet,    ///< What names no sheet is shown on each.
  kTextSize,      ///< The first number of a style is the height of the text.
};

/// Text in its style. What is written is the text, or the value of the part's attribute, or not known.
struct SheetText {
  std::string text;       ///< GBK
  std::string attribute;  ///< GBK
  double height = 0;
  std::string font;  ///< GBK
};

enum class PartKind { kRectangle, kPoint, kText };

struct SheetPart {
  PartKind kind = PartKind::kPoint;
  Words label;
  double x = 0;  ///< Of a rectangle its lower left corner.
  double y = 0;
  double width = 0;  ///< Of a rectangle alone.
  double height = 0;
  bool isTopLeft = false;  ///< The upper left corner of the text or view lies there; else nothing says what.
  SheetText text;
  std::optional<int> color;  ///< Index of a palette that no table has.
  std::optional<int> layer;
  std::vector<Assumption> assumes;
  std::vector<SheetKey> keys;  ///< Those that place it first.
};

enum class SpecimenKind { kCircle, kText, kLength, kRectangle, kLine };

/// What is known of something without a place, to be shown beside the sheet.
struct Specimen {
  SpecimenKind kind;
  double size = 0;  ///< Diameter or length; of a rectangle its width.
  double height = 0;
  SheetText text;
  std::optional<int> color;
  std::optional<int> layer;
};

struct UnknownPart {
  Words what;
  Words why;  ///< No place can be told.
  std::optional<Specimen> specimen;
  std::vector<SheetKey> keys;
};

struct Sheet {
  std::string_view name;
  Words title;
  std::vector<SheetPart> parts;
  std::vector<UnknownPart> unknown;
};

}  // namespace plateconfig
