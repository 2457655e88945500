// What would have to change for a row that refuses the plate: the program's conditions, put into the form.

import { typed } from "../../drawing/numbers";
import type { SizeName } from "../../model/plate";
import type { Refusal } from "../../model/process";
import type { PlateForm } from "./form";
import { pieces, withField } from "./form";

export type Change =
  | { readonly kind: "size"; readonly size: SizeName; readonly from: string; readonly to: string }
  | { readonly kind: "body"; readonly from: string; readonly to: string }
  | { readonly kind: "addFace"; readonly color: string }
  | { readonly kind: "dropFaces"; readonly colors: readonly string[] };

/** Undefined when no value does it, say for a row that has no colour to ask for. */
export function changeFor(refusal: Refusal): Change | undefined {
  switch (refusal.condition) {
    case "material":
      return refusal.accepted[0] === undefined
        ? undefined
        : { kind: "body", from: typed(refusal.value), to: typed(refusal.accepted[0]) };
    case "profile":
    case "wireCutting":
      if (!refusal.wanted)
        return {
          kind: "dropFaces",
          colors: refusal.value.filter((color) => refusal.colors.includes(color)).map(typed),
        };
      return refusal.colors[0] === undefined
        ? undefined
        : { kind: "addFace", color: typed(refusal.colors[0]) };
    case "length":
    case "width":
    case "thickness":
    case "weight": {
      const { condition: size, value, minimum, maximum } = refusal;
      const end = Number(minimum) > value ? minimum : maximum;
      return typeof end === "number" ? { kind: "size", size, from: typed(value), to: typed(end) } : undefined;
    }
  }
}

export function changesFor(refusals: readonly Refusal[]): readonly Change[] {
  return refusals.map(changeFor).filter((change) => change !== undefined);
}

function applied(form: PlateForm, change: Change): PlateForm {
  const faces = pieces(form.fields.faceColors);
  switch (change.kind) {
    case "size":
      return withField(form, change.size, change.to);
    case "body":
      return withField(form, "color", change.to);
    case "addFace":
      return withField(form, "faceColors", [...faces, change.color].join("_"));
    case "dropFaces":
      return withField(form, "faceColors", faces.filter((face) => !change.colors.includes(face)).join("_"));
  }
}

export function changed(form: PlateForm, changes: readonly Change[]): PlateForm {
  return changes.reduce(applied, form);
}
