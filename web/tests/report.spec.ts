/** What `plateconfig report` writes opens as the page with everything inside. */
import assert from "node:assert/strict";
import { mkdtemp, rm } from "node:fs/promises";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { after, before, test } from "node:test";
import { pathToFileURL } from "node:url";
import type { Browser } from "playwright-core";
import { closePage, openPage, pageFile, samples, screenshot, settled, startBrowser } from "./browser";
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

/** How many findings of each severity the native program has. */
async function nativeCounts(): Promise<readonly number[]> {
  const { out } = await runNative(["check", ...inputs, "--format", "json"], folder);
  const { findings } = JSON.parse(out.toString()) as { findings: { severity: string }[] };
  return ["error", "warning", "hint"].map((of) => findings.filter(({ severity }) => severity === of).length);
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
  const [errors, warnings, hints] = await nativeCounts();
  const counts = await page.innerText(".counts");
  for (const count of [`${errors} 个错误`, `${warnings} 个警告`, `${hints} 个提示`]) {
    assert.ok(counts.includes(count), `${count} in ${counts}`);
  }
  await screenshot(page, "report");
  assert.match(await page.innerText("body"), /plates\.csv/); // Findings of plates are among those that were counted.
  await closePage(opened);
});
