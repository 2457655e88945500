// `holes --format json`, and with `--explain`: one entry a combined hole.

export interface HoleSegmentVerdict {
  readonly group: "top" | "through" | "bottom";
  readonly segment: number;
  readonly color: number;
  readonly colorVerdict: string;
  readonly allowedColors: readonly number[] | null;
  readonly diameter: number;
  readonly diameterVerdict: string;
  readonly allowedDiameters: readonly number[] | null;
}

export interface HoleTypeScore {
  readonly name: string;
  readonly accuracy: number;
  readonly content?: string;
  readonly segments?: readonly HoleSegmentVerdict[];
}

export interface MatchedHole {
  readonly name: string;
  readonly structure: string;
  readonly maxDiameter: number;
  readonly origin: readonly number[] | null;
  readonly tied: boolean;
  readonly types: readonly HoleTypeScore[];
  readonly refusedBy?: readonly HoleTypeScore[];
  /** Types of the nearest structures, when no type has the hole's. */
  readonly nearStructures?: readonly { readonly name: string; readonly structure: string }[];
}
