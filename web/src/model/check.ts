// `check --format json`.

import type { Box, Group, Plate, SizeName } from "./plate";

export type Severity = "error" | "warning" | "hint";

export interface Finding {
  readonly code: string;
  readonly severity: Severity;
  readonly file: string;
  readonly line: number | null;
  readonly column: number | null;
  readonly cell: string | null;
  readonly columnName: string | null;
  readonly text: string | null;
  readonly message: string;
  readonly usedAs: string | null;
  readonly fix: string | null;
  /** Row of the spreadsheet, of findings about a rule row. */
  readonly row?: number;
  readonly condition?: SizeName | "profile" | "wireCutting" | null;
  readonly blockers?: readonly number[];
  readonly sameText?: boolean;
  readonly witness?: Plate;
  readonly witnessRow?: number;
  readonly otherRow?: number;
  readonly value?: number;
  readonly range?: string;
  readonly box?: Box;
  readonly group?: Group;
  readonly newRow?: Readonly<Record<string, string>>;
}

/** What a table is for. */
export interface Role {
  /** As tables.json and the command's options name it. */
  readonly role: string;
  /** What those who keep the tables call it. */
  readonly chineseName: string;
}

/** The role of the rule table, which most of the page is about. */
export const kRuleTable = "process-rules";

export interface CheckedTable extends Role {
  readonly file: string;
  readonly sha256: string;
  readonly rows: number;
}

export interface CheckReport {
  readonly checked: {
    readonly folder: string;
    readonly tables: readonly CheckedTable[];
    readonly ruleRows: number;
    readonly processes: number;
    readonly skipped: readonly string[];
    readonly incomplete: readonly string[];
  };
  readonly findings: readonly Finding[];
  readonly summary: { readonly errors: number; readonly warnings: number; readonly hints: number };
}
