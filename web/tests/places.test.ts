/** Names of cells, the keys of the grid, and where two texts differ. */
import assert from "node:assert/strict";
import { test } from "node:test";
import type { TableCells } from "../src/model/cells";
import { differences } from "../src/views/comparison/text_difference";
import { spotAfterKey } from "../src/views/grid/grid_keys";
import { letters, nameOfSpot, spotIn, spotOf } from "../src/views/grid/places";

test("Columns have the letters of a spreadsheet", () => {
  assert.deepEqual([1, 26, 27, 52, 53, 702, 703].map(letters), ["A", "Z", "AA", "AZ", "BA", "ZZ", "AAA"]);
});

test("A cell's name and its row and column lead to each other", () => {
  assert.deepEqual(spotOf("AA17"), { row: 17, column: 27 });
  assert.deepEqual(spotOf("17"), { row: 17, column: 0 });
  assert.equal(spotOf("17A"), undefined);
  assert.equal(nameOfSpot({ row: 17, column: 27 }), "AA17");
});

/** The second row holds a line break, so that rows and lines part behind it. */
const cells: TableCells = {
  file: "规则.csv",
  form: "table",
  encoding: "gbk",
  columns: 1,
  rows: [
    { line: 1, cells: ["下料"] },
    { line: 2, cells: ["锯床,\n下料"] },
    { line: 4, cells: ["线割"] },
  ],
};

test("A line of the file leads to the row that holds it", () => {
  const rows = ["@1", "@2", "@3", "@4", "@9"].map((place) => spotIn(cells, place)?.row);
  assert.deepEqual(rows, [1, 2, 2, 3, 3]);
  assert.deepEqual(spotIn(cells, "A3"), { row: 3, column: 1 });
});

test("Keys do not lead out of the grid, and keys with Alt are the browser's", () => {
  const size = { rows: 10, columns: 5, page: 4 };
  const after = (key: string, more: object = {}) =>
    spotAfterKey({ key, ...more } as KeyboardEvent, { row: 2, column: 3 }, size);
  assert.deepEqual(after("PageUp"), { row: 1, column: 3 });
  assert.deepEqual(after("PageDown"), { row: 6, column: 3 });
  assert.deepEqual(after("End", { ctrlKey: true }), { row: 10, column: 5 });
  assert.equal(after("ArrowLeft", { altKey: true }), undefined);
  assert.equal(after("a"), undefined);
});

const marked = (pieces: ReturnType<typeof differences>[number]) =>
  pieces.map(({ text, isSame }) => (isSame ? text : `[${text}]`)).join("");

test("Numbers differ as a whole, Chinese texts by their characters", () => {
  const [old, now] = differences("公差±0.05mm", "公差±0.02mm");
  assert.equal(marked(old), "公差±[0.05]mm");
  assert.equal(marked(now), "公差±[0.02]mm");
  const [longer, shorter] = differences("锯床下料→去应力→精铣", "锯床下料→精铣");
  assert.equal(marked(longer), "锯床下料→[去应力→]精铣");
  assert.equal(marked(shorter), "锯床下料→精铣");
});
