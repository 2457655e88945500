/**
 * Bundles the page into one HTML file that needs nothing else:
 *
 *     node build.mjs --engine ../build/web/web/engine -o plateconfig.html
 *
 * Everything is inlined: script, styles, and the engine's module, gzipped and as base64. A content security policy keeps the
 * page from asking any network for anything.
 */
import { createHash } from "node:crypto";
import { mkdirSync, readFileSync, writeFileSync } from "node:fs";
import { dirname, join } from "node:path";
import { fileURLToPath } from "node:url";
import { parseArgs } from "node:util";
import { gzipSync } from "node:zlib";
import { build } from "esbuild";

const here = dirname(fileURLToPath(import.meta.url));

/** What esbuild is told for everything that runs in a browser; Edge and Chrome of the last three years. */
const forBrowsers = {
  bundle: true,
  format: "iife",
  target: ["chrome113", "firefox113"],
  charset: "utf8",
  minify: true,
  legalComments: "none",
  logLevel: "warning",
  jsx: "automatic",
  jsxImportSource: "preact",
  write: false,
};

/** The page's script and styles. A served page asks its server instead of having an engine inside. */
export async function bundle({ isServed = false, minify = true } = {}) {
  const result = await build({
    ...forBrowsers,
    minify,
    entryPoints: [join(here, "src/main.tsx")],
    outdir: "/",
    loader: { ".svg": "dataurl" },
    define: { IS_SERVED: String(isServed) },
  });
  const text = (ending) => result.outputFiles.find((file) => file.path.endsWith(ending))?.text ?? "";
  return { script: text(".js"), style: text(".css") };
}

/** The worker's script: emscripten's start-up script, and what is done with it. */
export async function bundleWorker(startUpScript) {
  const result = await build({ ...forBrowsers, entryPoints: [join(here, "src/engine/worker.ts")] });
  return readFileSync(startUpScript, "utf8") + result.outputFiles[0].text;
}

const sha256 = (text) => `'sha256-${createHash("sha256").update(text).digest("base64")}'`;

/** Nothing from elsewhere, no request to anywhere; the script is the one that is meant, letter for letter. */
export function policy(script, isServed = false) {
  return [
    "default-src 'none'",
    `script-src ${sha256(script)} 'wasm-unsafe-eval'`,
    "style-src 'unsafe-inline'",
    "img-src data: blob:",
    "worker-src blob:",
    `connect-src ${isServed ? "'self'" : "'none'"}`,
    "base-uri 'none'",
    "form-action 'none'",
  ].join("; ");
}

/** The bundler writes these two in another way, because a script's text that holds them would end its element. */
function assertStaysWithin(script) {
  if (/<\/script|<!--/i.test(script)) throw new Error("the script would end its own element");
}

/**
 * The page's text. `report` of the command puts data into the element plateconfig-data, which has to stand there exactly so.
 */
export function page({ script, style, module = "", worker = "", isServed = false }) {
  for (const text of [script, worker]) assertStaysWithin(text);
  return `<!doctype html>
<html lang="zh-CN">
<head>
<meta charset="utf-8">
<meta http-equiv="Content-Security-Policy" content="${policy(script, isServed)}">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>plateconfig</title>
<link rel="icon" href="data:,">
<style>${style}</style>
</head>
<body>
<script type="application/json" id="plateconfig-data"></script>
<script type="text/plain" id="plateconfig-module">${module}</script>
<script type="text/plain" id="plateconfig-worker">${worker}</script>
<script>${script}</script>
</body>
</html>
`;
}

/** The WebAssembly module as the page holds it. */
export const packed = (file) => gzipSync(readFileSync(file), { level: 9 }).toString("base64");

async function main() {
  const { values } = parseArgs({
    options: { engine: { type: "string" }, output: { type: "string", short: "o" } },
  });
  if (!values.engine || !values.output) throw new Error("usage: node build.mjs --engine FOLDER -o FILE");
  const html = page({
    ...(await bundle()),
    module: packed(join(values.engine, "plateconfig.wasm")),
    worker: await bundleWorker(join(values.engine, "plateconfig.js")),
  });
  mkdirSync(dirname(values.output), { recursive: true });
  writeFileSync(values.output, html);
}

if (process.argv[1] === fileURLToPath(import.meta.url)) await main();
