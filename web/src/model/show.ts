// `show --format json`: one entry a setting.

export type SettingValue = number | boolean | string | readonly (number | boolean | string)[];

export interface Setting {
  readonly role: string;
  readonly file: string | null;
  readonly column: string;
  readonly value: SettingValue;
  readonly unit: string;
  readonly source: "table" | "absent column" | "class";
  readonly help: string;
}
