// The view "try a plate".

import type { PlateStatus, Verdict } from "../model/process";
import type { SizeName } from "../model/plate";
import type { Text, TextOf } from "./say";

export const kSizeWords = {
  length: { zh: "长度", en: "Length" },
  width: { zh: "宽度", en: "Width" },
  thickness: { zh: "厚度", en: "Thickness" },
  weight: { zh: "重量", en: "Weight" },
} satisfies Record<SizeName, Text>;

export const kPlateWords = {
  plates: { zh: "板文件中的板", en: "Plates of the file" },
  counts: {
    zh: (all: number, without: number) => `共 ${all} 块${without > 0 ? `，${without} 块没有文本` : ""}`,
    en: (all: number, without: number) =>
      `${all} ${all === 1 ? "plate" : "plates"}${without > 0 ? `, ${without} without a text` : ""}`,
  } satisfies TextOf<[number, number]>,
  find: { zh: "按名称查找", en: "Find a name" },
  noPlates: {
    zh: "打开板文件（plates.csv）后，这里列出其中的板。",
    en: "Open a file of plates (plates.csv), and they are listed here.",
  },
  row: { zh: (row: number) => `第 ${row} 行`, en: (row: number) => `row ${row}` } satisfies TextOf<[number]>,

  form: { zh: "试的板", en: "The plate to try" },
  example: { zh: "示例板", en: "Example" },
  exampleTitle: {
    zh: "填入一块符合第一条规则、所有工艺都成立的板",
    en: "A plate of the first rule row, for which every process applies",
  },
  clear: { zh: "清空特征", en: "No features" },
  sizes: { zh: "尺寸与重量", en: "Sizes and weight" },
  name: { zh: "名称", en: "Name" },
  layer: { zh: "图层", en: "Layer" },
  colors: { zh: "颜色", en: "Colours" },
  bodyColor: { zh: "体颜色", en: "Body colour" },
  faceColors: { zh: "面颜色", en: "Face colours" },
  faceColorsHint: { zh: "颜色号用 _ 连接，如 36_78", en: "indices joined by _, like 36_78" },
  meaning: { zh: "规则表中的颜色（点击填入）", en: "Colours of the rule table (click to use)" },
  features: { zh: "特征", en: "Features" },
  lists: { zh: "颜色、直径与孔数", en: "Colours, diameters and hole count" },
  ordered: { zh: "追加的工艺", en: "Processes ordered by hand" },

  result: { zh: "结果", en: "Result" },
  status: {
    written: { zh: "写出文本", en: "Gets a text" },
    "no-row": { zh: "没有符合的行", en: "No row fits" },
    "no-text": { zh: "有符合的行，但没有文本", en: "A row fits, but writes nothing" },
  } satisfies Record<PlateStatus, Text>,
  short: {
    written: { zh: "有文本", en: "text" },
    "no-row": { zh: "没有符合的行", en: "no row fits" },
    "no-text": { zh: "没有文本", en: "no text" },
  } satisfies Record<PlateStatus, Text>,
  fits: { zh: (row: number) => `符合第 ${row} 行`, en: (row: number) => `Row ${row} fits` } satisfies TextOf<
    [number]
  >,
  openRow: { zh: "在表格中打开这一行", en: "Open this row in its table" },
  text: { zh: "工艺文本", en: "Process text" },
  copy: { zh: "复制文本", en: "Copy the text" },
  mend: { zh: "请先改正标出的内容。", en: "Mend the marked fields first." },

  processes: { zh: "各工艺", en: "Processes" },
  onlyWritten: { zh: "只看写出的", en: "Written ones alone" },
  process: { zh: "工艺", en: "Process" },
  condition: { zh: "条件", en: "Condition" },
  has: { zh: "板上为", en: "The plate has" },
  verdict: { zh: "结论", en: "Verdict" },
  verdicts: {
    written: { zh: "写出", en: "written" },
    "does-not-apply": { zh: "不适用", en: "does not apply" },
    "no-text": { zh: "此行没有文本", en: "no text in this row" },
  } satisfies Record<Verdict, Text>,
  cell: { zh: "行中的文本", en: "Text of the row" },
  yes: { zh: "有", en: "yes" },
  no: { zh: "无", en: "no" },
  none: { zh: "无", en: "none" },
  isOrdered: { zh: "已指定", en: "ordered" },
  notOrdered: { zh: "未指定", en: "not ordered" },
  uncounted: { zh: "未填", en: "not counted" },

  refused: { zh: "不符合的行，最接近的在前", en: "Rows that do not fit, the nearest first" },
  refusedBefore: {
    zh: "之前不符合的行，按表中的顺序",
    en: "Rows before it that do not fit, in the order of the table",
  },
  further: {
    zh: (count: number) => `还有 ${count} 行`,
    en: (count: number) => `${count} more ${count === 1 ? "row" : "rows"}`,
  } satisfies TextOf<[number]>,
  all: { zh: "全部列出", en: "List them all" },
  fewer: { zh: "只列最接近的", en: "Only the nearest" },
  change: {
    zh: (row: number) => `要符合第 ${row} 行须改什么`,
    en: (row: number) => `What to change to fit row ${row}`,
  } satisfies TextOf<[number]>,
  taken: {
    zh: (row: number) => `这样改后得到的是第 ${row} 行：它在前面，也符合。`,
    en: (row: number) => `The plate then gets row ${row}, which stands before it and fits as well.`,
  } satisfies TextOf<[number]>,
  unmeetable: { zh: "没有任何板能符合此行。", en: "No plate at all can fit this row." },
  apply: { zh: "照此改", en: "Do so" },
  applyTitle: { zh: "把这些值填入左边的表单", en: "Put these values into the form" },
} as const;

/** The conditions that a row fails by. */
export const kRefusalWords = {
  above: {
    zh: (size: string, value: string, range: string, by: string) =>
      `${size} ${value} 超出 ${range}，多 ${by}`,
    en: (size: string, value: string, range: string, by: string) =>
      `${size} ${value} is ${by} above ${range}`,
  } satisfies TextOf<[string, string, string, string]>,
  below: {
    zh: (size: string, value: string, range: string, by: string) =>
      `${size} ${value} 不到 ${range}，少 ${by}`,
    en: (size: string, value: string, range: string, by: string) =>
      `${size} ${value} is ${by} below ${range}`,
  } satisfies TextOf<[string, string, string, string]>,
  material: {
    zh: (value: number, accepted: string) => `体颜色 ${value} 不是 ${accepted} 之一`,
    en: (value: number, accepted: string) => `body colour ${value} is none of ${accepted}`,
  } satisfies TextOf<[number, string]>,
  profileWanted: {
    zh: (colors: string) => `要有型面（面颜色 ${colors}），板上没有`,
    en: (colors: string) => `wants a profile (face colour ${colors}), the plate has none`,
  } satisfies TextOf<[string]>,
  profileUnwanted: {
    zh: (colors: string) => `不能有型面，板上有面颜色 ${colors}`,
    en: (colors: string) => `wants no profile, the plate has face colour ${colors}`,
  } satisfies TextOf<[string]>,
  wireCuttingWanted: {
    zh: (colors: string) => `要有线割（面颜色 ${colors}），板上没有`,
    en: (colors: string) => `wants wire cutting (face colour ${colors}), the plate has none`,
  } satisfies TextOf<[string]>,
  wireCuttingUnwanted: {
    zh: (colors: string) => `不能有线割，板上有面颜色 ${colors}`,
    en: (colors: string) => `wants no wire cutting, the plate has face colour ${colors}`,
  } satisfies TextOf<[string]>,
  setSize: {
    zh: (size: string, from: string, to: string) => `${size}：${from} 改为 ${to}`,
    en: (size: string, from: string, to: string) => `${size}: ${from} becomes ${to}`,
  } satisfies TextOf<[string, string, string]>,
  setBody: {
    zh: (from: string, to: string) => `体颜色：${from} 改为 ${to}`,
    en: (from: string, to: string) => `body colour: ${from} becomes ${to}`,
  } satisfies TextOf<[string, string]>,
  addFaces: {
    zh: (color: string) => `面颜色：加上 ${color}`,
    en: (color: string) => `face colours: add ${color}`,
  } satisfies TextOf<[string]>,
  dropFaces: {
    zh: (colors: string) => `面颜色：去掉 ${colors}`,
    en: (colors: string) => `face colours: drop ${colors}`,
  } satisfies TextOf<[string]>,
} as const;
