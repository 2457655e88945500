// Hatchings: what a colour alone would not tell.

import { kAlarm, kQuiet } from "./looks";

interface HatchProps {
  readonly id: string;
  readonly color: string;
  readonly background?: string;
  readonly angle: number;
  readonly gap?: number;
  readonly width?: number;
}

export function Hatch({ id, color, background = "none", angle, gap = 7, width = 1.2 }: HatchProps) {
  return (
    <pattern
      id={id}
      width={gap}
      height={gap}
      patternUnits="userSpaceOnUse"
      patternTransform={`rotate(${angle})`}
    >
      <rect width={gap} height={gap} fill={background} />
      <line x1="0" y1="0" x2="0" y2={gap} stroke={color} stroke-width={width} />
    </pattern>
  );
}

/** A part that something else takes. */
export function HiddenHatch({ id, color = kQuiet }: { id: string; color?: string }) {
  return <Hatch id={id} color={color} angle={45} />;
}

/** A part that nothing covers: crossed, in the colour of alarm. */
export function GapHatch({ id }: { id: string }) {
  return (
    <pattern id={id} width="9" height="9" patternUnits="userSpaceOnUse" patternTransform="rotate(45)">
      <rect width="9" height="9" fill="#fdeef0" />
      <path d="M0 0V9M0 0H9" stroke={kAlarm} stroke-width="1.1" fill="none" />
    </pattern>
  );
}
