/** How a table is laid out on paper. */
import assert from "node:assert/strict";
import { describe, test } from "node:test";
import type { Finding } from "../src/model/check";
import type { TableCells } from "../src/model/cells";
import { bandsOf, paperLayout } from "../src/views/grid/paper";
import type { FindingsBySpot } from "../src/views/grid/places";

const kNothingWrong: FindingsBySpot = new Map();

function table(rows: readonly (readonly string[])[]): TableCells {
  return {
    ...{ file: "表.csv", form: "table", encoding: "gbk" },
    columns: Math.max(0, ...rows.map((cells) => cells.length)),
    rows: rows.map((cells, index) => ({ line: index + 1, cells })),
  };
}

/** So many rows and columns of one text. */
function filled(rows: number, columns: number, text: string): TableCells {
  return table(Array.from({ length: rows }, () => Array.from({ length: columns }, () => text)));
}

describe("Columns on paper", () => {
  test("As many stand beside each other as there is room for, and each has its place", () => {
    assert.deepEqual(bandsOf([40, 40, 20, 90, 10], 100), [
      { from: 0, to: 3 },
      { from: 3, to: 5 },
    ]);
  });

  test("A column that is wider than the paper has a band of its own", () => {
    assert.deepEqual(bandsOf([50, 300, 50], 100), [
      { from: 0, to: 1 },
      { from: 1, to: 2 },
      { from: 2, to: 3 },
    ]);
  });

  test("Without columns there is nothing to print", () => {
    assert.deepEqual(bandsOf([], 100), []);
    assert.deepEqual(paperLayout(table([]), kNothingWrong).bands, []);
  });

  test("A narrow table stands upright, a wide one lies", () => {
    assert.equal(paperLayout(filled(2, 10, "12"), kNothingWrong).isLandscape, false);
    assert.equal(paperLayout(filled(2, 40, "12"), kNothingWrong).isLandscape, true);
  });

  test("No band is wider than a lying A4 page within its margins, 273 mm", () => {
    const { widths, bands } = paperLayout(filled(3, 70, "锯床下料到数，留量0.5"), kNothingWrong);
    for (const { from, to } of bands) {
      const width = widths.slice(from, to).reduce((sum, each) => sum + each, 38);
      assert.ok(width <= (273 / 25.4) * 96, String(width));
    }
    assert.deepEqual(
      bands.flatMap(({ from, to }) => Array.from({ length: to - from }, (_, column) => from + column)),
      Array.from({ length: 70 }, (_, column) => column),
    );
  });

  test("A wrong cell has room for its mark and for what it is read as", () => {
    const cells = table([["列"], ["4O"]]);
    const wrong: FindingsBySpot = new Map([
      ["A2", [{ severity: "warning", usedAs: "自定义追加工艺" } as Finding]],
    ]);
    const [plain] = paperLayout(cells, kNothingWrong).widths;
    const [marked] = paperLayout(cells, wrong).widths;
    assert.ok((marked ?? 0) > 7 * 11 && (plain ?? 0) < 7 * 11, `${plain} and ${marked}`);
  });
});

describe("Rows on paper", () => {
  test("500 rows of 70 columns are printed whole", () => {
    assert.equal(paperLayout(filled(500, 70, ""), kNothingWrong).rows, 500);
  });

  test("Of a larger table the first rows are, as many as there are cells for", () => {
    assert.equal(paperLayout(filled(30, 5, ""), kNothingWrong, 100).rows, 20);
  });

  test("A header and a row are printed however wide they are", () => {
    assert.equal(paperLayout(filled(9, 50, ""), kNothingWrong, 10).rows, 2);
  });
});
