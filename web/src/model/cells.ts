// `picture cells FILE`: the cells of one table as a spreadsheet shows them.

export interface CellRow {
  /** Line of the file on which the row begins. */
  readonly line: number;
  /** Texts with the quotes taken off; as many as the row has. */
  readonly cells: readonly string[];
}

export type TableForm =
  "table" | "utf8" | "utf16" | "workbook" | "carriage-returns" | "separator-line" | "wrong-separator";

export interface TableCells {
  readonly file: string;
  readonly form: TableForm;
  readonly encoding: "gbk" | "utf-8" | null;
  /** The header first: `rows[n]` is row n + 1 of the spreadsheet. */
  readonly rows: readonly CellRow[];
  /** The most cells that a row has. */
  readonly columns: number;
}
