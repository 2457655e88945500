/** The module that the page has inside, run in node. */
import { readFile } from "node:fs/promises";
import { createRequire } from "node:module";
import { resolve } from "node:path";
import type { InputFile } from "../src/engine/engine";
import { type Create, Instance, type RawRun, type Surroundings } from "../src/engine/instance";

const folder = resolve(process.env["PLATECONFIG_ENGINE"] ?? "../build/web/web/engine");
const create = createRequire(import.meta.url)(`${folder}/plateconfig.js`) as Create;
const module = WebAssembly.compile(new Uint8Array(await readFile(`${folder}/plateconfig.wasm`)));

export async function runModule(
  args: readonly string[],
  files: readonly InputFile[],
  surroundings?: Surroundings,
): Promise<RawRun> {
  return (await Instance.start(create, await module)).run(args, files, surroundings);
}
