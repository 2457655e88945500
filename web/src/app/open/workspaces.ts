// What was read from the disk, cut into configuration folders and the files beside them.

import type { InputFile } from "../../engine/engine";
import type { Workspace } from "../state";
import type { Entry } from "./source";
import type { Use, Uses } from "./uses";

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

/** Below a folder of their own, so that files of one name stay apart, and no name is taken for an option. */
function usedAs(use: Use, uses: Uses, entries: readonly Entry[]): InputFile[] {
  return entries
    .filter(({ path }) => uses.get(path) === use)
    .map(({ path, bytes }) => ({ path: `${use}/${path}`, bytes }));
}

export interface OpenedFolder {
  /** As it is shown when it has no folder of its own. */
  readonly name: string;
  readonly entries: readonly Entry[];
  /** The configuration folder that was chosen. */
  readonly folder: string;
  /** Of all files that lie there. */
  readonly uses: Uses;
  /** The same as long as nothing else is opened in its place. */
  readonly opening: number;
  /** Of a report: when it was written. */
  readonly written?: Date;
  readonly revision: number;
}

export function workspaceOf(opened: OpenedFolder, below: "config" | "other"): Workspace {
  const { entries, folder, uses, opening, written, revision } = opened;
  const beside = filesBeside(entries, folder);
  return {
    name: nameOf(folder) || opened.name,
    folder: below,
    files: tablesOf(entries, folder, below),
    plates: usedAs("plates", uses, beside),
    holes: usedAs("holes", uses, beside),
    holeTypes: usedAs("hole-types", uses, beside),
    opened: `${opening}/${folder}`,
    ...(written && { written }),
    revision,
  };
}
