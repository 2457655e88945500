/**
 * What the page is made of. Everything is in one file: scripts, styles and the engine's module, compressed and as base64. A content
 * security policy keeps the page from asking any network for anything. Whoever uses this runs in this folder.
 */
import { createHash } from "node:crypto";
import { readFileSync } from "node:fs";
import { join } from "node:path";
import { gzipSync } from "node:zlib";
import { build } from "esbuild";

/** What esbuild is told for everything that runs in a browser; Edge and Chrome of the last three years. */
const forBrowsers = {
  bundle: true,
  format: "iife",
  target: ["chrome113", "firefox113"],
  charset: "ascii",
  minify: true,
  metafile: true,
  legalComments: "none",
  logLevel: "warning",
  jsx: "automatic",
  jsxImportSource: "preact",
  write: false,
};

const licences = () => readFileSync("licences.txt", "utf8");

/** Whose code is in the page is said in the page. */
function assertLicencesAreTold({ inputs }) {
  const names = Object.keys(inputs).map((path) => /node_modules\/((?:@[^/]+\/)?[^/]+)/.exec(path)?.[1]);
  const untold = names.filter((name) => name && !licences().includes(name));
  if (untold.length > 0) throw new Error(`licences.txt lacks ${untold.join(", ")}`);
}

/** The page's script and styles. A served page asks its server instead of having an engine inside. */
export async function bundle({ entry = "src/main.tsx", isServed = false, minify = true } = {}) {
  const result = await build({
    ...forBrowsers,
    absWorkingDir: process.cwd(),
    minify,
    entryPoints: [entry],
    outdir: "/",
    loader: { ".svg": "dataurl" },
    define: { IS_SERVED: String(isServed) },
  });
  assertLicencesAreTold(result.metafile);
  const text = (ending) => result.outputFiles.find((file) => file.path.endsWith(ending))?.text ?? "";
  return { script: text(".js"), style: text(".css") };
}

/** The worker's script: emscripten's start-up script, and what is done with it. */
export async function bundleWorker(startUpScript) {
  const result = await build({
    ...forBrowsers,
    absWorkingDir: process.cwd(),
    entryPoints: ["src/engine/worker.ts"],
  });
  return readFileSync(startUpScript, "utf8") + result.outputFiles[0].text;
}

const sha256 = (text) => `'sha256-${createHash("sha256").update(text).digest("base64")}'`;
const packed = (bytes) => gzipSync(bytes, { level: 9 }).toString("base64");

/** Nothing from elsewhere, no request to anywhere; the scripts are those that are meant, letter for letter. */
function policy(scripts, isServed) {
  return [
    "default-src 'none'",
    `script-src ${scripts.map(sha256).join(" ")} 'wasm-unsafe-eval'`,
    "style-src 'unsafe-inline'",
    "img-src data: blob:",
    "worker-src blob:",
    `connect-src ${isServed ? "'self'" : "'none'"}`,
    "base-uri 'none'",
    "form-action 'none'",
  ].join("; ");
}

/**
 * The page's text. `report` of the command puts data into the element plateconfig-data, which has to stand there exactly so.
 */
export async function page({ script, style, module = "", worker = "", isServed = false }) {
  const { script: start } = await bundle({ entry: "src/start.ts" });
  // The bundler writes these two in another way: the text of an element that holds them would end there.
  if (/<\/script|<!--/i.test(start)) throw new Error("the first script would end its own element");
  const html = `<!doctype html>
<html lang="zh-CN">
<head>
<meta charset="utf-8">
<meta http-equiv="Content-Security-Policy" content="${policy([start, script], isServed)}">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>plateconfig</title>
<link rel="icon" href="data:,">
</head>
<body>
<script type="application/json" id="plateconfig-data"></script>
<script type="text/plain" id="plateconfig-module">${module}</script>
<script type="text/plain" id="plateconfig-licences">
${licences()}</script>
<script type="text/plain" id="plateconfig-page">${packed(JSON.stringify({ script, style, worker }))}</script>
<script>${start}</script>
</body>
</html>
`;
  // Programs that hold the page cut it anywhere.
  if (/[^\n -~]/.test(html)) throw new Error("the page is not ASCII");
  return html;
}

/** The module and the worker's script as the page holds them, from the folder into which CMake builds the engine. */
export async function parts(engineFolder) {
  return {
    module: packed(readFileSync(join(engineFolder, "plateconfig.wasm"))),
    worker: await bundleWorker(join(engineFolder, "plateconfig.js")),
  };
}
