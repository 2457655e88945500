// The plate that is tried, as its fields hold it: texts as they were typed. The program reads them, and says what is no number; the page
// only writes them into a plate file, one column a field.

import { exact, exactList } from "../../drawing/numbers";
import type { InputFile } from "../../engine/engine";
import type { Plate } from "../../model/plate";
import type { ChangedMembers } from "../../model/explain";

/** The columns that every plate file has, by the members of a plate in JSON. */
export const kColumns = {
  name: "名称",
  length: "长度",
  width: "宽度",
  thickness: "厚度",
  weight: "重量",
  color: "体颜色",
  layer: "图层",
  faceColors: "面颜色",
} as const;

export type FieldName = keyof typeof kColumns;

export interface PlateForm {
  readonly fields: Readonly<Record<FieldName, string>>;
  /** By the feature's name: ticked or not, or what was typed. */
  readonly features: Readonly<Record<string, boolean | string>>;
  /** Names of the processes that are ordered by hand. */
  readonly ordered: readonly string[];
}

/** What the rules ask for, as the program's example has it. */
export interface AskedFeatures {
  readonly ticked: readonly string[];
  readonly typed: readonly string[];
  readonly ordered: readonly string[];
}

export function askedBy(example: Plate): AskedFeatures {
  const features = Object.entries(example.features ?? {});
  return {
    ticked: features.filter(([, value]) => typeof value === "boolean").map(([name]) => name),
    typed: features.filter(([, value]) => typeof value !== "boolean").map(([name]) => name),
    ordered: example.customProcesses ?? [],
  };
}

function featureText(value: boolean | number | readonly number[]): boolean | string {
  if (typeof value === "boolean") return value;
  return typeof value === "number" ? exact(value) : exactList(value);
}

export function formOf(plate: Plate): PlateForm {
  const features = Object.entries(plate.features ?? {}).map(([name, value]) => [name, featureText(value)]);
  return {
    fields: {
      name: plate.name,
      length: exact(plate.length),
      width: exact(plate.width),
      thickness: exact(plate.thickness),
      weight: exact(plate.weight),
      color: exact(plate.color),
      layer: plate.layer === undefined ? "" : exact(plate.layer),
      faceColors: exactList(plate.faceColors),
    },
    features: Object.fromEntries(features) as Record<string, boolean | string>,
    ordered: plate.customProcesses ?? [],
  };
}

/** Under which the view keeps the plate that is tried, so that another view can hand it one. */
export const kTriedForm = "tried-plate";

export function withField(form: PlateForm, field: FieldName, text: string): PlateForm {
  return { ...form, fields: { ...form.fields, [field]: text } };
}

/** With members of a plate as the program gave them. */
export function withMembers(form: PlateForm, { faceColors, ...numbers }: ChangedMembers): PlateForm {
  const texts = Object.entries(numbers).map(([field, value]) => [field, exact(value)]);
  const faces = faceColors === undefined ? {} : { faceColors: exactList(faceColors) };
  return { ...form, fields: { ...form.fields, ...Object.fromEntries(texts), ...faces } };
}

export function withFeature(form: PlateForm, name: string, value: boolean | string): PlateForm {
  return { ...form, features: { ...form.features, [name]: value } };
}

export function withOrdered(form: PlateForm, process: string, isOrdered: boolean): PlateForm {
  const others = form.ordered.filter((name) => name !== process);
  return { ...form, ordered: isOrdered ? [...others, process] : others };
}

export function withoutFeatures(form: PlateForm): PlateForm {
  return { ...form, features: {}, ordered: [] };
}

/** The numbers of a list that is being typed, as texts. */
export function pieces(list: string): string[] {
  return list.split("_").filter((piece) => piece !== "");
}

/** Adds the number to the list, or takes it away. */
export function toggled(list: string, number: string): string {
  const all = pieces(list);
  return (all.includes(number) ? all.filter((each) => each !== number) : [...all, number]).join("_");
}

// ---- As a file ----

/** Where a column of the file comes from: for messages about it. */
export type Source =
  { readonly field: FieldName } | { readonly feature: string } | { readonly process: string };

interface Column {
  readonly name: string;
  readonly cell: string;
  readonly source: Source;
}

export const kTriedFile = "tried.csv";

function columnsOf(form: PlateForm): readonly Column[] {
  const fields = (Object.keys(kColumns) as FieldName[]).map((field) => ({
    name: kColumns[field],
    cell: form.fields[field],
    source: { field },
  }));
  const features = Object.entries(form.features).map(([feature, value]) => ({
    name: feature,
    cell: typeof value === "string" ? value : value ? "Y" : "",
    source: { feature },
  }));
  const ordered = form.ordered.map((process) => ({ name: process, cell: "Y", source: { process } }));
  return [...fields, ...features, ...ordered];
}

/** Quoted as spreadsheets do it; a full-width digit or a line break that somebody pasted goes through as it is. */
function quoted(cell: string): string {
  return `"${cell.replaceAll('"', '""')}"`;
}

export interface TriedPlate {
  readonly file: InputFile;
  /** Of each column, in the order of the file. */
  readonly sources: readonly Source[];
}

export function triedPlate(form: PlateForm): TriedPlate {
  const columns = columnsOf(form);
  const lines = [columns.map(({ name }) => quoted(name)), columns.map(({ cell }) => quoted(cell.trim()))];
  const text = lines.map((cells) => cells.join(",") + "\r\n").join("");
  return {
    file: { path: kTriedFile, bytes: new TextEncoder().encode(text) },
    sources: columns.map(({ source }) => source),
  };
}
