// `picture changes OLD NEW`: the changed regions cut by the plane of two sizes.

import type { SizeName } from "./plate";

export interface PictureAxis {
  readonly size: SizeName;
  readonly from: number;
  readonly to: number;
}

export interface ChangedBox {
  readonly x: readonly [number, number];
  readonly y: readonly [number, number];
  readonly oldRow: number | null;
  readonly newRow: number | null;
}

export interface PictureOfChanges {
  readonly x: PictureAxis;
  readonly y: PictureAxis;
  readonly fixed: Readonly<Partial<Record<SizeName, number>>>;
  readonly regions: readonly ChangedBox[];
  readonly complete: boolean;
}
