/** What measure.mjs prints. Times are the middle of several tries. */
import { spawnSync } from "node:child_process";
import { existsSync, mkdtempSync, readFileSync, rmSync, writeFileSync } from "node:fs";
import { cpus, loadavg, tmpdir } from "node:os";
import { join, resolve } from "node:path";
import { pathToFileURL } from "node:url";
import { gzipSync } from "node:zlib";
import type { Browser, Page } from "playwright-core";
import type { InputFile } from "../src/engine/engine";
import { besides, drop, openPage, pageFile, samples, settled, showView, startBrowser } from "./browser";
import { filesBelow } from "./cases";
import { nativeProgram, runNative, writeBelow } from "./native_engine";
import { runModule } from "./wasm_engine";

const kTries = 5;
const kPlates = 10_000;

const sorted = (values: readonly number[]) => [...values].sort((a, b) => a - b);
const middle = (values: readonly number[]) => sorted(values)[Math.floor(values.length / 2)] ?? NaN;
const ms = (value: number) => `${value.toFixed(value < 100 ? 1 : 0)} ms`;
const megabytes = (bytes: number) => `${(bytes / 2 ** 20).toFixed(1)} MB`;

function tell(what: string, figure: string): void {
  console.log(`| ${what} | ${figure} |`);
}

async function timed(work: () => Promise<unknown>): Promise<number> {
  const begin = performance.now();
  await work();
  return performance.now() - begin;
}

async function middleOf(work: () => Promise<number>): Promise<number> {
  const values: number[] = [];
  for (let i = 0; i < kTries; ++i) values.push(await work());
  return middle(values);
}

// ---- The file ----

function measureFile(): void {
  const bytes = readFileSync(pageFile);
  tell("the page's file", `${bytes.length.toLocaleString("en")} bytes, ${megabytes(bytes.length)}`);
  tell("the same, compressed once more", megabytes(gzipSync(bytes).length));
}

// ---- From a double click to the first finding ----

/** Until an element of the page is there, in milliseconds from the navigation on, as the page itself sees it. */
async function timeUntil(browser: Browser, address: string, selector: string): Promise<number> {
  const context = await browser.newContext({ viewport: { width: 1400, height: 860 }, locale: "zh-CN" });
  const page = await context.newPage();
  await page.addInitScript((wanted) => {
    const look = () => {
      if (document.querySelector(wanted))
        document.documentElement.dataset["seen"] = String(performance.now());
      else requestAnimationFrame(look);
    };
    look();
  }, selector);
  await page.goto(address);
  await page.waitForSelector("html[data-seen]", { state: "attached" });
  const seen = Number(await page.getAttribute("html", "data-seen"));
  await context.close();
  return seen;
}

/** The page with a sample configuration inside, as `report` writes it. */
async function reportOf(configuration: string, folder: string): Promise<string> {
  const file = join(folder, `${configuration}.html`);
  const [plates, holes, types] = besides as [string, string, string];
  const inputs = ["--plates", plates, "--holes", holes, "--types", types];
  const config = ["--config", join(samples, "config", configuration)];
  const run = await runNative(["report", "--page", pageFile, ...config, ...inputs, "-o", file], folder);
  if (run.code === 2) throw new Error(run.err.toString());
  return pathToFileURL(file).href;
}

async function measureOpening(folder: string): Promise<void> {
  const browser = await startBrowser();
  const empty = () => timeUntil(browser, pathToFileURL(pageFile).href, ".start-drop");
  tell("opened, until the page says what to do", ms(await middleOf(empty)));
  for (const name of ["标准", "精密模"]) {
    const address = await reportOf(name, folder);
    const first = () => timeUntil(browser, address, ".finding");
    tell(`opened with ${name} inside, until the first finding`, ms(await middleOf(first)));
  }
  await browser.close();
}

// ---- Ten thousand plates ----

/** The plates of the sample again and again, each with a name of its own. */
function manyPlates(): Buffer {
  const [header, ...rows] = readFileSync(join(samples, "plates.csv"))
    .toString("latin1")
    .trimEnd()
    .split("\r\n");
  const plates = Array.from({ length: kPlates }, (_, at) => {
    const row = rows[at % rows.length] ?? "";
    return row.replace(",", `-${at},`);
  });
  return Buffer.from([header, ...plates, ""].join("\r\n"), "latin1");
}

async function inputsOfPlates(): Promise<readonly InputFile[]> {
  const config = await filesBelow(join(samples, "config", "标准"), "config");
  return [...config, { path: "plates.csv", bytes: new Uint8Array(manyPlates()) }];
}

/** The greatest heap that an instance of the module had while `work` ran. */
async function heapOf(work: () => Promise<unknown>): Promise<number> {
  const memories: WebAssembly.Memory[] = [];
  const { instantiate } = WebAssembly;
  const watching = async (module: WebAssembly.Module, imports: WebAssembly.Imports) => {
    const instance = await instantiate(module, imports);
    memories.push(...Object.values(instance.exports).filter((each) => each instanceof WebAssembly.Memory));
    return instance;
  };
  WebAssembly.instantiate = watching as typeof instantiate;
  await work().finally(() => (WebAssembly.instantiate = instantiate));
  return Math.max(...memories.map(({ buffer }) => buffer.byteLength));
}

const kRelease = resolve("../build/release/tools/plateconfig/plateconfig");
/** What the engine is compared with: a debug build is several times slower. */
const compared = process.env["PLATECONFIG_COMPARED"] ?? (existsSync(kRelease) ? kRelease : nativeProgram);

function runCompared(args: readonly string[], folder: string): void {
  const { status, error } = spawnSync(compared, [...args], { cwd: folder, env: {}, maxBuffer: 2 ** 30 });
  if (error) throw error;
  if (status === 2) throw new Error(`${compared} ${args.join(" ")} ended with 2`);
}

async function measurePlates(folder: string): Promise<void> {
  const files = await inputsOfPlates();
  await writeBelow(folder, files);
  const runs = {
    process: ["process", "--config", "config", "--format", "json", "plates.csv"],
    check: ["check", "--config", "config", "--plates", "plates.csv", "--format", "json"],
  };
  for (const [verb, args] of Object.entries(runs)) {
    const inPage = await middleOf(() => timed(() => runModule(args, files)));
    const native = await middleOf(() => timed(async () => runCompared(args, folder)));
    const heap = await heapOf(() => runModule(args, files));
    const ratio = (inPage / native).toFixed(1);
    tell(
      `${verb}, ${kPlates.toLocaleString("en")} plates: engine / native`,
      `${ms(inPage)} / ${ms(native)} = ${ratio}; the engine's heap ${megabytes(heap)}`,
    );
  }
  const check = ["check", "--config", "config", "--format", "json"];
  const heap = await heapOf(() => runModule(check, files));
  tell("check, the configuration alone: the engine's heap", megabytes(heap));
}

// ---- The page's memory, and scrolling ----

/** What scripts hold, once what nobody holds is gone. */
async function scriptMemory(page: Page): Promise<number> {
  const session = await page.context().newCDPSession(page);
  await session.send("HeapProfiler.collectGarbage");
  await session.send("Performance.enable");
  const { metrics } = await session.send("Performance.getMetrics");
  await session.detach();
  return metrics.find(({ name }) => name === "JSHeapUsedSize")?.value ?? NaN;
}

const kFrames = 240;

/** How long each frame took while a grid is scrolled a little with each. */
function frames(page: Page, right: number, down: number): Promise<number[]> {
  return page.$eval(
    ".grid",
    (grid, { right, down, count }) =>
      new Promise<number[]>((done) => {
        const times: number[] = [];
        let last = performance.now();
        const frame = (now: number) => {
          times.push(now - last);
          last = now;
          grid.scrollBy(right, down);
          if (times.length < count) requestAnimationFrame(frame);
          else done(times.slice(2));
        };
        requestAnimationFrame(frame);
      }),
    { right, down, count: kFrames },
  );
}

async function measureScrolling(page: Page, what: string, right: number, down: number): Promise<void> {
  await page.$eval(".grid", (grid) => grid.scrollTo(0, 0));
  const times = sorted(await frames(page, right, down));
  const late = times.filter((time) => time > 34).length;
  tell(what, `${ms(middle(times))}, the longest ${ms(times.at(-1) ?? NaN)}; ${late} of ${times.length} late`);
}

async function measurePage(folder: string): Promise<void> {
  const table = Array.from({ length: 500 }, (_, row) =>
    Array.from({ length: 70 }, (_, at) => `${row}_${at}`),
  );
  writeFileSync(join(folder, "config", "big.csv"), table.map((row) => `${row.join(",")}\r\n`).join(""));
  const browser = await startBrowser();
  const { page } = await openPage(browser);
  tell("scripts' memory, nothing open", megabytes(await scriptMemory(page)));
  const dropped = await timed(async () => {
    await drop(page, [join(folder, "config"), join(folder, "plates.csv")]);
    await page.waitForSelector(".counts");
  });
  tell(`dropped with ${kPlates.toLocaleString("en")} plates, until the counts stand there`, ms(dropped));
  await settled(page);
  tell("scripts' memory with it", megabytes(await scriptMemory(page)));
  await showView(page, "tables");
  await page.click('.side-item:has-text("big.csv")');
  await settled(page);
  await measureScrolling(page, "a frame, 500 x 70 cells scrolled down by 48 pixels each", 0, 48);
  await measureScrolling(page, "a frame, scrolled to the right by 24 pixels each", 24, 0);
  await browser.close();
}

const folder = mkdtempSync(join(tmpdir(), "plateconfig-measure-"));
try {
  console.log(`compared with ${compared}`);
  console.log(`${cpus().length} processors, load ${loadavg()[0]?.toFixed(1)}; node ${process.version}\n`);
  console.log("| what | measured |\n|---|---|");
  measureFile();
  await measureOpening(folder);
  await measurePlates(folder);
  await measurePage(folder);
} finally {
  rmSync(folder, { recursive: true, force: true });
}
