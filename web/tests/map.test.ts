/** The rule map: what it asks, where its areas lie, and what lies at a place. */
import assert from "node:assert/strict";
import { describe, test } from "node:test";
import type { Finding } from "../src/model/check";
import type { Region, RuleMapPicture } from "../src/model/pictures";
import { colorAt, kPalette } from "../src/drawing/palette";
import { rowColors } from "../src/views/map/colors";
import { hitAt } from "../src/views/map/hits";
import { pathOf, rectangleOf } from "../src/drawing/plane";
import { isReadable, kFrame, labelled, planeOf } from "../src/views/map/layout";
import { movedBy, movedByShare, zoomAround } from "../src/views/map/pointing";
import { kFirstQuestion, mapArguments, withAxis, withFixed } from "../src/views/map/question";
import { questionFor } from "../src/views/map/steps";

const region = (row: number, x: [number, number], y: [number, number], by?: number): Region => ({
  row,
  line: row,
  layer: "12",
  matches: [{ x, y }],
  wins: by === undefined ? [{ x, y }] : [],
  hidden: by === undefined ? [] : [{ x, y, by }],
  hiddenBy: by === undefined ? [] : [by],
  neighbours: [],
});

const kStraight = { x: false, y: false };

const story = {
  hull: [0, 100] as const,
  shown: [0, 110] as const,
  bounds: [],
  slider: { from: 1, to: 110, step: 1 },
};
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
    const question = questionFor(finding, kFirstQuestion);
    assert.deepEqual(question.fixed, { length: 80, width: 600, thickness: 200, weight: 500 });
    assert.deepEqual([question.bodyColor, question.profile, question.wireCutting], [12, true, false]);
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
    const plane = planeOf(picture, {}, kStraight);
    const box = rectangleOf({ x: [0, 1000], y: [0, 500] }, plane);
    assert.deepEqual(box, { x: 72, y: 34, width: 872, height: 556 });
  });

  test("A logarithmic axis begins a little below the rows", () => {
    const plane = planeOf(picture, {}, { x: true, y: false });
    assert.equal(plane.x.from, 70);
    assert.equal(plane.y.from, 0);
  });

  test("Labels go to the largest areas, and to none that is too small for them", () => {
    const plane = planeOf(picture, {}, kStraight);
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

describe("Areas as one path", () => {
  const plane = planeOf(picture, {}, kStraight);

  test("Each area is a rectangle of it", () => {
    // 872 units for 1000 mm across, 556 for 500 mm upwards.
    const areas = [
      { x: [0, 500], y: [0, 500] },
      { x: [500, 1000], y: [250, 500] },
    ] as const;
    assert.equal(pathOf(areas, plane), "M72 34h436v556h-436zM508 34h436v278h-436z");
  });

  test("What is out of sight is not drawn", () => {
    const zoomed = planeOf(picture, { x: { from: 600, to: 700 } }, kStraight);
    assert.equal(pathOf([{ x: [0, 500], y: [0, 500] }], zoomed), "");
  });

  test("Hidden parts are hatched while more is won than hidden", () => {
    assert.equal(isReadable(picture), true);
    const regions = [region(2, [0, 10], [0, 10]), region(3, [0, 10], [0, 10], 2)];
    assert.equal(isReadable({ ...picture, regions }), true);
    assert.equal(isReadable({ ...picture, regions: [...regions, region(4, [0, 5], [0, 5], 2)] }), false);
  });
});

describe("Moving a zoomed map", () => {
  /** What is in sight, in whole millimetres. */
  const sight = ({ x, y }: ReturnType<typeof movedBy>) =>
    [x?.from, x?.to, y?.from, y?.to].map((end) => Math.round(end ?? Number.NaN));
  const zoom = { x: { from: 400, to: 600 }, y: { from: 200, to: 300 } };
  const whole = planeOf(picture, {}, kStraight);
  const part = planeOf(picture, zoom, kStraight);

  test("It goes to all four sides", () => {
    // Half of the width is 100 mm, half of the height 50.
    assert.deepEqual(sight(movedByShare(part, whole, 0.5, 0)), [500, 700, 200, 300]);
    assert.deepEqual(sight(movedByShare(part, whole, -0.5, 0)), [300, 500, 200, 300]);
    assert.deepEqual(sight(movedByShare(part, whole, 0, 0.5)), [400, 600, 150, 250]);
    assert.deepEqual(sight(movedByShare(part, whole, 0, -0.5)), [400, 600, 250, 350]);
  });

  test("It stops at the edges of the picture, and shows as much as before", () => {
    assert.deepEqual(sight(movedByShare(part, whole, 9, -9)), [800, 1000, 400, 500]);
    assert.deepEqual(sight(movedByShare(part, whole, -9, 9)), [0, 200, 0, 100]);
  });

  test("A drag takes the picture along by what the mouse goes", () => {
    const [width, height] = [
      kFrame.width - kFrame.left - kFrame.right,
      kFrame.height - kFrame.top - kFrame.bottom,
    ];
    assert.deepEqual(sight(movedBy(part, whole, width / 4, height / 4)), [450, 650, 175, 275]);
  });

  const logs = { x: true, y: true };
  // From 10 to 1000: the hull begins at 100/7 and 50/7, of which a tenth of seven is the beginning.
  const far = {
    ...picture,
    hull: { ...picture.hull!, length: [100 / 7, 800], width: [50 / 7, 400] },
  } as const;
  const wholeLog = planeOf(far, {}, logs);
  const partLog = planeOf(far, { x: { from: 100, to: 200 }, y: { from: 50, to: 100 } }, logs);

  test("On a logarithmic axis a step is a factor, to all four sides", () => {
    assert.deepEqual(sight(movedByShare(partLog, wholeLog, 1, 0)), [200, 400, 50, 100]);
    assert.deepEqual(sight(movedByShare(partLog, wholeLog, -1, 0)), [50, 100, 50, 100]);
    assert.deepEqual(sight(movedByShare(partLog, wholeLog, 0, 1)), [100, 200, 25, 50]);
    assert.deepEqual(sight(movedByShare(partLog, wholeLog, 0, -1)), [100, 200, 100, 200]);
  });

  test("A logarithmic axis ends where the whole one does, above 0", () => {
    assert.deepEqual(sight(movedByShare(partLog, wholeLog, -99, 99)), [10, 20, 5, 10]);
    assert.deepEqual(sight(movedByShare(partLog, wholeLog, 99, -99)), [500, 1000, 250, 500]);
  });

  test("Zooming out ends at the whole, on both kinds of axis", () => {
    assert.deepEqual(sight(zoomAround(part, whole, { x: 500, y: 250 }, 1000)), [0, 1000, 0, 500]);
    assert.deepEqual(sight(zoomAround(partLog, wholeLog, { x: 150, y: 80 }, 1000)), [10, 1000, 5, 500]);
  });

  test("Around a place that is out of sight it zooms at the edge", () => {
    assert.deepEqual(sight(zoomAround(part, whole, { x: 100, y: 250 }, 0.5)), [400, 500, 225, 275]);
  });
});

describe("Colours of rows", () => {
  test("Neighbours never share one, whatever their numbers", () => {
    const rows = [
      region(7, [0, 10], [0, 10]),
      { ...region(14, [10.000001, 20], [0, 10]), neighbours: [7] },
      { ...region(21, [0, 20], [10, 20]), neighbours: [7, 14] },
    ];
    assert.equal(new Set(rowColors(rows).values()).size, 3);
  });

  test("A row apart keeps the colour of its number", () => {
    const alone = rowColors([region(9, [0, 10], [0, 10])]).get(9);
    const apart = rowColors([region(2, [100, 110], [0, 10]), region(9, [0, 10], [0, 10])]).get(9);
    assert.equal(alone, apart);
  });

  test("With more neighbours than colours it takes its own", () => {
    const rows = [...kPalette.keys()].map((row) => region(row, [0, 10], [0, 10]));
    const last = { ...region(8, [0, 10], [0, 10]), neighbours: rows.map(({ row }) => row) };
    assert.equal(rowColors([...rows, last]).get(8), colorAt(8));
  });
});
