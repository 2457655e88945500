import type { Engine } from "./engine";
import { ServedEngine } from "./served_engine";

/** True in a page of dev.mjs, a constant of the bundler. */
declare const IS_SERVED: boolean;

/** The engine of this page. Call it once. */
export function openEngine(): Engine {
  if (IS_SERVED) return new ServedEngine();
  throw new Error("not built in yet");
}
