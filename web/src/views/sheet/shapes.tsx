// The shapes of a sheet, millimetre for millimetre. The program counts y upwards, a picture downwards.

import { kFont, kQuiet } from "../../drawing/looks";
import type { SheetPart } from "../../model/pictures";

/** A character of so many millimetres stands in a line a little higher. */
export const kLinePerHeight = 1.15;

/** About how long a text is. */
export function lengthOfText(text: string, size: number): number {
  return [...text].reduce((sum, letter) => sum + (letter > "\u02ff" ? 1 : 0.55), 0) * size;
}

interface ShapeProps {
  readonly part: SheetPart;
  /** What stands for a text that no setting has. */
  readonly label: string;
  /** Height of the paper. */
  readonly paper: number;
  readonly color: string;
  /** Millimetres that a line of the picture is wide, whatever the zoom. */
  readonly line: number;
}

function Cross({
  x,
  y,
  reach,
  color,
  line,
}: {
  x: number;
  y: number;
  reach: number;
  color: string;
  line: number;
}) {
  return (
    <path
      d={`M${x - reach} ${y}h${2 * reach}M${x} ${y - reach}v${2 * reach}`}
      stroke={color}
      stroke-width={line}
      fill="none"
    />
  );
}

export function ShapeOf({ part, label, paper, color, line }: ShapeProps) {
  const y = paper - part.y;
  switch (part.kind) {
    case "rectangle":
      return (
        <rect
          x={part.x}
          y={y - part.height}
          width={part.width}
          height={part.height}
          fill="none"
          stroke={color}
          stroke-width={line}
        />
      );
    case "line":
      return <path d={`M${part.x} ${y}L${part.x2} ${paper - part.y2}`} stroke={color} stroke-width={line} />;
    case "circle":
      return (
        <circle cx={part.x} cy={y} r={part.diameter / 2} fill="none" stroke={color} stroke-width={line} />
      );
    case "point":
      return <Cross x={part.x} y={y} reach={4 * line} color={color} line={line * 1.5} />;
    case "text": {
      const size = (part.textHeight ?? 3) * kLinePerHeight;
      const isTop = part.anchor === "top-left";
      return (
        <>
          <Cross x={part.x} y={y} reach={2.5 * line} color={kQuiet} line={line * 0.7} />
          <text
            x={part.x}
            y={isTop ? y + size * 0.88 : y}
            font-family={kFont}
            font-size={size}
            fill={color}
            font-style={part.text === null ? "italic" : undefined}
          >
            {part.text ?? `<${part.attribute ?? label}>`}
          </text>
        </>
      );
    }
  }
}

/** Where the part is marked when it is pointed at: its box in the picture. */
export function boxOf(
  part: SheetPart,
  paper: number,
): { x: number; y: number; width: number; height: number } {
  const y = paper - part.y;
  switch (part.kind) {
    case "rectangle":
      return { x: part.x, y: y - part.height, width: part.width, height: part.height };
    case "line":
      return {
        x: Math.min(part.x, part.x2),
        y: Math.min(y, paper - part.y2),
        width: Math.abs(part.x2 - part.x),
        height: Math.abs(part.y2 - part.y),
      };
    case "circle":
      return {
        x: part.x - part.diameter / 2,
        y: y - part.diameter / 2,
        width: part.diameter,
        height: part.diameter,
      };
    case "point":
      return { x: part.x, y, width: 0, height: 0 };
    case "text": {
      const size = (part.textHeight ?? 3) * kLinePerHeight;
      const letters = part.text ?? `<${part.attribute ?? part.label.zh}>`;
      const width = lengthOfText(letters, size);
      return { x: part.x, y: part.anchor === "top-left" ? y : y - size, width, height: size };
    }
  }
}
