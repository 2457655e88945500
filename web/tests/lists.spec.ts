/** Lists and tables by keyboard: what is chosen is in sight, and a key with a modifier stays the browser's. */
import assert from "node:assert/strict";
import { join } from "node:path";
import { after, afterEach, before, beforeEach, test } from "node:test";
import type { Browser, Page } from "playwright-core";
import {
  besides,
  closePage,
  drop,
  type Opened,
  openPage,
  samples,
  settled,
  showView,
  startBrowser,
} from "./browser";

let browser: Browser;
let opened: Opened;
let page: Page;

before(async () => {
  browser = await startBrowser();
});
after(() => browser.close());

beforeEach(async () => {
  opened = await openPage(browser);
  page = opened.page;
});
afterEach(() => closePage(opened));

async function open(name: string): Promise<void> {
  await drop(page, [join(samples, "config", name), ...besides]);
  await settled(page);
}

/** How far the selected cell reaches beyond what the grid shows of its rows and columns; 0: it is in sight whole. */
function hiddenPart(): Promise<number> {
  return page.evaluate(() => {
    const grid = document.querySelector(".grid")!;
    const head = grid.querySelector(".grid-head")!.getBoundingClientRect();
    const gutter = grid.querySelector(".gutter")!.getBoundingClientRect();
    const all = grid.getBoundingClientRect();
    const cells = [...grid.querySelectorAll(".grid-body .cell.is-selected, .grid-body .gutter.is-current")];
    const cell = cells[0]?.getBoundingClientRect();
    if (cell === undefined) return grid.querySelector(".grid-head .is-selected") ? 0 : Infinity;
    const bottom = all.top + grid.clientTop + grid.clientHeight;
    const right = all.left + grid.clientLeft + grid.clientWidth;
    const isRowHeader = cells[0]!.classList.contains("gutter");
    const beyond = [head.bottom - cell.top, cell.bottom - bottom];
    if (!isRowHeader) beyond.push(gutter.right - cell.left, cell.right - right);
    return Math.max(0, ...beyond);
  });
}

test("The row of every plate without a text is in sight, whichever was chosen before", async () => {
  await page.setViewportSize({ width: 1366, height: 768 });
  await open("带错误");
  await page.click('.side-item:has-text("plates.csv")');
  await page.focus(".finding-list");
  const count = Number(await page.getAttribute(".finding", "aria-setsize"));
  assert.ok(count > 20);
  const hidden: string[] = [];
  for (let index = 0; index < count; ++index) {
    await page.keyboard.press(index === 0 ? "Home" : "ArrowDown");
    await page.waitForSelector(`.finding[aria-selected=true][aria-posinset="${index + 1}"]`);
    const name = await page.innerText(".finding[aria-selected=true] .finding-place");
    assert.match(name, /[A-Z]\d|第 \d+ 行/);
    const isThere = () => document.querySelector(".findings-detail .grid .is-selected, .grid .is-current");
    await page.waitForFunction(isThere).catch(() => assert.fail(`nothing is selected for ${name}`));
    // Scrolling follows within a frame or two of the table.
    for (let frame = 0; frame < 20 && (await hiddenPart()) > 1; ++frame) await page.waitForTimeout(20);
    const beyond = await hiddenPart();
    if (beyond > 1) hidden.push(`${name.replace(/\s+/g, " ")}: ${beyond}`);
  }
  assert.deepEqual(hidden, []);
});

test("The first finding is shown until one is chosen, also when the chosen one is no longer listed", async () => {
  await open("带错误");
  const chosen = () => page.getAttribute(".finding[aria-selected=true]", "aria-posinset");
  const message = async () => [
    await page.innerText(".finding[aria-selected=true] .finding-message"),
    (await page.innerText(".findings-detail .card-message")).replace(/^(错误|警告|提示) /, ""),
  ];
  assert.equal(await chosen(), "1");
  const [listed, shown] = await message();
  assert.equal(shown, listed);
  await page.click(".finding >> nth=2");
  assert.equal(await chosen(), "3");
  await page.click('.side-item:has-text("列宽.csv")');
  assert.equal(await chosen(), "1");
  assert.deepEqual(await message(), ["“abc”不是整数", "“abc”不是整数"]);
});

test("On a small screen at double size the list of findings keeps room for three", async () => {
  await open("标准");
  await page.setViewportSize({ width: 683, height: 384 });
  await page.waitForSelector(".findings-detail .grid");
  const room = await page.evaluate(() => document.querySelector(".finding-list")!.clientHeight);
  const height = await page.evaluate(() => document.querySelector<HTMLElement>(".finding")!.offsetHeight);
  assert.ok(room >= 3 * height, `${room} of ${height} each`);
});

test("Before a cell is selected the bar above a table says what it is for", async () => {
  await open("标准");
  await showView(page, "tables");
  await settled(page);
  assert.equal(await page.innerText(".cell-bar"), "选中一个单元格，这里显示它的全部内容。");
  await page.focus(".grid");
  await page.keyboard.press("ArrowDown");
  assert.match(await page.innerText(".cell-bar"), /^A2/);
});

test("What the sheet takes for granted stands at its parts with a word, by the numbers of the list", async () => {
  await open("标准");
  await showView(page, "sheet");
  const frame = page.locator(".sheet-list li", { hasText: "图框" }).first();
  assert.equal(await frame.locator("button").innerText(), "图框");
  const numbers = /假定 ([\d、]+)$/.exec(await frame.locator(".sheet-facts").innerText())?.[1]?.split("、");
  const all = await page.locator(".sheet-assumed li").allInnerTexts();
  const named = (numbers ?? []).map((number) => all[Number(number) - 1] ?? "");
  assert.equal(named.length, 2);
  assert.match(named.join("\n"), /纸张的大小\n.*图框离纸边/);
});

test("Moving through a table by keyboard never leaves the cell behind the frozen parts or the edges", async () => {
  await open("标准");
  await showView(page, "tables");
  await page.click('.side-item:has-text("工艺规则.csv")');
  await page.focus(".grid");
  for (const key of ["Control+End", "PageUp", "Home", "PageUp", "End", "Control+Home"]) {
    await page.keyboard.press(key);
    await page.waitForTimeout(60);
    assert.ok((await hiddenPart()) <= 1, key);
  }
  for (let step = 0; step < 45; ++step) {
    await page.keyboard.press("ArrowDown");
    await page.keyboard.press("ArrowRight");
    await page.waitForTimeout(20);
    assert.ok((await hiddenPart()) <= 1, `step ${step}`);
  }
});

test("A key with Alt, Ctrl or Shift moves no tab and no list, so that Alt+← goes back as everywhere", async () => {
  await open("标准");
  await showView(page, "tables");
  await page.focus("#view-tab-tables");
  const moved = (key: string, options: object) =>
    page.evaluate(
      ([name, held]) => {
        const event = new KeyboardEvent("keydown", { key: name, bubbles: true, cancelable: true, ...held });
        return !document.activeElement!.dispatchEvent(event);
      },
      [key, options] as const,
    );
  for (const held of [{ altKey: true }, { ctrlKey: true }, { metaKey: true }, { shiftKey: true }])
    for (const key of ["ArrowLeft", "ArrowRight", "Home", "End"])
      assert.equal(await moved(key, held), false, `${key} ${JSON.stringify(held)}`);
  assert.equal(await page.getAttribute("#view-tab-tables", "aria-selected"), "true");
  assert.equal(await moved("ArrowLeft", {}), true);
  await page.waitForSelector('#view-tab-findings[aria-selected="true"]');
  await page.focus(".finding-list");
  assert.equal(await moved("ArrowDown", { altKey: true }), false);
  assert.equal(await moved("End", { ctrlKey: true }), false);
  assert.equal(await moved("ArrowDown", {}), true);
});

test("The plates are one stop of the Tab key, and arrows put the next one into the form", async () => {
  await open("标准");
  await showView(page, "plate");
  await settled(page);
  await page.focus(".side-list input[type=search]");
  await page.keyboard.press("Tab");
  assert.equal(await page.evaluate(() => document.activeElement?.getAttribute("role")), "listbox");
  const formHolds = (name: string) =>
    page.waitForFunction(
      (wanted) => document.querySelector<HTMLInputElement>("#plate-name")?.value === wanted,
      name,
    );
  const names = await page.locator(".item-name").allInnerTexts();
  await page.keyboard.press("ArrowDown");
  await formHolds(names[0]!);
  await page.keyboard.press("ArrowDown");
  await formHolds(names[1]!);
  await page.keyboard.press("End");
  await page.waitForSelector('.item[aria-selected="true"][aria-posinset="40"]');
  const active = await page.getAttribute(".item-list", "aria-activedescendant");
  assert.equal(await page.getAttribute(`[id="${active}"]`, "aria-posinset"), "40");
  assert.ok(await page.isVisible('.item[aria-posinset="40"]'));
  await page.keyboard.press("Tab");
  assert.ok(await page.evaluate(() => document.activeElement?.closest(".plate-form") !== null));
});

test("The holes are one stop of the Tab key, and arrows show the next one", async () => {
  await open("标准");
  await showView(page, "holes");
  await settled(page);
  const names = await page.locator(".item-name").allInnerTexts();
  await page.focus(".item-list");
  await page.keyboard.press("ArrowDown");
  const chosen = page.locator('.item[aria-selected="true"] .item-name');
  assert.equal(await chosen.innerText(), names[1]);
  assert.match(await page.innerText(".hole-detail h2"), new RegExp(`^${names[1]}`));
  await page.keyboard.press("Tab");
  assert.equal(await page.evaluate(() => document.activeElement?.closest(".item-list")), null);
});
