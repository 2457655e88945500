// How wide a column is drawn: as its texts ask for, within limits.

import type { TableCells } from "../../model/cells";
import { type FindingsBySpot, spotOf } from "./places";

const kNarrowest = 56;
const kWidest = 260;
/** Rows that are looked at; the others are cut off where they are longer. */
const kLookedAt = 200;

/** Chinese characters are twice as wide as others. */
function widthOf(text: string): number {
  let width = 22;
  for (let i = 0; i < text.length && width < kWidest; i++) width += text.charCodeAt(i) > 0x2e7f ? 13 : 7.2;
  return width;
}

/** A wrong cell has a mark behind its text, and what it is read as. */
const kMarkWidth = 24;

function widthOfFindings(findings: FindingsBySpot, name: string): number {
  const used = findings.get(name)?.find((finding) => finding.usedAs !== null)?.usedAs;
  return kMarkWidth + (used === undefined || used === null ? 0 : Math.min(90, widthOf(used)));
}

export function columnWidths(cells: TableCells, findings: FindingsBySpot): readonly number[] {
  const widths = new Array<number>(cells.columns).fill(kNarrowest);
  for (const row of cells.rows.slice(0, kLookedAt)) {
    row.cells.forEach((text, column) => {
      widths[column] = Math.min(kWidest, Math.max(widths[column] ?? 0, widthOf(text)));
    });
  }
  for (const name of findings.keys()) {
    const spot = spotOf(name);
    const text = spot && cells.rows[spot.row - 1]?.cells[spot.column - 1];
    if (spot === undefined || text === undefined) continue;
    const width = Math.min(kWidest, widthOf(text)) + widthOfFindings(findings, name);
    widths[spot.column - 1] = Math.min(kWidest + kMarkWidth, Math.max(widths[spot.column - 1] ?? 0, width));
  }
  return widths.map(Math.ceil);
}
