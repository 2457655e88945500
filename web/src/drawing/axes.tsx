// Axes of a picture. Their looks stand in attributes, not in a style sheet, so that a saved picture looks the same.

import { kInk, kFont, kQuiet } from "./looks";
import type { Mark, SizeScale } from "./scales";

interface AxisProps {
  readonly scale: SizeScale;
  readonly label: string;
  /** Where the axis runs across: y of the lower one, x of the left one. */
  readonly at: number;
  /** From where to where the picture reaches along the axis. */
  readonly from: number;
  readonly to: number;
  /** How far the lines of the grid reach. */
  readonly across: number;
}

const kPerMark = 70;

function marksOf({ scale, from, to }: AxisProps): readonly Mark[] {
  return scale.marks(Math.max(2, Math.floor(Math.abs(to - from) / kPerMark)));
}

export function LowerAxis(props: AxisProps) {
  const { scale, at, from, to, across, label } = props;
  return (
    <g font-family={kFont} font-size="12" fill={kInk} aria-hidden="true">
      {marksOf(props).map(({ value, label: text }) => (
        <g key={value} transform={`translate(${scale(value)} ${at})`}>
          <line
            y1={across - at}
            y2={text === "" ? 3 : 6}
            stroke={kQuiet}
            stroke-opacity={text === "" ? 0.12 : 0.25}
          />
          <text y="19" text-anchor="middle">
            {text}
          </text>
        </g>
      ))}
      <line x1={from} x2={to} y1={at} y2={at} stroke={kInk} />
      <text x={(from + to) / 2} y={at + 38} text-anchor="middle" font-size="13" font-weight="600">
        {label}
      </text>
    </g>
  );
}

export function LeftAxis(props: AxisProps) {
  const { scale, at, from, to, across, label } = props;
  return (
    <g font-family={kFont} font-size="12" fill={kInk} aria-hidden="true">
      {marksOf(props).map(({ value, label: text }) => (
        <g key={value} transform={`translate(${at} ${scale(value)})`}>
          <line
            x1={text === "" ? -3 : -6}
            x2={across - at}
            stroke={kQuiet}
            stroke-opacity={text === "" ? 0.12 : 0.25}
          />
          <text x="-9" dy="0.35em" text-anchor="end">
            {text}
          </text>
        </g>
      ))}
      <line y1={from} y2={to} x1={at} x2={at} stroke={kInk} />
      <text
        transform={`translate(${at - 50} ${(from + to) / 2}) rotate(-90)`}
        text-anchor="middle"
        font-size="13"
        font-weight="600"
      >
        {label}
      </text>
    </g>
  );
}
