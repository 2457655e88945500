// The boxes of one group in the plane of length and width. They overlap here where they differ in thickness or weight alone.

import { scaleLinear } from "d3-scale";
import { useSay } from "../../app/state";
import type { ChangedRegion } from "../../model/diff";
import type { SizeName } from "../../model/plate";
import { kComparisonWords } from "../../words/comparison";

const kWidth = 640;
const kHeight = 480;
const kLeft = 56;
const kBottom = 40;
const kTop = 12;
const kRight = 16;

interface RegionMapProps {
  readonly regions: readonly ChangedRegion[];
  readonly most: Readonly<Record<SizeName, number>>;
  readonly chosen: number;
  choose(index: number): void;
}

/** The picture reaches a little beyond the greatest bound, so that a box without end is seen to go on. */
function useScales(most: Readonly<Record<SizeName, number>>) {
  const x = scaleLinear([0, most.length * 1.08], [kLeft, kWidth - kRight]).clamp(true);
  const y = scaleLinear([0, most.width * 1.08], [kHeight - kBottom, kTop]).clamp(true);
  return { x, y };
}

function Axes({ x, y }: ReturnType<typeof useScales>) {
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
      <text x={kWidth - kRight} y={kHeight - 6} text-anchor="end" class="axis-name">
        {say(kComparisonWords.sizes.length)} mm
      </text>
      <text
        x={4}
        y={kTop + 2}
        class="axis-name"
        dominant-baseline="hanging"
        transform={`rotate(-90 12 ${kHeight / 2}) translate(0 ${kHeight / 2 - 20})`}
      >
        {say(kComparisonWords.sizes.width)} mm
      </text>
    </g>
  );
}

export function RegionMap({ regions, most, chosen, choose }: RegionMapProps) {
  const say = useSay();
  const { x, y } = useScales(most);
  const placed = regions.map(({ box }, index) => {
    const [left, right] = [x(box.length[0]), x(box.length[1] ?? Infinity)];
    const [bottom, top] = [y(box.width[0]), y(box.width[1] ?? Infinity)];
    return { index, left, top, width: Math.max(2, right - left), height: Math.max(2, bottom - top) };
  });
  const inOrder = [...placed].sort((one, two) => Number(one.index === chosen) - Number(two.index === chosen));
  return (
    <figure class="region-map">
      <figcaption>{say(kComparisonWords.regionsMap)}</figcaption>
      <svg viewBox={`0 0 ${kWidth} ${kHeight}`} role="img" aria-label={say(kComparisonWords.regionsMap)}>
        <Axes x={x} y={y} />
        {inOrder.map(({ index, left, top, width, height }) => (
          <g
            key={index}
            class={index === chosen ? "map-region is-chosen" : "map-region"}
            onClick={() => choose(index)}
          >
            <rect x={left} y={top} width={width} height={height} />
            <text x={left + 4} y={top + 13}>
              {index + 1}
            </text>
          </g>
        ))}
      </svg>
    </figure>
  );
}
