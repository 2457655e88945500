/** What `plateconfig report` writes opens as the page with everything inside. */
import assert from "node:assert/strict";
import { cp, mkdir, mkdtemp, readFile, rename, rm, writeFile } from "node:fs/promises";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { after, before, test } from "node:test";
import { pathToFileURL } from "node:url";
import type { Browser, Page } from "playwright-core";
import {
  closePage,
  drop,
  type Opened,
  openPage,
  pageFile,
  samples,
  screenshot,
  settled,
  startBrowser,
} from "./browser";
import { runNative } from "./native_engine";

let folder = "";
let browser: Browser;
before(async () => {
  folder = await mkdtemp(join(tmpdir(), "plateconfig-report-"));
  browser = await startBrowser();
});
after(async () => {
  await browser.close();
  await rm(folder, { recursive: true, force: true });
});

const inputs = ["--config", join(samples, "config/带错误"), "--plates", join(samples, "plates.csv")];

/** What the native check has, as the page says it. */
async function nativeCounts(inputs: readonly string[]): Promise<readonly string[]> {
  const { out } = await runNative(["check", ...inputs, "--format", "json"], folder);
  const { errors, warnings, hints } = (
    JSON.parse(out.toString()) as { summary: { errors: number; warnings: number; hints: number } }
  ).summary;
  return [`${errors} 个错误`, `${warnings} 个警告`, `${hints} 个提示`];
}

/** Writes a report and opens it in a page that may have others beside it. */
async function openReport(page: Page, inputs: readonly string[]): Promise<void> {
  const file = join(folder, "report.html");
  await runNative(["report", "--page", pageFile, ...inputs, "-o", file, "--force"], folder);
  await page.goto(pathToFileURL(file).href);
  await settled(page);
}

/** The page of a report says what the native check says. */
async function assertSaysTheSame(page: Page, inputs: readonly string[]): Promise<void> {
  const counts = await page.innerText(".counts");
  for (const count of await nativeCounts(inputs)) {
    assert.match(counts, new RegExp(`(^|\\D)${count}`));
  }
}

async function onPage(test: (opened: Opened) => Promise<void>): Promise<void> {
  const opened = await openPage(browser);
  await test(opened);
  await closePage(opened);
}

test("A report opens with the findings, the tables and the plates of the day on which it was written", async () => {
  const file = join(folder, "report.html");
  const holes = ["--holes", join(samples, "holes.csv"), "--types", join(samples, "hole-types.csv")];
  const written = await runNative(["report", "--page", pageFile, ...inputs, ...holes, "-o", file], folder);
  assert.deepEqual([written.code, written.err.toString()], [1, ""]);
  const opened = await openPage(browser);
  const { page } = opened;
  await page.goto(pathToFileURL(file).href);
  await page.waitForSelector(".finding");
  const first = await page.evaluate(() => Math.round(performance.now()));
  console.log(`first finding ${first} ms after the report was opened`);
  await settled(page);
  await assertSaysTheSame(page, inputs);
  await screenshot(page, "report");
  assert.match(await page.innerText("body"), /plates\.csv/); // Findings of plates are among those that were counted.
  await closePage(opened);
});

test("A report shows what is inside it, whatever folder this browser had open before", () =>
  onPage(async ({ page, context }) => {
    await drop(page, [join(samples, "config/带错误")]);
    await settled(page);
    const second = await context.newPage();
    await openReport(second, ["--config", join(samples, "config/标准")]);
    // Long enough for a folder that would open by itself.
    await second.waitForTimeout(1500);
    await settled(second);
    assert.equal(await second.innerText(".folder-name"), "标准");
    await assertSaysTheSame(second, ["--config", join(samples, "config/标准")]);
  }));

/** The command that was built with the page; scripts/page builds it. */
const withPage = process.env["PLATECONFIG_WITH_PAGE"];

test(
  "The command that holds the page writes it as it was built",
  { skip: withPage === undefined },
  async () => {
    const args = ["report", "--config", join(samples, "config/标准")];
    const time = { SOURCE_DATE_EPOCH: "951827696" };
    const own = await runNative(args, folder, time, { program: withPage! });
    const named = await runNative([...args, "--page", pageFile], folder, time);
    assert.deepEqual([own.code, own.err.toString()], [0, ""]);
    assert.ok(own.out.length > 500_000);
    assert.ok(own.out.equals(named.out));
  },
);

test("A report of two files of plates shows the findings of both", () =>
  onPage(async ({ page }) => {
    const more = join(folder, "more");
    await mkdir(more);
    await cp(join(samples, "plates.csv"), join(more, "plates.csv"));
    const both = [
      ...["--config", join(samples, "config/标准"), "--plates", join(samples, "plates.csv")],
      ...["--plates", join(more, "plates.csv"), "--types", join(samples, "hole-types.csv")],
    ];
    await openReport(page, both);
    await assertSaysTheSame(page, both);
  }));

test("A table that the manifest names outside of the folder is in the report, and in its grid", () =>
  onPage(async ({ page }) => {
    const shop = join(folder, "shop");
    await cp(join(samples, "config/标准"), join(shop, "标准"), { recursive: true });
    await rename(join(shop, "标准/列宽.csv"), join(shop, "widths.csv"));
    const manifest = join(shop, "标准/tables.json");
    const roles = await readFile(manifest, "utf8");
    assert.ok(roles.includes('"列宽.csv"'));
    await writeFile(manifest, roles.replace('"列宽.csv"', '"../widths.csv"'));
    const inputs = ["--config", join(shop, "标准")];
    assert.equal((await nativeCounts(inputs))[0], "0 个错误");
    await openReport(page, inputs);
    await assertSaysTheSame(page, inputs);
    await page.click("#view-tab-tables");
    await page.click('.side-item:has-text("../widths.csv")');
    await page.waitForSelector('.cell:has-text("120")');
  }));

test("A manifest with a second ending is told as that", () =>
  onPage(async ({ page }) => {
    const shop = join(folder, "renamed");
    await cp(join(samples, "config/标准"), shop, { recursive: true });
    await rename(join(shop, "tables.json"), join(shop, "tables.json.txt"));
    await openReport(page, ["--config", shop]);
    await assertSaysTheSame(page, ["--config", shop]);
    assert.match(await page.innerText(".finding"), /tables\.json\.txt/);
  }));

test("A report says when it was written, until something else is opened", () =>
  onPage(async ({ page }) => {
    const file = join(folder, "dated.html");
    const args = ["report", "--page", pageFile, "--config", join(samples, "config/标准"), "-o", file];
    await runNative(args, folder, { SOURCE_DATE_EPOCH: "951827696" });
    await page.goto(pathToFileURL(file).href);
    await settled(page);
    const there = await page.evaluate(() =>
      new Date(Date.UTC(2000, 1, 29, 12, 34, 56)).toLocaleString("zh", {
        dateStyle: "long",
        timeStyle: "short",
      }),
    );
    assert.match(there, /2000年/);
    assert.ok((await page.innerText(".footer")).includes(`报告生成于 ${there}`));
    await drop(page, [join(samples, "config/精密模")]);
    await page.waitForSelector('.folder-name:has-text("精密模")');
    assert.doesNotMatch(await page.innerText(".footer"), /报告生成于/);
  }));
