// Scales from millimetres to the picture. A logarithm has no place for 0, so that such a scale begins above it.

import { scaleLinear, scaleLog } from "d3-scale";

export interface SizeScale {
  (value: number): number;
  invert(place: number): number;
  /** Values for marks, at most about so many, and their labels. */
  marks(count: number): readonly Mark[];
  readonly from: number;
  readonly to: number;
  /** Where a value lies and which one lies at a place, also beyond both ends. */
  readonly free: { place(value: number): number; value(place: number): number };
}

export interface Mark {
  readonly value: number;
  /** Empty between the labelled ones. */
  readonly label: string;
}

export interface SizeRange {
  readonly from: number;
  readonly to: number;
}

/** A thousandth of the whole is where a logarithmic scale begins that would begin at 0; not below what a plate measures. */
function beginOfLog({ from, to }: SizeRange): number {
  return from > 0 ? from : Math.min(Math.max(to / 1000, 1), to / 10);
}

/** What d3's scales have in common. */
interface AnyScale {
  (value: number): number;
  invert(place: number): number;
  ticks(count: number): number[];
  tickFormat(count: number, specifier: string): (value: number) => string;
  copy(): AnyScale;
  clamp(clamps: boolean): AnyScale;
}

function scaleOf(scale: AnyScale, range: SizeRange): SizeScale {
  const [bound, free] = [scale.copy().clamp(true), scale.copy().clamp(false)];
  return Object.assign((value: number) => bound(value), {
    invert: (place: number) => bound.invert(place),
    marks: (count: number) => {
      const format = bound.tickFormat(count, "~r");
      return bound.ticks(count).map((value) => ({ value, label: format(value) }));
    },
    ...range,
    free: { place: (value: number) => free(value), value: (place: number) => free.invert(place) },
  });
}

function linearScale(range: SizeRange, places: readonly [number, number]): SizeScale {
  return scaleOf(scaleLinear([range.from, range.to], [...places]), range);
}

function logScale(range: SizeRange, places: readonly [number, number]): SizeScale {
  const from = beginOfLog(range);
  const scale = scaleOf(scaleLog([from, range.to], [...places]), { from, to: range.to });
  return Object.assign((value: number) => scale(Math.max(value, from)), scale);
}

/** What lies outside is drawn at the edge. */
export function sizeScale(range: SizeRange, places: readonly [number, number], isLog: boolean): SizeScale {
  const full = range.to > range.from ? range : { from: range.from, to: range.from + 1 };
  return isLog ? logScale(full, places) : linearScale(full, places);
}

/** The part of the scale between two places, within the limits. */
function between({ free }: SizeScale, low: number, high: number, limits: SizeRange): SizeRange {
  return { from: Math.max(limits.from, free.value(low)), to: Math.min(limits.to, free.value(high)) };
}

/** Zoomed by `factor` around a value that keeps its place, or the end beyond which it lies; within the limits. */
export function zoomed(scale: SizeScale, factor: number, around: number, limits: SizeRange): SizeRange {
  const { from, to, free } = scale;
  const spot = scale(around);
  const at = (end: number) => spot + (free.place(end) - spot) * factor;
  const range = between(scale, at(from), at(to), limits);
  return range.to - range.from < (limits.to - limits.from) * 1e-6 ? { from, to } : range;
}

/** Moved by so many units of the picture, the way in which its places count; stops at the limits. */
export function moved(scale: SizeScale, by: number, limits: SizeRange): SizeRange {
  const { from, to, free } = scale;
  const [low, high] = [free.place(from), free.place(to)];
  const room = [free.place(limits.from) - low, free.place(limits.to) - high] as const;
  const step = Math.min(Math.max(by, Math.min(...room)), Math.max(...room));
  return between(scale, low + step, high + step, limits);
}
