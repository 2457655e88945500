/** The engine of the development server (dev.mjs), which runs the native program. It is no part of the shipped page. */
import type { Engine, InputFile, Run } from "./engine";
import { fromBase64, toBase64 } from "./base64";

/** The server's answer: bytes as base64. */
interface ServedRun extends Omit<Run, "written"> {
  readonly written: readonly { readonly path: string; readonly base64: string }[];
}

export class ServedEngine implements Engine {
  async run(args: readonly string[], files: readonly InputFile[], signal?: AbortSignal): Promise<Run> {
    const sent = files.map((file) => ({ path: file.path, base64: toBase64(file.bytes) }));
    const answer = await fetch("/run", {
      method: "POST",
      body: JSON.stringify({ args, files: sent }),
      signal: signal ?? null,
    });
    if (!answer.ok) throw new Error(await answer.text());
    const run = (await answer.json()) as ServedRun;
    return { ...run, written: run.written.map(({ path, base64 }) => ({ path, bytes: fromBase64(base64) })) };
  }
}
