// What of the picture lies at a place: which of the program's areas hold it.

import type { Area, Region, RuleMapPicture } from "../../model/pictures";

export interface Place {
  readonly x: number;
  readonly y: number;
}

export interface Hit {
  /** The row that a plate at the place gets. */
  readonly winner: Region | undefined;
  /** Rows that accept it too, but stand below. */
  readonly hidden: readonly Region[];
  readonly isGap: boolean;
}

export function holds({ x, y }: Area, place: Place): boolean {
  return x[0] <= place.x && place.x <= x[1] && y[0] <= place.y && place.y <= y[1];
}

export function hitAt(picture: RuleMapPicture, place: Place): Hit {
  const isIn = (areas: readonly Area[]) => areas.some((area) => holds(area, place));
  return {
    winner: picture.regions.find(({ wins }) => isIn(wins)),
    hidden: picture.regions.filter(({ hidden }) => isIn(hidden)),
    isGap: isIn(picture.gaps),
  };
}
