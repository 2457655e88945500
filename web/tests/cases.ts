/** Command lines on the samples and on inputs that are broken in every way: what the module is compared on with the native program. */
import { readdir, readFile } from "node:fs/promises";
import { join } from "node:path";
import type { InputFile } from "../src/engine/engine";

export interface Case {
  readonly args: readonly string[];
  readonly files: readonly InputFile[];
  readonly variables?: Record<string, string>;
}

const samples = "../samples";
const corpus = "../fuzz/corpus";

export async function filesBelow(folder: string, as: string): Promise<InputFile[]> {
  const entries = await readdir(folder, { withFileTypes: true });
  const files = entries.map(async (entry): Promise<InputFile[]> => {
    const [from, to] = [join(folder, entry.name), `${as}/${entry.name}`];
    return entry.isDirectory()
      ? filesBelow(from, to)
      : [{ path: to, bytes: new Uint8Array(await readFile(from)) }];
  });
  return (await Promise.all(files)).flat();
}

/** A line of arguments; none of them holds a blank. */
const words = (line: string) => line.split(" ").filter((word) => word !== "");

/** The files that a command line names, by themselves or by a folder above them. */
function namedBy(args: readonly string[], files: readonly InputFile[]): InputFile[] {
  return files.filter(({ path }) => args.some((word) => path === word || path.startsWith(`${word}/`)));
}

/** Each line in both languages, and in the forms that are asked for. */
function everyWay(
  line: string,
  files: readonly InputFile[],
  forms: readonly string[] = ["text", "json"],
): Case[] {
  const given = namedBy(words(line), files);
  return forms.flatMap((form) =>
    ["zh", "en"].map((language) => ({
      args: [...words(line), "--lang", language, "--format", form],
      files: given,
    })),
  );
}

const all = ["text", "json", "csv"];

export async function sampleCases(): Promise<Case[]> {
  const page = {
    path: "page.html",
    bytes: new Uint8Array(await readFile("../tests/companion/report/stand_in.html")),
  };
  const files = [...(await filesBelow(samples, "samples")), page];
  const configurations = (await readdir(`${samples}/config`, { withFileTypes: true }))
    .filter((entry) => entry.isDirectory())
    .map((entry) => `samples/config/${entry.name}`);
  const ofOne = configurations.flatMap((config) => [
    ...everyWay(`check --config ${config} --plates samples/plates.csv --limit 0`, files),
    ...everyWay(`check --config ${config} --enable row-shared-bound,rows-mergeable`, files, ["sarif", "csv"]),
    ...everyWay(`process --config ${config} samples/plates.csv`, files, all),
    ...everyWay(`explain --config ${config} samples/plates.json`, files),
    ...everyWay(`show --config ${config}`, files, all),
    ...everyWay(`show --config ${config} --meanings process-rules`, files),
    ...everyWay(`process --config ${config} samples/plates.json -o out.csv`, files, ["csv"]),
    ...everyWay(`init ${config}`, files, ["text"]),
    ...everyWay(`picture map --config ${config} --x length --y width`, files, ["json"]),
    ...everyWay(`picture map --config ${config} --x thickness --y weight --profile`, files, ["json"]),
    ...files
      .filter(({ path }) => path.startsWith(config) && path.endsWith(".csv"))
      .flatMap(({ path }) => everyWay(`picture cells ${path}`, files, ["json"])),
    ...everyWay(`report --page page.html --config ${config} --plates samples/plates.csv`, files, ["text"]),
    ...everyWay(`report --page page.html --config ${config} --holes samples/holes.csv -o r.html`, files, [
      "text",
    ]),
    ...everyWay(
      `check --config ${config} --holes samples/holes.csv --hole-types samples/hole-types.csv`,
      files,
    ),
    ...configurations.flatMap((other) =>
      everyWay(`diff ${config} ${other} --plates samples/plates.csv`, files),
    ),
  ]);
  const others = [
    ...everyWay("holes --explain --types samples/hole-types.csv samples/holes.csv", files),
    ...everyWay("holes --types samples/hole-types.json samples/holes.json", files, all),
    ...everyWay("picture holes --types samples/hole-types.csv samples/holes.csv", files, ["json"]),
    ...everyWay("schema", files, ["text", "json", "markdown"]),
    ...everyWay("folder", files),
    ...["folder", "explain samples/plates.csv --plate 加长托板", "check", "show"].flatMap((line) =>
      everyWay(line, files).map((each) => ({ ...each, files, variables: { TQConfig: "samples" } })),
    ),
    ...["plates", "holes", "hole-types", "process-rules"].flatMap((role) =>
      everyWay(`template ${role}`, files, ["text"]),
    ),
  ];
  return [...ofOne, ...others, ...usageCases(files)];
}

/** Help, and command lines that are wrong. */
function usageCases(files: readonly InputFile[]): Case[] {
  const verbs = [
    "folder",
    "init",
    "check",
    "process",
    "explain",
    "diff",
    "holes",
    "show",
    "schema",
    "template",
    "picture",
    "report",
  ];
  const lines = [
    "",
    "help",
    "--help",
    "--version",
    "nothing",
    "chekc",
    "check --config nowhere",
    "check --config samples/plates.csv",
    "process nowhere.csv --config samples/config/标准",
    "process samples/plates.csv --config samples/config/标准 --no-such-option",
    "explain samples/plates.csv --config samples/config/标准 --plate 没有这块板",
    "show --config samples/config/标准 --format xml",
    "show no-such-role --config samples/config/标准",
    "process samples/plates.csv --config samples/config/标准 -o no/such/folder/out.csv",
    ...verbs,
    ...verbs.map((verb) => `help ${verb}`),
  ];
  return lines.flatMap((line) =>
    ["zh", "en"].map((language) => ({
      args: ["--lang", language, ...words(line)],
      files: namedBy(words(line), files),
    })),
  );
}

/** A sound configuration beside which one file is broken. */
const sound = "samples/config/标准";

/** What a broken input of a kind is tried with; it lies at `path`, or is every table of the folder `broken`. */
const linesOf: Record<string, (path: string) => string[]> = {
  check: () => ["check --config broken --enable row-shared-bound,rows-mergeable"],
  diff: () => [`diff ${sound} broken`, "diff broken broken"],
  holes: (path) => [
    `holes --types samples/hole-types.csv ${path}`,
    `holes --explain --types ${path} samples/holes.csv`,
  ],
  manifest: () => ["show --config manifest", "check --config manifest"],
  plates: (path) => [`process --config ${sound} ${path}`, `explain --config ${sound} ${path}`],
  rules: () => ["explain --config broken samples/plates.json", "check --config broken"],
  settings: () => ["show --config broken", "check --config broken"],
  table: () => ["check --config broken", "show --config broken"],
  tables: () => ["show --config broken", "explain --config broken samples/plates.csv"],
  texts: () => ["check --config broken", "show --config broken"],
};

/** The tables.json of a folder in which one file plays every role. */
async function oneTableForAll(): Promise<InputFile> {
  const roles = JSON.parse(await readFile(`${samples}/config/标准/tables.json`, "utf8")) as Record<
    string,
    unknown
  >;
  const same = Object.fromEntries(Object.keys(roles).map((role) => [role, "table.csv"]));
  return { path: "broken/tables.json", bytes: new TextEncoder().encode(JSON.stringify(same)) };
}

export async function brokenCases(): Promise<Case[]> {
  const files = await filesBelow(samples, "samples");
  const manifest = await oneTableForAll();
  const kinds = (await readdir(corpus)).sort();
  const cases = kinds.map(async (kind) => {
    const lines = linesOf[kind];
    if (!lines) throw new Error(`nobody says how ${kind} is tried`);
    const inputs = await filesBelow(`${corpus}/${kind}`, "given");
    return inputs.flatMap(({ path, bytes }) => {
      const given = [
        ...files,
        manifest,
        { path, bytes },
        { path: "broken/table.csv", bytes },
        { path: "manifest/tables.json", bytes },
      ];
      return lines(path).flatMap((line) => everyWay(line, given));
    });
  });
  return (await Promise.all(cases)).flat();
}
