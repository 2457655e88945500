// Colours that people with colour-blindness tell apart (Okabe and Ito's eight), for things that also bear a label: the colours cycle.

export const kPalette = [
  "#56b4e9",
  "#e69f00",
  "#009e73",
  "#f0e442",
  "#cc79a7",
  "#0072b2",
  "#d55e00",
] as const;

/** The colour of the n-th thing. */
export function colorAt(index: number): string {
  return kPalette[((index % kPalette.length) + kPalette.length) % kPalette.length] ?? kPalette[0];
}

const kDark = "#1a1a1a";
const kLight = "#ffffff";

function linear(channel: number): number {
  const share = channel / 255;
  return share <= 0.04045 ? share / 12.92 : ((share + 0.055) / 1.055) ** 2.4;
}

/** Relative luminance of `#rrggbb`, from 0 to 1. */
export function luminance(color: string): number {
  const channel = (at: number) => linear(parseInt(color.slice(at, at + 2), 16));
  return 0.2126 * channel(1) + 0.7152 * channel(3) + 0.0722 * channel(5);
}

/** Contrast of two colours, from 1 to 21. */
export function contrast(one: string, other: string): number {
  const [low, high] = [luminance(one), luminance(other)].sort((a, b) => a - b) as [number, number];
  return (high + 0.05) / (low + 0.05);
}

/** Black or white, whichever is read better on the colour. */
export function inkOn(color: string): string {
  return contrast(color, kDark) >= contrast(color, kLight) ? kDark : kLight;
}

/** The same hues, dark enough for lines and texts on paper. */
export const kLinePalette = [
  "#005a8c",
  "#a84300",
  "#00694e",
  "#8f3f70",
  "#7a5200",
  "#1a1a1a",
  "#5b4bb0",
] as const;

/** The colour of the n-th kind of line. */
export function lineColorAt(index: number): string {
  return (
    kLinePalette[((index % kLinePalette.length) + kLinePalette.length) % kLinePalette.length] ??
    kLinePalette[0]
  );
}
