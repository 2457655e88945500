// `explain --format json`: what `process` says, and why.

import type { Plate, SizeName } from "./plate";
import type { ExplainedProcess, ProcessedPlate, Refusal } from "./process";

/** Members of a plate that would have to be others, with their new values. */
export type ChangedMembers = Partial<Pick<Plate, SizeName | "color" | "faceColors">>;

export interface RefusedRow {
  readonly line: number;
  readonly refusals: readonly Refusal[];
  /** What the row wants of the plate, and the row that it gets then; null when the row accepts no plate at all. */
  readonly change: { readonly plate: ChangedMembers; readonly line: number } | null;
}

export interface ExplainedPlate extends ProcessedPlate {
  /** As it was read. */
  readonly plate: Plate;
  readonly processes: readonly ExplainedProcess[];
  readonly refusedRows: readonly RefusedRow[];
  readonly furtherRows: number;
  readonly askedRow?: { readonly line: number; readonly fits: boolean };
}
