/** A page of nothing but the engine, for engine.spec.ts. */
import { openEngine } from "../src/engine/open_engine";

Object.assign(globalThis, { engine: openEngine() });
