// Which cut through the changed regions is drawn, and which of its areas belong to the plates that are looked at.

import type { ChangedArea, PictureOfChanges } from "../../model/changes";
import type { ChangedRegion } from "../../model/diff";
import { type Group, kSizes, type SizeName } from "../../model/plate";
import type { Pair } from "./use_difference";

export interface Axes {
  readonly x: SizeName;
  readonly y: SizeName;
}

/** The other axis gives way when it had that size. */
export function withAxis(axes: Axes, axis: "x" | "y", size: SizeName): Axes {
  const other = axis === "x" ? "y" : "x";
  const rest = axes[other] === size ? axes[axis] : axes[other];
  return axis === "x" ? { x: size, y: rest } : { x: rest, y: size };
}

/** The cut lies where the region's example lies: its other sizes, colour and faces. */
export function cutArguments(
  { old, now }: { readonly old: Pick<Pair["old"], "folder">; readonly now: Pick<Pair["now"], "folder"> },
  { witness, group }: Pick<ChangedRegion, "witness" | "group">,
  { x, y }: Axes,
): readonly string[] {
  const fixed = kSizes.filter((size) => size !== x && size !== y).map((size) => `${size}=${witness[size]}`);
  return [
    ...["picture", "changes", old.folder, now.folder, "--x", x, "--y", y, "--fixed", fixed.join(",")],
    ...["--body-color", String(witness.color)],
    ...((group.profile ?? group.newProfile) ? ["--profile"] : []),
    ...((group.wireCutting ?? group.newWireCutting) ? ["--wire-cutting"] : []),
  ];
}

function isSame(one: Group, other: Group): boolean {
  return (
    one.colors.join() === other.colors.join() &&
    one.oldProfile === other.oldProfile &&
    one.oldWireCutting === other.oldWireCutting &&
    one.newProfile === other.newProfile &&
    one.newWireCutting === other.newWireCutting
  );
}

/** Where the tables say different things of some faces, areas of several groups lie over each other: those of one are drawn. */
export function ofGroup(picture: PictureOfChanges, group: Group): readonly ChangedArea[] {
  if (picture.answersAgree) return picture.regions;
  return picture.regions.filter((area) => area.group !== undefined && isSame(area.group, group));
}
