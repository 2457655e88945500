#include "analysis/pictures/drawing_sheets.h"

#include <set>

#include "analysis/pictures/custom_sheets.h"
#include "analysis/pictures/layout_sheet.h"

namespace plateconfig {
namespace {

std::vector<Assumption> AssumedIn(const std::vector<Sheet>& sheets) {
  std::set<Assumption> assumed;
  for (const Sheet& sheet : sheets) {
    for (const SheetPart& part : sheet.parts) assumed.insert(part.assumes.begin(), part.assumes.end());
  }
  return {assumed.begin(), assumed.end()};
}

}  // namespace

DrawingSheets DrawSheets(const SheetTables& tables, const SheetQuestion& question) {
  const SheetSettings settings(tables);
  DrawingSheets drawn;
  drawn.sheets = {LayoutSheet(settings, question), ExplodedViewSheet(settings, question),
                  SubSheet(settings, question)};
  drawn.assumed = AssumedIn(drawn.sheets);
  return drawn;
}

}  // namespace plateconfig
