// What was read from the disk, cut into configuration folders and the files beside them.

import type { InputFile } from "../../engine/engine";
import type { Workspace } from "../state";
import type { Entry } from "./source";
import { chosenOf, type Use, type Uses } from "./uses";

function folderOf(path: string): string {
  return path.slice(0, Math.max(0, path.lastIndexOf("/")));
}

export function nameOf(path: string): string {
  return path.slice(path.lastIndexOf("/") + 1);
}

/** Windows hides the second ending, so a manifest with one still says where the tables are. */
const kManifest = /^tables\.json(\.txt)?$/i;

function foldersWithManifest(entries: readonly Entry[]): string[] {
  return entries.filter((entry) => kManifest.test(nameOf(entry.path))).map((entry) => folderOf(entry.path));
}

function foldersByTables(entries: readonly Entry[]): string[] {
  const counts = new Map<string, number>();
  for (const { path } of entries.filter((entry) => /\.csv$/i.test(entry.path))) {
    counts.set(folderOf(path), (counts.get(folderOf(path)) ?? 0) + 1);
  }
  return [...counts].sort((one, two) => two[1] - one[1]).map(([folder]) => folder);
}

/** The configuration folders below what was opened, those that say so themselves first; "" is the opened folder itself. */
export function configurationFolders(entries: readonly Entry[]): readonly string[] {
  const certain = [...new Set(foldersWithManifest(entries))].sort();
  if (certain.length > 0) return certain;
  return foldersByTables(entries).slice(0, 1);
}

function isBelow(path: string, folder: string): boolean {
  return folder === "" || path.startsWith(`${folder}/`);
}

/** A folder's own files: not those of a configuration folder within it. */
export function filesIn(entries: readonly Entry[], folder: string): readonly Entry[] {
  const inner = configurationFolders(entries).filter(
    (other) => other !== folder && isBelow(`${other}/`, folder),
  );
  return entries.filter(({ path }) => isBelow(path, folder) && !inner.some((other) => isBelow(path, other)));
}

/** What belongs to no configuration folder: files of plates and holes lie there, or in the folder itself. */
export function filesBeside(entries: readonly Entry[], folder: string): readonly Entry[] {
  const others = configurationFolders(entries).filter((other) => other !== folder && other !== "");
  return entries.filter(({ path }) => !others.some((other) => isBelow(path, other)));
}

/** Below the engine's folder the files keep their own names. */
function tablesOf(entries: readonly Entry[], folder: string, below: string): InputFile[] {
  const start = folder === "" ? 0 : folder.length + 1;
  return filesIn(entries, folder).map(({ path, bytes }) => ({
    path: `${below}/${path.slice(start)}`,
    bytes,
  }));
}

function usedAs(use: Use, uses: Uses, entries: readonly Entry[]): InputFile | undefined {
  const path = chosenOf(uses, use);
  const entry = entries.find((each) => each.path === path);
  return entry && { path: nameOf(entry.path), bytes: entry.bytes };
}

export interface OpenedFolder {
  /** As it is shown when it has no folder of its own. */
  readonly name: string;
  readonly entries: readonly Entry[];
  /** The configuration folder that was chosen. */
  readonly folder: string;
  readonly uses: Uses;
  readonly revision: number;
}

export function workspaceOf(opened: OpenedFolder, below: "config" | "other"): Workspace {
  const { entries, folder, uses, revision } = opened;
  const [plates, holes, holeTypes] = (["plates", "holes", "hole-types"] as const).map((use) =>
    usedAs(use, uses, entries),
  );
  return {
    name: nameOf(folder) || opened.name,
    folder: below,
    files: tablesOf(entries, folder, below),
    ...(plates && { plates }),
    ...(holes && { holes }),
    ...(holeTypes && { holeTypes }),
    revision,
  };
}
