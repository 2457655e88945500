// The last folder, kept by the browser as a handle; without it (a private window, another browser) nothing is remembered.

const kStore = "folders";
const kLast = "last";

function database(): Promise<IDBDatabase> {
  return new Promise((done, failed) => {
    const request = indexedDB.open("plateconfig", 1);
    request.onupgradeneeded = () => request.result.createObjectStore(kStore);
    request.onsuccess = () => done(request.result);
    request.onerror = () => failed(request.error ?? new Error("no database"));
  });
}

function finished<Value>(request: IDBRequest<Value>): Promise<Value> {
  return new Promise((done, failed) => {
    request.onsuccess = () => done(request.result);
    request.onerror = () => failed(request.error ?? new Error("not read"));
  });
}

export async function rememberFolder(handle: FileSystemDirectoryHandle): Promise<void> {
  try {
    const store = (await database()).transaction(kStore, "readwrite").objectStore(kStore);
    await finished(store.put(handle, kLast));
  } catch {
    // Remembering is a convenience.
  }
}

export async function rememberedFolder(): Promise<FileSystemDirectoryHandle | undefined> {
  try {
    const store = (await database()).transaction(kStore, "readonly").objectStore(kStore);
    return (await finished(store.get(kLast))) as FileSystemDirectoryHandle | undefined;
  } catch {
    return undefined;
  }
}

/** Whether the folder may be read; asks the user when `ask` says so, which takes a click. */
export async function mayRead(handle: FileSystemDirectoryHandle, ask: boolean): Promise<boolean> {
  const question = ask ? handle.requestPermission : handle.queryPermission;
  return question === undefined || (await question.call(handle, { mode: "read" })) === "granted";
}
