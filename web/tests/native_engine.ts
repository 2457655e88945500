/**
 * The engine as the native program gives it: for tests and for the development server. The program is the one that the variable
 * PLATECONFIG names, or else that of the debug build.
 */
import { spawn } from "node:child_process";
import { mkdir, mkdtemp, readdir, readFile, rm, writeFile } from "node:fs/promises";
import { tmpdir } from "node:os";
import { dirname, join, relative, resolve } from "node:path";
import type { Engine, InputFile, Run } from "../src/engine/engine";

/** The native program. Tests are bundled, so that this file's own place says nothing: the working folder is web/. */
export const nativeProgram = resolve(
  process.env["PLATECONFIG"] ?? "../build/debug/tools/plateconfig/plateconfig",
);

/** What a run printed, byte by byte. */
export interface RawRun {
  readonly code: number;
  readonly out: Buffer;
  readonly err: Buffer;
}

/** Writes the files below a folder; a path that leads out of it is refused. */
export async function writeBelow(folder: string, files: readonly InputFile[]): Promise<void> {
  for (const file of files) {
    const path = join(folder, file.path);
    if (relative(folder, path).startsWith("..")) throw new Error(`${file.path} is not below its folder`);
    await mkdir(dirname(path), { recursive: true });
    await writeFile(path, file.bytes);
  }
}

/** Runs the program in a folder, with these variables alone. */
export function runNative(
  args: readonly string[],
  folder: string,
  variables: Record<string, string> = {},
  {
    program = nativeProgram,
    signal,
  }: { readonly program?: string; readonly signal?: AbortSignal | undefined } = {},
): Promise<RawRun> {
  return new Promise((done, failed) => {
    const child = spawn(program, [...args], {
      cwd: folder,
      env: variables,
      stdio: ["ignore", "pipe", "pipe"],
      ...(signal ? { signal } : {}),
    });
    const out: Buffer[] = [];
    const err: Buffer[] = [];
    child.stdout.on("data", (piece: Buffer) => out.push(piece));
    child.stderr.on("data", (piece: Buffer) => err.push(piece));
    child.on("error", failed);
    child.on("close", (code) => done({ code: code ?? 2, out: Buffer.concat(out), err: Buffer.concat(err) }));
  });
}

/** The files below a folder that were not given, or not like that. */
export async function writtenBelow(folder: string, given: readonly InputFile[]): Promise<InputFile[]> {
  const entries = await readdir(folder, { recursive: true, withFileTypes: true });
  const paths = entries
    .filter((entry) => entry.isFile())
    .map((entry) => relative(folder, join(entry.path, entry.name)));
  const files = await Promise.all(
    paths.map(async (path) => ({ path, bytes: await readFile(join(folder, path)) })),
  );
  return files.filter(
    ({ path, bytes }) => !given.some((file) => file.path === path && bytes.equals(file.bytes)),
  );
}

export class NativeEngine implements Engine {
  async run(args: readonly string[], files: readonly InputFile[], signal?: AbortSignal): Promise<Run> {
    const folder = await mkdtemp(join(tmpdir(), "plateconfig-page-"));
    try {
      await writeBelow(folder, files);
      const run = await runNative(args, folder, {}, { signal });
      const written = await writtenBelow(folder, files);
      return { code: run.code, out: run.out.toString(), err: run.err.toString(), written };
    } finally {
      await rm(folder, { recursive: true, force: true });
    }
  }
}
