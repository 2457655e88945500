// The keys of a grid, as in a spreadsheet.

import type { Spot } from "./places";

export interface GridSize {
  readonly rows: number;
  readonly columns: number;
  /** Rows that a page up or down goes. */
  readonly page: number;
}

type Move = (spot: Spot, size: GridSize) => Spot;

const kMoves: Readonly<Record<string, Move>> = {
  ArrowUp: ({ row, column }) => ({ row: row - 1, column }),
  ArrowDown: ({ row, column }) => ({ row: row + 1, column }),
  ArrowLeft: ({ row, column }) => ({ row, column: column - 1 }),
  ArrowRight: ({ row, column }) => ({ row, column: column + 1 }),
  PageUp: ({ row, column }, { page }) => ({ row: row - page, column }),
  PageDown: ({ row, column }, { page }) => ({ row: row + page, column }),
  Home: ({ row }) => ({ row, column: 1 }),
  End: ({ row }, { columns }) => ({ row, column: columns }),
};

const kControlMoves: Readonly<Record<string, Move>> = {
  Home: () => ({ row: 1, column: 1 }),
  End: (_, { rows, columns }) => ({ row: rows, column: columns }),
  ArrowUp: ({ column }) => ({ row: 1, column }),
  ArrowDown: ({ column }, { rows }) => ({ row: rows, column }),
  ArrowLeft: ({ row }) => ({ row, column: 1 }),
  ArrowRight: ({ row }, { columns }) => ({ row, column: columns }),
};

const within = (value: number, greatest: number) => Math.min(Math.max(1, value), Math.max(1, greatest));

/** Where a key leads, or undefined when it is none of the grid's. */
export function spotAfterKey(event: KeyboardEvent, spot: Spot, size: GridSize): Spot | undefined {
  if (event.altKey) return undefined;
  const move = (event.ctrlKey || event.metaKey ? kControlMoves : kMoves)[event.key];
  if (move === undefined) return undefined;
  const { row, column } = move(spot, size);
  return { row: within(row, size.rows), column: within(column, size.columns) };
}
