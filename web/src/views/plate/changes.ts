// What would have to change of the plate for a row that refuses it: the program's answer, as what a person would do.

import { exact, exactList } from "../../drawing/numbers";
import type { ChangedMembers } from "../../model/explain";
import type { Plate, SizeName } from "../../model/plate";

export type Change =
  | { readonly kind: "size"; readonly size: SizeName; readonly from: string; readonly to: string }
  | { readonly kind: "body"; readonly from: string; readonly to: string }
  | { readonly kind: "addFaces"; readonly colors: string }
  | { readonly kind: "dropFaces"; readonly colors: string };

/** The colours of the first list that the second one lacks, in an entry of this kind. */
function difference(
  kind: "addFaces" | "dropFaces",
  colors: readonly number[],
  others: readonly number[],
): readonly Change[] {
  const alone = colors.filter((color) => !others.includes(color));
  return alone.length === 0 ? [] : [{ kind, colors: exactList(alone) }];
}

export function changesOf(
  plate: Plate,
  { color, faceColors = plate.faceColors, ...sizes }: ChangedMembers,
): readonly Change[] {
  const ofSizes = (Object.entries(sizes) as [SizeName, number][]).map(([size, to]) => ({
    kind: "size" as const,
    size,
    from: exact(plate[size]),
    to: exact(to),
  }));
  return [
    ...ofSizes,
    ...(color === undefined ? [] : [{ kind: "body" as const, from: exact(plate.color), to: exact(color) }]),
    ...difference("dropFaces", plate.faceColors, faceColors),
    ...difference("addFaces", faceColors, plate.faceColors),
  ];
}
