import type { Engine } from "./engine";
import { ServedEngine } from "./served_engine";
import { WasmEngine } from "./wasm_engine";

/** True in a page of dev.mjs, a constant of the bundler. */
declare const IS_SERVED: boolean;

/** The engine of this page. Call it once. */
export function openEngine(): Engine {
  return IS_SERVED ? new ServedEngine() : new WasmEngine();
}
