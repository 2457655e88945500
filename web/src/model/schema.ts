// `schema --format json`: one entry a column.

export interface SchemaColumn {
  readonly role: string;
  readonly column: string;
  readonly kind: string;
  readonly unit: string;
  readonly help: string;
  readonly whenAbsent: readonly string[];
  readonly rows: boolean;
  readonly list: boolean;
  readonly placeholder: boolean;
}
