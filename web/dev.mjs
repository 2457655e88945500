/**
 * For development only: serves the page, bundled anew with each load, and runs the native program for it. Nothing of this is in
 * the shipped page.
 *
 *     PLATECONFIG=../build/debug/tools/plateconfig/plateconfig node dev.mjs [port]
 *
 * Port 0 is any that is free.
 */
import { createServer } from "node:http";
import { mkdtemp } from "node:fs/promises";
import { tmpdir } from "node:os";
import { dirname, join } from "node:path";
import { fileURLToPath, pathToFileURL } from "node:url";
import { build } from "esbuild";
import { bundle, page } from "./page.mjs";

process.chdir(dirname(fileURLToPath(import.meta.url)));

/** The tests' native engine is TypeScript. */
async function nativeEngine() {
  const outfile = join(await mkdtemp(join(tmpdir(), "plateconfig-dev-")), "native_engine.mjs");
  await build({
    absWorkingDir: process.cwd(),
    entryPoints: ["tests/native_engine.ts"],
    bundle: true,
    platform: "node",
    format: "esm",
    outfile,
  });
  return new (await import(pathToFileURL(outfile).href)).NativeEngine();
}

const engine = await nativeEngine();

async function bodyOf(request) {
  const pieces = [];
  for await (const piece of request) pieces.push(piece);
  return JSON.parse(Buffer.concat(pieces).toString());
}

async function answer(request) {
  if (request.method === "POST" && request.url === "/run") {
    const { args, files } = await bodyOf(request);
    const given = files.map(({ path, base64 }) => ({ path, bytes: Buffer.from(base64, "base64") }));
    const run = await engine.run(args, given);
    const written = run.written.map(({ path, bytes }) => ({ path, base64: bytes.toString("base64") }));
    return ["application/json", JSON.stringify({ ...run, written })];
  }
  return ["text/html", await page({ ...(await bundle({ isServed: true, minify: false })), isServed: true })];
}

/**
 * Other pages in the developer's browser may send requests here too, under their own name or under one that leads to this machine;
 * they must not have the program run.
 */
function isOwn({ headers: { host, origin } }) {
  const own = ["127.0.0.1", "localhost"].map((name) => `${name}:${server.address().port}`);
  return own.includes(host) && (origin === undefined || own.some((name) => origin === `http://${name}`));
}

const server = createServer(async (request, response) => {
  try {
    if (!isOwn(request)) return response.writeHead(403).end();
    const [type, body] = await answer(request);
    response.writeHead(200, { "content-type": `${type}; charset=utf-8` }).end(body);
  } catch (error) {
    response.writeHead(500, { "content-type": "text/plain; charset=utf-8" }).end(String(error));
  }
});
server.listen(Number(process.argv[2] ?? 8123), "127.0.0.1", () =>
  console.log(`port ${server.address().port} of this machine`),
);
