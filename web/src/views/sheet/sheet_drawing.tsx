// One sheet to scale.

import type { ComponentChildren, RefObject } from "preact";
import { useApp, useSay } from "../../app/state";
import { kFont, kInk, kPaper, kQuiet } from "../../drawing/looks";
import { shown } from "../../drawing/numbers";
import { useFollowing, usePixel, type ViewBox, type Zoomable } from "../../drawing/view_box";
import type { DrawnSheet, SheetPart } from "../../model/pictures";
import { kSheetWords } from "../../words/sheet";
import { boxOf, ShapeOf } from "./shapes";

/** The paper, and a little of the table that it lies on. */
export function wholeOf({ width, height }: { width: number; height: number }): ViewBox {
  const rim = Math.max(width, height) * 0.03;
  return { x: -rim, y: -rim, width: width + 2 * rim, height: height + 2 * rim };
}

interface DrawnProps {
  readonly sheet: DrawnSheet;
  readonly colors: ReadonlyMap<number | null, string>;
  readonly differing: ReadonlySet<SheetPart>;
}

interface MarkedProps {
  readonly part: SheetPart;
  readonly paper: number;
  readonly view: ViewBox;
  readonly line: number;
}

function Marked({ part, paper, view, line }: MarkedProps) {
  const { language } = useApp();
  const { x, y, width, height } = boxOf(part, paper);
  const rim = 5 * line;
  const size = 13 * line;
  const key = part.keys[0]?.column;
  const label = `${part.label[language]}${key === undefined ? "" : ` · ${key}`}`;
  const length = [...label].reduce((sum, letter) => sum + (letter > "\u02ff" ? 1 : 0.58), 1) * size;
  // Within sight, wherever the part is.
  const left = Math.max(view.x, Math.min(x - rim, view.x + view.width - length));
  const above = Math.max(view.y, y - rim - size * 1.7);
  return (
    <g pointer-events="none" data-page-only>
      <rect
        x={x - rim}
        y={y - rim}
        width={width + 2 * rim}
        height={height + 2 * rim}
        fill="none"
        stroke={kInk}
        stroke-width={line * 2}
        stroke-dasharray={`${line * 5} ${line * 3}`}
      />
      <rect x={left} y={above} width={length} height={size * 1.5} fill={kInk} rx={line * 2} />
      <text x={left + size * 0.4} y={above + size * 1.1} font-family={kFont} font-size={size} fill={kPaper}>
        {label}
      </text>
    </g>
  );
}

/** A frame would hide what lies within it. */
function isFrame(part: SheetPart): boolean {
  return part.kind === "rectangle";
}

interface AroundProps {
  readonly part: SheetPart;
  readonly paper: number;
  readonly line: number;
}

/** The box of a part with a rim of some lines. */
function around({ part, paper, line }: AroundProps) {
  const { x, y, width, height } = boxOf(part, paper);
  const rim = 6 * line;
  return { x: x - rim, y: y - rim, width: width + 2 * rim, height: height + 2 * rim };
}

function Differing(props: AroundProps) {
  const { part, line } = props;
  return (
    <rect
      {...around(props)}
      fill="#fdf1d3"
      fill-opacity={isFrame(part) ? 0 : 1}
      stroke="#e69f00"
      stroke-width={line}
      stroke-dasharray={`${line * 3} ${line * 2}`}
    />
  );
}

/** Where the part is pointed at: its lines alone would be hard to meet. */
function Reach(props: AroundProps) {
  return (
    <rect
      {...around(props)}
      fill="none"
      pointer-events={isFrame(props.part) ? "stroke" : "all"}
      stroke="transparent"
      stroke-width={9 * props.line}
      data-page-only
    />
  );
}

interface PictureProps extends DrawnProps {
  readonly box: ViewBox;
  /** Millimetres that a line is wide. */
  readonly line: number;
  readonly svg?: RefObject<SVGSVGElement | null>;
  readonly children?: ComponentChildren;
  /** What a part listens to. */
  readonly listening?: (part: SheetPart) => object;
}

function Picture({ sheet, box, line, colors, differing, svg, children, listening }: PictureProps) {
  const say = useSay();
  const { language } = useApp();
  const paper = sheet.height;
  return (
    <svg
      {...(svg && { ref: svg })}
      class="sheet-picture"
      viewBox={`${box.x} ${box.y} ${box.width} ${box.height}`}
      role="img"
      aria-label={say(kSheetWords.picture, sheet.title[language], shown(sheet.width), shown(sheet.height))}
    >
      <rect width={sheet.width} height={paper} fill={kPaper} stroke={kQuiet} stroke-width={line} />
      {sheet.parts.map((part, index) => (
        <g key={index} class="sheet-part" {...listening?.(part)}>
          {differing.has(part) && <Differing part={part} paper={paper} line={line} />}
          {listening && <Reach part={part} paper={paper} line={line} />}
          <ShapeOf
            part={part}
            label={part.label[language]}
            paper={paper}
            color={colors.get(part.color) ?? kInk}
            line={line}
          />
        </g>
      ))}
      {children}
    </svg>
  );
}

/** So many lines are beside each other in a saved picture, as in a window of middling size. */
const kLinesOfFile = 900;

/** The picture for a file: what is in sight of the sheet. */
export function SavedSheet({ box, ...drawn }: DrawnProps & { readonly box: ViewBox }) {
  return <Picture {...drawn} box={box} line={box.width / kLinesOfFile} />;
}

interface SheetDrawingProps extends DrawnProps {
  readonly svg: RefObject<SVGSVGElement | null>;
  readonly zoom: Zoomable;
  readonly marked: SheetPart | undefined;
  mark(part: SheetPart | undefined): void;
  open(part: SheetPart): void;
}

export function SheetDrawing({ svg, zoom, marked, mark, open, ...drawn }: SheetDrawingProps) {
  useFollowing(svg, zoom);
  const { sheet } = drawn;
  const { box } = zoom;
  const line = usePixel(svg, box);
  const listening = (part: SheetPart) => ({
    onPointerEnter: () => mark(part),
    onPointerLeave: () => mark(undefined),
    onClick: () => open(part),
  });
  return (
    <Picture {...drawn} svg={svg} box={box} line={line} listening={listening}>
      {marked && sheet.parts.includes(marked) && (
        <Marked part={marked} paper={sheet.height} view={box} line={line} />
      )}
    </Picture>
  );
}
