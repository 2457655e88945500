/** Every view on every sample configuration in both languages: without an error, accessible, and as a picture to look at. */
import assert from "node:assert/strict";
import { join } from "node:path";
import { after, before, describe, test } from "node:test";
import type { Browser } from "playwright-core";
import {
  assertAccessible,
  besides,
  closePage,
  drop,
  languages,
  openPage,
  samples,
  screenshot,
  settled,
  showView,
  startBrowser,
} from "./browser";

let browser: Browser;
before(async () => {
  browser = await startBrowser();
});
after(() => browser.close());

/** Names of the pictures are the same wherever they are looked at. */
const configurations = [
  { folder: "标准", name: "standard" },
  { folder: "精密模", name: "precision" },
  { folder: "带错误", name: "mistakes" },
];

for (const language of languages) {
  describe(`in ${language}`, () => {
    for (const { folder, name } of configurations) {
      test(`Every view shows ${folder}`, async () => {
        const opened = await openPage(browser, language);
        const { page } = opened;
        await drop(page, [join(samples, "config", folder), ...besides]);
        await settled(page);
        const views = await page.$$eval('[role=tablist][aria-label] > [id^="view-tab-"]', (tabs) =>
          tabs.map((tab) => tab.id.replace("view-tab-", "")),
        );
        assert.ok(views.length >= 3);
        for (const view of views) {
          await showView(page, view);
          await settled(page);
          await assertAccessible(page, `${view} of ${folder}`);
          await screenshot(page, `${name}-${view}-${language}`);
        }
        assert.equal(await page.getAttribute("html", "lang"), language === "zh" ? "zh-CN" : "en");
        await closePage(opened);
      });
    }

    test("The page before anything is open says what to do, and that nothing leaves the machine", async () => {
      const opened = await openPage(browser, language);
      const text = await opened.page.innerText("body");
      assert.match(text, language === "zh" ? /把配置文件夹拖到这里/ : /Drop a configuration folder here/);
      assert.match(text, language === "zh" ? /数据不离开本机/ : /Nothing leaves this machine/);
      await assertAccessible(opened.page, "start");
      await screenshot(opened.page, `start-${language}`);
      await closePage(opened);
    });

    test("Each part of a comparison shows what differs between 标准 and 精密模", async () => {
      const opened = await openPage(browser, language);
      const { page } = opened;
      await drop(page, [join(samples, "config", "标准"), besides[0]!]);
      await settled(page);
      // The right half is for the new one.
      await drop(page, [join(samples, "config", "精密模")], { x: 1100, y: 400 });
      await showView(page, "comparison");
      await page.waitForSelector(".changed-plate");
      for (const part of ["plates", "rows", "settings", "regions", "tables"]) {
        await page.click(`#part-tab-${part}`);
        await settled(page);
        await assertAccessible(page, part);
        await screenshot(page, `compared-${part}-${language}`);
      }
      await closePage(opened);
    });
  });
}
