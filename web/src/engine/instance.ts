/** One instance of the module: given files, it runs one command line. Used by the page's worker, and by tests in node. */
import type { InputFile } from "./engine";

/** What emscripten's start-up script makes; only what is used here. */
export interface Started {
  readonly FS: {
    mkdirTree(path: string): void;
    chdir(path: string): void;
    writeFile(path: string, bytes: Uint8Array, options?: { canOwn?: boolean }): void;
    readFile(path: string): Uint8Array<ArrayBuffer>;
    readdir(path: string): string[];
    stat(path: string): { mode: number };
    isDir(mode: number): boolean;
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
  /** Files that the run made. */
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
    const given = new Set(files.map(({ path }) => path));
    const written = this.pathsBelow(".").filter((path) => !given.has(path));
    const { FS } = this.started;
    return {
      code,
      out: joined(this.out),
      err: joined(this.err),
      written: written.map((path) => ({ path, bytes: FS.readFile(path) })),
    };
  }

  private call(name: string, ...texts: string[]): void {
    const takes = texts.map(() => "string" as const);
    this.started.ccall(name, null, takes, texts);
  }

  /** Files below a folder, as the run's working folder sees them. */
  private pathsBelow(folder: string): string[] {
    const { FS } = this.started;
    return FS.readdir(folder)
      .filter((name) => name !== "." && name !== "..")
      .flatMap((name) => {
        const path = folder === "." ? name : `${folder}/${name}`;
        return FS.isDir(FS.stat(path).mode) ? this.pathsBelow(path) : [path];
      });
  }

  private putFiles(folder: string, files: readonly InputFile[]): void {
    const { FS } = this.started;
    FS.mkdirTree(folder);
    FS.chdir(folder);
    for (const { path, bytes } of files) {
      const end = path.lastIndexOf("/");
      if (end > 0) FS.mkdirTree(path.slice(0, end));
      FS.writeFile(path, bytes, { canOwn: true });
    }
  }
}
