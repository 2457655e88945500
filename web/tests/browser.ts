/**
 * The page in a real browser, opened from the disk as users open it, with the network off. PLATECONFIG_PAGE names another page: a
 * file, or the address of the development server.
 */
import assert from "node:assert/strict";
import { mkdirSync, readFileSync } from "node:fs";
import { createRequire } from "node:module";
import { join, resolve } from "node:path";
import { pathToFileURL } from "node:url";
import { type Browser, type BrowserContext, chromium, type Page } from "playwright-core";

export const samples = resolve("../samples");
/** What is opened beside a sample configuration. */
export const besides = ["plates.csv", "holes.csv", "hole-types.csv"].map((name) => join(samples, name));
export const screenshots = resolve("../build/page/screenshots");
const given = process.env["PLATECONFIG_PAGE"] ?? "../build/page/plateconfig.html";
export const isServed = given.startsWith("http");
/** The page on the disk. */
export const pageFile = resolve(given);
const address = isServed ? given : pathToFileURL(pageFile).href;

/** The page's own text. */
export async function readPage(): Promise<string> {
  return isServed ? (await fetch(address)).text() : readFileSync(pageFile, "utf8");
}

export type Language = "zh" | "en";
export const languages: readonly Language[] = ["zh", "en"];

/** A page with everything that its console held and every request that it made. */
export interface Opened {
  readonly page: Page;
  readonly context: BrowserContext;
  readonly complaints: string[];
}

export function startBrowser(): Promise<Browser> {
  const executablePath = process.env["CHROMIUM"] ?? "/usr/bin/chromium";
  return chromium.launch({ executablePath, args: ["--no-sandbox", "--disable-dev-shm-usage"] });
}

const kLocales = { zh: "zh-CN", en: "en-US" } as const;

export async function openPage(browser: Browser, language: Language = "zh"): Promise<Opened> {
  const context = await browser.newContext({
    viewport: { width: 1400, height: 860 },
    locale: kLocales[language],
    reducedMotion: "reduce",
    acceptDownloads: true,
  });
  if (!isServed) await context.setOffline(true);
  const page = await context.newPage();
  page.setDefaultTimeout(20_000);
  const complaints: string[] = [];
  page.on("console", (message) => {
    if (message.type() === "error" || message.type() === "warning") complaints.push(message.text());
  });
  page.on("pageerror", (error) => complaints.push(String(error)));
  page.on("request", (request) => {
    if (!isServed && /^(https?|wss?):/.test(request.url())) complaints.push(`asks ${request.url()}`);
  });
  await page.goto(address);
  return { page, context, complaints };
}

/** At the end of each test: nothing was wrong that nobody saw. */
export async function closePage({ context, complaints }: Opened): Promise<void> {
  await context.close();
  assert.deepEqual(complaints, []);
}

/** Folders and files dropped as the browser gets them from a file manager. */
export async function drop(page: Page, paths: readonly string[], at = { x: 400, y: 400 }): Promise<void> {
  const session = await page.context().newCDPSession(page);
  const data = { items: [], files: paths.map((path) => resolve(path)), dragOperationsMask: 1 };
  const send = (type: "dragEnter" | "dragOver" | "drop") =>
    session.send("Input.dispatchDragEvent", { type, ...at, data });
  await send("dragEnter");
  // A drop counts only where the page has said that it takes one; a hand is slower than this test.
  while (!(await page.isVisible(".drop-zones"))) await send("dragOver");
  await send("dragOver");
  await send("drop");
  await session.detach();
}

/** The view of this tab, by its place in the row. */
export async function showView(page: Page, name: string): Promise<void> {
  await page.click(`#view-tab-${name}`);
  await page.waitForSelector(`.panel-${name}`);
}

/** Waits until nothing is under way: the check is done, tables are read. */
export async function settled(page: Page): Promise<void> {
  await page.waitForSelector(".counts").catch(async (error: Error) => {
    throw new Error(`${error.message}\nThe page says: ${await page.innerText("body")}`);
  });
  await page.waitForFunction(() => !/正在|Reading|Checking|Comparing/.test(document.body.innerText));
  await answered(page);
}

/** Longer than a view waits for typing to end before it asks. */
const quietMilliseconds = 500;

/** Waits until no run of the engine is under way, and none begins for a while. */
async function answered(page: Page): Promise<void> {
  await page.waitForFunction((quiet) => {
    const place = document.getElementById("page")!;
    const now = performance.now();
    if (place.dataset["running"] !== "0") place.dataset["busyAt"] = String(now);
    place.dataset["busyAt"] ??= String(now);
    return now - Number(place.dataset["busyAt"]) > quiet;
  }, quietMilliseconds);
  await page.evaluate(() => delete document.getElementById("page")!.dataset["busyAt"]);
}

export async function screenshot(page: Page, name: string): Promise<void> {
  mkdirSync(screenshots, { recursive: true });
  await page.screenshot({ path: join(screenshots, `${name}.png`) });
}

const axe = readFileSync(createRequire(resolve("package.json")).resolve("axe-core/axe.min.js"), "utf8");

interface Violation {
  readonly id: string;
  readonly help: string;
  readonly nodes: readonly { readonly html: string; readonly failureSummary?: string }[];
}

/** The rules of WCAG 2.2 AA that a program can check. */
export async function assertAccessible(page: Page, where: string): Promise<void> {
  await page.evaluate(axe);
  const violations = await page.evaluate(async () => {
    const tags = ["wcag2a", "wcag2aa", "wcag21a", "wcag21aa", "wcag22aa", "best-practice"];
    const { axe } = globalThis as unknown as {
      axe: { run(root: Document, options: object): Promise<{ violations: Violation[] }> };
    };
    return (await axe.run(document, { runOnly: tags })).violations;
  });
  const told = violations.map(
    ({ id, help, nodes }) => `${id}: ${help}: ${nodes.map(({ html }) => html).join(" ")}`,
  );
  assert.deepEqual(told, [], where);
}
