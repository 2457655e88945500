// What the program remarks about the tried plate: at the field that it is about.

import type { Source, TriedPlate } from "./form";
import { kTriedFile } from "./form";

export interface Remarks {
  /** By the name of the field, feature or process. */
  readonly at: ReadonlyMap<string, string>;
  readonly others: readonly string[];
}

export const kNoRemarks: Remarks = { at: new Map(), others: [] };

export function nameOf(source: Source): string {
  return "field" in source ? source.field : "feature" in source ? source.feature : source.process;
}

/** `A` is 0, `AA` is 26. */
export function columnIndex(letters: string): number {
  return [...letters].reduce((sum, letter) => sum * 26 + letter.charCodeAt(0) - 64, 0) - 1;
}

/** `tried.csv:2:4: error: B2: what is wrong`; the tables' own messages are findings, and shown there. */
const kMessage = new RegExp(`^${kTriedFile}(?::\\d+)*: [^:]+: (?:([A-Z]+)\\d+: )?(.*)$`);

export function remarksOf(messages: string, tried: TriedPlate): Remarks {
  const at = new Map<string, string>();
  const others: string[] = [];
  for (const line of messages.split("\n")) {
    const [, letters, text] = kMessage.exec(line) ?? [];
    if (text === undefined) continue;
    const source = letters === undefined ? undefined : tried.sources[columnIndex(letters)];
    if (source === undefined) others.push(text);
    else at.set(nameOf(source), text);
  }
  return { at, others };
}
