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

function useByName(path: string): Use | undefined {
  const name = path.slice(path.lastIndexOf("/") + 1);
  if (!/\.(json|jsonl|ndjson)$/i.test(name) || /^tables\.json/i.test(name)) return undefined;
  return (Object.keys(kNames) as Use[]).find((use) => kNames[use].test(name));
}

/** `init --format json`, as far as it is asked here. */
interface FoundRoles {
  readonly leftOut: readonly { readonly file: string; readonly kind: string | null }[];
}

/** The tables get names of their own: two of one name may lie in different folders. */
async function usesByColumns(engine: Engine, entries: readonly Entry[]): Promise<Map<string, Use>> {
  const tables = new Map(
    entries.filter(({ path }) => /\.csv$/i.test(path)).map((entry, index) => [`${index}.csv`, entry]),
  );
  if (tables.size === 0) return new Map();
  const files = [...tables].map(([name, { bytes }]) => ({ path: `look/${name}`, bytes }));
  const { out } = await engine.run(["init", "look", "--format", "json"], files);
  const uses = (JSON.parse(out) as FoundRoles).leftOut.flatMap(({ file, kind }): [string, Use][] => {
    const path = tables.get(file)?.path;
    const use = kUses.find((each) => each === kind);
    return path === undefined || use === undefined ? [] : [[path, use]];
  });
  return new Map(uses);
}

/** What each of these files looks like. A name alone is little: a JSON file is taken where no table has its use. */
export async function guessedUses(engine: Engine, entries: readonly Entry[]): Promise<Uses> {
  const known = entries.flatMap(({ path, use }): [string, Use][] => (use === undefined ? [] : [[path, use]]));
  const certain = new Map([...(await usesByColumns(engine, entries)), ...known]);
  const taken = new Set(certain.values());
  const byName = entries.flatMap(({ path }): [string, Use][] => {
    const use = useByName(path);
    return use === undefined || certain.has(path) || taken.has(use) ? [] : [[path, use]];
  });
  return new Map([...certain, ...byName]);
}

/** What the user said of files, whatever they look like. */
export type Choices = ReadonlyMap<string, Use | undefined>;

export function withChoices(guesses: Uses, choices: Choices): Uses {
  const uses = new Map(guesses);
  for (const [path, use] of choices) {
    if (use === undefined) uses.delete(path);
    else uses.set(path, use);
  }
  return uses;
}
