/**
 * Measures the page, and prints a table: its size, how long it takes, how much memory. No test: figures differ from machine to machine.
 *
 *     node measure.mjs
 *
 * The page and the engine are those of scripts/page. PLATECONFIG_COMPARED names the native program to compare with; without it the
 * release build's is taken where there is one, else the debug build's, which is several times slower.
 */
import { dirname, join } from "node:path";
import { fileURLToPath, pathToFileURL } from "node:url";
import { bundleForNode } from "./bundle_for_node.mjs";

process.chdir(dirname(fileURLToPath(import.meta.url)));
const folder = await bundleForNode(["measure.ts"], "measure");
await import(pathToFileURL(join(process.cwd(), folder, "measure.mjs")).href);
