// The plane of two sizes: where the program's areas lie in its picture, in the picture's own units.

import type { Area, Side } from "../model/pictures";
import type { SizeRange, SizeScale } from "./scales";
import { sizeScale } from "./scales";

export interface Frame {
  readonly width: number;
  readonly height: number;
  readonly left: number;
  readonly right: number;
  readonly top: number;
  readonly bottom: number;
}

export interface Plane {
  readonly x: SizeScale;
  readonly y: SizeScale;
}

export interface Logs {
  readonly x: boolean;
  readonly y: boolean;
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

/** A picture of two sizes. */
export interface Sides {
  readonly x: Side;
  readonly y: Side;
}

/** Where a logarithmic axis begins that has no end at 0: a little below the least value that matters. */
export type Lows = Readonly<Record<"x" | "y", number>>;

function wholeRange({ from, to }: Side, low: number, isLog: boolean): SizeRange {
  return { from: isLog && from === 0 && low > 0 ? low * 0.7 : from, to };
}

export function planeOver(sides: Sides, zoom: Zoom, logs: Logs, lows: Lows, frame: Frame): Plane {
  const { width, height, left, right, top, bottom } = frame;
  const range = (side: "x" | "y") => zoom[side] ?? wholeRange(sides[side], lows[side], logs[side]);
  return {
    x: sizeScale(range("x"), [left, width - right], logs.x),
    y: sizeScale(range("y"), [height - bottom, top], logs.y),
  };
}

export function rectangleOf({ x, y }: Area, plane: Plane): Rectangle {
  const [left, right] = [plane.x(x[0]), plane.x(x[1])];
  const [low, high] = [plane.y(y[0]), plane.y(y[1])];
  return { x: left, y: high, width: right - left, height: low - high };
}

export function middle({ x, y, width, height }: Rectangle): { x: number; y: number } {
  return { x: x + width / 2, y: y + height / 2 };
}

const round = (value: number): string => String(Number(value.toFixed(2)));

/** Many areas as one path: a picture of thousands of rows has few elements. What is out of sight is left out. */
export function pathOf(areas: readonly Area[], plane: Plane): string {
  return areas
    .map((area) => rectangleOf(area, plane))
    .filter(({ width, height }) => width > 0 && height > 0)
    .map(
      ({ x, y, width, height }) =>
        `M${round(x)} ${round(y)}h${round(width)}v${round(height)}h${round(-width)}z`,
    )
    .join("");
}
