/**
 * The only door to the library: a command line goes in, what it printed comes out. The page knows nothing of tables itself.
 *
 *     const run = await engine.run(["check", "--config", "config", "--format", "json"], files, signal);
 *     if (run.code === 2) show(run.err);
 */

/** A file as the engine sees it: path with '/' below its working folder, bytes as they are on disk. */
export interface InputFile {
  readonly path: string;
  readonly bytes: Uint8Array;
}

/** What one run of the companion gave; out and err are UTF-8 decoded. Code: 0 fine, 1 something to look at, 2 unusable. */
export interface Run {
  readonly code: number;
  readonly out: string;
  readonly err: string;
  /** Files that the run wrote or changed, as `init` and `-o` do. */
  readonly written: readonly InputFile[];
}

export interface Engine {
  /** Runs `plateconfig ARGS…` in a fresh instance on these files. Rejects with AbortError when cancelled. */
  run(args: readonly string[], files: readonly InputFile[], signal?: AbortSignal): Promise<Run>;
}
