// One hole in section: the plate hatched, the hole open, the walls in the colour of their faces.

import type { RefObject } from "preact";
import { useSay } from "../../app/state";
import { Hatch } from "../../drawing/hatch";
import { kFont, kInk, kPaper, kQuiet } from "../../drawing/looks";
import { shown } from "../../drawing/numbers";
import type { HoleSection } from "../../model/pictures";
import { kHoleWords } from "../../words/holes";
import type { Stack } from "./stack";
import { stackOf } from "./stack";

interface Size {
  readonly width: number;
  readonly height: number;
}

interface WallsProps {
  readonly stack: Stack;
  readonly middle: number;
  readonly colors: ReadonlyMap<number, string>;
  readonly thickness: number;
}

/** The opening, and its walls left and right. */
function Walls({ stack, middle, colors, thickness }: WallsProps) {
  return (
    <>
      {stack.segments.map(({ segment, top, bottom, radius, isToScale }, index) => (
        <g key={index}>
          <rect x={middle - radius} y={top} width={2 * radius} height={bottom - top} fill={kPaper} />
          <path
            d={`M${middle - radius} ${top}V${bottom}M${middle + radius} ${top}V${bottom}`}
            stroke={colors.get(segment.color)}
            stroke-width={thickness}
            stroke-dasharray={isToScale ? undefined : `${thickness * 2} ${thickness}`}
          />
        </g>
      ))}
      <path d={steps(stack, middle)} stroke={kInk} stroke-width={Math.min(1.2, thickness / 2)} fill="none" />
    </>
  );
}

/** The faces between two segments, which no segment's colour is said of. */
function steps({ segments }: Stack, middle: number): string {
  return segments
    .slice(1)
    .map(({ top, radius }, index) => {
      const before = segments[index]?.radius ?? radius;
      return `M${middle - before} ${top}H${middle - radius}M${middle + radius} ${top}H${middle + before}`;
    })
    .join("");
}

/** A small picture for a list. */
export function SectionMark({ hole, colors }: { hole: HoleSection; colors: ReadonlyMap<number, string> }) {
  const size: Size = { width: 34, height: 30 };
  const stack = stackOf(hole, size.width - 8, size.height - 2);
  const down = (size.height - stack.height) / 2;
  return (
    <svg class="hole-mark" viewBox={`0 0 ${size.width} ${size.height}`} aria-hidden="true">
      <g transform={`translate(0 ${down})`}>
        <rect width={size.width} height={stack.height} fill="#d5d9de" />
        <Walls stack={stack} middle={size.width / 2} colors={colors} thickness={2} />
      </g>
    </svg>
  );
}

const kFrame = { width: 560, height: 460, above: 26, below: 40, plate: 300, left: 70 } as const;

const kLineHeight = 17;

/** Texts beside the segments, pushed apart where they would touch. */
export function apart(wishes: readonly number[], distance: number, end: number): readonly number[] {
  const places = [...wishes];
  for (let i = 1; i < places.length; ++i)
    places[i] = Math.max(places[i] ?? 0, (places[i - 1] ?? 0) + distance);
  let limit = end;
  for (let i = places.length - 1; i >= 0; --i) {
    places[i] = Math.min(places[i] ?? 0, limit);
    limit = (places[i] ?? 0) - distance;
  }
  return places;
}

/** The depths at the left of the plate, 0 at its top. */
function Depths({ stack, at }: { stack: Stack; at: number }) {
  const ends = [
    { y: 0, text: "0" },
    ...stack.segments.map(({ segment, bottom }) => ({
      y: bottom,
      text: segment.to === null ? "?" : shown(segment.to),
    })),
  ];
  const places = apart(
    ends.map(({ y }) => y),
    kLineHeight - 2,
    stack.height,
  );
  return (
    <>
      {ends.map(({ y, text }, index) => (
        <g key={index}>
          <path d={`M${at - 14} ${places[index]}L${at - 6} ${y}H${at}`} stroke={kQuiet} fill="none" />
          <text x={at - 18} y={places[index]} dy="0.35em" text-anchor="end">
            {text}
          </text>
        </g>
      ))}
    </>
  );
}

function Labels({ stack, at, middle }: { stack: Stack; at: number; middle: number }) {
  const say = useSay();
  const wishes = stack.segments.map(({ top, bottom }) => (top + bottom) / 2);
  const places = apart(wishes, kLineHeight, stack.height);
  return (
    <>
      {stack.segments.map(({ segment, radius }, index) => {
        const y = places[index] ?? 0;
        return (
          <g key={index}>
            <path
              d={`M${middle + radius} ${wishes[index]}L${at - 22} ${wishes[index]}L${at - 8} ${y}H${at - 4}`}
              stroke={kQuiet}
              fill="none"
            />
            <text x={at} y={y} dy="0.35em">
              {`⌀${shown(segment.diameter)} · ${say(kHoleWords.group[segment.group])} · ${say(kHoleWords.colorOf, segment.color)}`}
            </text>
          </g>
        );
      })}
    </>
  );
}

function End({ hole, at, middle, width }: { hole: HoleSection; at: number; middle: number; width: number }) {
  const say = useSay();
  if (hole.through === true) return null;
  return (
    <>
      <path
        d={`M${middle - width / 2} ${at}h${width}`}
        stroke={kInk}
        stroke-width="1.5"
        stroke-dasharray="6 4"
      />
      <text x={middle} y={at + 20} text-anchor="middle" fill={kQuiet}>
        {say(kHoleWords.perhapsThrough)}
      </text>
    </>
  );
}

interface SectionProps {
  readonly hole: HoleSection;
  readonly colors: ReadonlyMap<number, string>;
  readonly svg: RefObject<SVGSVGElement | null>;
}

export function Section({ hole, colors, svg }: SectionProps) {
  const say = useSay();
  const { width, height, above, below, plate, left } = kFrame;
  const stack = stackOf(hole, plate * 0.72, height - above - below);
  const middle = left + plate / 2;
  const last = stack.segments.at(-1);
  return (
    <svg
      ref={svg}
      class="hole-section"
      viewBox={`0 0 ${width} ${stack.height + above + below}`}
      role="img"
      aria-label={say(kHoleWords.section, hole.name)}
    >
      <defs>
        <Hatch id="steel" color="#8c959f" background="#eef0f2" angle={45} gap={8} width={1} />
      </defs>
      <rect width={width} height={stack.height + above + below} fill={kPaper} />
      <g transform={`translate(0 ${above})`} font-family={kFont} font-size="13" fill={kInk}>
        <rect x={left} width={plate} height={stack.height} fill="url(#steel)" />
        <path d={`M${left} 0h${plate}M${left} ${stack.height}h${plate}`} stroke={kInk} stroke-width="1.5" />
        <Walls stack={stack} middle={middle} colors={colors} thickness={5} />
        <path
          d={`M${middle} -14V${stack.height + 14}`}
          stroke={kQuiet}
          stroke-dasharray="12 3 2 3"
          stroke-width="0.8"
        />
        <Depths stack={stack} at={left} />
        <Labels stack={stack} at={left + plate + 30} middle={middle} />
        <End hole={hole} at={stack.height} middle={middle} width={2 * (last?.radius ?? 0)} />
      </g>
    </svg>
  );
}
