// `process --format json` and `explain --format json`: one entry a plate.

import type { SizeName } from "./plate";

export type PlateStatus = "written" | "no-row" | "no-text";

export interface ProcessedPlate {
  readonly name: string;
  /** Row of the rule table, the header being 1; null when none fits. */
  readonly line: number | null;
  readonly text: string;
  readonly status: PlateStatus;
  readonly file: string;
  readonly fileLine: number;
}

export type Verdict = "written" | "does-not-apply" | "no-text";

export interface ExplainedProcess {
  readonly process: string;
  readonly condition: string;
  readonly parameter: string;
  readonly plate: boolean | number | readonly number[] | null;
  readonly verdict: Verdict;
  readonly text: string;
}

export type Refusal =
  | {
      readonly condition: SizeName;
      readonly minimum: number | string;
      readonly maximum: number | string;
      readonly value: number;
      readonly missedBy: number | string;
    }
  | { readonly condition: "material"; readonly accepted: readonly number[]; readonly value: number }
  | {
      readonly condition: "profile" | "wireCutting";
      readonly wanted: boolean;
      readonly colors: readonly number[];
      readonly value: readonly number[];
    };
