// Where plates change in the plane of two sizes: a cut through the example of the chosen region.

import { useMemo, useRef, useState } from "preact/hooks";
import type { ComponentChildren, RefObject } from "preact";
import { useAnswer } from "../../app/answer";
import { Failure } from "../../app/parts/failure";
import { useApp, useSay } from "../../app/state";
import { LeftAxis, LowerAxis } from "../../drawing/axes";
import { AxisChoice } from "../../drawing/axis_choice";
import { kInk, kFont, kPaper } from "../../drawing/looks";
import { shown } from "../../drawing/numbers";
import { type Logs, middle, type Plane, planeOver, rectangleOf } from "../../drawing/plane";
import { SaveButtons } from "../../drawing/save_buttons";
import type { ChangedArea, PictureOfChanges } from "../../model/changes";
import type { ChangedRegion } from "../../model/diff";
import { kSizes, type Plate, type SizeName } from "../../model/plate";
import { kComparisonWords } from "../../words/comparison";
import { kMapWords } from "../../words/map";
import { kSizeWords } from "../../words/plate";
import type { Say } from "../../words/say";
import { type Axes, cutArguments, ofGroup, withAxis } from "./cut";
import type { Pair } from "./use_difference";

const kFrame = { width: 640, height: 500, left: 68, right: 16, top: 12, bottom: 50 } as const;

/** Too quick for one answer each: the reader goes through the list. */
const kPause = 80;

function usePicture(pair: Pair, region: ChangedRegion, axes: Axes) {
  const { engine, language } = useApp();
  const { old, now } = pair;
  const files = useMemo(() => [...old.files, ...now.files], [old, now]);
  const args = [...cutArguments({ old, now }, region, axes), "--lang", language];
  return useAnswer<PictureOfChanges>(engine, args, files, kPause);
}

function planeOf(picture: PictureOfChanges, logs: Logs): Plane {
  const low = (side: "x" | "y") => picture.sizes[picture[side].size].bounds[0] ?? 0;
  return planeOver(picture, {}, logs, { x: low("x"), y: low("y") }, kFrame);
}

function sizeLabel(size: SizeName, say: Say): string {
  return size === "weight" ? say(kSizeWords.weight) : say(kMapWords.unit, say(kSizeWords[size]));
}

function Frame({ picture, plane }: { picture: PictureOfChanges; plane: Plane }) {
  const say = useSay();
  const { width, height, left, right, top, bottom } = kFrame;
  const [low, end] = [height - bottom, width - right];
  return (
    <>
      <LowerAxis
        scale={plane.x}
        label={sizeLabel(picture.x.size, say)}
        at={low}
        from={left}
        to={end}
        across={top}
      />
      <LeftAxis
        scale={plane.y}
        label={sizeLabel(picture.y.size, say)}
        at={left}
        from={low}
        to={top}
        across={end}
      />
    </>
  );
}

function holds({ x, y }: ChangedArea, { x: across, y: upwards }: Axes, witness: Plate): boolean {
  const isIn = (side: readonly [number, number], value: number) => side[0] <= value && value <= side[1];
  return isIn(x, witness[across]) && isIn(y, witness[upwards]);
}

/** Narrower areas have no room for their rows; the title tells them all the same. */
const kRoom = { width: 44, height: 16 } as const;
/** What is narrower is drawn so wide, to be seen at all. */
const kLeast = 1.5;

function Change({ area, plane, isChosen }: { area: ChangedArea; plane: Plane; isChosen: boolean }) {
  const say = useSay();
  const box = rectangleOf(area, plane);
  const row = (line: number | null) =>
    line === null ? say(kComparisonWords.noRow) : say(kComparisonWords.row, line);
  return (
    <g fill={isChosen ? "#0969da" : "#9a6700"} font-family={kFont} font-size="11">
      <title>{`${row(area.oldRow)} → ${row(area.newRow)}`}</title>
      <rect
        {...box}
        width={Math.max(kLeast, box.width)}
        height={Math.max(kLeast, box.height)}
        fill-opacity={isChosen ? 0.35 : 0.16}
        stroke={isChosen ? "#0969da" : "#9a6700"}
        stroke-width={isChosen ? 2.5 : 1}
      />
      {box.width > kRoom.width && box.height > kRoom.height && (
        <text {...middle(box)} dy="0.36em" text-anchor="middle" fill={kInk}>
          {area.oldRow ?? "∅"}→{area.newRow ?? "∅"}
        </text>
      )}
    </g>
  );
}

interface DrawingProps {
  readonly svg: RefObject<SVGSVGElement | null>;
  readonly picture: PictureOfChanges;
  readonly plane: Plane;
  readonly axes: Axes;
  readonly region: ChangedRegion;
  readonly title: string;
}

function Drawing({ svg, picture, plane, axes, region, title }: DrawingProps) {
  const { width, height } = kFrame;
  const { witness } = region;
  return (
    <svg ref={svg} viewBox={`0 0 ${width} ${height}`} role="img" aria-label={title}>
      <rect width={width} height={height} fill={kPaper} />
      <Frame picture={picture} plane={plane} />
      {ofGroup(picture, region.group).map((area, index) => (
        <Change key={index} area={area} plane={plane} isChosen={holds(area, axes, witness)} />
      ))}
      <path
        d="M-6 0H6M0 -6V6"
        stroke={kInk}
        stroke-width="2"
        transform={`translate(${plane.x(witness[axes.x])} ${plane.y(witness[axes.y])})`}
      />
    </svg>
  );
}

/** Where the cut lies: the sizes that it does not span, and the colour. */
function titleOf({ witness }: ChangedRegion, axes: Axes, say: Say): string {
  const sizes = kSizes
    .filter((size) => size !== axes.x && size !== axes.y)
    .map((size) => `${say(kSizeWords[size])} ${shown(witness[size])}`);
  return say(kComparisonWords.regionsMap, sizes.join(say(kMapWords.joint)), witness.color);
}

interface ChoicesProps {
  readonly axes: Axes;
  readonly logs: Logs;
  setAxes(axes: Axes): void;
  setLogs(logs: Logs): void;
  readonly children: ComponentChildren;
}

function Choices({ axes, logs, setAxes, setLogs, children }: ChoicesProps) {
  return (
    <form class="region-axes no-print" onSubmit={(event) => event.preventDefault()}>
      {(["x", "y"] as const).map((axis) => (
        <AxisChoice
          key={axis}
          axis={axis}
          size={axes[axis]}
          isLog={logs[axis]}
          choose={(size) => setAxes(withAxis(axes, axis, size))}
          setLog={(isLog) => setLogs({ ...logs, [axis]: isLog })}
        />
      ))}
      {children}
    </form>
  );
}

export function RegionMap({ pair, region }: { pair: Pair; region: ChangedRegion }) {
  const say = useSay();
  const svg = useRef<SVGSVGElement>(null);
  const [axes, setAxes] = useState<Axes>({ x: "length", y: "width" });
  const [logs, setLogs] = useState<Logs>({ x: false, y: false });
  const answer = usePicture(pair, region, axes);
  if (answer.state === "failed") return <Failure error={answer.error} />;
  const picture = answer.value;
  if (picture === undefined) return <figure class="region-map" />;
  const title = titleOf(region, axes, say);
  // An answer to the question before has the axes of before.
  const drawn = { x: picture.x.size, y: picture.y.size };
  return (
    <figure class="region-map" aria-busy={answer.state === "running"}>
      <figcaption>{title}</figcaption>
      <Choices axes={axes} logs={logs} setAxes={setAxes} setLogs={setLogs}>
        <SaveButtons
          picture={() => svg.current}
          name={`${say(kComparisonWords.mapName)}-${drawn.x}-${drawn.y}`}
        />
      </Choices>
      {!picture.complete && (
        <p class="map-note" role="status">
          {say(kMapWords.incomplete)}
        </p>
      )}
      <Drawing
        svg={svg}
        picture={picture}
        plane={planeOf(picture, logs)}
        axes={drawn}
        region={region}
        title={title}
      />
      <p class="quiet">{say(kComparisonWords.mapLegend)}</p>
    </figure>
  );
}
