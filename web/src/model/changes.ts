// `picture changes OLD NEW`: the changed regions cut by the plane of two sizes.

import type { Area, Side, SizeStory } from "./pictures";
import type { Group, SizeName } from "./plate";

export interface ChangedArea extends Area {
  readonly oldRow: number | null;
  readonly newRow: number | null;
  /** Where the two tables say different things of some faces: the plates that the area is of. */
  readonly group?: Group;
}

export interface PictureOfChanges {
  readonly x: Side;
  readonly y: Side;
  readonly fixed: Readonly<Partial<Record<SizeName, number>>>;
  readonly sizes: Readonly<Record<SizeName, Pick<SizeStory, "shown" | "bounds">>>;
  /** False: areas of several groups may lie over each other. */
  readonly answersAgree: boolean;
  readonly regions: readonly ChangedArea[];
  readonly complete: boolean;
}
