// The picture: each row's areas in its colour, what is hidden of a row hatched, gaps crossed out.

import type { RefObject } from "preact";
import { useMemo } from "preact/hooks";
import { LeftAxis, LowerAxis } from "../../drawing/axes";
import { GapHatch, HiddenHatch } from "../../drawing/hatch";
import { kAlarm, kFont, kInk, kPaper, kQuiet } from "../../drawing/looks";
import { shown } from "../../drawing/numbers";
import type { Plane } from "../../drawing/plane";
import { middle, pathOf } from "../../drawing/plane";
import { useSay } from "../../app/state";
import type { Area, Region, RuleMapPicture } from "../../model/pictures";
import type { SizeName } from "../../model/plate";
import { kMapWords } from "../../words/map";
import { kSizeWords } from "../../words/plate";
import type { Say } from "../../words/say";
import type { Place } from "./hits";
import { kFrame, labelled } from "./layout";

export function sizeLabel(size: SizeName, say: Say): string {
  return size === "weight" ? say(kSizeWords.weight) : say(kMapWords.unit, say(kSizeWords[size]));
}

/** One element, however many areas there are. */
function Areas({
  areas,
  plane,
  ...look
}: { areas: readonly Area[]; plane: Plane } & Record<string, unknown>) {
  return <path d={pathOf(areas, plane)} {...look} />;
}

const kGapLabelWidth = 34;

function Labels({ picture, plane }: { picture: RuleMapPicture; plane: Plane }) {
  const say = useSay();
  return (
    <g
      font-family={kFont}
      font-size="13"
      font-weight="600"
      text-anchor="middle"
      fill={kInk}
      stroke={kPaper}
      stroke-width="3"
      paint-order="stroke"
      stroke-linejoin="round"
    >
      {picture.regions.flatMap(({ row, wins }) =>
        labelled(wins, plane).map((box, index) => (
          <text key={`${row}-${index}`} {...middle(box)} dy="0.36em">
            {row}
          </text>
        )),
      )}
      <g fill={kAlarm}>
        {labelled(picture.gaps, plane)
          .filter(({ width }) => width >= kGapLabelWidth)
          .map((box, index) => (
            <text key={index} {...middle(box)} dy="0.36em">
              {say(kMapWords.gap)}
            </text>
          ))}
      </g>
    </g>
  );
}

/** The areas of all rows that have the same colour. */
function byColor(
  regions: readonly Region[],
  colors: ReadonlyMap<number, string>,
): readonly (readonly [string, readonly Area[]])[] {
  const areas = new Map<string, Area[]>();
  for (const { row, wins } of regions) {
    const color = colors.get(row) ?? kQuiet;
    const some = areas.get(color);
    if (some === undefined) areas.set(color, [...wins]);
    else some.push(...wins);
  }
  return [...areas];
}

function Wins({
  regions,
  colors,
  plane,
  opacity,
}: Pick<MapPictureProps, "colors" | "plane"> & { regions: readonly Region[]; opacity: number }) {
  return (
    <>
      {byColor(regions, colors).map(([color, areas]) => (
        <Areas
          key={color}
          areas={areas}
          plane={plane}
          fill={color}
          stroke={color}
          stroke-width="0.7"
          opacity={opacity}
        />
      ))}
    </>
  );
}

function Outline({ region, plane }: { region: Region; plane: Plane }) {
  return (
    <>
      <Areas areas={region.hidden} plane={plane} fill="url(#hidden-here)" />
      <Areas areas={region.matches} plane={plane} fill="none" stroke={kInk} stroke-width="2.5" />
    </>
  );
}

function Cross({ place, plane }: { place: Place; plane: Plane }) {
  const [x, y] = [plane.x(place.x), plane.y(place.y)];
  const { left, right, top, bottom, width, height } = kFrame;
  return (
    <g stroke={kInk} stroke-width="1" fill="none">
      <path d={`M${left} ${y}H${width - right}M${x} ${top}V${height - bottom}`} stroke-dasharray="4 3" />
      <circle cx={x} cy={y} r="5" stroke-width="2" fill={kPaper} />
    </g>
  );
}

/** What stands above the picture, so that it is still known when it was saved. */
function caption(picture: RuleMapPicture, say: Say): string {
  const sizes = Object.entries(picture.fixed).map(
    ([size, value]) => `${say(kSizeWords[size as SizeName])} ${shown(value)}`,
  );
  const color = `${say(kMapWords.body)} ${picture.plate.bodyColor}`;
  const answers = [
    ...(picture.plate.profile ? [say(kMapWords.profile)] : []),
    ...(picture.plate.wireCutting ? [say(kMapWords.wireCutting)] : []),
  ];
  return [...sizes, color, ...answers].join(" · ");
}

function Frame({ picture, plane }: { picture: RuleMapPicture; plane: Plane }) {
  const say = useSay();
  const { left, right, top, bottom, width, height } = kFrame;
  return (
    <>
      <LowerAxis
        scale={plane.x}
        label={sizeLabel(picture.x.size, say)}
        at={height - bottom}
        from={left}
        to={width - right}
        across={top}
      />
      <LeftAxis
        scale={plane.y}
        label={sizeLabel(picture.y.size, say)}
        at={left}
        from={height - bottom}
        to={top}
        across={width - right}
      />
      <text x={left} y={top - 12} font-family={kFont} font-size="13" fill={kQuiet}>
        {caption(picture, say)}
      </text>
    </>
  );
}

interface MapPictureProps {
  readonly picture: RuleMapPicture;
  readonly plane: Plane;
  readonly colors: ReadonlyMap<number, string>;
  readonly svg: RefObject<SVGSVGElement | null>;
  readonly cross: Place | undefined;
  /** The row whose whole range is outlined. */
  readonly outlined: number | undefined;
  readonly showsHidden: boolean;
  readonly handlers: Record<string, unknown>;
}

/** What lies in the plane. The row that is pointed at stands out. */
function Layers({ picture, plane, colors, outlined, showsHidden }: MapPictureProps) {
  const region = picture.regions.find(({ row }) => row === outlined);
  return (
    <>
      <Wins regions={picture.regions} colors={colors} plane={plane} opacity={region ? 0.35 : 0.72} />
      {region && <Wins regions={[region]} colors={colors} plane={plane} opacity={0.6} />}
      {showsHidden && (
        <Areas
          areas={picture.regions.flatMap(({ hidden }) => hidden)}
          plane={plane}
          class="map-hidden"
          fill="url(#hidden-all)"
          opacity="0.45"
        />
      )}
      <Areas areas={picture.gaps} plane={plane} fill="url(#gap)" stroke={kAlarm} stroke-width="1" />
      {region && <Outline region={region} plane={plane} />}
      <Labels picture={picture} plane={plane} />
    </>
  );
}

export function MapPicture(props: MapPictureProps) {
  const { picture, plane, colors, svg, cross, outlined, showsHidden, handlers } = props;
  const say = useSay();
  const { left, right, top, bottom, width, height } = kFrame;
  // A cross that moves leaves everything else as it is.
  const layers = useMemo(() => <Layers {...props} />, [picture, plane, colors, outlined, showsHidden, say]);
  const description = say(
    kMapWords.describe,
    say(kSizeWords[picture.x.size]),
    say(kSizeWords[picture.y.size]),
    picture.regions.length,
    picture.gaps.length,
  );
  return (
    <svg
      ref={svg}
      class="map-picture"
      viewBox={`0 0 ${width} ${height}`}
      role="application"
      aria-label={description}
      tabindex={0}
      {...handlers}
    >
      <defs>
        <HiddenHatch id="hidden-all" />
        <HiddenHatch id="hidden-here" color={kInk} />
        <GapHatch id="gap" />
        <clipPath id="plane">
          <rect x={left} y={top} width={width - left - right} height={height - top - bottom} />
        </clipPath>
      </defs>
      <rect width={width} height={height} fill={kPaper} />
      <g clip-path="url(#plane)">{layers}</g>
      <Frame picture={picture} plane={plane} />
      {cross && <Cross place={cross} plane={plane} />}
    </svg>
  );
}
