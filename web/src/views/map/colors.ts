// A colour for each row of the map: neighbours get different ones, and a row keeps its colour while the sliders move where it can.

import { colorAt, kPalette } from "../../drawing/palette";
import type { Area, Region } from "../../model/pictures";

/** Areas that the program gives side by side are apart by one double at most; a share of the picture is more than that. */
function touch(one: Area, other: Area, reach: number): boolean {
  const meet = (a: readonly [number, number], b: readonly [number, number]) =>
    a[0] <= b[1] + reach && b[0] <= a[1] + reach;
  return meet(one.x, other.x) && meet(one.y, other.y);
}

function areNeighbours(one: Region, other: Region, reach: number): boolean {
  return one.wins.some((area) => other.wins.some((each) => touch(area, each, reach)));
}

/** By row number. */
export function rowColors(regions: readonly Region[], reach = 0.01): ReadonlyMap<number, string> {
  const chosen = new Map<number, number>();
  for (const region of regions) {
    const taken = regions
      .filter((other) => chosen.has(other.row) && areNeighbours(region, other, reach))
      .map(({ row }) => chosen.get(row));
    const wishes = kPalette.map((_, step) => (region.row + step) % kPalette.length);
    chosen.set(region.row, wishes.find((color) => !taken.includes(color)) ?? region.row % kPalette.length);
  }
  return new Map([...chosen].map(([row, color]) => [row, colorAt(color)]));
}
