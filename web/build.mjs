/**
 * Bundles the page into one HTML file that needs nothing else:
 *
 *     node build.mjs --engine ../build/web/web/engine -o plateconfig.html
 */
import { mkdirSync, writeFileSync } from "node:fs";
import { dirname, resolve } from "node:path";
import { fileURLToPath } from "node:url";
import { parseArgs } from "node:util";
import { bundle, page, parts } from "./page.mjs";

const { values } = parseArgs({
  options: { engine: { type: "string" }, output: { type: "string", short: "o" } },
});
if (!values.engine || !values.output) throw new Error("usage: node build.mjs --engine FOLDER -o FILE");
const [engine, output] = [resolve(values.engine), resolve(values.output)];
process.chdir(dirname(fileURLToPath(import.meta.url)));

const html = await page({ ...(await bundle()), ...(await parts(engine)) });
mkdirSync(dirname(output), { recursive: true });
writeFileSync(output, html);
