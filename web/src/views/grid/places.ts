// Names of cells, as spreadsheets and findings write them.

import { byGravity } from "../../app/parts/severity";
import type { Finding, Severity } from "../../model/check";
import type { TableCells } from "../../model/cells";

/** Row and column of the spreadsheet, from 1. Column 0 is the whole row. */
export interface Spot {
  readonly row: number;
  readonly column: number;
}

/** 1 is A, 27 is AA. */
export function letters(column: number): string {
  const before = Math.floor((column - 1) / 26);
  return (before > 0 ? letters(before) : "") + String.fromCharCode(65 + ((column - 1) % 26));
}

export function nameOfSpot({ row, column }: Spot): string {
  return column === 0 ? String(row) : letters(column) + row;
}

/** "C17" is row 17, column 3; "17" the whole row. */
export function spotOf(name: string): Spot | undefined {
  const [, columns, row] = /^([A-Z]*)(\d+)$/.exec(name) ?? [];
  if (row === undefined || columns === undefined) return undefined;
  const column = [...columns].reduce((sum, letter) => sum * 26 + letter.charCodeAt(0) - 64, 0);
  return { row: Number(row), column };
}

/** The spreadsheet's row of a line of the file: cells may hold line breaks. */
function rowOfLine(cells: TableCells, line: number): number | undefined {
  const after = cells.rows.findIndex((row) => row.line > line);
  const index = after === -1 ? cells.rows.length - 1 : after - 1;
  return index < 0 ? undefined : index + 1;
}

/** The spot that `select` was given: a cell, a row, or "@19" for the row of that line of the file. */
export function spotIn(cells: TableCells, name: string): Spot | undefined {
  if (!name.startsWith("@")) return spotOf(name);
  const row = rowOfLine(cells, Number(name.slice(1)));
  return row === undefined ? undefined : { row, column: 0 };
}

/** Where a finding points: a cell, a whole row, or nowhere within the table. */
export function spotOfFinding(finding: Finding, cells: TableCells): Spot | undefined {
  if (finding.cell !== null) return spotOf(finding.cell);
  if (finding.row !== undefined) return { row: finding.row, column: 0 };
  const row = finding.line === null ? undefined : rowOfLine(cells, finding.line);
  return row === undefined ? undefined : { row, column: 0 };
}

/** Row by row, each from the left. */
export function inOrder(one: Spot, two: Spot): number {
  return one.row - two.row || one.column - two.column;
}

export function worst(findings: readonly Finding[]): Severity | undefined {
  return [...findings].sort(byGravity)[0]?.severity;
}

/** What the library takes a wrong cell for, where that is another text than the cell's. */
export function usedAs(findings: readonly Finding[], text: string): string | undefined {
  return findings.find((finding) => finding.usedAs !== null && finding.usedAs !== text)?.usedAs ?? undefined;
}

/** How cells and rows are coloured beside their findings: by the names of their places. */
export type Tints = ReadonlyMap<string, "added" | "removed" | "changed">;

/** The findings of one table by the place that they point to. */
export type FindingsBySpot = ReadonlyMap<string, readonly Finding[]>;

export function findingsBySpot(findings: readonly Finding[], cells: TableCells): FindingsBySpot {
  const byName = new Map<string, Finding[]>();
  for (const finding of findings) {
    const spot = spotOfFinding(finding, cells);
    const name = spot === undefined ? "" : nameOfSpot(spot);
    byName.set(name, [...(byName.get(name) ?? []), finding]);
  }
  return byName;
}
