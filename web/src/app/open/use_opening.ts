// The two opened folders, and everything that opens, reads again or uses files another way.

import { useCallback, useEffect, useMemo, useRef, useState } from "preact/hooks";
import type { Engine } from "../../engine/engine";
import { EngineError } from "../../engine/engine_error";
import { kOpenWords } from "../../words/open";
import type { Text } from "../../words/say";
import type { Workspace } from "../state";
import { rememberFolder } from "./remembered";
import { type Entry, type Source, StaleFiles, TooLarge } from "./source";
import { type Choices, guessedUses, type Use, type Uses, withChoices } from "./uses";
import { configurationFolders, type OpenedFolder, workspaceOf } from "./workspaces";

export type Side = "config" | "other";

interface Opened extends OpenedFolder {
  readonly sources: readonly Source[];
  /** What the files look like, and what the user said of them. */
  readonly guesses: Uses;
  readonly choices: Choices;
  /** A file that only the page has. */
  readonly addedFile?: string;
}

type Sides = Readonly<Partial<Record<Side, Opened>>>;

export interface Opening {
  readonly sides: Readonly<Partial<Record<Side, OpenedFolder>>>;
  readonly workspace: Workspace | undefined;
  readonly other: Workspace | undefined;
  readonly isBusy: boolean;
  readonly notice: Text | undefined;
  dismissNotice(): void;
  /** Says what went wrong with something that nobody waits for. */
  tell(error: unknown): void;
  open(sources: readonly Source[] | Promise<readonly Source[]>, side: Side): void;
  /** Reads everything from the disk once more. */
  again(): void;
  chooseFolder(side: Side, folder: string): void;
  /** Another configuration folder of the first side as the second one; undefined: none. */
  compareWith(folder: string | undefined): void;
  use(path: string, use: Use | undefined): void;
  /** Adds a file to the configuration folder in memory, such as a manifest that was just written. */
  addFile(name: string, bytes: Uint8Array): void;
  readonly addedFile: string | undefined;
}

let revision = 0;

function noticeOf(error: unknown): Text {
  if (error instanceof EngineError) return error.words;
  if (error instanceof StaleFiles) return kOpenWords.stale;
  if (error instanceof TooLarge)
    return { zh: kOpenWords.tooLarge.zh(error.message), en: kOpenWords.tooLarge.en(error.message) };
  if (error instanceof DOMException && error.name === "NotAllowedError") return kOpenWords.notAllowed;
  const reason = error instanceof Error ? error.message : String(error);
  return { zh: kOpenWords.unreadable.zh(reason), en: kOpenWords.unreadable.en(reason) };
}

/** The name with a number in front of its ending: of "1.csv" the second one is "1-2.csv". */
function numbered(name: string, number: number): string {
  const dot = name.lastIndexOf(".");
  return dot < 0 ? `${name}-${number}` : `${name.slice(0, dot)}-${number}${name.slice(dot)}`;
}

/** Later sources win over files of the same path, single files over a folder's; but single files of one name are different ones. */
async function entriesOf(sources: readonly Source[]): Promise<readonly Entry[]> {
  const byPath = new Map<string, Entry>();
  const single = new Set<string>();
  const foldersFirst = [...sources].sort((one, two) => Number(two.isFolder) - Number(one.isFolder));
  for (const source of foldersFirst) {
    for (const entry of await source.read()) {
      let path = entry.path;
      for (let number = 2; !source.isFolder && single.has(path); number++)
        path = numbered(entry.path, number);
      if (!source.isFolder) single.add(path);
      byPath.set(path, { ...entry, path });
    }
  }
  return [...byPath.values()];
}

async function readSide(
  engine: Engine,
  sources: readonly Source[],
  before: Opened | undefined,
): Promise<Opened> {
  const entries = await entriesOf(sources);
  const folders = configurationFolders(entries);
  const folder = before !== undefined && folders.includes(before.folder) ? before.folder : (folders[0] ?? "");
  const guesses = await guessedUses(engine, entries);
  const choices: Choices = before?.choices ?? new Map();
  const main = sources.find((source) => source.isFolder) ?? sources[0];
  revision += 1;
  return {
    name: main?.name ?? "",
    sources,
    entries,
    folder,
    guesses,
    choices,
    uses: withChoices(guesses, choices),
    opening: before?.opening ?? revision,
    ...(main?.written && { written: main.written }),
    revision,
  };
}

/** Single files come to what is open; a folder takes its place. */
function joined(before: Opened | undefined, given: readonly Source[]): readonly Source[] {
  if (before === undefined || given.some((source) => source.isFolder)) return given;
  return [...before.sources.filter(({ name }) => !given.some((source) => source.name === name)), ...given];
}

/** Two folders at once are the old one and the new one; single files come to the old one. */
function bySide(given: readonly Source[], side: Side): [Side, readonly Source[]][] {
  const [first, second] = given.filter((source) => source.isFolder);
  if (first === undefined || second === undefined || side === "other") return [[side, given]];
  return [
    ["config", given.filter((source) => source !== second)],
    ["other", [second]],
  ];
}

function remember(sources: readonly Source[]): void {
  const handle = sources.find((source) => source.handle !== undefined)?.handle;
  if (handle !== undefined) void rememberFolder(handle);
}

/** Keeps a workspace the same object as long as nothing of it changes. */
function useWorkspace(opened: Opened | undefined, side: Side): Workspace | undefined {
  return useMemo(() => (opened === undefined ? undefined : workspaceOf(opened, side)), [opened, side]);
}

export function useOpening(engine: Engine): Opening {
  const [sides, setSides] = useState<Sides>({});
  const [isBusy, setBusy] = useState(false);
  const [notice, setNotice] = useState<Text | undefined>();
  useEffect(() => {
    // Whatever nobody waited for: saving a list whose run failed, say.
    const tell = (event: PromiseRejectionEvent) => {
      event.preventDefault();
      setNotice(noticeOf(event.reason));
    };
    window.addEventListener("unhandledrejection", tell);
    return () => window.removeEventListener("unhandledrejection", tell);
  }, []);
  const current = useRef(sides);
  current.current = sides;

  const whileBusy = useCallback(async (work: () => Promise<void>) => {
    setBusy(true);
    setNotice(undefined);
    try {
      await work();
    } catch (error) {
      setNotice(noticeOf(error));
    } finally {
      setBusy(false);
    }
  }, []);

  const read = useCallback(
    async (side: Side, sources: readonly Source[], before: Opened | undefined) => {
      const opened = await readSide(engine, sources, before);
      if (opened.entries.length === 0) setNotice(kOpenWords.nothingToRead);
      else setSides((all) => ({ ...all, [side]: opened }));
    },
    [engine],
  );

  const open = useCallback(
    (given: readonly Source[] | Promise<readonly Source[]>, side: Side) =>
      void whileBusy(async () => {
        for (const [where, sources] of bySide(await given, side)) {
          const before = current.current[where];
          const all = joined(before, sources);
          await read(where, all, all === sources ? undefined : before);
          if (where === "config") remember(all);
        }
      }),
    [read, whileBusy],
  );

  const again = useCallback(
    () =>
      void whileBusy(async () => {
        for (const side of ["config", "other"] as const) {
          const opened = current.current[side];
          if (opened !== undefined) await read(side, opened.sources, opened);
        }
      }),
    [read, whileBusy],
  );

  const change = useCallback((side: Side, changes: Partial<Opened>) => {
    revision += 1;
    const grown = revision;
    setSides((all) =>
      all[side] === undefined ? all : { ...all, [side]: { ...all[side], ...changes, revision: grown } },
    );
  }, []);

  const compareWith = useCallback((folder: string | undefined) => {
    revision += 1;
    const grown = revision;
    setSides(({ config, other: _, ...rest }) => {
      const other =
        config !== undefined && folder !== undefined ? { ...config, folder, revision: grown } : undefined;
      return { ...rest, ...(config && { config }), ...(other && { other }) };
    });
  }, []);

  const use = useCallback(
    (path: string, chosen: Use | undefined) => {
      const opened = current.current.config;
      if (opened === undefined) return;
      const choices: Choices = new Map([...opened.choices, [path, chosen]]);
      change("config", { choices, uses: withChoices(opened.guesses, choices) });
    },
    [change],
  );

  const addFile = useCallback(
    (name: string, bytes: Uint8Array) => {
      const opened = current.current.config;
      if (opened === undefined) return;
      const path = opened.folder === "" ? name : `${opened.folder}/${name}`;
      change("config", {
        entries: [...opened.entries.filter((entry) => entry.path !== path), { path, bytes }],
        addedFile: name,
      });
    },
    [change],
  );

  return {
    sides,
    workspace: useWorkspace(sides.config, "config"),
    other: useWorkspace(sides.other, "other"),
    isBusy,
    notice,
    dismissNotice: useCallback(() => setNotice(undefined), []),
    tell: useCallback((error: unknown) => setNotice(noticeOf(error)), []),
    open,
    again,
    chooseFolder: useCallback((side, folder) => change(side, { folder }), [change]),
    compareWith,
    use,
    addFile,
    addedFile: sides.config?.addedFile,
  };
}
