/**
 * The pictures that the page saves, compared with those that are kept in tests/pictures, letter for letter.
 *
 * Pictures of the screen are not compared: another Chromium or another font draws each letter a little differently, and moves what stands
 * below it. A saved SVG has none of that. Its places come from the library's numbers and the page's own scales, its letters are text, and
 * the font is a name; so it is the same on every machine.
 *
 * Drawn anew, to be looked at one by one, with PLATECONFIG_PICTURES=1 node test.mjs saved
 */
import assert from "node:assert/strict";
import { mkdirSync, mkdtempSync, readFileSync, rmSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import { join, resolve } from "node:path";
import { after, before, test } from "node:test";
import type { Browser, Page } from "playwright-core";
import { besides, closePage, drop, openPage, samples, settled, showView, startBrowser } from "./browser";

const kept = resolve("tests/pictures");
const isDrawnAnew = process.env["PLATECONFIG_PICTURES"] !== undefined;

let browser: Browser;
before(async () => {
  browser = await startBrowser();
});
after(() => browser.close());

/** One element a line, so that a difference tells its place. */
function linesOf(svg: string): string {
  return `${svg.replaceAll("><", ">\n<")}\n`;
}

/** What the button saves. */
async function saved(page: Page): Promise<string> {
  const [download] = await Promise.all([page.waitForEvent("download"), page.click("text=保存 SVG")]);
  return linesOf(readFileSync(await download.path(), "utf8"));
}

async function assertIsKept(page: Page, name: string): Promise<void> {
  const drawn = await saved(page);
  const file = join(kept, `${name}.svg`);
  if (isDrawnAnew) {
    mkdirSync(kept, { recursive: true });
    writeFileSync(file, drawn);
  }
  assert.equal(drawn, readFileSync(file, "utf8"), `the picture is not the one of ${file}`);
}

async function opened(view: string, folder: string, files = besides) {
  const open = await openPage(browser);
  await drop(open.page, [join(samples, "config", folder), ...files]);
  await settled(open.page);
  await showView(open.page, view);
  await settled(open.page);
  return open;
}

async function chooseHole(page: Page, name: string): Promise<void> {
  await page.fill(".side-list input[type=search]", name);
  await page.click(".item >> nth=0");
  await page.waitForFunction((hole) => document.querySelector(".hole-detail h2")?.textContent === hole, name);
}

const configurations = [
  { folder: "标准", name: "standard" },
  { folder: "精密模", name: "precision" },
  { folder: "带错误", name: "mistakes" },
];

for (const { folder, name } of configurations) {
  test(`The rule map of ${folder} is drawn as it is kept`, async () => {
    const open = await opened("map", folder);
    await assertIsKept(open.page, `map-${name}`);
    await closePage(open);
  });

  test(`The sheets of ${folder} are drawn as they are kept`, async () => {
    const open = await opened("sheet", folder);
    const { page } = open;
    for (const [at, sheet] of ["layout-defaults", "exploded-view", "sub-sheet"].entries()) {
      await page.click(`.sheet-choice >> nth=0 >> input >> nth=${at}`);
      await settled(page);
      await assertIsKept(page, `sheet-${sheet}-${name}`);
    }
    await closePage(open);
  });
}

test("The steps of the map are drawn as they are kept: a hidden row, a gap, logarithmic axes", async () => {
  const open = await opened("map", "带错误");
  const { page } = open;
  for (const step of ["hidden-row", "second"]) {
    await page.click(".map-step-buttons button >> nth=1");
    await settled(page);
    await assertIsKept(page, `map-step-${step}`);
  }
  await page.check(".axis-choice input >> nth=0");
  await page.check(".axis-choice input >> nth=1");
  await settled(page);
  await assertIsKept(page, "map-logarithmic");
  await closePage(open);
});

/** Holes as they lie on their sample, and what the picture of each is called. */
const holes = {
  "A板-M12-1": "hole-through",
  "A板-吊环-1": "hole-perhaps-blind",
  "B板-司筒-1": "hole-from-below",
  "底板-三台阶": "hole-of-three-steps",
};

test("Holes are drawn as they are kept", async () => {
  const open = await opened("holes", "标准");
  for (const [hole, name] of Object.entries(holes)) {
    await chooseHole(open.page, hole);
    await assertIsKept(open.page, name);
  }
  await closePage(open);
});

test("A hole whose segments have no heights is drawn as it is kept", async () => {
  const folder = mkdtempSync(join(tmpdir(), "plateconfig-page-"));
  const given = readFileSync(join(samples, "holes.csv")).toString("latin1");
  const without = given.replace(",20,13,,36,40,35,90", ",20,,,36,40,35,90");
  assert.notEqual(without, given);
  writeFileSync(join(folder, "holes.csv"), Buffer.from(without, "latin1"));
  const open = await opened("holes", "标准", [join(folder, "holes.csv"), join(samples, "hole-types.csv")]);
  await chooseHole(open.page, "A板-M12-1");
  await assertIsKept(open.page, "hole-without-height");
  await closePage(open);
  rmSync(folder, { recursive: true });
});
