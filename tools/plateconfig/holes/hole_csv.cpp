#include <string>
#include <vector>

#include "plateconfig/holes/hole_fields.h"
#include "plateconfig/holes/hole_output.h"
#include "plateconfig/messages/shown_numbers.h"

namespace plateconfig {
namespace {

using CellsOfRow = std::vector<std::string>;

CellsOfRow HeadingCells(const HoleInput& input) {
  NXOpen::Point3d origin;
  double diameter = 0;
  HoleTypeInfo::GetCombHoleMaxDiameterAndOrigin(input.hole, &origin, &diameter);
  return {input.name,
          StructureKey(input.hole),
          ShownNumber(diameter),
          ShownNumber(origin.X),
          ShownNumber(origin.Y),
          ShownNumber(origin.Z)};
}

}  // namespace

const CellsOfRow& HoleColumns() {
  static const CellsOfRow columns = {"孔名称", "结构", "最大直径", "X", "Y", "Z", "类型", "得分", "并列"};
  return columns;
}

std::vector<CellsOfRow> HoleCells(const HoleInput& input, const HoleAnswer& answer) {
  std::vector<CellsOfRow> rows;
  const std::size_t tied = answer.IsTied() ? answer.BestCount() : 0;
  for (std::size_t i = 0; i < answer.accepting.size(); ++i) {
    CellsOfRow cells = HeadingCells(input);
    const TypeVerdict& verdict = answer.accepting[i];
    cells.insert(cells.end(),
                 {verdict.type->name, ShownNumber(verdict.result.Accuracy()), i < tied ? "Y" : "N"});
    rows.push_back(std::move(cells));
  }
  if (rows.empty()) {
    rows.push_back(HeadingCells(input));
    rows.back().insert(rows.back().end(), {"", "", "N"});
  }
  return rows;
}

}  // namespace plateconfig
