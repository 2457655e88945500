/** The module says byte for byte what the native program says: output, messages, exit code, and the files that a run writes. */
import assert from "node:assert/strict";
import { mkdir, mkdtemp, rm } from "node:fs/promises";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { after, before, test } from "node:test";
import type { InputFile } from "../src/engine/engine";
import { type Case, brokenCases, sampleCases, takesAllRuns } from "./cases";
import { runNative, writeBelow, writtenBelow } from "./native_engine";
import { runModule } from "./wasm_engine";

let folder = "";
before(async () => {
  folder = await mkdtemp(join(tmpdir(), "plateconfig-same-"));
});
after(() => rm(folder, { recursive: true, force: true }));

let sumOfBytes = 0;

/** Paths with the bytes, to be compared; in the order of their names. */
function asTexts(files: readonly InputFile[]): readonly (readonly [string, string])[] {
  return files
    .map(({ path, bytes }) => [path, Buffer.from(bytes).toString("latin1")] as const)
    .sort(([one], [two]) => (one < two ? -1 : 1));
}

/**
 * Both run in a folder of the same name, since messages may tell it; so deep that no broken path leads to a file of this machine.
 */
async function compare({ args, files, variables = {}, isWrong = true }: Case): Promise<number> {
  const here = join(folder, "as/deep/as/a/folder/can/be");
  await rm(here, { recursive: true, force: true });
  await mkdir(here, { recursive: true });
  await writeBelow(here, files);
  const native = await runNative(args, here, variables);
  // A run may write over a file's bytes; each gets its own.
  const own = files.map(({ path, bytes }) => ({ path, bytes: bytes.slice() }));
  const module = await runModule(args, own, { folder: here, variables });
  const told = args.join(" ");
  assert.equal(module.code, native.code, told);
  assert.equal(Buffer.from(module.err).toString("latin1"), native.err.toString("latin1"), told);
  assert.equal(Buffer.from(module.out).toString("latin1"), native.out.toString("latin1"), told);
  assert.deepEqual(asTexts(module.written), asTexts(await writtenBelow(here, files)), `files of ${told}`);
  if (!isWrong) assert.notEqual(native.code, 2, `${told}: ${native.err.toString()}`);
  sumOfBytes += native.out.length + native.err.length;
  return native.code;
}

async function compareAll(cases: readonly Case[]): Promise<void> {
  const codes = new Map<number, number>();
  for (const each of cases) {
    const code = await compare(each);
    codes.set(code, (codes.get(code) ?? 0) + 1);
  }
  const ends = [...codes].sort().map(([code, count]) => `${count} with ${code}`);
  console.log(`${cases.length} runs are the same: ${ends.join(", ")}; ${sumOfBytes} bytes so far`);
}

test("Every verb says the same of the samples, natively and in the page", async () => {
  const cases = await sampleCases();
  assert.ok(cases.length > 200);
  await compareAll(cases);
});

test("Every verb says the same of broken inputs, natively and in the page", async () => {
  const cases = await brokenCases();
  assert.ok(cases.length > (takesAllRuns ? 4000 : 1000));
  await compareAll(cases);
});
