// Where everything of the map lies in its picture, in the picture's own units.

import type { SizeRange, SizeScale } from "../../drawing/scales";
import { sizeScale } from "../../drawing/scales";
import type { Area, RuleMapPicture } from "../../model/pictures";

export const kFrame = { width: 960, height: 640, left: 72, right: 16, top: 34, bottom: 50 } as const;

export interface Plane {
  readonly x: SizeScale;
  readonly y: SizeScale;
}

export interface Rectangle {
  readonly x: number;
  readonly y: number;
  readonly width: number;
  readonly height: number;
}

export interface Zoom {
  readonly x?: SizeRange | undefined;
  readonly y?: SizeRange | undefined;
}

/** A logarithmic axis that has no end at 0 begins a little below where the rows do. */
function wholeRange(picture: RuleMapPicture, side: "x" | "y", isLog: boolean): SizeRange {
  const { size, from, to } = picture[side];
  const low = picture.hull?.[size][0] ?? 0;
  return { from: isLog && from === 0 && low > 0 ? low * 0.7 : from, to };
}

export function planeOf(picture: RuleMapPicture, zoom: Zoom, isLogX: boolean, isLogY: boolean): Plane {
  const { width, height, left, right, top, bottom } = kFrame;
  return {
    x: sizeScale(zoom.x ?? wholeRange(picture, "x", isLogX), [left, width - right], isLogX),
    y: sizeScale(zoom.y ?? wholeRange(picture, "y", isLogY), [height - bottom, top], isLogY),
  };
}

export function rectangleOf({ x, y }: Area, plane: Plane): Rectangle {
  const [left, right] = [plane.x(x[0]), plane.x(x[1])];
  const [low, high] = [plane.y(y[0]), plane.y(y[1])];
  return { x: left, y: high, width: right - left, height: low - high };
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

export function middle({ x, y, width, height }: Rectangle): { x: number; y: number } {
  return { x: x + width / 2, y: y + height / 2 };
}
