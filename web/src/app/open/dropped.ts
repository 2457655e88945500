// What was dropped on the page.

import { fileSource, folderSource, listSource, type Source } from "./source";

function sourceOf(handle: FileSystemHandle | null): Source[] {
  if (handle === null) return [];
  return handle.kind === "directory"
    ? [folderSource(handle as FileSystemDirectoryHandle)]
    : [fileSource(handle as FileSystemFileHandle)];
}

function fileOf(entry: FileSystemFileEntry): Promise<File> {
  return new Promise((done, failed) => entry.file(done, failed));
}

/** One call gives a hundred entries at most; an empty list is the end. */
async function childrenOf(folder: FileSystemDirectoryEntry): Promise<FileSystemEntry[]> {
  const reader = folder.createReader();
  const all: FileSystemEntry[] = [];
  for (;;) {
    const some = await new Promise<FileSystemEntry[]>((done, failed) => reader.readEntries(done, failed));
    if (some.length === 0) return all;
    all.push(...some);
  }
}

async function filesOf(entry: FileSystemEntry): Promise<File[]> {
  if (entry.isFile) return [withPath(await fileOf(entry as FileSystemFileEntry), entry.fullPath.slice(1))];
  const children = await childrenOf(entry as FileSystemDirectoryEntry);
  return (await Promise.all(children.map(filesOf))).flat();
}

/** A file that came by the older interface, with the path that an <input> would have given it. */
function withPath(file: File, path: string): File {
  if (path.includes("/")) Object.defineProperty(file, "webkitRelativePath", { value: path });
  return file;
}

async function byEntries(entries: readonly FileSystemEntry[]): Promise<Source[]> {
  return Promise.all(entries.map(async (entry) => listSource(await filesOf(entry))));
}

/**
 * Call it within the drop event: what the event holds is gone after the first wait. Handles come first, since of a page opened from
 * a disk the older interface can not read folders; browsers without handles have the older one.
 */
export function droppedSources(data: DataTransfer): Promise<Source[]> {
  const items = [...data.items].filter((item) => item.kind === "file");
  if (items.every((item) => item.getAsFileSystemHandle !== undefined)) {
    const handles = items.map((item) => item.getAsFileSystemHandle!());
    return Promise.all(handles).then((all) => all.flatMap(sourceOf));
  }
  return byEntries(items.map((item) => item.webkitGetAsEntry()).filter((entry) => entry !== null));
}
