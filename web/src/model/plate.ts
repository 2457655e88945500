// A plate as plate files and witnesses have it.

export interface Plate {
  readonly name: string;
  readonly length: number;
  readonly width: number;
  readonly thickness: number;
  readonly weight: number;
  readonly layer?: number;
  readonly color: number;
  readonly faceColors: readonly number[];
  readonly features?: Readonly<Record<string, boolean | number | readonly number[]>>;
  readonly customProcesses?: readonly string[];
}

export const kSizes = ["length", "width", "thickness", "weight"] as const;

export type SizeName = (typeof kSizes)[number];

/** Least and greatest value, both included; null is without end. */
export type Bounds = readonly [number, number | null];

/** A box of plates. */
export type Box = Readonly<Record<SizeName, Bounds>>;

/** Plates that the table treats alike but for their sizes: body colours (none: every other colour) and features. */
export interface Group {
  readonly colors: readonly number[];
  readonly profile?: boolean;
  readonly wireCutting?: boolean;
  readonly oldProfile?: boolean;
  readonly oldWireCutting?: boolean;
  readonly newProfile?: boolean;
  readonly newWireCutting?: boolean;
}
