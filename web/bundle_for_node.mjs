/** Bundles what runs in node: tests, measurements. Runs in this folder. */
import { rmSync } from "node:fs";
import { join } from "node:path";
import { build } from "esbuild";

/** Below node_modules, where packages are found from. */
const below = "node_modules/.cache/plateconfig-";

/** Bundles tests/NAME… into a folder of its own, and gives the folder. */
export async function bundleForNode(names, folder) {
  const outdir = below + folder;
  rmSync(outdir, { recursive: true, force: true });
  await build({
    absWorkingDir: process.cwd(),
    entryPoints: names.map((name) => join("tests", name)),
    outdir,
    bundle: true,
    platform: "node",
    target: "node18",
    format: "esm",
    outExtension: { ".js": ".mjs" },
    packages: "external",
    define: { IS_SERVED: "false" },
    loader: { ".css": "empty" },
    jsx: "automatic",
    jsxImportSource: "preact",
    sourcemap: "inline",
    logLevel: "warning",
  });
  return outdir;
}
