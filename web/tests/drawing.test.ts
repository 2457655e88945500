/** Numbers, scales and colours of the pictures. */
import assert from "node:assert/strict";
import { describe, test } from "node:test";
import { exact, exactList, shown, shownRange, typed } from "../src/drawing/numbers";
import { colorAt, contrast, inkOn, kLinePalette, kPalette, lineColorAt } from "../src/drawing/palette";
import { sizeScale, zoomed } from "../src/drawing/scales";
import { movedBox, within, zoomedBox } from "../src/drawing/view_box";

describe("Numbers", () => {
  test("A shown number has three decimals at most, and no zeros behind them", () => {
    assert.equal(shown(450), "450");
    assert.equal(shown(46.69999999999999), "46.7");
    assert.equal(shown(12.3456), "12.346");
    assert.equal(shown(12.3456, 1), "12.3");
    assert.equal(shown(Infinity), "∞");
  });

  test("An upper end just below a number is not shown as that number", () => {
    assert.equal(shownRange([50, 99.99999999999999]), "50–99.999");
    assert.equal(shownRange([50, 100]), "50–100");
    assert.equal(shownRange([0, null]), "0–∞");
  });

  test("A typed number keeps its digits but not the noise of binary fractions", () => {
    assert.equal(typed(23.549999999999997), "23.55");
    assert.equal(typed(60.0005), "60.0005");
  });

  test("An exact number keeps every digit, so that a bound stays on its side", () => {
    assert.equal(exact(23.549999999999997), "23.549999999999997");
    assert.equal(exact(500.00100000000003), "500.00100000000003");
    assert.equal(exactList([6, 8.5]), "6_8.5");
    assert.equal(exactList([]), "");
  });
});

describe("Scales", () => {
  test("A linear scale puts both ends to their places, and what lies beyond to the edge", () => {
    const scale = sizeScale({ from: 0, to: 200 }, [100, 300], false);
    assert.deepEqual([scale(0), scale(100), scale(200), scale(500)], [100, 200, 300, 300]);
    assert.equal(scale.invert(250), 150);
  });

  test("A scale upwards counts the other way round", () => {
    const scale = sizeScale({ from: 0, to: 10 }, [500, 0], false);
    assert.deepEqual([scale(0), scale(10)], [500, 0]);
  });

  test("A logarithmic scale gives every factor of ten the same room", () => {
    const scale = sizeScale({ from: 1, to: 100 }, [0, 200], true);
    assert.ok(Math.abs(scale(10) - 100) < 1e-9);
    assert.ok(Math.abs(scale.invert(100) - 10) < 1e-9);
  });

  test("A logarithmic scale from 0 begins above it, and shows 0 at its edge", () => {
    const scale = sizeScale({ from: 0, to: 1000 }, [0, 300], true);
    assert.equal(scale.from, 1);
    assert.equal(scale(0), 0);
    assert.ok(scale(10) > scale(2));
  });

  test("A range without extent still has a scale", () => {
    const scale = sizeScale({ from: 5, to: 5 }, [0, 10], false);
    assert.ok(Number.isFinite(scale(5)));
  });

  test("Marks lie within the scale, and round numbers bear labels", () => {
    const scale = sizeScale({ from: 0, to: 1320 }, [0, 900], false);
    const marks = scale.marks(12);
    assert.ok(marks.length >= 8);
    assert.ok(marks.every(({ value }) => value >= 0 && value <= 1320));
    assert.deepEqual(
      marks.slice(0, 3).map(({ label }) => label),
      ["0", "100", "200"],
    );
  });

  test("Zooming keeps the place around which it zooms, and never leaves the picture", () => {
    const limits = { from: 0, to: 100 };
    const scale = (from: number, to: number) => sizeScale({ from, to }, [0, 400], false);
    assert.deepEqual(zoomed(scale(0, 100), 0.5, 20, limits), { from: 10, to: 60 });
    assert.deepEqual(zoomed(scale(10, 60), 4, 20, limits), { from: 0, to: 100 });
  });

  test("On a logarithmic scale zooming keeps the place too", () => {
    const scale = sizeScale({ from: 1, to: 10000 }, [0, 400], true);
    const { from, to } = zoomed(scale, 0.5, 100, scale);
    assert.deepEqual(
      [from, to].map((end) => Math.round(end)),
      [10, 1000],
    );
  });
});

describe("What is in sight", () => {
  const whole = { x: 0, y: 0, width: 400, height: 300 };

  test("Zooming in keeps the pointed place, and the shape of the picture", () => {
    assert.deepEqual(zoomedBox(whole, whole, 0.5, 100, 60), { x: 50, y: 30, width: 200, height: 150 });
  });

  test("Zooming out ends at the whole", () => {
    assert.deepEqual(zoomedBox({ x: 50, y: 30, width: 200, height: 150 }, whole, 10, 60, 60), whole);
  });

  test("Moving by a share goes to all four sides, and stops at the rim", () => {
    const box = { x: 100, y: 75, width: 200, height: 150 };
    const corner = (right: number, down: number) => {
      const { x, y } = movedBox(box, whole, right, down);
      return [x, y];
    };
    assert.deepEqual(corner(0.25, 0), [150, 75]);
    assert.deepEqual(corner(-0.25, 0), [50, 75]);
    assert.deepEqual(corner(0, 0.25), [100, 112.5]);
    assert.deepEqual(corner(0, -0.25), [100, 37.5]);
    assert.deepEqual(corner(9, -9), [200, 0]);
  });

  test("Moving stops at the rim", () => {
    const box = { x: -50, y: 290, width: 200, height: 150 };
    assert.deepEqual(within(box, whole), { x: 0, y: 150, width: 200, height: 150 });
  });
});

describe("Colours", () => {
  test("They cycle", () => {
    assert.equal(colorAt(0), colorAt(kPalette.length));
    assert.equal(colorAt(-1), kPalette.at(-1));
    assert.equal(lineColorAt(kLinePalette.length + 1), kLinePalette[1]);
  });

  test("Black and white have the greatest contrast", () => {
    assert.equal(Math.round(contrast("#000000", "#ffffff")), 21);
    assert.equal(contrast("#123456", "#123456"), 1);
  });

  test("Ink on every colour of areas, and every colour of lines on paper, can be read", () => {
    for (const color of kPalette) assert.ok(contrast(color, inkOn(color)) >= 4.5, color);
    for (const color of kLinePalette) assert.ok(contrast(color, "#ffffff") >= 4.5, color);
  });
});
