// Where everything of the map lies in its picture, in the picture's own units.

import type { Logs, Plane, Rectangle, Zoom } from "../../drawing/plane";
import { planeOver, rectangleOf } from "../../drawing/plane";
import type { Area, RuleMapPicture } from "../../model/pictures";

export const kFrame = { width: 960, height: 640, left: 72, right: 16, top: 34, bottom: 50 } as const;

export function planeOf(picture: RuleMapPicture, zoom: Zoom, logs: Logs): Plane {
  const low = (side: "x" | "y") => picture.hull?.[picture[side].size][0] ?? 0;
  return planeOver(picture, zoom, logs, { x: low("x"), y: low("y") }, kFrame);
}

/** Whether there is something out of sight. */
export function isPart(plane: Plane, whole: Plane): boolean {
  const isPartOf = (axis: "x" | "y") =>
    plane[axis].from > whole[axis].from || plane[axis].to < whole[axis].to;
  return isPartOf("x") || isPartOf("y");
}

const kLabelWidth = 24;
const kLabelHeight = 16;
const kLabelsPerRow = 3;

/** The areas of a row that are large enough in the picture to bear its number, the largest first. */
export function labelled(areas: readonly Area[], plane: Plane): readonly Rectangle[] {
  return areas
    .map((area) => rectangleOf(area, plane))
    .filter(({ width, height }) => width >= kLabelWidth && height >= kLabelHeight)
    .sort((a, b) => b.width * b.height - a.width * a.height)
    .slice(0, kLabelsPerRow);
}

function sizeOf({ x, y }: Area): number {
  return (x[1] - x[0]) * (y[1] - y[0]);
}

/** Hatching tells something while it is the exception: when more is hidden than won it would cover everything. */
export function isReadable({ regions }: RuleMapPicture): boolean {
  const all = (areas: (region: RuleMapPicture["regions"][number]) => readonly Area[]) =>
    regions.reduce((sum, region) => areas(region).reduce((some, area) => some + sizeOf(area), sum), 0);
  return all(({ hidden }) => hidden) <= all(({ wins }) => wins);
}
