// The program's verdicts as sentences.

import { shown } from "../../drawing/numbers";
import type { ExplainedProcess, Refusal } from "../../model/process";
import { kPlateWords, kRefusalWords, kSizeWords } from "../../words/plate";
import type { Say } from "../../words/say";
import type { Change } from "./changes";

/** A number of the answer, which is a text where JSON has no number for it. */
function number(value: number | string): string {
  return typeof value === "number" ? shown(value) : value;
}

function joined(values: readonly number[], say: Say): string {
  return values.length === 0 ? say(kPlateWords.none) : values.map((value) => shown(value)).join("_");
}

export function refusalText(refusal: Refusal, say: Say): string {
  switch (refusal.condition) {
    case "material":
      return say(kRefusalWords.material, refusal.value, joined(refusal.accepted, say));
    case "profile":
      return say(
        refusal.wanted ? kRefusalWords.profileWanted : kRefusalWords.profileUnwanted,
        joined(refusal.wanted ? refusal.colors : unwanted(refusal), say),
      );
    case "wireCutting":
      return say(
        refusal.wanted ? kRefusalWords.wireCuttingWanted : kRefusalWords.wireCuttingUnwanted,
        joined(refusal.wanted ? refusal.colors : unwanted(refusal), say),
      );
    case "length":
    case "width":
    case "thickness":
    case "weight": {
      const words = refusal.value < Number(refusal.minimum) ? kRefusalWords.below : kRefusalWords.above;
      const range = `${number(refusal.minimum)}–${number(refusal.maximum)}`;
      const size = say(kSizeWords[refusal.condition]);
      return say(words, size, shown(refusal.value), range, number(refusal.missedBy));
    }
  }
}

function unwanted({
  colors,
  value,
}: {
  colors: readonly number[];
  value: readonly number[];
}): readonly number[] {
  return value.filter((color) => colors.includes(color));
}

export function changeText(change: Change, say: Say): string {
  switch (change.kind) {
    case "size":
      return say(kRefusalWords.setSize, say(kSizeWords[change.size]), change.from, change.to);
    case "body":
      return say(kRefusalWords.setBody, change.from, change.to);
    case "addFaces":
      return say(kRefusalWords.addFaces, change.colors);
    case "dropFaces":
      return say(kRefusalWords.dropFaces, change.colors);
  }
}

/** What the plate has of what the process looks at; of one that is ordered by hand, whether it is. */
export function hasText({ plate }: ExplainedProcess, isByHand: boolean, say: Say): string {
  if (plate === null) return say(kPlateWords.uncounted);
  if (typeof plate === "boolean") {
    const [yes, no] = isByHand
      ? [kPlateWords.isOrdered, kPlateWords.notOrdered]
      : [kPlateWords.yes, kPlateWords.no];
    return say(plate ? yes : no);
  }
  return typeof plate === "number" ? shown(plate) : joined(plate, say);
}
