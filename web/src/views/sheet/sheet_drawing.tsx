// One sheet to scale.

import type { RefObject } from "preact";
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

interface SheetDrawingProps {
  readonly sheet: DrawnSheet;
  readonly svg: RefObject<SVGSVGElement | null>;
  readonly zoom: Zoomable;
  readonly colors: ReadonlyMap<number | null, string>;
  readonly marked: SheetPart | undefined;
  readonly differing: ReadonlySet<SheetPart>;
  mark(part: SheetPart | undefined): void;
  open(part: SheetPart): void;
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

export function SheetDrawing(props: SheetDrawingProps) {
  const { sheet, svg, zoom, colors, marked, differing, mark, open } = props;
  const say = useSay();
  const { language } = useApp();
  useFollowing(svg, zoom);
  const { box } = zoom;
  const line = usePixel(svg, box);
  return (
    <svg
      ref={svg}
      class="sheet-picture"
      viewBox={`${box.x} ${box.y} ${box.width} ${box.height}`}
      role="img"
      aria-label={say(kSheetWords.picture, sheet.title[language], shown(sheet.width), shown(sheet.height))}
    >
      <rect width={sheet.width} height={sheet.height} fill={kPaper} stroke={kQuiet} stroke-width={line} />
      {sheet.parts.map((part, index) => {
        const hit = boxOf(part, sheet.height);
        // A frame would hide what lies within it.
        const isFrame = part.kind === "rectangle";
        const rim = 6 * line;
        return (
          <g
            key={index}
            class="sheet-part"
            onPointerEnter={() => mark(part)}
            onPointerLeave={() => mark(undefined)}
            onClick={() => open(part)}
          >
            {differing.has(part) && (
              <rect
                x={hit.x - rim}
                y={hit.y - rim}
                width={hit.width + 2 * rim}
                height={hit.height + 2 * rim}
                fill="#fdf1d3"
                fill-opacity={isFrame ? 0 : 1}
                stroke="#e69f00"
                stroke-width={line}
                stroke-dasharray={`${line * 3} ${line * 2}`}
              />
            )}
            <rect
              x={hit.x - rim}
              y={hit.y - rim}
              width={hit.width + 2 * rim}
              height={hit.height + 2 * rim}
              fill="none"
              pointer-events={isFrame ? "stroke" : "all"}
              stroke="transparent"
              stroke-width={rim * 1.5}
              data-page-only
            />
            <ShapeOf
              part={part}
              label={part.label[language]}
              paper={sheet.height}
              color={colors.get(part.color) ?? kInk}
              line={line}
            />
          </g>
        );
      })}
      {marked && sheet.parts.includes(marked) && (
        <Marked part={marked} paper={sheet.height} view={box} line={line} />
      )}
    </svg>
  );
}
