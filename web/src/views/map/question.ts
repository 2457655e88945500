// What the map asks the program: a plane of two sizes, and the plates that are drawn in it.

import type { RuleMapPicture } from "../../model/pictures";
import { kSizes, type SizeName } from "../../model/plate";

export interface MapQuestion {
  readonly x: SizeName;
  readonly y: SizeName;
  /** Of the sizes that the picture does not span; the program chooses what is missing. */
  readonly fixed: Readonly<Partial<Record<SizeName, number>>>;
  readonly bodyColor?: number | undefined;
  readonly profile: boolean;
  readonly wireCutting: boolean;
}

export const kFirstQuestion: MapQuestion = {
  x: "length",
  y: "width",
  fixed: {},
  profile: false,
  wireCutting: false,
};

export function otherSizes({ x, y }: Pick<MapQuestion, "x" | "y">): readonly SizeName[] {
  return kSizes.filter((size) => size !== x && size !== y);
}

export function mapArguments(question: MapQuestion): readonly string[] {
  const fixed = otherSizes(question)
    .filter((size) => question.fixed[size] !== undefined)
    .map((size) => `${size}=${question.fixed[size]}`);
  return [
    ...["--x", question.x, "--y", question.y],
    ...(fixed.length === 0 ? [] : ["--fixed", fixed.join(",")]),
    ...(question.bodyColor === undefined ? [] : ["--body-color", String(question.bodyColor)]),
    ...(question.profile ? ["--profile"] : []),
    ...(question.wireCutting ? ["--wire-cutting"] : []),
  ];
}

/** One axis shows another size; the other axis gives way when it had that. The values of the answer stay. */
export function withAxis(
  question: MapQuestion,
  axis: "x" | "y",
  size: SizeName,
  picture: RuleMapPicture | undefined,
): MapQuestion {
  const other = axis === "x" ? "y" : "x";
  const isSwap = question[other] === size;
  return {
    ...question,
    [axis]: size,
    ...(isSwap ? { [other]: question[axis] } : {}),
    fixed: { ...picture?.fixed, ...question.fixed },
  };
}

export function withFixed(question: MapQuestion, size: SizeName, value: number): MapQuestion {
  return { ...question, fixed: { ...question.fixed, [size]: value } };
}
