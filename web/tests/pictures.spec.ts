/** What a process engineer does with a plate, the rule map, the sheet and the holes. */
import assert from "node:assert/strict";
import { execFileSync } from "node:child_process";
import { mkdtempSync, readFileSync, rmSync, writeFileSync } from "node:fs";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { after, before, test } from "node:test";
import type { Browser, Page } from "playwright-core";
import { besides, closePage, drop, openPage, samples, settled, showView, startBrowser } from "./browser";

let browser: Browser;
before(async () => {
  browser = await startBrowser();
});
after(() => browser.close());

/** Opens a sample configuration with plates and holes, and shows a view of it. */
async function opened(view: string, folder = "标准", files = besides) {
  const open = await openPage(browser);
  await drop(open.page, [join(samples, "config", folder), ...files]);
  await settled(open.page);
  await showView(open.page, view);
  return open;
}

const text = (page: Page, selector: string) => page.locator(selector).first().innerText();

// ---- A plate ----

test("A plate without a text stands first, and the nearest row says what has to change", async () => {
  const open = await opened("plate");
  const { page } = open;
  assert.match(await text(page, ".item"), /加长托板/);
  await page.click(".item");
  await page.waitForFunction(
    () => document.querySelector<HTMLInputElement>("#plate-length")?.value === "1203",
  );
  await page.waitForSelector(".process-text .status-no-row");
  assert.match(await text(page, ".refused li"), /第 41 行\s*长度 1203 超出 700–1200，多 3/);
  assert.match(await text(page, ".plate-changes"), /要符合第 41 行须改什么\s*长度：1203 改为 1200/);
  await page.click(".plate-changes button");
  await page.waitForSelector(".process-text .status-written");
  assert.equal(await page.inputValue("#plate-length"), "1200");
  assert.match(await text(page, ".process-text"), /符合第 41 行/);
  await closePage(open);
});

test("The text follows the typing, and what is no number is told at its field", async () => {
  const open = await opened("plate");
  const { page } = open;
  await page.waitForSelector(".process-text .status-written");
  await page.fill("#plate-length", "45o");
  await page.waitForSelector("#plate-length-remark");
  assert.match(await text(page, "#plate-length-remark"), /45o/);
  assert.equal(await page.getAttribute("#plate-length", "aria-invalid"), "true");
  await page.fill("#plate-length", "9000");
  await page.waitForSelector(".process-text .status-no-row");
  assert.equal(await page.locator("#plate-length-remark").count(), 0);
  await closePage(open);
});

test("A feature that is taken away takes its process out of the text", async () => {
  const open = await opened("plate");
  const { page } = open;
  await page.waitForSelector(".process-text .drawn");
  const before = await text(page, ".drawn");
  assert.match(before, /打字码/);
  await page.uncheck("label:has-text('打字码') input");
  await page.waitForFunction(() => !document.querySelector(".drawn")?.textContent?.includes("打字码"));
  const row = page.locator(".processes tr", { hasText: "打字码" }).first();
  assert.match(await row.innerText(), /未指定/);
  assert.match(await row.innerText(), /不适用/);
  await closePage(open);
});

test("A line break of a cell is one in the text", async () => {
  const open = await opened("plate");
  const { page } = open;
  await page.waitForSelector(".process-text .drawn");
  // Row 43 of the table: 350_500 x 300_450 x 60_100, up to 150, soft, with neither faces; its text for 配框 has three lines.
  const plate = { length: "400", width: "400", thickness: "80", weight: "100", color: "12", faceColors: "" };
  for (const [field, value] of Object.entries(plate)) await page.fill(`#plate-${field}`, value);
  await page.waitForFunction(() =>
    document.querySelector(".process-text")?.textContent?.includes("第 43 行"),
  );
  assert.match(await text(page, ".drawn"), /配框：\n1\.框侧面单边留0\.02mm配作\n2\.四角避空R13/);
  await closePage(open);
});

// ---- The rule map ----

test("Pointing at the map tells the row, and Enter opens it in its table", async () => {
  const open = await opened("map");
  const { page } = open;
  await page.fill(".map-fixed >> nth=0 >> input[type=number]", "200");
  await page.press(".map-fixed >> nth=0 >> input[type=number]", "Tab");
  await page.fill(".map-fixed >> nth=1 >> input[type=number]", "700");
  await page.press(".map-fixed >> nth=1 >> input[type=number]", "Tab");
  await page.waitForFunction(() =>
    document.querySelector(".map-picture")?.textContent?.includes("厚度 200 · 重量 700"),
  );
  // Row 47: 900_1200 x 600_1000 x 120_250 of 500_2500; nothing above it has such plates.
  await page.focus(".map-picture");
  for (let i = 0; i < 7; ++i) await page.keyboard.press("Shift+ArrowRight");
  for (let i = 0; i < 5; ++i) await page.keyboard.press("Shift+ArrowUp");
  assert.match(await text(page, ".map-readout"), /长度 1\d\d\d.*宽度 \d+.*用第 47 行（图层 12）/);
  await page.keyboard.press("Enter");
  await page.waitForSelector(".panel-tables");
  assert.equal(await page.getAttribute("#view-tab-tables", "aria-selected"), "true");
  await closePage(open);
});

test("The steps go through the gaps of the check, each with its example in the picture", async () => {
  const open = await opened("map");
  const { page } = open;
  await page.click(".map-step-buttons button >> nth=1");
  await page.waitForSelector(".map-step");
  assert.match(await text(page, ".map-step"), /长度 50_99\.999/);
  assert.match(await text(page, ".map-new-row"), /长度范围\s*50_99\.999/);
  await page.waitForFunction(() => document.querySelector(".map-readout")?.textContent?.includes("空缺"));
  assert.match(await text(page, ".map-readout"), /长度 80\s+宽度 600\s+空缺/);
  await page.click("text=试这块板");
  await page.waitForSelector(".process-text .status-no-row");
  assert.equal(await page.inputValue("#plate-length"), "80");
  assert.equal(await page.inputValue("#plate-thickness"), "200");
  await closePage(open);
});

test("A row that another one hides is hatched, and its blocker is named", async () => {
  const open = await opened("map", "带错误");
  const { page } = open;
  await page.click(".map-step-buttons button >> nth=1");
  await page.waitForSelector(".map-picture path[stroke-width='2.5']");
  // Until the step's own picture is there, that of other plates is, which has the row as well.
  await page.waitForSelector(".map-rows li:has-text('第 8 行'):has-text('全被第 6 行挡住')");
  assert.match(await text(page, ".map-readout"), /用第 6 行.*也符合但排在后面：第 8 行/);
  await closePage(open);
});

/** The values at the left and at the lower end of what is in sight, as far as the marks tell. */
async function firstMarks(page: Page): Promise<readonly [number, number]> {
  const marks = async (anchor: string) => {
    const texts = await page
      .locator(`.map-picture g[aria-hidden] g text[text-anchor=${anchor}]`)
      .allTextContents();
    return Math.min(...texts.filter((each) => each !== "").map(Number));
  };
  return [await marks("middle"), await marks("end")];
}

test("A zoomed map goes to all four sides: by the mouse, by buttons and by keys", async () => {
  const open = await opened("map");
  const { page } = open;
  await page.waitForSelector(".map-picture");
  for (let i = 0; i < 4; ++i) await page.click("[aria-label=放大]");
  const [left, low] = await firstMarks(page);
  const box = (await page.locator(".map-picture").boundingBox())!;
  const [x, y] = [box.x + box.width / 2, box.y + box.height / 2];
  const drag = async (dx: number, dy: number) => {
    await page.mouse.move(x, y);
    await page.mouse.down();
    await page.mouse.move(x + dx, y + dy, { steps: 4 });
    await page.mouse.up();
    return firstMarks(page);
  };
  assert.ok((await drag(-350, 0))[0] > left, "to the right");
  await drag(350, 0);
  assert.ok((await drag(350, 0))[0] < left, "to the left");
  await drag(-350, 0);
  assert.ok((await drag(0, 200))[1] > low, "upwards");
  await drag(0, -200);
  assert.ok((await drag(0, -200))[1] < low, "downwards");
  await drag(0, 200);
  const [before, below] = await firstMarks(page);
  await page.click("[aria-label=看右边]");
  assert.ok((await firstMarks(page))[0] > before);
  await page.click("[aria-label=看上边]");
  assert.ok((await firstMarks(page))[1] > below);
  await page.focus(".map-picture");
  await page.keyboard.press("Control+ArrowLeft");
  await page.keyboard.press("Control+ArrowDown");
  assert.deepEqual(await firstMarks(page), [before, below]);
  await page.click("text=全图");
  assert.equal(await page.isEnabled("[aria-label=看右边]"), false);
  await closePage(open);
});

test("A slider at its left end asks for plates that there may be", async () => {
  const open = await opened("map");
  const { page } = open;
  await page.focus(".map-fixed >> nth=0 >> input[type=range]");
  await page.keyboard.press("Home");
  await page.waitForFunction(() => document.querySelector(".map-picture")?.textContent?.includes("厚度 1 "));
  assert.equal(await page.inputValue(".map-fixed >> nth=0 >> input[type=number]"), "1");
  assert.doesNotMatch(await page.innerText("main"), /没有给出结果/);
  await closePage(open);
});

/** A folder with a rule table of its own. */
function folderOf(rows: readonly string[]): string {
  const folder = mkdtempSync(join(tmpdir(), "plateconfig-page-"));
  const gbk = (text: string) => execFileSync("iconv", ["-f", "UTF-8", "-t", "GBK"], { input: text });
  writeFileSync(join(folder, "tables.json"), '{"process-rules": "rules.csv"}');
  const header = "模板所在图层,长度范围,宽度范围,下料";
  writeFileSync(join(folder, "rules.csv"), gbk(`${[header, ...rows].join("\n")}\n`));
  return folder;
}

test("A row of one size that another one hides is told to be hidden", async () => {
  const folder = folderOf(["12,300_400,100_200,铣", "12,300_300,100_200,铣", "12,400_500,100_200,铣"]);
  const open = await openPage(browser);
  const { page } = open;
  await drop(page, [folder]);
  await settled(page);
  await showView(page, "map");
  await page.waitForSelector(".map-rows li");
  const rows = await page.locator(".map-rows li").allInnerTexts();
  assert.deepEqual(
    rows.map((row) => /全被第 2 行挡住|部分被挡/.exec(row)?.[0]),
    [undefined, "全被第 2 行挡住", undefined],
  );
  await closePage(open);
  rmSync(folder, { recursive: true });
});

test("However many rows there are, the page has few elements, and paper has all rows", async () => {
  const rows = Array.from({ length: 1500 }, (_, i) => `12,${i}_${i + 3},${(i * 7) % 400}_450,铣`);
  const folder = folderOf(rows);
  const open = await openPage(browser);
  const { page } = open;
  await drop(page, [folder]);
  await settled(page);
  await showView(page, "map");
  await page.waitForSelector(".map-rows li");
  assert.ok((await page.locator(".map-rows li").count()) < 100);
  assert.ok((await page.locator(".map-picture *").count()) < 1500);
  await page.emulateMedia({ media: "print" });
  await page.waitForFunction(() => document.querySelectorAll(".map-rows li").length === 1500);
  await closePage(open);
  rmSync(folder, { recursive: true });
});

test("The map of changes spans any two sizes, and is saved", async () => {
  const open = await opened("comparison");
  const { page } = open;
  await drop(page, [join(samples, "config", "精密模")], { x: 1100, y: 400 });
  await settled(page);
  await page.click("text=板的区域");
  await page.waitForSelector(".region-map svg");
  assert.match(await text(page, ".region-map figcaption"), /厚度 \d+、重量 \d+、体颜色 42 处的截面/);
  await page.selectOption(".region-axes select >> nth=0", "thickness");
  await page.waitForFunction(() =>
    document.querySelector(".region-map figcaption")?.textContent?.includes("长度"),
  );
  await page.waitForFunction(() =>
    document.querySelector(".region-map svg")?.textContent?.includes("厚度（mm）"),
  );
  await page.check(".region-axes input >> nth=0");
  const [download] = await Promise.all([
    page.waitForEvent("download"),
    page.click(".region-map >> text=保存 SVG"),
  ]);
  assert.equal(download.suggestedFilename(), "变动图-thickness-width.svg");
  await closePage(open);
});

test("The map is saved as SVG and as PNG", async () => {
  const open = await opened("map");
  const { page } = open;
  await page.waitForSelector(".map-picture");
  const saved = async (button: string) => {
    const [download] = await Promise.all([page.waitForEvent("download"), page.click(`text=${button}`)]);
    return { name: download.suggestedFilename(), bytes: readFileSync(await download.path()) };
  };
  const svg = await saved("保存 SVG");
  assert.equal(svg.name, "规则图-length-width.svg");
  assert.match(svg.bytes.toString(), /^<svg [^>]*xmlns="http:\/\/www\.w3\.org\/2000\/svg"/);
  assert.match(svg.bytes.toString(), /<pattern[^>]* id="gap"/);
  const png = await saved("保存 PNG");
  assert.equal(png.bytes.subarray(1, 4).toString(), "PNG");
  // Twice the picture's own size, as the header of the file has it.
  assert.deepEqual([png.bytes.readUInt32BE(16), png.bytes.readUInt32BE(20)], [1920, 1280]);
  await closePage(open);
});

// ---- Holes ----

test("Holes without a type come first, with the type that is nearest and why it refuses them", async () => {
  const open = await opened("holes");
  const { page } = open;
  await page.waitForSelector(".hole-detail");
  assert.match(await text(page, ".side-list p"), /共 60 个，7 个无类型，5 个并列/);
  assert.match(await text(page, ".hole-detail h2"), /A板-浇口套-小圈/);
  assert.match(await text(page, ".hole-refusals li"), /浇口套孔\s*顶第 1 段：直径 90 不符，允许 100、120/);
  await closePage(open);
});

test("A hole shows its types with their scores", async () => {
  const open = await opened("holes");
  const { page } = open;
  await page.fill(".side-list input[type=search]", "A板-M12-1");
  await page.click(".item");
  await page.waitForFunction(() => document.querySelector(".hole-detail h2")?.textContent === "A板-M12-1");
  assert.match((await page.textContent(".hole-section")) ?? "", /⌀20 · 顶 · 颜色 36/);
  const types = await page.locator(".hole-table tr:has(.hole-score)").allInnerTexts();
  assert.match(types[0] ?? "", /^\s*5\s+M12沉头螺丝孔/);
  assert.match(types[1] ?? "", /^\s*2\s+沉头螺丝孔（通用）/);
  await closePage(open);
});

test("Without hole types the view says what to open", async () => {
  const open = await opened("holes", "标准", [join(samples, "holes.csv")]);
  assert.match(await text(open.page, ".panel-holes, main"), /还缺孔类型文件/);
  await closePage(open);
});

// ---- The sheet ----

test("A part of the sheet shows the settings that place it, and opens their cell", async () => {
  const open = await opened("sheet");
  const { page } = open;
  await page.click("label:has-text('分图') >> nth=-1");
  const part = page.locator(".sheet-list li", { hasText: "<HARDNESS>" });
  await part.hover();
  await page.waitForSelector(".sheet-keys");
  assert.match(await part.innerText(), /图框信息-左边距\s*0\.8/);
  assert.match((await page.textContent(".sheet-picture")) ?? "", /图框信息 · 图框信息-左边距/);
  await part.locator(".sheet-keys button", { hasText: "图框信息-顶边距" }).click();
  await page.waitForSelector('.panel-tables .cell.is-selected:has-text("0.93")');
  await closePage(open);
});

test("The paper is what the reader chooses, and what was taken for granted is told", async () => {
  const open = await opened("sheet");
  const { page } = open;
  await page.waitForSelector(".sheet-picture");
  assert.match((await page.getAttribute(".sheet-picture", "aria-label")) ?? "", /420 x 297 mm/);
  assert.match(await text(page, ".sheet-assumed"), /各表中没有纸张的大小/);
  await page.selectOption(".sheet-paper select", "594x420");
  await page.waitForFunction(() =>
    document.querySelector(".sheet-picture")?.getAttribute("aria-label")?.includes("594 x 420"),
  );
  await closePage(open);
});

test("A second folder's sheet stands beside, and what differs is marked", async () => {
  const open = await opened("sheet");
  const { page } = open;
  await page.waitForSelector(".sheet-picture");
  assert.equal(await page.locator(".sheet-differs").count(), 0);
  await drop(page, [join(samples, "config", "精密模")], { x: 1100, y: 400 });
  await page.waitForSelector("figure:nth-child(2) .sheet-picture");
  assert.deepEqual(await page.locator(".sheet-pictures figcaption").allInnerTexts(), ["标准", "精密模"]);
  await page.waitForSelector(".sheet-differs");
  const titles = await page.locator(".picture-side h2").allInnerTexts();
  assert.deepEqual(
    titles.map((title) => title.replace(/\s*\d+$/, "")),
    ["标准：图上的内容", "画图时的假定", "精密模：图上的内容", "画图时的假定"],
  );
  assert.equal(await page.locator(".sheet-unknown").count(), 2);
  await closePage(open);
});

test("What has a size but no place is drawn at its size, and its settings are there to open", async () => {
  const open = await opened("sheet");
  const { page } = open;
  // 基准圆的标准直径 is 10 in the layout defaults: ten millimetres and a rim of half a millimetre around them.
  const circle = page.locator(".sheet-unknown > li", { hasText: "爆炸图基准圆" });
  assert.match(await circle.innerText(), /⌀10 · 颜色 1 · 图层 210/);
  assert.equal(await circle.locator("svg").getAttribute("width"), "11mm");
  const box = await circle.locator("svg").boundingBox();
  assert.ok(Math.abs((box?.width ?? 0) - (11 * 96) / 25.4) < 0.5, `${box?.width} pixels`);
  // 图层间距 is 5000: no room for it.
  const spacing = page.locator(".sheet-unknown > li", { hasText: "图层间距" }).first();
  assert.equal(await spacing.locator("svg").getAttribute("width"), "71mm");
  await circle.locator("button", { hasText: "基准圆的标准直径" }).click();
  await page.waitForSelector('.panel-tables .cell.is-selected:has-text("10")');
  await closePage(open);
});
