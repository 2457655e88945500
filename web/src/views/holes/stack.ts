// Where the segments of a hole lie in its picture. Depths are the program's; a segment without one gets a share of the picture, and is marked.

import type { HoleSection, HoleSegment } from "../../model/pictures";

export interface DrawnSegment {
  readonly segment: HoleSegment;
  /** From the top of the picture down, in the picture's units, and half the width. */
  readonly top: number;
  readonly bottom: number;
  readonly radius: number;
  /** Its height is stated, so that it is drawn to scale. */
  readonly isToScale: boolean;
}

export interface Stack {
  readonly segments: readonly DrawnSegment[];
  readonly height: number;
  /** Units of the picture a millimetre. */
  readonly scale: number;
}

/** What a segment without a height is drawn with, as a share of the hole's diameter. */
const kAssumedShare = 0.6;

function heightOf(segment: HoleSegment, hole: HoleSection): number {
  return segment.height ?? hole.maxDiameter * kAssumedShare;
}

/** Fits the hole into so many units; both directions have one scale. */
export function stackOf(hole: HoleSection, width: number, height: number): Stack {
  const whole = hole.segments.reduce((sum, segment) => sum + heightOf(segment, hole), 0);
  const scale = Math.min(width / Math.max(hole.maxDiameter, 1e-9), height / Math.max(whole, 1e-9));
  let top = 0;
  const segments = hole.segments.map((segment) => {
    const bottom = top + heightOf(segment, hole) * scale;
    const drawn = {
      segment,
      top,
      bottom,
      radius: (segment.diameter / 2) * scale,
      isToScale: segment.height !== null,
    };
    top = bottom;
    return drawn;
  });
  return { segments, height: whole * scale, scale };
}
