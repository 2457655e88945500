/**
 * Bundles the page into one HTML file that needs nothing else:
 *
 *     node build.mjs --module build/web/web/engine/plateconfig.wasm --glue …/plateconfig.js -o plateconfig.html
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
export function page({ script, style, module = "", isServed = false }) {
  assertStaysWithin(script);
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
<script>${script}</script>
</body>
</html>
`;
}

/** The WebAssembly module as the page holds it. */
export const packed = (file) => gzipSync(readFileSync(file), { level: 9 }).toString("base64");

async function main() {
  const { values } = parseArgs({
    options: { module: { type: "string" }, output: { type: "string", short: "o" } },
  });
  if (!values.output) throw new Error("-o FILE is missing");
  const { script, style } = await bundle();
  const html = page({ script, style, module: values.module ? packed(values.module) : "" });
  mkdirSync(dirname(values.output), { recursive: true });
  writeFileSync(values.output, html);
}

if (process.argv[1] === fileURLToPath(import.meta.url)) await main();
