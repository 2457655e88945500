// How a table is laid out on paper: its columns in bands that each fit the width, its rows up to a bound. Lengths are CSS pixels.

import type { TableCells } from "../../model/cells";
import { type FindingsBySpot, spotOf, usedAs } from "./places";

/** Columns that stand beside each other, from 0, the last one not included. */
export interface Band {
  readonly from: number;
  readonly to: number;
}

export interface PaperLayout {
  readonly widths: readonly number[];
  readonly bands: readonly Band[];
  /** Whether the paper lies: the table is wider than a standing one. */
  readonly isLandscape: boolean;
  /** So many rows are printed, the header among them. */
  readonly rows: number;
}

/** A little less than A4 within its margins of 12 mm, at 96 pixels an inch. */
const kRoom = { portrait: 698, landscape: 1027 } as const;
/** The column of the row numbers. */
export const kNumbersWidth = 38;

const kNarrowest = 30;
/** Longer texts are broken into lines; so are headers, which are mostly longer than what stands below them. */
const kWidest = 150;
const kWidestHeader = 76;

/** A hundred pages or so. A table of 500 rows and 70 columns is printed whole. */
const kMostCells = 40_000;

/** At the size of print: a Chinese character is as wide as it is high. */
function widthOf(text: string): number {
  let width = 10;
  for (let i = 0; i < text.length && width < kWidest; i++) width += text.charCodeAt(i) > 0x2e7f ? 11 : 6.2;
  return width;
}

/** A wrong cell has a mark before its text, and behind it what it is read as. */
const kMarkWidth = 12;

function widthsOf(
  { rows, columns }: TableCells,
  findings: FindingsBySpot,
  printed: number,
): readonly number[] {
  const widths = new Array<number>(columns).fill(kNarrowest);
  rows.slice(0, printed).forEach(({ cells }, row) => {
    const widest = row === 0 ? kWidestHeader : kWidest;
    cells.forEach((text, column) => {
      widths[column] = Math.max(widths[column] ?? 0, Math.min(widest, widthOf(text)));
    });
  });
  for (const [name, ofSpot] of findings) {
    const spot = spotOf(name);
    const text = spot && rows[spot.row - 1]?.cells[spot.column - 1];
    if (spot === undefined || text === undefined || spot.row > printed) continue;
    const used = widthOf(usedAs(ofSpot, text) ?? "");
    const width = Math.min(kWidest, Math.max(widthOf(text) + kMarkWidth, used + kMarkWidth));
    widths[spot.column - 1] = Math.max(widths[spot.column - 1] ?? 0, width);
  }
  return widths.map(Math.ceil);
}

/** As many columns in each band as there is room for; one that is too wide has a band of its own. */
export function bandsOf(widths: readonly number[], room: number): readonly Band[] {
  const bands: Band[] = [];
  let from = 0;
  let taken = 0;
  widths.forEach((width, column) => {
    if (column > from && taken + width > room) {
      bands.push({ from, to: column });
      [from, taken] = [column, 0];
    }
    taken += width;
  });
  return widths.length === 0 ? [] : [...bands, { from, to: widths.length }];
}

export function paperLayout(
  cells: TableCells,
  findings: FindingsBySpot,
  mostCells = kMostCells,
): PaperLayout {
  const most = Math.max(2, Math.floor(mostCells / Math.max(1, cells.columns)));
  const rows = Math.min(cells.rows.length, most);
  const widths = widthsOf(cells, findings, rows);
  const isLandscape = widths.reduce((sum, width) => sum + width, kNumbersWidth) > kRoom.portrait;
  const room = (isLandscape ? kRoom.landscape : kRoom.portrait) - kNumbersWidth;
  return { widths, bands: bandsOf(widths, room), isLandscape, rows };
}
