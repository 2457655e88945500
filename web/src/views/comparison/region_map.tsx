// Where plates change in the plane of length and width: a cut through the example of the chosen region.

import { scaleLinear } from "d3-scale";
import { useMemo } from "preact/hooks";
import { useAnswer } from "../../app/answer";
import { Failure } from "../../app/parts/failure";
import { useApp, useSay } from "../../app/state";
import type { ChangedBox, PictureOfChanges } from "../../model/changes";
import type { ChangedRegion } from "../../model/diff";
import { kComparisonWords } from "../../words/comparison";
import type { Pair } from "./use_difference";

const kWidth = 640;
const kHeight = 480;
const kLeft = 56;
const kBottom = 44;
const kTop = 12;
const kRight = 16;

/** The cut lies where the region's example lies: its thickness, weight, colour and faces. */
function cutArguments({ old, now }: Pair, { witness, group }: ChangedRegion): readonly string[] {
  const isProfile = group.profile ?? group.newProfile ?? false;
  const isWireCutting = group.wireCutting ?? group.newWireCutting ?? false;
  return [
    ...["picture", "changes", old.folder, now.folder, "--x", "length", "--y", "width"],
    ...["--fixed", `thickness=${witness.thickness},weight=${witness.weight}`],
    ...["--body-color", String(witness.color)],
    ...(isProfile ? ["--profile"] : []),
    ...(isWireCutting ? ["--wire-cutting"] : []),
  ];
}

function usePicture(pair: Pair, region: ChangedRegion) {
  const { engine } = useApp();
  const { old, now } = pair;
  const files = useMemo(() => [...old.files, ...now.files], [old, now]);
  const args = useMemo(() => cutArguments({ old, now }, region), [old, now, region]);
  return useAnswer<PictureOfChanges>(engine, args, files, 80);
}

interface Scales {
  readonly x: ReturnType<typeof scaleLinear<number>>;
  readonly y: ReturnType<typeof scaleLinear<number>>;
}

function scalesOf(picture: PictureOfChanges): Scales {
  return {
    x: scaleLinear([picture.x.from, picture.x.to], [kLeft, kWidth - kRight]).clamp(true),
    y: scaleLinear([picture.y.from, picture.y.to], [kHeight - kBottom, kTop]).clamp(true),
  };
}

function Axes({ x, y }: Scales) {
  const say = useSay();
  return (
    <g class="axes" aria-hidden="true">
      {x.ticks(8).map((value) => (
        <g key={value} transform={`translate(${x(value)},0)`}>
          <line y1={kTop} y2={kHeight - kBottom} />
          <text y={kHeight - kBottom + 16} text-anchor="middle">
            {value}
          </text>
        </g>
      ))}
      {y.ticks(7).map((value) => (
        <g key={value} transform={`translate(0,${y(value)})`}>
          <line x1={kLeft} x2={kWidth - kRight} />
          <text x={kLeft - 6} dy="4" text-anchor="end">
            {value}
          </text>
        </g>
      ))}
      <text x={(kLeft + kWidth) / 2} y={kHeight - 8} text-anchor="middle" class="axis-name">
        {say(kComparisonWords.sizes.length)} mm
      </text>
      <text
        text-anchor="middle"
        class="axis-name"
        transform={`translate(13 ${(kTop + kHeight - kBottom) / 2}) rotate(-90)`}
      >
        {say(kComparisonWords.sizes.width)} mm
      </text>
    </g>
  );
}

function holds({ x, y }: ChangedBox, { witness }: ChangedRegion): boolean {
  return x[0] <= witness.length && witness.length <= x[1] && y[0] <= witness.width && witness.width <= y[1];
}

/** Narrower boxes have no room for their rows; the title tells them all the same. */
const kRoom = 44;

function Box({ box, scales, isChosen }: { box: ChangedBox; scales: Scales; isChosen: boolean }) {
  const say = useSay();
  const { x, y } = scales;
  const [left, top] = [x(box.x[0]), y(box.y[1])];
  const [width, height] = [Math.max(1.5, x(box.x[1]) - left), Math.max(1.5, y(box.y[0]) - top)];
  const row = (line: number | null) =>
    line === null ? say(kComparisonWords.noRow) : say(kComparisonWords.row, line);
  return (
    <g class={isChosen ? "map-region is-chosen" : "map-region"}>
      <title>{`${row(box.oldRow)} → ${row(box.newRow)}`}</title>
      <rect x={left} y={top} width={width} height={height} />
      {width > kRoom && height > 16 && (
        <text x={left + width / 2} y={top + height / 2 + 4} text-anchor="middle">
          {box.oldRow ?? "∅"}→{box.newRow ?? "∅"}
        </text>
      )}
    </g>
  );
}

/** Where the example itself lies. */
function Example({ region, scales }: { region: ChangedRegion; scales: Scales }) {
  const { x, y } = scales;
  return (
    <path
      class="map-example"
      d="M-6 0H6M0 -6V6"
      transform={`translate(${x(region.witness.length)} ${y(region.witness.width)})`}
    />
  );
}

export function RegionMap({ pair, region }: { pair: Pair; region: ChangedRegion }) {
  const say = useSay();
  const answer = usePicture(pair, region);
  if (answer.state === "failed") return <Failure error={answer.error} />;
  const picture = answer.value;
  if (picture === undefined) return <figure class="region-map" />;
  const scales = scalesOf(picture);
  const { thickness, weight, color } = region.witness;
  const title = say(kComparisonWords.regionsMap, String(thickness), String(weight), color);
  const chosen = picture.regions.filter((box) => holds(box, region));
  return (
    <figure class="region-map">
      <figcaption>{title}</figcaption>
      <svg viewBox={`0 0 ${kWidth} ${kHeight}`} role="img" aria-label={title}>
        <Axes {...scales} />
        {picture.regions.map((box, index) => (
          <Box key={index} box={box} scales={scales} isChosen={chosen.includes(box)} />
        ))}
        <Example region={region} scales={scales} />
      </svg>
      <p class="quiet">{say(kComparisonWords.mapLegend)}</p>
    </figure>
  );
}
