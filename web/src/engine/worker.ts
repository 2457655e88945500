/**
 * What the page's worker does. The page puts emscripten's start-up script in front of this one. First comes the module, then the
 * one run; the second may come before the first has been dealt with.
 */
import type { InputFile } from "./engine";
import { type Create, Instance, type RawRun } from "./instance";

declare const createPlateconfig: Create;

export interface Prepare {
  readonly module: WebAssembly.Module;
}
export interface Order {
  readonly args: readonly string[];
  readonly files: readonly InputFile[];
}
export type Answer = RawRun | { readonly failure: string };

/** The worker's own side of itself; the types of pages do not know it. */
const self = globalThis as unknown as {
  onmessage: (event: MessageEvent<Prepare | Order>) => void;
  postMessage(answer: Answer, transfer?: ArrayBuffer[]): void;
};

let instance: Promise<Instance> | undefined;

function start(module: WebAssembly.Module): void {
  instance = Instance.start(createPlateconfig, module);
  instance.catch(() => undefined); // Told when the run is asked for.
}

async function run({ args, files }: Order): Promise<void> {
  try {
    if (!instance) throw new Error("there is no module");
    const done = (await instance).run(args, files);
    self.postMessage(done, [done.out.buffer, done.err.buffer]);
  } catch (error) {
    self.postMessage({ failure: String(error) });
  }
}

self.onmessage = ({ data }) => ("module" in data ? start(data.module) : void run(data));
