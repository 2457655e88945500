// What the files beside the tables are used as: told by the companion itself, by the columns; a JSON file by its name.

import type { Engine } from "../../engine/engine";
import type { Entry } from "./source";

export type Use = "plates" | "holes" | "hole-types";
export type Uses = ReadonlyMap<string, Use>;

export const kUses: readonly Use[] = ["plates", "holes", "hole-types"];

const kNames: Readonly<Record<Use, RegExp>> = {
  "hole-types": /(hole-?types?|孔类型)/i,
  holes: /(holes?|孔)/i,
  plates: /(plates?|板)/i,
};

/** The names by which `init` passes over files that are no tables. */
const kSaid: Readonly<Record<string, Use>> = {
  "a file of plates": "plates",
  "a file of combined holes": "holes",
  "a file of hole types": "hole-types",
};

function useByName(path: string): Use | undefined {
  const name = path.slice(path.lastIndexOf("/") + 1);
  if (!/\.(json|jsonl|ndjson)$/i.test(name) || /^tables\.json/i.test(name)) return undefined;
  return (Object.keys(kNames) as Use[]).find((use) => kNames[use].test(name));
}

/** Lines like "  3.csv: a file of plates, …". */
function usesSaid(out: string, tables: readonly Entry[]): Map<string, Use> {
  const uses = new Map<string, Use>();
  for (const [, number, what] of out.matchAll(/^ {2}(\d+)\.csv: (a file of [a-z ]+)/gm)) {
    const path = tables[Number(number)]?.path;
    const use = kSaid[what ?? ""];
    if (path !== undefined && use !== undefined) uses.set(path, use);
  }
  return uses;
}

async function usesByColumns(engine: Engine, entries: readonly Entry[]): Promise<Map<string, Use>> {
  const tables = entries.filter((entry) => /\.csv$/i.test(entry.path));
  if (tables.length === 0) return new Map();
  const files = tables.map((entry, index) => ({ path: `look/${index}.csv`, bytes: entry.bytes }));
  return usesSaid((await engine.run(["init", "look", "--lang", "en"], files)).out, tables);
}

/** What each of these files looks like. */
export async function usesOf(engine: Engine, entries: readonly Entry[]): Promise<Uses> {
  const uses = await usesByColumns(engine, entries);
  for (const { path, use: known } of entries) {
    const use = known ?? useByName(path);
    if (use !== undefined) uses.set(path, use);
  }
  return uses;
}

/** Of several files of one use the first table is taken, else the first file. */
export function chosenOf(uses: Uses, use: Use): string | undefined {
  const paths = [...uses].filter(([, its]) => its === use).map(([path]) => path);
  return paths.find((path) => /\.csv$/i.test(path)) ?? paths[0];
}
