/** The development server runs the native program for the page alone, not for whatever else is open in the same browser. */
import assert from "node:assert/strict";
import { spawn } from "node:child_process";
import { once } from "node:events";
import { request } from "node:http";
import { after, before, test } from "node:test";

let port = 0;
const server = spawn(process.execPath, ["dev.mjs", "0"], { stdio: ["ignore", "pipe", "inherit"] });
before(async () => {
  const [said] = (await once(server.stdout, "data")) as [Buffer];
  port = Number(/\d+/.exec(said.toString())?.[0]);
});
after(() => server.kill());

/** Asks for `--version` with these headers; gives the status and the answer. */
function ask(headers: Record<string, string>): Promise<readonly [number | undefined, string]> {
  return new Promise((done, failed) => {
    const asked = request({ port, host: "127.0.0.1", method: "POST", path: "/run", headers }, (response) => {
      const pieces: Buffer[] = [];
      response.on("data", (piece: Buffer) => pieces.push(piece));
      response.on("end", () => done([response.statusCode, Buffer.concat(pieces).toString()]));
    });
    asked.on("error", failed);
    asked.end(JSON.stringify({ args: ["--version"], files: [] }));
  });
}

test("The page's own requests are answered", async () => {
  const [status, answer] = await ask({ origin: `http://127.0.0.1:${port}` });
  assert.equal(status, 200);
  assert.equal((JSON.parse(answer) as { code: number }).code, 0);
});

test("Another page's requests are refused, and so are those under another name of this machine", async () => {
  assert.deepEqual(await ask({ origin: "http://elsewhere.example" }), [403, ""]);
  assert.deepEqual(await ask({ origin: "null" }), [403, ""]);
  assert.deepEqual(await ask({ host: `elsewhere.example:${port}` }), [403, ""]);
});
