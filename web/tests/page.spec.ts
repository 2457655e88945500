/** What a keeper does with the page, from dropping a folder to looking again after a save. */
import assert from "node:assert/strict";
import { cpSync, mkdtempSync, readFileSync, rmSync, truncateSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { pathToFileURL } from "node:url";
import { after, afterEach, before, beforeEach, test } from "node:test";
import type { Browser, Page } from "playwright-core";
import {
  assertAccessible,
  besides,
  closePage,
  drop,
  isServed,
  type Opened,
  openPage,
  readPage,
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
  folder = mkdtempSync(join(tmpdir(), "plateconfig-page-"));
  opened = await openPage(browser);
  page = opened.page;
});
afterEach(async () => {
  await closePage(opened);
  rmSync(folder, { recursive: true, force: true });
});

const mistakes = join(samples, "config", "带错误");

/** A copy of a sample that a test may change. */
function copied(name: string): string {
  const copy = join(folder, name);
  cpSync(join(samples, "config", name), copy, { recursive: true });
  return copy;
}

async function open(...paths: string[]): Promise<void> {
  await drop(page, paths);
  await settled(page);
}

/** ASCII texts stand in a GBK file as they are. */
function replaceInFile(path: string, old: string, now: string): void {
  const bytes = readFileSync(path).toString("latin1");
  assert.ok(bytes.includes(old));
  writeFileSync(path, Buffer.from(bytes.replace(old, now), "latin1"));
}

function counts(): Promise<string> {
  return page.innerText(".counts");
}

test("A table that is saved again is read again with one key", async () => {
  const copy = copied("标准");
  await open(copy);
  assert.match(await counts(), /0 个警告/);
  replaceInFile(join(copy, "列宽.csv"), "120", "12O");
  await page.keyboard.press("F5");
  await page.waitForFunction(() => document.querySelector(".counts")?.textContent?.includes("1 个警告"));
  await page.click(".severity-filter button >> nth=1");
  const finding = page.locator(".finding");
  assert.equal(await finding.count(), 1);
  assert.match(await finding.innerText(), /“12O”不是整数[\s\S]*B2 零件名称[\s\S]*12O\s*120/);
});

test("A folder, plates and holes are dropped together, and each file is used for what it is", async () => {
  await open(join(samples, "config", "标准"), ...besides);
  assert.match(await counts(), /1 个警告/);
  await page.click("text=文件 ▾");
  const used = await page.$$eval(".files tbody tr", (rows) =>
    rows.map((row) => [row.querySelector("th")?.textContent, row.querySelector("select")?.value]),
  );
  assert.deepEqual(used.filter(([, use]) => use !== "table").sort(), [
    ["hole-types.csv", "hole-types"],
    ["holes.csv", "holes"],
    ["plates.csv", "plates"],
  ]);
  await assertAccessible(page, "files");
});

test("The user may say that a file is no file of plates", async () => {
  await open(join(samples, "config", "标准"), join(samples, "plates.csv"));
  assert.match(await counts(), /1 个警告/);
  await page.click("text=文件 ▾");
  await page.selectOption('select[aria-label^="plates.csv"]', "unused");
  await page.waitForFunction(() => document.querySelector(".counts")?.textContent?.includes("0 个警告"));
});

test("What the user said of a file still counts after looking again", async () => {
  await open(join(samples, "config", "标准"), join(samples, "plates.csv"), join(samples, "holes.csv"));
  await page.click("text=文件 ▾");
  const use = (name: string) => page.locator(`select[aria-label^="${name}"]`);
  await use("plates.csv").selectOption("unused");
  await use("列宽.csv").selectOption("hole-types");
  await page.keyboard.press("F5");
  await settled(page);
  assert.equal(await use("plates.csv").inputValue(), "table"); // As what else lies in the folder.
  assert.equal(await use("列宽.csv").inputValue(), "hole-types");
  assert.equal(await use("holes.csv").inputValue(), "holes");
});

/** Files of one name that are used for different things are all used. */
async function assertAllAreUsed(): Promise<void> {
  assert.match(await counts(), /0 个错误\s*1 个警告/); // The plate 加长托板.
  await page.click("text=文件 ▾");
  const used = await page.$$eval(".files tbody select", (all) =>
    all.map((each) => (each as HTMLSelectElement).value),
  );
  assert.deepEqual(used.filter((use) => use !== "table").sort(), ["hole-types", "holes", "plates"]);
  await page.keyboard.press("Escape");
  await showView(page, "holes");
  await page.waitForSelector(".item");
  await showView(page, "plate");
  await page.waitForSelector('.item-name:has-text("加长托板")');
}

/** The samples' files, each as 1.csv in a folder of its own. */
function filesOfOneName(below: string): string[] {
  return ["plates", "holes", "hole-types"].map((name) => {
    const path = join(below, name, "1.csv");
    cpSync(join(samples, `${name}.csv`), path);
    return path;
  });
}

test("Files of one name stay apart when they are dropped one by one", async () => {
  await open(join(samples, "config", "标准"), ...filesOfOneName(folder));
  await assertAllAreUsed();
});

test("Files of one name stay apart when they lie in folders of the folder that is dropped", async () => {
  const copy = copied("标准");
  filesOfOneName(copy);
  await open(copy);
  await assertAllAreUsed();
});

test("Plates of several files, also of names that look like options, are all looked at", async () => {
  await open(join(samples, "config", "标准"), join(samples, "plates.csv"));
  assert.match(await counts(), /1 个警告/);
  const again = join(folder, "--limit.csv");
  cpSync(join(samples, "plates.csv"), again);
  await drop(page, [again]);
  await page.waitForFunction(() => !document.querySelector(".counts")?.textContent?.includes(" 1 个警告"));
  await settled(page);
  await page.waitForSelector('.side-item:has-text("plates.csv")');
  await page.waitForSelector('.side-item:has-text("--limit.csv")');
});

test("Two folders and plates dropped at once are a comparison of these plates", async () => {
  await drop(page, [
    join(samples, "config", "标准"),
    join(samples, "config", "精密模"),
    join(samples, "plates.csv"),
  ]);
  await settled(page);
  assert.match(await counts(), /1 个警告/);
  await showView(page, "comparison");
  await page.waitForSelector(".changed-plate");
});

test("A file that is too large is refused as what it is, before it is read", async () => {
  const huge = join(folder, "huge.csv");
  writeFileSync(huge, "");
  truncateSync(huge, 3 * 2 ** 30); // Without its bytes on the disk.
  await drop(page, [huge]);
  await page.waitForSelector(".notice");
  assert.match(await page.innerText(".notice"), /文件太多或太大，读到“huge\.csv”为止/);
});

test("A folder of the same name shows nothing of the one before while it is checked", async () => {
  await open(mistakes);
  await page.waitForSelector(".finding");
  const other = join(folder, "带错误");
  cpSync(join(samples, "config", "标准"), other, { recursive: true });
  await page.evaluate(() => {
    // While the folder is being read the old one is still open; from the check on it is not.
    const seen: { checked: boolean; old: boolean } = Object.assign(globalThis, {
      checked: false,
      old: false,
    });
    new MutationObserver(() => {
      if (!document.querySelector(".header")?.textContent?.includes("正在检查")) return;
      seen.checked = true;
      if (document.querySelector(".finding") !== null) seen.old = true;
    }).observe(document.body, { childList: true, subtree: true, characterData: true });
  });
  await drop(page, [other]);
  await page.waitForFunction(() => document.querySelector(".counts")?.textContent?.includes("0 个错误"));
  const seen = await page.evaluate(() => {
    const { checked, old } = globalThis as unknown as { checked: boolean; old: boolean };
    return { checked, old };
  });
  assert.deepEqual(seen, { checked: true, old: false });
});

test("A promise that fails where nobody waits for it is told", async () => {
  await open(mistakes);
  await page.evaluate(() => void Promise.reject(new Error("nobody waits for this")));
  await page.waitForSelector(".notice");
  assert.match(await page.innerText(".notice"), /nobody waits for this/);
});

test("Plates that are dropped later come to the open folder", async () => {
  await open(join(samples, "config", "标准"));
  assert.match(await counts(), /0 个警告/);
  await drop(page, [join(samples, "plates.csv")]);
  await page.waitForFunction(() => document.querySelector(".counts")?.textContent?.includes("1 个警告"));
  assert.match(await page.innerText(".finding >> nth=0"), /加长托板/);
});

test("Of a folder with several configurations each can be looked at", async () => {
  await open(samples);
  const names = await page.$$eval(".header select option", (options) =>
    options.map((each) => each.textContent),
  );
  assert.deepEqual([...names].sort(), ["带错误", "标准", "精密模"].sort());
  await page.selectOption(".header select", { label: "标准" });
  await page.waitForFunction(() => document.querySelector(".counts")?.textContent?.includes("0 个错误"));
});

test("A finding leads to its cell, by a click beside the list and by Enter in the table", async () => {
  await open(mistakes);
  await page.click('.side-item:has-text("列宽.csv")');
  await page.click(".finding >> nth=1");
  const cell = page.locator(".findings-detail .cell.is-selected");
  assert.match(await cell.innerText(), /^4O\s*⇒ 4/);
  assert.match(await page.innerText(".card-fix"), /40/);
  await page.focus(".finding-list");
  await page.keyboard.press("Enter");
  await page.waitForSelector(".panel-tables .cell.is-selected");
  assert.equal(await page.innerText(".cell-name"), "B2");
  assert.match(await page.innerText(".beside"), /“4O”不是整数/);
});

test("The filters of severity, file, code and text narrow the list", async () => {
  await open(mistakes);
  const shown = () => page.innerText(".findings-list .bar [role=status]");
  assert.equal(await shown(), "共 69 个");
  await page.click('.severity-filter button:has-text("错误")');
  assert.equal(await shown(), "显示 6 个，共 69 个");
  await page.click("text=清除筛选");
  await page.selectOption(".side select", "cell-not-integer");
  assert.equal(await shown(), "显示 4 个，共 69 个");
  await page.click("text=清除筛选");
  await page.fill(".side input", "全角");
  assert.equal(await shown(), "显示 3 个，共 69 个");
});

test("The list is copied as text, and saved as the program's own CSV", async () => {
  await opened.context.grantPermissions(["clipboard-read", "clipboard-write"]);
  await open(mistakes);
  await page.click('.side-item:has-text("列宽.csv")');
  await page.click("text=复制为文本");
  await page.waitForSelector("text=已复制");
  assert.equal(
    await page.evaluate(() => navigator.clipboard.readText()),
    [
      "列宽.csv A2  警告  “abc”不是整数",
      "列宽.csv B2  警告  “4O”不是整数  改为: 40",
      "列宽.csv D2  警告  “7０”（含全角字符）不是整数  改为: 70",
    ].join("\n"),
  );
  const [download] = await Promise.all([page.waitForEvent("download"), page.click("text=保存为 CSV")]);
  assert.equal(download.suggestedFilename(), "问题.csv");
  const saved = readFileSync(await download.path(), "utf8");
  assert.ok(saved.startsWith("\ufeff代码,级别,文件,行"));
  assert.equal(saved.trimEnd().split("\r\n").length, 70);
});

test("A folder without tables.json gets one from init, which can be saved", async () => {
  const copy = copied("标准");
  rmSync(join(copy, "tables.json"));
  await open(copy);
  await page.click(".manifest .main-button");
  await page.waitForSelector("text=保存 tables.json");
  await settled(page);
  assert.match(await counts(), /0 个错误/);
  const found = await page.locator(".roles tr").allInnerTexts();
  assert.equal(found.length, 15);
  assert.ok(found.includes("工艺规则.csv\t工艺规则（process-rules）"));
  const [download] = await Promise.all([page.waitForEvent("download"), page.click("text=保存 tables.json")]);
  assert.equal(download.suggestedFilename(), "tables.json");
  const roles = JSON.parse(readFileSync(await download.path(), "utf8")) as Record<string, string>;
  assert.equal(Object.keys(roles).length, 15);
  assert.equal(roles["process-rules"], "工艺规则.csv");
});

test("What a table is for is told in the keepers' words, with the name that tables.json has", async () => {
  await open(join(samples, "config", "标准"));
  await showView(page, "tables");
  const role = page.locator('.side-item:has-text("列宽.csv") .side-role');
  assert.equal(await role.innerText(), "列宽（column-widths）");
  await drop(page, [join(samples, "config", "精密模")], { x: 1100, y: 400 });
  await showView(page, "comparison");
  await page.click("#part-tab-settings");
  await page.waitForSelector('caption:has-text("列宽（column-widths）")');
  await page.click("text=English");
  await page.waitForSelector('caption:has-text("column-widths")');
  assert.doesNotMatch(await page.locator("caption").first().innerText(), /列宽/);
});

test("The keys of a spreadsheet move through the grid", async () => {
  await open(join(samples, "config", "标准"));
  await showView(page, "tables");
  await page.click('.side-item:has-text("工艺规则.csv")');
  await page.focus(".grid");
  const at = () => page.innerText(".cell-name");
  const press = async (key: string) => {
    await page.keyboard.press(key);
    return at();
  };
  assert.equal(await at(), "A1");
  assert.equal(await press("ArrowRight"), "B1");
  assert.equal(await press("ArrowDown"), "B2");
  assert.equal(await press("End"), "BD2");
  assert.equal(await press("Control+ArrowDown"), "BD72");
  assert.equal(await press("Home"), "A72");
  assert.equal(await press("Control+Home"), "A1");
  assert.equal(await press("ArrowUp"), "A1");
  assert.equal(await press("Control+End"), "BD72");
  const active = await page.getAttribute(".grid", "aria-activedescendant");
  assert.equal(await page.getAttribute(`[id="${active}"]`, "aria-colindex"), "56");
  const first = Number((await press("PageUp")).slice(2));
  assert.ok(first > 30 && first < 60);
});

test("Tabs are moved by arrows and are one stop of the Tab key", async () => {
  await open(join(samples, "config", "标准"));
  await page.focus("#view-tab-findings");
  await page.keyboard.press("ArrowRight");
  assert.equal(await page.evaluate(() => document.activeElement?.id), "view-tab-tables");
  await page.waitForSelector(".panel-tables");
  await page.keyboard.press("ArrowLeft");
  await page.keyboard.press("ArrowLeft");
  assert.equal(await page.evaluate(() => document.activeElement?.id), "view-tab-comparison");
  assert.equal(await page.locator('[id^="view-tab-"][tabindex="0"]').count(), 1);
});

test("Ten thousand rows of seventy columns open, and only what is in sight is in the page", async () => {
  const copy = copied("标准");
  const header = Array.from({ length: 70 }, (_, column) => `C${column}`).join(",");
  const rows = Array.from({ length: 10_000 }, (_, row) =>
    Array.from({ length: 70 }, (_, column) => `${row}_${column}`).join(","),
  );
  writeFileSync(join(copy, "big.csv"), [header, ...rows, ""].join("\r\n"));
  await open(copy);
  await showView(page, "tables");
  await page.click('.side-item:has-text("big.csv")');
  await page.waitForSelector(".grid");
  await page.focus(".grid");
  await page.keyboard.press("Control+End");
  await page.waitForSelector('.cell.is-selected:has-text("9999_69")');
  assert.equal(await page.innerText(".cell-name"), "BR10001");
  assert.equal(await page.getAttribute(".grid", "aria-rowcount"), "10001");
  assert.ok((await page.locator(".cell").count()) < 3000);
});

test("What the program says of an unusable folder is shown", async () => {
  writeFileSync(join(folder, "tables.json"), '{"process-rules": "规则.csv" "layers": 1}');
  writeFileSync(join(folder, "规则.csv"), "");
  await open(folder);
  assert.match(await counts(), /1 个错误/);
  await showView(page, "tables");
  await screenshot(page, "unusable-zh");
});

test("The language switch changes the page and what the program says, and is remembered", async () => {
  await open(mistakes);
  await page.click("text=English");
  await page.waitForFunction(() =>
    document.querySelector(".finding")?.textContent?.includes("row 5 accepts no plate"),
  );
  assert.equal(await page.getAttribute("html", "lang"), "en");
  await page.reload();
  await page.waitForSelector(".footer");
  assert.match(await page.innerText(".footer"), /^Nothing leaves this machine/);
  assert.equal(await page.getAttribute("html", "lang"), "en");
});

/** Prints to PDF, and tells what the page held when the printer asked for it. */
async function printed(counted: string): Promise<{ readonly pdf: string; readonly count: number }> {
  await page.evaluate((selector) => {
    addEventListener("beforeprint", () => {
      document.body.dataset["printed"] = String(document.querySelectorAll(selector).length);
    });
  }, counted);
  const pdf = (await page.pdf({ preferCSSPageSize: true })).toString("latin1");
  return { pdf, count: Number(await page.evaluate(() => document.body.dataset["printed"])) };
}

const kUprightA4 = /\/MediaBox \[0 0 59\d[.\d]* 84\d/;
const kLyingA4 = /\/MediaBox \[0 0 84\d[.\d]* 59\d/;

test("The printer gets the whole list, and the page has it as before again", async () => {
  await open(mistakes);
  const shown = await page.locator(".finding").count();
  const { pdf, count } = await printed(".finding");
  assert.equal(count, 69);
  assert.ok(shown < 69);
  assert.match(pdf, kUprightA4);
  assert.equal(await page.locator(".finding").count(), shown);
});

test("A page that a button prints does not wait for what is drawn later", async () => {
  await open(mistakes);
  // Within a script nothing of the page's own is drawn until the script ends, as it is while window.print() runs.
  const drawn = await page.evaluate(() => {
    dispatchEvent(new Event("beforeprint"));
    const count = document.querySelectorAll(".finding").length;
    dispatchEvent(new Event("afterprint"));
    return count;
  });
  assert.equal(drawn, 69);
});

test("On paper the list stands without the controls", async () => {
  await open(mistakes);
  await page.emulateMedia({ media: "print" });
  await page.waitForFunction(() => document.querySelectorAll(".finding").length === 69);
  assert.equal(await page.isVisible(".side"), false);
  assert.equal(await page.isVisible(".tabs"), false);
});

test("A wide table is printed with all its rows and columns, on paper that lies", async () => {
  await open(join(samples, "config", "标准"));
  await showView(page, "tables");
  await page.click('.side-item:has-text("工艺规则.csv")');
  await settled(page);
  // The header and 71 rows, 56 columns; no column stands twice.
  const { pdf, count } = await printed(".paper-band td");
  assert.equal(count, 72 * 56);
  assert.match(pdf, kLyingA4);
  assert.doesNotMatch(pdf, kUprightA4);
  assert.equal(await page.locator(".paper").count(), 0);
});

test("On paper a table's wrong cells are marked, and its findings say why", async () => {
  await open(mistakes);
  await showView(page, "tables");
  await page.click('.side-item:has-text("列宽.csv")');
  await settled(page);
  await page.emulateMedia({ media: "print" });
  await page.waitForSelector(".paper-band");
  assert.deepEqual(await page.locator(".paper-findings tbody tr").allInnerTexts(), [
    "A2\t 警告\t“abc”不是整数\t0\t",
    "B2\t 警告\t“4O”不是整数\t4\t40",
    "D2\t 警告\t“7０”（含全角字符）不是整数\t7\t70",
  ]);
  assert.deepEqual(await page.locator(".paper-band td.is-warning").allInnerTexts(), [
    "abc ⇒ 0",
    "4O ⇒ 4",
    "7０ ⇒ 7",
  ]);
  assert.equal(await page.isVisible(".grid"), false);
  assert.equal(await page.isVisible(".beside"), false);
});

test("Of a table that is too large to be printed the paper says what is left out", async () => {
  const copy = copied("标准");
  const rows = Array.from({ length: 4_001 }, (_, row) => Array(20).fill(row).join(","));
  writeFileSync(join(copy, "big.csv"), [...rows, ""].join("\r\n"));
  await open(copy);
  await showView(page, "tables");
  await page.click('.side-item:has-text("big.csv")');
  await settled(page);
  await page.emulateMedia({ media: "print" });
  await page.waitForSelector(".paper-band");
  // 40,000 cells are 2000 rows of 20 columns.
  assert.equal(await page.locator(".paper-band tbody tr").count(), 1999);
  assert.match(await page.innerText(".paper .form-note"), /前 2000 行，共 4001 行/);
});

test("What is folded up is open on paper, and folded up again behind it", async () => {
  await open(join(samples, "config", "标准"));
  await showView(page, "sheet");
  const folded = page.locator(".picture-side details:not([open])");
  await page.click(".picture-side summary");
  await folded.waitFor();
  const { count } = await printed(".picture-side details:not([open])");
  assert.equal(count, 0);
  assert.equal(await folded.count(), 1);
});

test("A report opens by itself with the files inside it", async () => {
  const text = await readPage();
  const file = (path: string, from: string, use = "") => ({
    path,
    base64: readFileSync(join(samples, from)).toString("base64"),
    use,
  });
  const tables = ["tables.json", "工艺规则.csv", "工艺设置.csv"];
  const data = {
    name: "标准",
    files: [
      ...tables.map((name) => file(`标准/${name}`, `config/标准/${name}`)),
      file("plates.csv", "plates.csv", "plates"),
    ],
  };
  const place = '<script type="application/json" id="plateconfig-data">';
  assert.ok(text.includes(place));
  const report = join(folder, "report.html");
  writeFileSync(
    report,
    text.replace(place, () => place + JSON.stringify(data)),
  );
  if (isServed) return;
  await page.goto(pathToFileURL(report).href);
  await settled(page);
  assert.equal(await page.innerText(".folder-name"), "标准");
  assert.match(await page.innerText(".finding-list"), /加长托板/);
});

test("A folder that was chosen in a dialog can not be read again after a save, and the page says so", async () => {
  const copy = copied("标准");
  await page.evaluate(() => {
    delete (Window.prototype as { showDirectoryPicker?: unknown }).showDirectoryPicker;
    delete (window as { showDirectoryPicker?: unknown }).showDirectoryPicker;
  });
  const [chooser] = await Promise.all([page.waitForEvent("filechooser"), page.click("text=打开文件夹")]);
  await chooser.setFiles(copy);
  await settled(page);
  replaceInFile(join(copy, "列宽.csv"), "120", "12O5");
  await page.keyboard.press("F5");
  assert.match(await page.innerText(".notice"), /请把文件夹重新拖进来/);
});

test("Who is sent to a cell goes on from there by keys", async () => {
  await open(mistakes);
  await page.click('.side-item:has-text("列宽.csv")');
  await page.click(".finding >> nth=1");
  await page.focus(".finding-list");
  await page.keyboard.press("Enter");
  await page.waitForSelector(".panel-tables .cell.is-selected");
  assert.equal(await page.innerText(".cell-name"), "B2");
  await page.keyboard.press("ArrowLeft");
  await page.waitForFunction(() => document.querySelector(".cell-name")?.textContent === "A2");
});

test("A view that somebody is sent to has the focus, and a tab keeps it", async () => {
  await open(mistakes);
  await page.click("#view-tab-map");
  assert.equal(await page.evaluate(() => document.activeElement?.id), "view-tab-map");
  await page.click(".map-step-buttons button >> nth=1");
  await page.click("text=试这块板");
  await page.waitForSelector(".panel-plate");
  await page.waitForFunction(() => document.activeElement?.id === "view");
});

test("A folder that the browser may not read is told; a dialog that is closed is not", async () => {
  const pick = async (problem: string) => {
    await page.evaluate((name) => {
      Object.assign(window, { showDirectoryPicker: () => Promise.reject(new DOMException("no", name)) });
    }, problem);
    await page.click("text=打开文件夹");
  };
  await pick("AbortError");
  await page.waitForTimeout(200);
  assert.equal(await page.locator(".notice").count(), 0);
  await pick("NotAllowedError");
  await page.waitForSelector(".notice");
  assert.match(await page.innerText(".notice"), /浏览器没有允许读取这个文件夹/);
});

test("A page whose file is damaged says so", async () => {
  if (isServed) return;
  const text = await readPage();
  const place = '<script type="text/plain" id="plateconfig-page">';
  const damaged = join(folder, "damaged.html");
  writeFileSync(damaged, text.replace(place, `${place}AAAA`));
  await page.goto(pathToFileURL(damaged).href);
  await page.waitForSelector("p");
  assert.match(await page.innerText("body"), /已损坏[\s\S]*is damaged/);
});

test("A file whose name is no Unicode does not keep the folder from being opened", async () => {
  const copy = copied("标准");
  // 板 as a Chinese Windows wrote it.
  writeFileSync(
    Buffer.concat([Buffer.from(`${copy}/`), Buffer.from([0xb0, 0xe5]), Buffer.from(".csv")]),
    "1\r\n",
  );
  await open(copy);
  assert.match(await counts(), /0 个错误/);
});

test("The last folder is offered again, and opens by itself where the browser still allows it", async () => {
  await open(mistakes);
  const second = await opened.context.newPage();
  await second.goto(page.url());
  await settled(second);
  assert.equal(await second.innerText(".folder-name"), "带错误");
  await second.close();
  await page.close(); // Without a page that may read the folder the browser asks again.
  page = await opened.context.newPage();
  await page.goto(second.url());
  await page.waitForSelector('button:has-text("再次打开“带错误”")');
});
