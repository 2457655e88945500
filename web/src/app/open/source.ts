// Where files come from, and how they are read once more: a folder's handle reads what is on disk now, a file of an <input> does not.

import { kMostBytes } from "../../engine/limits";
import type { Use } from "./uses";

export interface Entry {
  /** Below the opened folder, with '/'. */
  readonly path: string;
  readonly bytes: Uint8Array;
  /** Where it is known what the file is used as. */
  readonly use?: Use;
}

export interface Source {
  readonly name: string;
  /** Whether it is a whole folder, not single files. */
  readonly isFolder: boolean;
  readonly handle?: FileSystemDirectoryHandle;
  /** Of a report: when it was written. */
  readonly written?: Date;
  read(): Promise<readonly Entry[]>;
}

/** The files were changed since they were given, and this browser gives the new ones only to somebody who gives them again. */
export class StaleFiles extends Error {}
/** More than a page can hold. */
export class TooLarge extends Error {}

const kMostDepth = 4;
const kMostFiles = 2000;

/** What the companion reads, and what somebody may take for it: a workbook under a table's name, a manifest with a second ending. */
const kReadEndings = /\.(csv|txt|json|jsonl|ndjson|xls|xlsx)$/i;

function isRead(name: string): boolean {
  return kReadEndings.test(name) && !name.startsWith(".") && !name.startsWith("~$");
}

interface Found {
  readonly path: string;
  file(): Promise<File>;
}

/** Files that can not be read any more are those of an <input> that were saved since. */
async function unlessStale<Value>(path: string, reading: Promise<Value>): Promise<Value> {
  try {
    return await reading;
  } catch (error) {
    if (error instanceof DOMException && error.name === "NotReadableError") throw new StaleFiles(path);
    throw error;
  }
}

/** Sizes come before the bytes: reading a file that is too large fails as if it had been changed. */
async function readAll(files: readonly Found[]): Promise<readonly Entry[]> {
  const entries: Entry[] = [];
  let size = 0;
  for (const { path, file: open } of files) {
    const file = await unlessStale(path, open());
    size += file.size;
    if (size > kMostBytes) throw new TooLarge(path);
    entries.push({ path, bytes: new Uint8Array(await unlessStale(path, file.arrayBuffer())) });
  }
  return entries;
}

async function filesBelow(
  folder: FileSystemDirectoryHandle,
  before: string,
  depth: number,
): Promise<Found[]> {
  const found: Found[] = [];
  for await (const handle of folder.values()) {
    const path = before + handle.name;
    if (handle.kind === "file" && isRead(handle.name)) {
      found.push({ path, file: () => (handle as FileSystemFileHandle).getFile() });
    } else if (handle.kind === "directory" && depth < kMostDepth) {
      found.push(...(await filesBelow(handle as FileSystemDirectoryHandle, `${path}/`, depth + 1)));
    }
    if (found.length > kMostFiles) throw new TooLarge(path);
  }
  return found;
}

export function folderSource(handle: FileSystemDirectoryHandle): Source {
  return {
    name: handle.name,
    isFolder: true,
    handle,
    read: async () => readAll(await filesBelow(handle, "", 0)),
  };
}

export function fileSource(handle: FileSystemFileHandle): Source {
  return {
    name: handle.name,
    isFolder: false,
    read: () => readAll([{ path: handle.name, file: () => handle.getFile() }]),
  };
}

/** Files of an <input>; those of a whole folder have their path below it. */
export function listSource(files: readonly File[]): Source {
  const folder = files[0]?.webkitRelativePath.split("/")[0] ?? "";
  const found = files
    .filter((file) => isRead(file.name))
    .map((file) => ({
      path: file.webkitRelativePath.slice(folder.length + 1) || file.name,
      file: async () => file,
    }));
  return { name: folder || (files[0]?.name ?? ""), isFolder: folder !== "", read: () => readAll(found) };
}

/** Files that the page itself has: the data of a report, a manifest that was just written. */
export function dataSource(name: string, entries: readonly Entry[], written?: Date): Source {
  return { name, isFolder: true, ...(written && { written }), read: async () => entries };
}
