/**
 * Bundles the tests and runs them: *.test.ts in node alone, *.spec.ts in a browser too. Arguments choose among them by name:
 *
 *     node test.mjs engine          the files whose names hold "engine"
 *
 * The page is the one that PLATECONFIG_PAGE names, or ../build/page/plateconfig.html. The last line says what ran.
 */
import { spawnSync } from "node:child_process";
import { readdirSync, readFileSync } from "node:fs";
import { dirname, join } from "node:path";
import { fileURLToPath } from "node:url";
import { bundleForNode } from "./bundle_for_node.mjs";

process.chdir(dirname(fileURLToPath(import.meta.url)));

const chosen = process.argv.slice(2);
const files = readdirSync("tests")
  .filter((name) => /\.(test|spec)\.tsx?$/.test(name))
  .filter((name) => chosen.length === 0 || chosen.some((part) => name.includes(part)))
  .sort();
if (files.length === 0) throw new Error("no test has that name");

const outdir = await bundleForNode(files, "tests");
const report = join(outdir, "report.tap");
const reporters = ["spec", "stdout", "tap", report];
const { status } = spawnSync(
  process.execPath,
  [
    "--enable-source-maps",
    "--test",
    ...reporters.map((value, i) => `--test-reporter${i % 2 === 0 ? "" : "-destination"}=${value}`),
    ...files.map((name) => join(outdir, name.replace(/\.tsx?$/, ".mjs"))),
  ],
  { stdio: "inherit" },
);

/** A number of the report's last lines: "# pass 12". */
function count(word) {
  const lines = [...readFileSync(report, "utf8").matchAll(new RegExp(`^# ${word} (\\d+)$`, "gm"))];
  return Number(lines.at(-1)?.[1] ?? 0);
}

const skipped = count("skipped") + count("todo");
const failed = count("fail") + count("cancelled");
if (count("pass") + failed === 0) throw new Error("no test ran");
console.log(`${count("pass")} passed, ${failed} failed${skipped ? `, ${skipped} skipped` : ""}`);
process.exitCode = status || failed ? 1 : 0;
