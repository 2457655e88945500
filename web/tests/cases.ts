/** Command lines on the samples and on inputs that are broken in every way: what the module is compared on with the native program. */
import { readdir, readFile } from "node:fs/promises";
import { join } from "node:path";
import type { InputFile } from "../src/engine/engine";

export interface Case {
  readonly args: readonly string[];
  readonly files: readonly InputFile[];
  readonly variables?: Record<string, string>;
  /** Whether the command line or what it reads is wrong to begin with; all others end with 0 or 1. */
  readonly isWrong?: boolean;
}

const samples = "../samples";
/** The sample that is wrong in every way. */
const mistakes = "samples/config/带错误";
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
      // What is written then does not depend on the time.
      ...(line.startsWith("report") && { variables: { SOURCE_DATE_EPOCH: "951827696" } }),
    })),
  );
}

/** A configuration's tables without its manifest, in the folder `bare`. */
function bareFolder(config: string, files: readonly InputFile[]): InputFile[] {
  return files
    .filter(({ path }) => path.startsWith(`${config}/`) && path.endsWith(".csv"))
    .map(({ path, bytes }) => ({ path: path.replace(config, "bare"), bytes }));
}

const all = ["text", "json", "csv"];

/** A small page for `report` to fill. */
async function standInPage(): Promise<InputFile> {
  const bytes = new Uint8Array(await readFile("../tests/companion/report/stand_in.html"));
  return { path: "page.html", bytes };
}

export async function sampleCases(): Promise<Case[]> {
  const files = [...(await filesBelow(samples, "samples")), await standInPage()];
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
    ...everyWay("init bare", bareFolder(config, files)),
    ...everyWay(`init ${config}`, files).map((each) => ({ ...each, isWrong: true })),
    ...everyWay(`template plates --config ${config}`, files, ["csv", "json"]),
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
      `check --config ${config} --plates samples/plates.json --types samples/hole-types.csv`,
      files,
    ),
    ...everyWay(`picture sheet --config ${config}`, files, ["json"]),
    ...everyWay(`picture sheet --config ${config} --size small --paper 297x420`, files, ["json"]),
    ...configurations.flatMap((other) => [
      ...everyWay(`diff ${config} ${other} --plates samples/plates.csv`, files),
      ...everyWay(`picture changes ${config} ${other} --x length --y width`, files, ["json"]),
    ]),
  ]);
  const others = [
    ...everyWay("holes --explain --types samples/hole-types.csv samples/holes.csv", files),
    ...everyWay("holes --types samples/hole-types.json samples/holes.json", files, all),
    ...everyWay("picture holes --types samples/hole-types.csv samples/holes.csv", files, ["json"]),
    ...everyWay("schema", files, ["text", "json", "markdown"]),
    ...everyWay("folder", files).map((each) => ({ ...each, isWrong: true })), // Without TQConfig.
    ...["folder", "explain samples/plates.csv --plate 加长托板", "check", "show"].flatMap((line) =>
      everyWay(line, files).map((each) => ({ ...each, files, variables: { TQConfig: "samples" } })),
    ),
    ...["holes", "hole-types", "process-rules"].flatMap((role) =>
      everyWay(`template ${role}`, files, ["csv"]),
    ),
  ];
  const codes = ["row-shadowed", "text-blank"].flatMap((code) => everyWay(`check --explain ${code}`, files));
  const sampleCases = [...ofOne, ...others, ...codes].map((each) => ({
    ...each,
    isWrong: (each.isWrong ?? false) || each.args.includes(mistakes),
  }));
  return [...sampleCases, ...usageCases(files)];
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
      isWrong: true,
    })),
  );
}

/** A sound configuration beside which one file is broken. */
const sound = "samples/config/标准";

/** A command line, and the forms in which it can answer. */
type Line = string | readonly [line: string, ...forms: string[]];

/** Everything that reads the tables of the folder `broken`. */
const ofTables: readonly Line[] = [
  "check --config broken --enable row-shared-bound,rows-mergeable",
  "show --config broken",
  "explain --config broken samples/plates.csv",
  `diff ${sound} broken`,
  "init bare",
  ["template plates --config broken", "csv"],
  ["picture map --config broken --x length --y width", "json"],
  ["picture sheet --config broken", "json"],
  [`picture changes ${sound} broken --x length --y width`, "json"],
  ["picture cells broken/table.csv", "json"],
  ["report --page page.html --config broken --plates samples/plates.csv", "text"],
];

/** Everything that takes files beside the tables. */
const ofPlates = (path: string): readonly Line[] => [
  `process --config ${sound} ${path}`,
  `explain --config ${sound} ${path}`,
  `check --config ${sound} --plates ${path}`,
  [`report --page page.html --config ${sound} --plates ${path}`, "text"],
];
const ofHoles = (path: string): readonly Line[] => [
  `holes --types samples/hole-types.csv ${path}`,
  `holes --explain --types ${path} samples/holes.csv`,
  `check --config ${sound} --types ${path}`,
  [`picture holes --types samples/hole-types.csv ${path}`, "json"],
  [`picture holes --types ${path} samples/holes.csv`, "json"],
];
const ofManifest: readonly Line[] = [
  "show --config manifest",
  "check --config manifest",
  "init manifest",
  ["report --page page.html --config manifest", "text"],
];

/** What a broken input is tried with: it lies at `path`, is every table of the folder `broken`, and a manifest in `manifest`. */
function linesOf(kind: string, path: string): readonly Line[] {
  if (kind === "holes") return ofHoles(path);
  if (kind === "manifest") return ofManifest;
  if (kind === "plates") return ofPlates(path);
  return ofTables;
}

/** The tables.json of a folder in which one file plays every role. */
async function oneTableForAll(): Promise<InputFile> {
  const roles = JSON.parse(await readFile(`${samples}/config/标准/tables.json`, "utf8")) as Record<
    string,
    unknown
  >;
  const same = Object.fromEntries(Object.keys(roles).map((role) => [role, "table.csv"]));
  return { path: "broken/tables.json", bytes: new TextEncoder().encode(JSON.stringify(same)) };
}

/** The index of configurations, as `folder` finds it. */
const index = "root/config/standard.csv";

/** `folder`, and a check without --config, on a broken index. */
function indexCases(bytes: Uint8Array): Case[] {
  const files = [{ path: index, bytes }];
  return ["folder", "check"].flatMap((line) =>
    everyWay(line, []).map((each) => ({ ...each, files, variables: { TQConfig: "root" } })),
  );
}

/**
 * Every verb that takes a broken input, on every one, in its languages and forms by turns; with PLATECONFIG_ALL_RUNS in each of them, which is
 * four times the work.
 */
export const takesAllRuns = (process.env["PLATECONFIG_ALL_RUNS"] ?? "") !== "";

function byTurns(ways: readonly Case[], turn: number): readonly Case[] {
  return takesAllRuns ? ways : ways.slice(turn % ways.length).slice(0, 1);
}

export async function brokenCases(): Promise<Case[]> {
  const files = [...(await filesBelow(samples, "samples")), await standInPage()];
  const manifest = await oneTableForAll();
  const kinds = (await readdir(corpus)).sort();
  const cases = kinds.map(async (kind) => {
    const inputs = await filesBelow(`${corpus}/${kind}`, "given");
    return inputs.flatMap(({ path, bytes }, turn) => {
      const given = [
        ...files,
        manifest,
        { path, bytes },
        { path: "broken/table.csv", bytes },
        { path: "bare/table.csv", bytes },
        { path: "manifest/tables.json", bytes },
      ];
      const runs = linesOf(kind, path).flatMap((each, at) => {
        const [line, ...forms] = typeof each === "string" ? [each] : each;
        return byTurns(everyWay(line, given, forms.length === 0 ? undefined : forms), turn + at);
      });
      return [...runs, ...(kind === "table" ? byTurns(indexCases(bytes), turn) : [])];
    });
  });
  return (await Promise.all(cases)).flat();
}
