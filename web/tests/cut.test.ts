/** The cut through two configurations' differences: what it asks, and which of its areas are drawn. */
import assert from "node:assert/strict";
import { test } from "node:test";
import type { ChangedRegion } from "../src/model/diff";
import type { PictureOfChanges } from "../src/model/changes";
import type { Group } from "../src/model/plate";
import { cutArguments, ofGroup, withAxis } from "../src/views/comparison/cut";

const pair = { old: { folder: "config" }, now: { folder: "other" } } as const;
const witness = { name: "w", length: 80, width: 60, thickness: 20, weight: 5, color: 12, faceColors: [] };

test("The cut lies at the sizes of the example that it does not span", () => {
  const group: Group = { colors: [12], profile: true, wireCutting: false };
  const region = { witness, group } as unknown as ChangedRegion;
  assert.deepEqual(cutArguments(pair, region, { x: "weight", y: "length" }), [
    ...["picture", "changes", "config", "other", "--x", "weight", "--y", "length"],
    ...["--fixed", "width=60,thickness=20", "--body-color", "12", "--profile"],
  ]);
});

test("Where the tables disagree about faces, the answers are the new one's", () => {
  const group: Group = {
    ...{ colors: [12], oldProfile: true, oldWireCutting: false },
    ...{ newProfile: false, newWireCutting: true },
  };
  const args = cutArguments(pair, { witness, group } as unknown as ChangedRegion, {
    x: "length",
    y: "width",
  });
  assert.deepEqual(args.slice(-2), ["12", "--wire-cutting"]);
});

test("An axis that takes the other's size gives it its own", () => {
  assert.deepEqual(withAxis({ x: "length", y: "width" }, "x", "width"), { x: "width", y: "length" });
  assert.deepEqual(withAxis({ x: "length", y: "width" }, "y", "weight"), { x: "length", y: "weight" });
});

test("Of areas that lie over each other those of the group are drawn", () => {
  const group = (oldProfile: boolean): Group => ({
    ...{ colors: [12], oldProfile, oldWireCutting: false },
    ...{ newProfile: false, newWireCutting: false },
  });
  const area = (oldRow: number, of?: Group) => ({
    ...{ x: [0, 1], y: [0, 1], oldRow, newRow: null },
    ...(of && { group: of }),
  });
  const picture = { answersAgree: false, regions: [area(2, group(true)), area(3, group(false))] };
  const rows = (of: object) => ofGroup(of as PictureOfChanges, group(false)).map(({ oldRow }) => oldRow);
  assert.deepEqual(rows(picture), [3]);
  assert.deepEqual(rows({ answersAgree: true, regions: [area(2), area(3)] }), [2, 3]);
});
