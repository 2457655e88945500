/** The shipped engine in a browser: opened from a file, without a network. */
import assert from "node:assert/strict";
import { readdirSync, readFileSync } from "node:fs";
import { mkdtemp, readFile, rm, writeFile } from "node:fs/promises";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { after, before, test } from "node:test";
import { pathToFileURL } from "node:url";
import { type Browser, type Page, chromium } from "playwright-core";
import { bundle, page, parts } from "../page.mjs";
import type { Engine, InputFile } from "../src/engine/engine";
import { kMostBytes } from "../src/engine/limits";
import { engineWords } from "../src/words/engine";
import { sampleCases } from "./cases";
import { NativeEngine } from "./native_engine";

/** What the browser's page has, for the functions that run there. */
declare const engine: Engine;

const engineFolder = process.env["PLATECONFIG_ENGINE"] ?? "../build/web/web/engine";

let folder = "";
let address = "";
let browser: Browser;

before(async () => {
  folder = await mkdtemp(join(tmpdir(), "plateconfig-engine-"));
  const file = join(folder, "engine.html");
  await writeFile(
    file,
    await page({ ...(await bundle({ entry: "tests/engine_entry.ts" })), ...(await parts(engineFolder)) }),
  );
  address = pathToFileURL(file).href;
  browser = await chromium.launch({
    executablePath: process.env["CHROMIUM"] ?? "/usr/bin/chromium",
    args: ["--no-sandbox"],
  });
});
after(async () => {
  await browser?.close();
  await rm(folder, { recursive: true, force: true });
});

/** Opens the page, does something there, and makes sure that nothing was asked of any network and nothing was complained of. */
async function onPage(what: (opened: Page) => Promise<void>, prepare?: () => void): Promise<void> {
  const context = await browser.newContext({ offline: true });
  try {
    const opened = await context.newPage();
    const complaints: string[] = [];
    opened.on("console", (message) => message.type() === "error" && complaints.push(message.text()));
    opened.on("pageerror", (error) => complaints.push(String(error)));
    opened.on(
      "request",
      (request) => /^(file|blob|data):/.test(request.url()) || complaints.push(request.url()),
    );
    if (prepare) await opened.addInitScript(prepare);
    await opened.goto(address);
    await opened.waitForFunction(() => "engine" in globalThis); // The scripts are unpacked behind the page's own end.
    await what(opened);
    assert.deepEqual(complaints, []);
  } finally {
    await context.close();
  }
}

interface Sent {
  readonly args: readonly string[];
  readonly files: readonly { readonly path: string; readonly bytes: number[] }[];
}

/** Bytes travel to the browser as lists of numbers. */
function sent(args: readonly string[], files: readonly InputFile[]): Sent {
  return { args, files: files.map(({ path, bytes }) => ({ path, bytes: [...bytes] })) };
}

function runInPage(opened: Page, order: Sent) {
  return opened.evaluate(({ args, files }) => {
    const given = files.map(({ path, bytes }) => ({ path, bytes: new Uint8Array(bytes) }));
    return engine.run(args, given).then((run) => ({ code: run.code, out: run.out, err: run.err }));
  }, order);
}

async function aCheck() {
  const check = (await sampleCases()).find(
    ({ args }) => args[0] === "check" && args.includes("samples/config/带错误") && args.includes("json"),
  );
  assert.ok(check);
  return check;
}

test("A check in the browser says what the native program says", () =>
  onPage(async (opened) => {
    const { args, files } = await aCheck();
    const { code, out, err } = await new NativeEngine().run(args, files);
    assert.equal(code, 1);
    assert.deepEqual(await runInPage(opened, sent(args, files)), { code, out, err });
  }));

test("The first answer comes with the page just opened, and the next one after it", () =>
  onPage(async (opened) => {
    const { args, files } = await aCheck();
    const { code, out } = await runInPage(opened, sent(args, files));
    assert.equal(code, 1);
    assert.ok((JSON.parse(out) as { findings: unknown[] }).findings.length > 60);
    const cold = await opened.evaluate(() => Math.round(performance.now()));
    const began = Date.now();
    await runInPage(opened, sent(args, files));
    console.log(
      `first answer ${cold} ms after the page was opened, the next one ${Date.now() - began} ms after it was asked for`,
    );
  }));

test("A file that a run writes comes back, and nothing of it is left for the next run", () =>
  onPage(async (opened) => {
    const runs = await opened.evaluate(async () => {
      const args = ["template", "process-rules", "-o", "rules.csv"];
      const first = await engine.run(args, []);
      const second = await engine.run(args, []);
      return [first, second].map(({ code, written }) => [
        code,
        written.map(({ path, bytes }) => [path, bytes.length > 0]),
      ]);
    });
    assert.deepEqual(runs, [
      [0, [["rules.csv", true]]],
      [0, [["rules.csv", true]]],
    ]);
  }));

test("Twenty runs at once each get their own answer", () =>
  onPage(async (opened) => {
    const codes = await opened.evaluate(async () => {
      const names = Array.from({ length: 20 }, (_, i) => `nowhere-${i}`);
      const runs = await Promise.all(names.map((name) => engine.run(["check", "--config", name], [])));
      return runs.map(({ code, err }, i) => code === 2 && err.includes(`nowhere-${i}`));
    });
    assert.deepEqual(codes, Array(20).fill(true));
  }));

const kManyPlates = 2_000;

/** `explain` on many plates of the samples' rules: seconds of work. */
function longRun(): { readonly args: readonly string[]; readonly files: readonly InputFile[] } {
  const config = "../samples/config/标准";
  const tables = readdirSync(config).map((name) => ({
    path: `config/${name}`,
    bytes: new Uint8Array(readFileSync(join(config, name))),
  }));
  const rows = Array.from({ length: kManyPlates }, (_, i) => `P${i},450,400,90,127.2,12,`);
  const plates = new TextEncoder().encode(["名称,长度,宽度,厚度,重量,体颜色,面颜色", ...rows, ""].join("\n"));
  const args = ["explain", "--config", "config", "--format", "json", "--rows", "0", "plates.csv"];
  return { args, files: [...tables, { path: "plates.csv", bytes: plates }] };
}

test("A run that is cancelled ends with AbortError, and the next one is none the worse", () =>
  onPage(async (opened) => {
    const { args, files } = longRun();
    const began = Date.now();
    const whole = await runInPage(opened, sent(args, files));
    const needed = Date.now() - began;
    assert.equal((JSON.parse(whole.out) as unknown[]).length, kManyPlates);
    const answer = await opened.evaluate(
      async ({ args, files }) => {
        const control = new AbortController();
        const given = files.map(({ path, bytes }) => ({ path, bytes: new Uint8Array(bytes) }));
        const long = engine.run(args, given, control.signal);
        // By then the worker has its order.
        setTimeout(() => control.abort(), 200);
        const how = await long.then(
          () => "ended",
          (error: Error) => error.name,
        );
        const before = await engine
          .run(["--version"], [], AbortSignal.abort())
          .catch((error: Error) => error.name);
        return [how, before, (await engine.run(["--version"], [])).code];
      },
      sent(args, files),
    );
    assert.ok(needed > 1000, `the run that is cancelled takes but ${needed} ms`);
    assert.deepEqual(answer, ["AbortError", "AbortError", 0]);
  }));

test("More than the page has room for is refused in both languages", () =>
  onPage(async (opened) => {
    const words = await opened.evaluate((length) => {
      const bytes = { length } as Uint8Array;
      return engine.run(["--version"], [{ path: "huge.csv", bytes }]).then(
        () => undefined,
        (error: { words: unknown }) => error.words,
      );
    }, kMostBytes + 1);
    assert.deepEqual(words, engineWords.tooLarge);
  }));

test("A worker that fails before anybody needs it costs nobody a run", () =>
  onPage(
    async (opened) => {
      await opened.waitForFunction(() => (globalThis as unknown as { failed: number }).failed === 1);
      assert.equal(await opened.evaluate(() => engine.run(["--version"], []).then(({ code }) => code)), 0);
    },
    () => {
      const Real = Worker;
      const state = Object.assign(globalThis, { failed: 0 });
      globalThis.Worker = class extends Real {
        constructor(script: string | URL) {
          const isFirst = state.failed === 0;
          super(isFirst ? URL.createObjectURL(new Blob(["throw new Error('no memory')"])) : script);
          if (isFirst) this.addEventListener("error", () => setTimeout(() => state.failed++));
        }
      };
    },
  ));

/** What a run says that fails; undefined when it does not. */
function wordsOfFailure(opened: Page): Promise<unknown> {
  return opened.evaluate(() =>
    engine.run(["--version"], []).then(
      () => undefined,
      (error: { words: unknown }) => error.words,
    ),
  );
}

test("A run whose worker fails ends with words in both languages", () =>
  onPage(
    async (opened) => {
      const words = await wordsOfFailure(opened);
      assert.deepEqual(words, engineWords.broken);
    },
    () => {
      const Real = Worker;
      globalThis.Worker = class extends Real {
        constructor() {
          super(URL.createObjectURL(new Blob(["throw new Error('no memory')"])));
        }
      };
    },
  ));

test("A page whose file was damaged on its way says so", async () => {
  const file = join(folder, "damaged.html");
  const whole = await readFile(join(folder, "engine.html"), "utf8");
  const place = whole.indexOf('id="plateconfig-page">') + 2000;
  await writeFile(file, whole.slice(0, place) + "AAAA" + whole.slice(place + 4));
  const context = await browser.newContext();
  try {
    const opened = await context.newPage();
    await opened.goto(pathToFileURL(file).href);
    await opened.waitForSelector("p");
    const told = await opened.innerText("body");
    assert.ok(told.includes(engineWords.pageDamaged.zh) && told.includes(engineWords.pageDamaged.en), told);
  } finally {
    await context.close();
  }
});

test("Where WebAssembly is switched off, each run says so in both languages", () =>
  onPage(
    async (opened) => {
      const words = await wordsOfFailure(opened);
      assert.deepEqual(words, engineWords.webAssemblyOff);
    },
    () => void Reflect.deleteProperty(globalThis, "WebAssembly"),
  ));

test("The page's own policy forbids every request", async () => {
  const context = await browser.newContext();
  try {
    const opened = await context.newPage();
    await opened.goto(address);
    const ways = await opened.evaluate(async () => {
      const refused = (promise: Promise<unknown>) =>
        promise.then(
          () => false,
          () => true,
        );
      const image = new Promise((done, failed) => {
        const made = new Image();
        made.onload = done;
        made.onerror = failed;
        made.src = "file:///usr/share/pixmaps/debian-logo.png";
      });
      const worker = new Promise((_, failed) => {
        new Worker("data:text/javascript,postMessage(1)").onerror = failed;
      });
      // Outside of what the test's own tool evaluates, to which it allows everything.
      const evaluated = new Promise((done, failed) => {
        const evaluate = () => Function("return 1")();
        setTimeout(() => Promise.resolve().then(evaluate).then(done, failed));
      });
      return Promise.all([refused(fetch("data:,x")), refused(image), refused(worker), refused(evaluated)]);
    });
    assert.deepEqual(ways, [true, true, true, true]);
  } finally {
    await context.close();
  }
});

test("The built page is one file of at most 1.2 MB that names no other", async () => {
  const html = await readFile(process.env["PLATECONFIG_PAGE"] ?? "../build/page/plateconfig.html", "utf8");
  console.log(`plateconfig.html has ${Buffer.byteLength(html)} bytes`);
  assert.ok(Buffer.byteLength(html) <= 1.2e6);
  assert.doesNotMatch(html.replace(/<script[^>]*>[^]*?<\/script>/g, ""), /\b(src|href)="(?!data:,)/);
});
