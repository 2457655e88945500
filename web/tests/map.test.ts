/** The rule map: what it asks, where its areas lie, and what lies at a place. */
import assert from "node:assert/strict";
import { describe, test } from "node:test";
import type { Finding } from "../src/model/check";
import type { Region, RuleMapPicture } from "../src/model/pictures";
import { rowColors } from "../src/views/map/colors";
import { hitAt } from "../src/views/map/hits";
import { labelled, planeOf, rectangleOf } from "../src/views/map/layout";
import { kFirstQuestion, mapArguments, withAxis, withFixed } from "../src/views/map/question";
import { questionFor } from "../src/views/map/steps";

const region = (row: number, x: [number, number], y: [number, number], by?: number): Region => ({
  row,
  line: row,
  layer: "12",
  matches: [{ x, y }],
  wins: by === undefined ? [{ x, y }] : [],
  hidden: by === undefined ? [] : [{ x, y, by }],
});

const story = { hull: [0, 100] as const, shown: [0, 110] as const, bounds: [] };
const picture: RuleMapPicture = {
  x: { size: "length", from: 0, to: 1000 },
  y: { size: "width", from: 0, to: 500 },
  plate: { bodyColor: 12, profile: false, wireCutting: false },
  fixed: { thickness: 30, weight: 8 },
  possible: true,
  group: { colors: [12], profile: false, wireCutting: false },
  choices: { colors: [], answers: [] },
  sizes: { length: story, width: story, thickness: story, weight: story },
  hull: { length: [100, 800], width: [50, 400], thickness: [0, null], weight: [0, null] },
  regions: [
    region(2, [100, 500], [50, 400]),
    region(3, [500.0000001, 800], [50, 300]),
    region(4, [200, 300], [100, 200], 2),
  ],
  gaps: [{ x: [500.0000001, 800], y: [300.0000001, 400] }],
  complete: true,
};

describe("What is asked", () => {
  test("First a plane of two sizes, and nothing that the program can choose better", () => {
    assert.deepEqual(mapArguments(kFirstQuestion), ["--x", "length", "--y", "width"]);
  });

  test("Fixed sizes of the axes are not told", () => {
    const question = { ...kFirstQuestion, fixed: { length: 5, thickness: 30, weight: 2.5 } };
    assert.deepEqual(mapArguments({ ...question, bodyColor: 42, profile: true, wireCutting: true }), [
      ...["--x", "length", "--y", "width", "--fixed", "thickness=30,weight=2.5"],
      ...["--body-color", "42", "--profile", "--wire-cutting"],
    ]);
  });

  test("An axis that takes the other's size gives it its own", () => {
    const { x, y } = withAxis(kFirstQuestion, "x", "width", undefined);
    assert.deepEqual([x, y], ["width", "length"]);
  });

  test("A new axis keeps what was fixed, also by the program", () => {
    const { fixed } = withAxis(withFixed(kFirstQuestion, "weight", 5), "x", "thickness", picture);
    assert.deepEqual(fixed, { thickness: 30, weight: 5 });
  });

  test("The step to a gap asks for the picture in which its example lies", () => {
    const witness = {
      name: "w",
      length: 80,
      width: 600,
      thickness: 200,
      weight: 500,
      color: 12,
      faceColors: [108],
    };
    const finding = {
      witness,
      group: { colors: [12], profile: true, wireCutting: false },
    } as unknown as Finding;
    const question = questionFor(finding, kFirstQuestion, []);
    assert.deepEqual(question.fixed, { length: 80, width: 600, thickness: 200, weight: 500 });
    assert.deepEqual([question.bodyColor, question.profile, question.wireCutting], [12, true, false]);
  });

  test("The step to a row without a group takes the answers from the example's faces", () => {
    const witness = {
      name: "w",
      length: 80,
      width: 600,
      thickness: 200,
      weight: 500,
      color: 12,
      faceColors: [103],
    };
    const parameter = (column: string, value: number[]) => ({
      ...{ role: "process-rules", file: null, unit: "colour index", source: "table" as const, help: "" },
      ...{ column, value },
    });
    const parameters = [parameter("有线割", [103, 181]), parameter("有型面", [108])];
    const question = questionFor({ witness } as unknown as Finding, kFirstQuestion, parameters);
    assert.deepEqual([question.profile, question.wireCutting], [false, true]);
  });
});

describe("What lies where", () => {
  test("A place has the row that wins, and those that accept it too", () => {
    const hit = hitAt(picture, { x: 250, y: 150 });
    assert.equal(hit.winner?.row, 2);
    assert.deepEqual(
      hit.hidden.map(({ row }) => row),
      [4],
    );
    assert.equal(hit.isGap, false);
  });

  test("Ends belong to their areas", () => {
    assert.equal(hitAt(picture, { x: 500, y: 400 }).winner?.row, 2);
    assert.equal(hitAt(picture, { x: 800, y: 50 }).winner?.row, 3);
  });

  test("A gap is one, and beyond the rows there is nothing", () => {
    assert.deepEqual(hitAt(picture, { x: 600, y: 350 }), { winner: undefined, hidden: [], isGap: true });
    assert.deepEqual(hitAt(picture, { x: 900, y: 350 }), { winner: undefined, hidden: [], isGap: false });
  });

  test("An area is drawn with its upper end above", () => {
    const plane = planeOf(picture, {}, false, false);
    const box = rectangleOf({ x: [0, 1000], y: [0, 500] }, plane);
    assert.deepEqual(box, { x: 72, y: 34, width: 872, height: 556 });
  });

  test("A logarithmic axis begins a little below the rows", () => {
    const plane = planeOf(picture, {}, true, false);
    assert.equal(plane.x.from, 70);
    assert.equal(plane.y.from, 0);
  });

  test("Labels go to the largest areas, and to none that is too small for them", () => {
    const plane = planeOf(picture, {}, false, false);
    const areas = [
      { x: [0, 10], y: [0, 500] },
      { x: [0, 100], y: [0, 100] },
      { x: [0, 500], y: [0, 500] },
    ] as const;
    assert.deepEqual(
      labelled(areas, plane).map(({ width }) => Math.round(width)),
      [436, 87],
    );
  });
});

describe("Colours of rows", () => {
  test("Neighbours never share one, whatever their numbers", () => {
    const rows = [
      region(7, [0, 10], [0, 10]),
      region(14, [10.000001, 20], [0, 10]),
      region(21, [0, 20], [10, 20]),
    ];
    const colors = rowColors(rows);
    assert.equal(new Set(colors.values()).size, 3);
  });

  test("A row apart keeps the colour of its number", () => {
    const alone = rowColors([region(9, [0, 10], [0, 10])]).get(9);
    const apart = rowColors([region(2, [100, 110], [0, 10]), region(9, [0, 10], [0, 10])]).get(9);
    assert.equal(alone, apart);
  });
});
