// A colour for each row of the map: neighbours get different ones, and a row keeps its colour while the sliders move where it can.

import { colorAt, kPalette } from "../../drawing/palette";
import type { Region } from "../../model/pictures";

/** By row number. */
export function rowColors(regions: readonly Region[]): ReadonlyMap<number, string> {
  const chosen = new Map<number, number>();
  for (const { row, neighbours } of regions) {
    const taken = new Set(neighbours.map((each) => chosen.get(each)));
    const wishes = kPalette.map((_, step) => (row + step) % kPalette.length);
    chosen.set(row, wishes.find((color) => !taken.has(color)) ?? row % kPalette.length);
  }
  return new Map([...chosen].map(([row, color]) => [row, colorAt(color)]));
}
