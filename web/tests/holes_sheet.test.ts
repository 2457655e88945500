/** Hole sections and sheets as they are drawn. */
import assert from "node:assert/strict";
import { describe, test } from "node:test";
import type { HoleSection, SheetPart, UnknownPlace } from "../src/model/pictures";
import { apart } from "../src/views/holes/section";
import { stackOf } from "../src/views/holes/stack";
import { kPapers, landscape, portrait } from "../src/views/sheet/paper";
import { differing, differingPlaces } from "../src/views/sheet/sameness";
import { boxOf } from "../src/views/sheet/shapes";
import { reduction, specimenText } from "../src/views/sheet/specimen";
import { sayIn } from "../src/words/say";

const segment = (diameter: number, height: number | null) => ({
  ...{ group: "top" as const, shape: "cylinder", from: null, to: null, rHeight: null, color: 36 },
  ...{ diameter, height },
});

const hole = (...segments: HoleSection["segments"]): HoleSection => ({
  ...{
    name: "孔",
    structure: "2_0_0",
    through: null,
    length: null,
    origin: [0, 0, 0],
    tied: false,
    types: [],
  },
  maxDiameter: Math.max(...segments.map(({ diameter }) => diameter)),
  segments,
});

describe("A hole in section", () => {
  test("It fits into its room with one scale for both directions", () => {
    const { scale, segments, height } = stackOf(hole(segment(20, 13), segment(14, 77)), 200, 450);
    assert.equal(scale, 5);
    assert.equal(height, 450);
    assert.deepEqual(
      segments.map(({ top, bottom, radius }) => [top, bottom, radius]),
      [
        [0, 65, 50],
        [65, 450, 35],
      ],
    );
  });

  test("A wide hole is limited by its diameter", () => {
    assert.equal(stackOf(hole(segment(100, 10)), 200, 450).scale, 2);
  });

  test("A segment without a height has a place, and is known to be not to scale", () => {
    const { segments } = stackOf(hole(segment(10, null), segment(8, 20)), 100, 260);
    assert.deepEqual(
      segments.map(({ top, bottom, isToScale }) => [top, bottom, isToScale]),
      [
        [0, 60, false],
        [60, 260, true],
      ],
    );
  });

  test("Labels are pushed apart, and stay within the picture", () => {
    assert.deepEqual(apart([10, 12, 80], 17, 100), [10, 27, 80]);
    assert.deepEqual(apart([90, 95], 17, 100), [83, 100]);
  });
});

describe("A sheet", () => {
  const look = { color: 1, layer: 1, label: { zh: "图框", en: "frame" }, assumes: [], keys: [] };
  const frame: SheetPart = { kind: "rectangle", x: 0, y: 0, width: 420, height: 297, ...look };
  const corner: SheetPart = { kind: "point", x: 117.6, y: 200, ...look };

  test("Papers are told as the program takes them", () => {
    assert.equal(landscape(kPapers[1]!), "420x297");
    assert.equal(portrait(kPapers[0]!), "210x297");
  });

  test("Upwards on the sheet is upwards in the picture", () => {
    assert.deepEqual(boxOf(corner, 297), { x: 117.6, y: 97, width: 0, height: 0 });
    assert.deepEqual(boxOf(frame, 297), { x: 0, y: 0, width: 420, height: 297 });
  });

  test("A part differs when it is seen in another way, not when another cell says the same", () => {
    const elsewhere = {
      ...frame,
      keys: [{ role: "a", column: "b", file: "c", cell: "D2", value: 1, source: "table" }],
    };
    const moved = { ...corner, x: 120 };
    assert.deepEqual([...differing([frame, corner], [elsewhere, moved])], [corner]);
    assert.equal(differing([frame, corner], undefined).size, 0);
  });

  const words = { zh: "基准圆", en: "datum circle" };
  const key = { role: "a", column: "基准圆的标准直径", file: "c", cell: "D2", value: "10", source: "table" };
  const circle: UnknownPlace = {
    what: words,
    why: words,
    specimen: { kind: "circle", diameter: 10, color: 1, layer: 210 },
    keys: [key],
  };

  test("What has no place differs by its settings, wherever they stand", () => {
    const elsewhere = { ...circle, keys: [{ ...key, file: "d", cell: "E2" }] };
    const other = { ...circle, keys: [{ ...key, value: "12" }] };
    assert.equal(differingPlaces([circle], [elsewhere]).size, 0);
    assert.deepEqual([...differingPlaces([circle], [other])], [circle]);
    assert.equal(differingPlaces([circle], undefined).size, 0);
  });

  test("What has no room is drawn at a scale of drawings, and its size and scale are told", () => {
    assert.deepEqual([10, 70, 70.5, 336, 5000, 70_000].map(reduction), [1, 1, 2, 5, 100, 1000]);
    const en = sayIn("en");
    const text = (specimen: UnknownPlace["specimen"]) => specimenText({ ...circle, specimen }, en);
    assert.equal(text(circle.specimen), "⌀10 · colour 1 · layer 210");
    const look = { color: null, layer: null };
    assert.equal(text({ kind: "rectangle", width: 336, height: 237.6, ...look }), "336 x 237.6 mm · 1:5");
    assert.equal(text({ kind: "length", length: 5000, ...look }), "5000 mm");
    assert.equal(text(null), "");
  });
});
