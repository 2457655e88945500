// Scales from millimetres to the picture. A logarithm has no place for 0, so that such a scale begins above it.

import { scaleLinear, scaleLog } from "d3-scale";

export interface SizeScale {
  (value: number): number;
  invert(place: number): number;
  /** Values for marks, at most about so many, and their labels. */
  marks(count: number): readonly Mark[];
  readonly from: number;
  readonly to: number;
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

function linearScale(range: SizeRange, places: readonly [number, number]): SizeScale {
  const scale = scaleLinear([range.from, range.to], [...places]).clamp(true);
  const marks = (count: number) => {
    const format = scale.tickFormat(count, "~r");
    return scale.ticks(count).map((value) => ({ value, label: format(value) }));
  };
  return Object.assign((value: number) => scale(value), {
    invert: (place: number) => scale.invert(place),
    marks,
    ...range,
  });
}

function logScale(range: SizeRange, places: readonly [number, number]): SizeScale {
  const from = beginOfLog(range);
  const scale = scaleLog([from, range.to], [...places]).clamp(true);
  const marks = (count: number) => {
    const format = scale.tickFormat(count, "~r");
    return scale.ticks(count).map((value) => ({ value, label: format(value) }));
  };
  return Object.assign((value: number) => scale(Math.max(value, from)), {
    invert: (place: number) => scale.invert(place),
    marks,
    from,
    to: range.to,
  });
}

/** What lies outside is drawn at the edge. */
export function sizeScale(range: SizeRange, places: readonly [number, number], isLog: boolean): SizeScale {
  const full = range.to > range.from ? range : { from: range.from, to: range.from + 1 };
  return isLog ? logScale(full, places) : linearScale(full, places);
}

/** Zoomed by `factor` around a value that keeps its place; within the limits. */
export function zoomed(range: SizeRange, factor: number, around: number, limits: SizeRange): SizeRange {
  const from = Math.max(limits.from, around - (around - range.from) * factor);
  const to = Math.min(limits.to, around + (range.to - around) * factor);
  return to - from < (limits.to - limits.from) * 1e-6 ? range : { from, to };
}
