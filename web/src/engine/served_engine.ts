/** The engine of the development server (dev.mjs), which runs the native program. It is no part of the shipped page. */
import type { Engine, InputFile, Run } from "./engine";
import { toBase64 } from "./base64";

export class ServedEngine implements Engine {
  async run(args: readonly string[], files: readonly InputFile[], signal?: AbortSignal): Promise<Run> {
    const sent = files.map((file) => ({ path: file.path, base64: toBase64(file.bytes) }));
    const answer = await fetch("/run", {
      method: "POST",
      body: JSON.stringify({ args, files: sent }),
      signal: signal ?? null,
    });
    if (!answer.ok) throw new Error(await answer.text());
    return (await answer.json()) as Run;
  }
}
