// Numbers as people read them. The exact ones stay in the answers.

/** Up to `decimals` digits behind the point, without trailing zeros. */
export function shown(value: number, decimals = 3): string {
  if (!Number.isFinite(value)) return value > 0 ? "∞" : "-∞";
  return String(Number(value.toFixed(decimals)));
}

/** Rounded down, so that an end just below 100 is not shown as 100. */
function shownBelow(value: number): string {
  const rounded = Number(value.toFixed(3));
  return shown(rounded > value ? rounded - 0.001 : rounded);
}

/** A closed range: `100_499.999`. An end that is null is without bound. */
export function shownRange([low, high]: readonly [number, number | null], joint = "–"): string {
  return `${shown(low)}${joint}${high === null ? "∞" : shownBelow(high)}`;
}

/** A number as a person would write it: none of the noise of binary fractions. */
export function typed(value: number): string {
  return String(Number(value.toPrecision(12)));
}

/** A number as a cell has to hold it for the program to read the very same one back: a bound keeps its side. */
export function exact(value: number): string {
  return String(value);
}

/** Several numbers in one cell. */
export function exactList(values: readonly number[]): string {
  return values.map(exact).join("_");
}
