/** One instance of the module: given files, it runs one command line. Used by the page's worker, and by tests in node. */
import type { InputFile } from "./engine";

/** What emscripten's start-up script makes; only what is used here. */
export interface Started {
  readonly FS: {
    mkdirTree(path: string): void;
    chdir(path: string): void;
    writeFile(path: string, bytes: Uint8Array, options?: { canOwn?: boolean }): void;
    readFile(path: string): Uint8Array;
    readdir(path: string): string[];
    stat(path: string): { readonly mode: number; readonly mtime: Date };
    isDir(mode: number): boolean;
    utime(path: string, read: number, written: number): void;
  };
  ccall(name: string, gives: "number" | null, takes: readonly "string"[], given: readonly string[]): number;
}

/** The start-up script's one function. */
export type Create = (options: object) => Promise<Started>;

/** What a run printed, byte by byte. */
export interface RawRun {
  readonly code: number;
  readonly out: Uint8Array<ArrayBuffer>;
  readonly err: Uint8Array<ArrayBuffer>;
  readonly written: readonly InputFile[];
}

export interface Surroundings {
  /** The working folder's own path. */
  readonly folder?: string;
  /** The only variables that are set. */
  readonly variables?: Readonly<Record<string, string>>;
}

type Pieces = Uint8Array[];

function joined(pieces: Pieces): Uint8Array<ArrayBuffer> {
  const whole = new Uint8Array(pieces.reduce((size, piece) => size + piece.length, 0));
  let at = 0;
  for (const piece of pieces) {
    whole.set(piece, at);
    at += piece.length;
  }
  return whole;
}

export class Instance {
  private constructor(
    private readonly started: Started,
    private readonly out: Pieces,
    private readonly err: Pieces,
  ) {}

  static async start(create: Create, module: WebAssembly.Module): Promise<Instance> {
    const out: Pieces = [];
    const err: Pieces = [];
    const started = await new Promise<Started>((done, failed) => {
      const instantiateWasm = (
        imports: WebAssembly.Imports,
        receive: (instance: WebAssembly.Instance) => void,
      ) => {
        WebAssembly.instantiate(module, imports).then(receive, failed);
        return {};
      };
      const takeOutput = (stream: number, piece: Uint8Array) => (stream === 1 ? out : err).push(piece);
      create({ instantiateWasm, takeOutput }).then(done, failed);
    });
    return new Instance(started, out, err);
  }

  /** The only run of this instance. */
  run(args: readonly string[], files: readonly InputFile[], surroundings: Surroundings = {}): RawRun {
    const { folder = "/work", variables = {} } = surroundings;
    this.putFiles(folder, files);
    this.call("ClearVariables");
    for (const [name, value] of Object.entries(variables)) this.call("SetVariable", name, value);
    for (const argument of args) this.call("AddArgument", argument);
    const code = this.started.ccall("Run", "number", [], []);
    return { code, out: joined(this.out), err: joined(this.err), written: this.writtenBelow(folder) };
  }

  private call(name: string, ...texts: string[]): void {
    const takes = texts.map(() => "string" as const);
    this.started.ccall(name, null, takes, texts);
  }

  private putFiles(folder: string, files: readonly InputFile[]): void {
    const { FS } = this.started;
    FS.mkdirTree(folder);
    FS.chdir(folder);
    for (const file of files) {
      // One like config/../common/x.csv leads to where the tables of config look for it.
      const path = `${folder}/${file.path}`;
      FS.mkdirTree(path.slice(0, path.lastIndexOf("/")));
      FS.writeFile(path, file.bytes, { canOwn: true });
      FS.utime(path, 0, 0);
    }
  }

  /** The files below a folder that have another time than those that were given; paths from the working folder on. */
  private writtenBelow(folder: string, front = ""): InputFile[] {
    const { FS } = this.started;
    const names = FS.readdir(folder).filter((name) => name !== "." && name !== "..");
    return names.flatMap((name) => {
      const path = `${folder}/${name}`;
      const { mode, mtime } = FS.stat(path);
      if (FS.isDir(mode)) return this.writtenBelow(path, `${front}${name}/`);
      return mtime.getTime() === 0 ? [] : [{ path: front + name, bytes: FS.readFile(path) }];
    });
  }
}
