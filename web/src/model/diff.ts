// `diff OLD NEW --format json`.

import type { Box, Group, Plate } from "./plate";
import type { SettingValue } from "./show";

export interface ChangedSetting {
  readonly role: string;
  readonly column: string;
  readonly old: SettingValue;
  readonly new: SettingValue;
}

export interface ChangedRow {
  readonly change: "added" | "removed" | "changed";
  readonly oldRow: number | null;
  readonly newRow: number | null;
  readonly columns: readonly string[];
}

export interface TextOfPlate {
  readonly line: number | null;
  readonly text: string;
}

export interface ChangedPlate {
  readonly name: string;
  readonly old: TextOfPlate;
  readonly new: TextOfPlate;
}

export interface ChangedRegion {
  readonly box: Box;
  readonly group: Group;
  readonly oldRow: number | null;
  readonly newRow: number | null;
  readonly witness: Plate;
}

export interface Difference {
  readonly settings: readonly ChangedSetting[];
  readonly rows: readonly ChangedRow[];
  readonly plates: readonly ChangedPlate[];
  readonly regions: readonly ChangedRegion[];
  readonly incomplete: readonly string[];
}
