// `explain --format json`: what `process` says, and why.

import type { Plate } from "./plate";
import type { ExplainedProcess, ProcessedPlate, RefusedRow } from "./process";

export interface ExplainedPlate extends ProcessedPlate {
  /** As it was read. */
  readonly plate: Plate;
  readonly processes: readonly ExplainedProcess[];
  readonly refusedRows: readonly RefusedRow[];
  readonly furtherRows: number;
  readonly askedRow?: { readonly line: number; readonly fits: boolean };
}
