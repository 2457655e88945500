/** The plate that is tried: as a form, as a file that the program reads, and what would have to change. */
import assert from "node:assert/strict";
import { describe, test } from "node:test";
import type { ExplainedPlate } from "../src/model/explain";
import type { Plate } from "../src/model/plate";
import { changesOf } from "../src/views/plate/changes";
import {
  askedBy,
  formOf,
  kTriedFile,
  type PlateForm,
  pieces,
  toggled,
  triedPlate,
  withFeature,
  withField,
  withMembers,
  withOrdered,
  withoutFeatures,
} from "../src/views/plate/form";
import { columnIndex, remarksOf } from "../src/views/plate/remarks";
import { readdirSync, readFileSync } from "node:fs";
import { NativeEngine } from "./native_engine";

/** A sample configuration as the page holds it. */
const sampleFolder = (name: string) =>
  readdirSync(`../samples/config/${name}`).map((file) => ({
    path: `config/${file}`,
    bytes: new Uint8Array(readFileSync(`../samples/config/${name}/${file}`)),
  }));

const plate: Plate = {
  name: "A板",
  length: 450,
  width: 400,
  thickness: 90,
  weight: 127.2,
  layer: 12,
  color: 12,
  faceColors: [36, 78],
  features: { 有无圆孔: true, 有无通槽: false, 圆孔颜色: [36, 6], 孔数量: 9 },
  customProcesses: ["下料"],
};

const text = (form: Parameters<typeof triedPlate>[0]) =>
  new TextDecoder().decode(triedPlate(form).file.bytes);

describe("The form of a plate", () => {
  test("It holds what the plate has, as a cell would", () => {
    const form = formOf(plate);
    assert.equal(form.fields.weight, "127.2");
    assert.equal(form.fields.faceColors, "36_78");
    assert.deepEqual(form.features, { 有无圆孔: true, 有无通槽: false, 圆孔颜色: "36_6", 孔数量: "9" });
    assert.deepEqual(form.ordered, ["下料"]);
  });

  test("What the rules ask for is told apart by what its values are", () => {
    assert.deepEqual(askedBy(plate), {
      ticked: ["有无圆孔", "有无通槽"],
      typed: ["圆孔颜色", "孔数量"],
      ordered: ["下料"],
    });
  });

  test("Fields, features and orders change one by one, and features go away together", () => {
    const form = withOrdered(
      withFeature(withField(formOf(plate), "length", "45o"), "孔数量", "3"),
      "下料",
      false,
    );
    assert.equal(form.fields.length, "45o");
    assert.equal(form.features["孔数量"], "3");
    assert.deepEqual(form.ordered, []);
    assert.deepEqual(withoutFeatures(form).features, {});
    assert.equal(withoutFeatures(form).fields.length, "45o");
  });

  test("A colour is put into a list, or taken out of it", () => {
    assert.equal(toggled("36_78", "103"), "36_78_103");
    assert.equal(toggled("36_78", "36"), "78");
    assert.equal(toggled("", "36"), "36");
    assert.deepEqual(pieces("36__78"), ["36", "78"]);
  });
});

describe("The file of the tried plate", () => {
  test("It has a column for each field, feature and order, and quotes doubled", () => {
    const form = withField(formOf(plate), "name", 'A"板, 新');
    const [header, row] = text(form).split("\r\n");
    assert.equal(
      header,
      '"名称","长度","宽度","厚度","重量","体颜色","图层","面颜色","有无圆孔","有无通槽","圆孔颜色","孔数量","下料"',
    );
    assert.equal(row, '"A""板, 新","450","400","90","127.2","12","12","36_78","Y","","36_6","9","Y"');
  });

  test("A message names the column that it is about as spreadsheets do", () => {
    assert.equal(columnIndex("A"), 0);
    assert.equal(columnIndex("Z"), 25);
    assert.equal(columnIndex("AA"), 26);
  });

  test("Messages are put to their fields; those of tables are left to the check", () => {
    const messages = [
      'tried.csv:2:4: error: B2: "45o" is not a number',
      "tried.csv:2:30: 提示: I2: 有无圆孔与圆孔颜色矛盾",
      "tried.csv: warning: no plate was read from this file",
      "config/规则.csv:3:1: warning: A3: something",
    ].join("\n");
    const remarks = remarksOf(messages, triedPlate(formOf(plate)));
    assert.deepEqual(
      [...remarks.at],
      [
        ["length", '"45o" is not a number'],
        ["有无圆孔", "有无圆孔与圆孔颜色矛盾"],
      ],
    );
    assert.deepEqual(remarks.others, ["no plate was read from this file"]);
  });

  test("The program reads its own example back, and names the field that is wrong", async () => {
    const engine = new NativeEngine();
    const common = ["--config", "config", "--format", "json"];
    const folder = sampleFolder("标准");
    const [example] = JSON.parse((await engine.run(["template", "plates", ...common], folder)).out) as [
      Plate,
    ];
    const ask = (form: PlateForm) => {
      const tried = triedPlate(form);
      const args = ["explain", ...common, kTriedFile];
      return engine.run(args, [...folder, tried.file]).then((run) => ({ run, tried }));
    };

    const { run } = await ask(formOf(example));
    const [explained] = JSON.parse(run.out) as [ExplainedPlate];
    const faceColors = [...example.faceColors].sort((one, other) => one - other);
    assert.deepEqual(explained.plate, { ...example, faceColors });
    assert.equal(explained.line, 2);
    assert.equal(explained.status, "written");

    const wrong = await ask(withFeature(withField(formOf(example), "width", "2oo"), "圆孔直径", "3_x"));
    assert.deepEqual(JSON.parse(wrong.run.out), []);
    const remarks = remarksOf(wrong.run.err, wrong.tried);
    assert.deepEqual([...remarks.at.keys()], ["width", "圆孔直径"]);
    assert.match(remarks.at.get("width") ?? "", /^"2oo" is not a number/);
  });
});

describe("What would have to change", () => {
  const members = { length: 440.00000000000006, weight: 0, color: 42, faceColors: [36, 103] };

  test("Each thing to do is one entry, with the numbers exactly as the program gave them", () => {
    assert.deepEqual(changesOf(plate, members), [
      { kind: "size", size: "length", from: "450", to: "440.00000000000006" },
      { kind: "size", size: "weight", from: "127.2", to: "0" },
      { kind: "body", from: "12", to: "42" },
      { kind: "dropFaces", colors: "78" },
      { kind: "addFaces", colors: "103" },
    ]);
    assert.deepEqual(changesOf(plate, { width: 300 }), [
      { kind: "size", size: "width", from: "400", to: "300" },
    ]);
  });

  test("They are made in the form, all of them and nothing else", () => {
    const before = formOf(plate);
    const { fields } = withMembers(before, members);
    assert.deepEqual(fields, {
      ...before.fields,
      length: "440.00000000000006",
      weight: "0",
      color: "42",
      faceColors: "36_103",
    });
    assert.equal(withMembers(before, { faceColors: [] }).fields.faceColors, "");
    assert.deepEqual(withMembers(before, {}), before);
  });

  test("A plate that the form holds is the very one that the program gave", async () => {
    const odd: Plate = { ...plate, length: 500.00100000000003, weight: 1e21, width: 5e-324, features: {} };
    const engine = new NativeEngine();
    const tried = triedPlate({ ...formOf(odd), ordered: [] });
    const args = ["explain", "--config", "config", "--format", "json", kTriedFile];
    const run = await engine.run(args, [...sampleFolder("标准"), tried.file]);
    const [explained] = JSON.parse(run.out) as [ExplainedPlate];
    assert.equal(explained.plate.length, odd.length);
    assert.equal(explained.plate.weight, odd.weight);
    assert.equal(explained.plate.width, odd.width);
  });

  test("Whatever row is chosen, what the form then holds gets the row that was told", async () => {
    const engine = new NativeEngine();
    const args = ["explain", "--config", "config", "--format", "json", kTriedFile];
    const explain = async (form: PlateForm) => {
      const tried = triedPlate(form);
      const run = await engine.run(args, [...sampleFolder("标准"), tried.file]);
      return (JSON.parse(run.out) as [ExplainedPlate])[0];
    };
    const form = { ...formOf({ ...plate, length: 9000, features: {} }), ordered: [] };
    const { refusedRows } = await explain(form);
    assert.ok(refusedRows.length > 20);
    for (const { change } of refusedRows.filter((_, index) => index % 5 === 0)) {
      if (change === null) continue;
      assert.equal((await explain(withMembers(form, change.plate))).line, change.line);
    }
  });
});
