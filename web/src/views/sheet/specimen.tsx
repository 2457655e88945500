// What is known of something without a place, drawn at its size: a millimetre is one on the screen and on paper.

import { kFont, kInk, kQuiet } from "../../drawing/looks";
import { shown } from "../../drawing/numbers";
import type { Specimen, UnknownPlace } from "../../model/pictures";
import { kSheetWords } from "../../words/sheet";
import type { Say } from "../../words/say";
import { kLinePerHeight, lengthOfText } from "./shapes";

/** What the column beside the sheet has room for, mm. */
export const kMostRoom = 70;
const kLine = 0.25;
const kRim = 0.5;
/** Of a line nothing but its look is known. */
const kSampleLine = 12;

/** How much smaller than 1:1 something is drawn that has no room: 1, or a number as drawings use it. */
export function reduction(greatest: number): number {
  const steps = [1, 2, 5, 10, 20, 50, 100];
  return steps.find((step) => greatest / step <= kMostRoom) ?? Math.ceil(greatest / kMostRoom);
}

interface RoomProps {
  readonly width: number;
  readonly height: number;
  readonly children: preact.ComponentChildren;
}

function Room({ width, height, children }: RoomProps) {
  const [all, up] = [width + 2 * kRim, height + 2 * kRim];
  return (
    <svg
      class="sheet-specimen"
      width={`${all}mm`}
      height={`${up}mm`}
      viewBox={`${-kRim} ${-kRim} ${all} ${up}`}
      aria-hidden="true"
    >
      {children}
    </svg>
  );
}

function Circle({ diameter, color }: { diameter: number; color: string }) {
  const drawn = diameter / reduction(diameter);
  return (
    <Room width={drawn} height={drawn}>
      <circle cx={drawn / 2} cy={drawn / 2} r={drawn / 2} fill="none" stroke={color} stroke-width={kLine} />
    </Room>
  );
}

function Rectangle({ width, height, color }: { width: number; height: number; color: string }) {
  const by = reduction(Math.max(width, height));
  return (
    <Room width={width / by} height={height / by}>
      <rect width={width / by} height={height / by} fill="none" stroke={color} stroke-width={kLine} />
    </Room>
  );
}

/** As a dimension line; one that has no room is broken in the middle, as drawings do. */
function Length({ length, color }: { length: number; color: string }) {
  const isBroken = length > kMostRoom;
  const end = isBroken ? kMostRoom : length;
  const [before, behind] = [end / 2 - 1, end / 2 + 1];
  const line = isBroken ? `M0 2H${before}M${behind} 2H${end}` : `M0 2H${end}`;
  const breaks = isBroken ? `M${before - 0.5} 3.5l1 -3M${behind - 0.5} 3.5l1 -3` : "";
  return (
    <Room width={end} height={4}>
      <path d={`M0 0V4M${end} 0V4${line}${breaks}`} fill="none" stroke={color} stroke-width={kLine} />
    </Room>
  );
}

function Text({
  text,
  height,
  isSaid,
  color,
}: {
  text: string;
  height: number;
  isSaid: boolean;
  color: string;
}) {
  const size = height * kLinePerHeight;
  return (
    <Room width={Math.min(kMostRoom, lengthOfText(text, size))} height={size * 1.2}>
      <text
        y={size * 0.95}
        font-family={kFont}
        font-size={size}
        fill={isSaid ? color : kQuiet}
        font-style={isSaid ? undefined : "italic"}
      >
        {text}
      </text>
    </Room>
  );
}

/** Greatest length of what is drawn; 0 when its numbers give nothing to draw. */
function greatestOf(specimen: Specimen): number {
  switch (specimen.kind) {
    case "circle":
      return specimen.diameter ?? 0;
    case "length":
      return specimen.length ?? 0;
    case "rectangle":
      return Math.min(specimen.width ?? 0, specimen.height ?? 0) > 0
        ? Math.max(specimen.width ?? 0, specimen.height ?? 0)
        : 0;
    case "text":
      return specimen.textHeight ?? 0;
    case "line":
      return kSampleLine;
  }
}

interface SpecimenProps {
  readonly specimen: Specimen;
  /** What stands for a text that no setting has. */
  readonly label: string;
  readonly colors: ReadonlyMap<number | null, string>;
}

export function SpecimenDrawing({ specimen, label, colors }: SpecimenProps) {
  if (!(greatestOf(specimen) > 0)) return null;
  const color = colors.get(specimen.color) ?? kInk;
  switch (specimen.kind) {
    case "circle":
      return <Circle diameter={specimen.diameter} color={color} />;
    case "rectangle":
      return <Rectangle width={specimen.width} height={specimen.height} color={color} />;
    case "length":
      return <Length length={specimen.length} color={color} />;
    case "line":
      return (
        <Room width={kSampleLine} height={1}>
          <path d={`M0 0.5H${kSampleLine}`} stroke={color} stroke-width={kLine * 1.6} />
        </Room>
      );
    case "text":
      return (
        <Text
          text={specimen.text ?? `<${specimen.attribute ?? label}>`}
          height={specimen.textHeight ?? 0}
          isSaid={specimen.text !== null}
          color={color}
        />
      );
  }
}

function sizeText(specimen: Specimen, say: Say): string {
  switch (specimen.kind) {
    case "circle":
      return `⌀${shown(specimen.diameter)}`;
    case "length":
      return `${shown(specimen.length)} mm`;
    case "rectangle":
      return `${shown(specimen.width)} x ${shown(specimen.height)} mm`;
    case "text":
      return specimen.textHeight === null ? "" : say(kSheetWords.textHeight, shown(specimen.textHeight));
    case "line":
      return "";
  }
}

/** Its numbers in words, and the scale when it is not drawn at its size. */
export function specimenText({ specimen }: UnknownPlace, say: Say): string {
  if (specimen === null) return "";
  const by =
    specimen.kind === "circle" || specimen.kind === "rectangle" ? reduction(greatestOf(specimen)) : 1;
  return [
    sizeText(specimen, say),
    by === 1 ? "" : `1:${by}`,
    specimen.color === null ? "" : say(kSheetWords.color, specimen.color),
    specimen.layer === null ? "" : say(kSheetWords.layer, specimen.layer),
  ]
    .filter((piece) => piece !== "")
    .join(" · ");
}
