/** What is opened stays open and is used, and what can not be read or used is told in the reader's words. */
import assert from "node:assert/strict";
import { cpSync, mkdtempSync, readFileSync, renameSync, rmSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { after, afterEach, before, beforeEach, test } from "node:test";
import type { Browser, Page } from "playwright-core";
import {
  assertAccessible,
  closePage,
  drop,
  type Opened,
  openPage,
  samples,
  screenshot,
  settled,
  showView,
  startBrowser,
} from "./browser";

let browser: Browser;
let opened: Opened;
let page: Page;
let folder = "";

before(async () => {
  browser = await startBrowser();
});
after(() => browser.close());

beforeEach(async () => {
  folder = mkdtempSync(join(tmpdir(), "plateconfig-opening-"));
  opened = await openPage(browser);
  page = opened.page;
});
afterEach(async () => {
  await closePage(opened);
  rmSync(folder, { recursive: true, force: true });
});

const kPlates = join(samples, "plates.csv");

/** A copy of the sample 标准 that a test may change. */
function copied(): string {
  const copy = join(folder, "标准");
  cpSync(join(samples, "config", "标准"), copy, { recursive: true });
  return copy;
}

/** The same, with some of its roles left out of tables.json. */
function withoutRoles(...roles: string[]): string {
  const copy = copied();
  const path = join(copy, "tables.json");
  const all = Object.entries(JSON.parse(readFileSync(path, "utf8")) as Record<string, string>);
  writeFileSync(path, JSON.stringify(Object.fromEntries(all.filter(([role]) => !roles.includes(role)))));
  return copy;
}

function written(name: string, text: string): string {
  const path = join(folder, name);
  writeFileSync(path, text);
  return path;
}

async function open(...paths: string[]): Promise<void> {
  await drop(page, paths);
  await settled(page);
}

async function counted(text: string): Promise<void> {
  await page.waitForFunction((part) => document.querySelector(".counts")?.textContent?.includes(part), text);
}

/** What each file is used as that is no table. */
async function uses(): Promise<readonly (readonly [string, string])[]> {
  await page.click("text=文件 ▾");
  const used = await page.$$eval(".files tbody tr", (rows) =>
    rows.map((row) => [row.querySelector("th")!.textContent!, row.querySelector("select")!.value] as const),
  );
  await page.click("text=文件 ▾");
  return used.filter(([, use]) => use !== "table");
}

test("The roles that were found stay when the tables are read again, until the disk has a tables.json", async () => {
  const copy = copied();
  rmSync(join(copy, "tables.json"));
  await open(copy);
  await page.click(".manifest .main-button");
  await counted("0 个错误");
  await settled(page);
  const found = await page.innerText(".counts");
  await page.keyboard.press("F5");
  await settled(page);
  assert.equal(await page.innerText(".counts"), found);
  await page.waitForSelector("text=保存 tables.json");
  writeFileSync(join(copy, "tables.json"), '{"process-rules": "没有.csv"}');
  await page.keyboard.press("F5");
  await counted("1 个错误");
  assert.equal(await page.isVisible("text=保存 tables.json"), false);
});

test("Plates that were opened first stay when a folder is opened, and when another one is", async () => {
  await drop(page, [kPlates]);
  await page.waitForSelector(".folder-name");
  await open(join(samples, "config", "标准"));
  await counted("1 个警告");
  assert.equal(await page.innerText(".folder-name"), "标准");
  await open(join(samples, "config", "精密模"));
  assert.equal(await page.innerText(".folder-name"), "精密模");
  assert.deepEqual(await uses(), [["plates.csv", "plates"]]);
});

test("A picture is nothing to read, and a workbook has to be saved as CSV", async () => {
  await drop(page, [written("照片.png", "")]);
  assert.match(await page.innerText(".notice"), /没有可读的表格/);
  await page.click(".notice button");
  await drop(page, [written("规则.xlsx", "PK")]);
  assert.match(await page.innerText(".notice"), /在 Excel 中另存为“CSV（逗号分隔）”/);
  assert.equal(await page.isVisible(".start"), true);
});

test("A file that comes to an open folder and is used for nothing is named", async () => {
  await open(copied());
  await drop(page, [
    written("板.csv", "a,b,c\r\n1,2,3\r\n"),
    written("板.xlsx", "PK"),
    written("照片.png", ""),
  ]);
  const notice = await page.innerText(".notice");
  assert.match(notice, /“板\.csv”不像板表/);
  assert.match(notice, /“板\.xlsx”是 Excel 工作簿/);
  assert.match(notice, /“照片\.png”不是表格/);
  await screenshot(page, "unused-file-zh");
  await drop(page, [kPlates]);
  await counted("1 个警告");
  assert.equal(await page.isVisible(".notice"), false);
});

test("A table of the folder may come by itself, without a word", async () => {
  await open(copied());
  cpSync(join(samples, "config", "精密模", "列宽.csv"), join(folder, "列宽.csv"));
  await open(join(folder, "列宽.csv"));
  assert.equal(await page.isVisible(".notice"), false);
});

test("A folder that is renamed is missed by its name, and one that may not be read is told of", async () => {
  const copy = copied();
  await open(copy);
  renameSync(copy, join(folder, "改名"));
  await page.keyboard.press("F5");
  assert.match(await page.innerText(".notice"), /找不到“标准”：它已被移动、改名或删除/);
  await settled(page);
  await page.evaluate(() => {
    FileSystemDirectoryHandle.prototype.values = () => {
      throw new DOMException("no", "NotAllowedError");
    };
  });
  await page.keyboard.press("F5");
  await page.waitForSelector('.notice:has-text("没有得到读取“标准”的许可")');
});

test("Without tables.json every view that needs it finds the roles", async () => {
  const copy = copied();
  rmSync(join(copy, "tables.json"));
  await open(copy);
  for (const view of ["map", "plate", "sheet"]) {
    await showView(page, view);
    await page.waitForSelector('.manifest:has-text("还没有 tables.json")');
    assert.doesNotMatch(await page.innerText(`.panel-${view}`), /plateconfig init|没有发现空缺/);
    await assertAccessible(page, `no manifest, ${view}`);
  }
  await screenshot(page, "no-manifest-sheet-zh");
  await page.click(".manifest .main-button");
  await page.waitForSelector(".panel-findings >> text=保存 tables.json");
  await settled(page);
  await showView(page, "map");
  await page.waitForSelector(".rule-map svg");
});

test("Without the rule table the views that ask it say so, with what the check says of it", async () => {
  const copy = copied();
  rmSync(join(copy, "工艺规则.csv"));
  await open(copy, kPlates);
  for (const view of ["map", "plate"]) {
    await showView(page, view);
    await page.waitForSelector(".manifest");
    assert.match(await page.innerText(".manifest"), /没有读出任何规则行[\s\S]*此表不存在/);
    assert.doesNotMatch(await page.innerText(`.panel-${view}`), /没有发现空缺|共 0 块|请先改正/);
  }
  await screenshot(page, "no-rules-plate-zh");
  await page.click(".manifest .main-button");
  await page.waitForSelector(".panel-findings .finding");
});

test("A role that tables.json leaves out is named, and found by the columns", async () => {
  const copy = withoutRoles("process-rules", "process-settings");
  await open(copy);
  await showView(page, "map");
  const missing = () => page.innerText(".manifest h2");
  assert.match(await missing(), /哪个文件是“工艺规则”（process-rules），/);
  await showView(page, "plate");
  assert.match(await missing(), /“工艺规则”（process-rules）和“工艺设置”（process-settings），/);
  await page.click(".manifest .main-button");
  await page.waitForSelector(".panel-findings >> text=保存 tables.json");
  await settled(page);
  await page.keyboard.press("F5");
  await settled(page);
  await showView(page, "plate");
  await page.waitForSelector(".try-plate .process-text");
});

test("A tables.json that can not be read stands in the way of the sheet too", async () => {
  const copy = copied();
  writeFileSync(join(copy, "tables.json"), '{"process-rules": "规则.csv" "layers": 1}');
  await open(copy);
  await showView(page, "sheet");
  assert.match(await page.innerText(".manifest"), /tables\.json 有错误，读不出各表的用途/);
  await page.waitForSelector(".manifest .card-error");
});

test("A check that was stopped says so in the reader's language, and can be done again", async () => {
  const [header = "", ...rows] = readFileSync(kPlates).toString("latin1").trimEnd().split("\r\n");
  const many = Array.from({ length: 1000 }, () => rows).flat();
  writeFileSync(join(folder, "plates.csv"), Buffer.from([header, ...many, ""].join("\r\n"), "latin1"));
  await drop(page, [join(samples, "config", "标准"), join(folder, "plates.csv")]);
  await page.click(".header .under-way button");
  const failure = page.locator(".failure");
  assert.match(await failure.innerText(), /^已取消，没有结果。\s+重新运行$/);
  assert.equal(await page.isVisible('.header button:has-text("重新检查")'), true);
  await failure.locator("button").click();
  await page.waitForSelector(".header .under-way");
  await page.click(".header .under-way button");
  await page.click('.header button:has-text("重新检查")');
  await page.waitForSelector(".header .under-way");
});

test("Plates that lie in the folder itself are listed once among the tables", async () => {
  const copy = copied();
  cpSync(kPlates, join(copy, "plates.csv"));
  await open(copy);
  await showView(page, "tables");
  const names = await page.$$eval(".side .side-name", (all) => all.map((each) => each.textContent));
  assert.deepEqual(
    names.filter((name) => name === "plates.csv"),
    ["plates.csv"],
  );
  assert.equal(new Set(names).size, names.length);
});

test("A second folder leads to what differs, stands in the header, and can be left again", async () => {
  await open(copied());
  await drop(page, [join(samples, "config", "精密模")], { x: 1100, y: 400 });
  await page.waitForSelector(".panel-comparison .difference, .panel-comparison .tabs-inner");
  await settled(page);
  assert.match(await page.innerText(".compared-with"), /对比：精密模/);
  await showView(page, "sheet");
  await page.click(".compared-with >> text=对比");
  await page.waitForSelector(".panel-comparison");
  await screenshot(page, "compared-header-zh");
  await page.click(".compared-with [aria-label='结束对比']");
  await page.waitForSelector(".panel-comparison .open-second");
  assert.equal(await page.isVisible(".compared-with"), false);
  assert.equal(await page.innerText(".folder-name"), "标准");
});

test("What the check did not list is told, and listed at a click", async () => {
  await open(copied());
  assert.match(await page.innerText(".checked"), /另有 \d+ 处空缺未列出/);
  const count = async () => Number(/\d+/.exec(await page.innerText(".findings-list [role=status]"))![0]);
  const before = await count();
  await page.click(".checked button");
  await page.waitForSelector(".checked button", { state: "detached" });
  await settled(page);
  assert.ok((await count()) > before);
  assert.doesNotMatch(await page.innerText(".checked"), /未列出/);
});

test("Where no rule was read the findings say what that means, though none of them is an error", async () => {
  const copy = copied();
  const rules = join(copy, "工艺规则.csv");
  writeFileSync(rules, new TextDecoder("gbk").decode(readFileSync(rules)));
  await open(copy);
  assert.match(await page.innerText(".manifest"), /没有读出任何规则行，所有的板都得不到工艺文本/);
  writeFileSync(join(copy, "tables.json"), "{}");
  await page.keyboard.press("F5");
  await page.waitForSelector('.manifest:has-text("tables.json 没有说明哪个文件是“工艺规则”")');
});

test("A folder that can not be compared is named by its own name", async () => {
  const copy = join(folder, "新的");
  cpSync(join(samples, "config", "标准"), copy, { recursive: true });
  rmSync(join(copy, "列宽.csv"));
  await open(join(samples, "config", "标准"));
  await drop(page, [copy], { x: 1100, y: 400 });
  const failure = await page.innerText(".panel-comparison .failure");
  assert.match(failure, /无法对比。请先改正：\s+新的\/列宽\.csv: 错误: 此表不存在/);
});

test("In a small or zoomed window the list of plates lies over nothing, and nothing is cut off", async () => {
  await open(copied(), kPlates);
  await showView(page, "plate");
  await settled(page);
  for (const [width, height] of [
    [683, 384],
    [800, 600],
  ] as const) {
    await page.setViewportSize({ width, height });
    const box = async (selector: string) => (await page.locator(selector).boundingBox())!;
    const [list, form, table] = [
      await box(".try-plate .item-list"),
      await box(".plate-form"),
      await box(".processes"),
    ];
    assert.ok(list.y + list.height <= form.y, `list over form at ${width}`);
    assert.ok(table.x + table.width <= width, `table ends at ${table.x + table.width} of ${width}`);
    assert.ok((await box(".view")).height >= 450, `height at ${width}`);
    await screenshot(page, `small-plate-${width}`);
  }
});
