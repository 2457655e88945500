// The rule map.

import type { TextOf } from "./say";

export const kMapWords = {
  map: { zh: "规则图", en: "Rule map" },
  body: { zh: "体颜色", en: "Body colour" },
  otherColors: {
    zh: (example: number) => `其他颜色（如 ${example}）`,
    en: (example: number) => `every other (like ${example})`,
  } satisfies TextOf<[number]>,
  profile: { zh: "有型面", en: "With a profile" },
  wireCutting: { zh: "有线割", en: "With wire cutting" },
  impossible: {
    zh: "按规则表的颜色，没有板是这样的组合。",
    en: "With the colours of the rule table no plate is like this.",
  },
  incomplete: {
    zh: "规则过于交错，图中可能缺少一部分。",
    en: "The rules are too intertwined: parts may be missing.",
  },
  nothing: { zh: "没有一行接受这样的板。", en: "No row accepts such plates." },
  allHidden: { zh: "显示所有被挡住的部分", en: "Show all hidden parts" },
  describe: {
    zh: (x: string, y: string, rows: number, gaps: number) =>
      `${x}和${y}张成的图：${rows} 行，${gaps} 块空缺。用方向键移动十字，回车打开所在的行；放大后用 Ctrl+方向键移动图。`,
    en: (x: string, y: string, rows: number, gaps: number) =>
      `The plane of ${x} and ${y}: ${rows} rows, ${gaps} gaps. The arrow keys move the cross, Enter opens the row; Ctrl and arrow keys move a zoomed picture.`,
  } satisfies TextOf<[string, string, number, number]>,
  unit: { zh: (size: string) => `${size}（mm）`, en: (size: string) => `${size} (mm)` } satisfies TextOf<
    [string]
  >,
  point: { zh: "指向图中，看某块板用哪一行", en: "Point at the picture to see which row a plate gets" },
  keys: {
    zh: "方向键移动，Shift 加速，回车打开行，放大后 Ctrl+方向键移动图",
    en: "arrow keys move, Shift is faster, Enter opens the row, Ctrl moves a zoomed picture",
  },
  gets: {
    zh: (row: number, layer: string) => `用第 ${row} 行（图层 ${layer}）`,
    en: (row: number, layer: string) => `gets row ${row} (layer ${layer})`,
  } satisfies TextOf<[number, string]>,
  alsoFits: {
    zh: (rows: string) => `也符合但排在后面：第 ${rows} 行`,
    en: (rows: string) => `also fits, but stands below: ${rows}`,
  } satisfies TextOf<[string]>,
  isGap: { zh: "空缺：没有一行接受", en: "a gap: no row accepts it" },
  outside: { zh: "在所有规则的范围之外", en: "beyond the ranges of all rows" },
  joint: { zh: "、", en: ", " },
  gap: { zh: "空缺", en: "gap" },
  gaps: {
    zh: (count: number) => `空缺 ${count} 块`,
    en: (count: number) => `${count} ${count === 1 ? "gap" : "gaps"}`,
  } satisfies TextOf<[number]>,
  rows: { zh: "图中的行", en: "Rows in the picture" },
  rowsHint: {
    zh: "指向或选中一行：描出它接受的范围，斜线部分被上面的行挡住",
    en: "Point at a row: its outline is what it accepts, hatched is what rows above take",
  },
  layer: { zh: (layer: string) => `图层 ${layer}`, en: (layer: string) => `layer ${layer}` } satisfies TextOf<
    [string]
  >,
  partlyHidden: { zh: "部分被挡", en: "partly hidden" },
  whollyHidden: {
    zh: (rows: string) => `全被第 ${rows} 行挡住`,
    en: (rows: string) => `wholly hidden by ${rows}`,
  } satisfies TextOf<[string]>,
  steps: { zh: "检查发现的空缺与被挡住的行", en: "Gaps and hidden rows that the check found" },
  noSteps: {
    zh: "检查没有发现空缺和永远用不到的行。",
    en: "The check found no gap, and no row that never gets a plate.",
  },
  previous: { zh: "上一个", en: "Previous" },
  next: { zh: "下一个", en: "Next" },
  step: {
    zh: (at: number, all: number) => `${at} / ${all}`,
    en: (at: number, all: number) => `${at} / ${all}`,
  } satisfies TextOf<[number, number]>,
  example: {
    zh: (sizes: string) => `例如 ${sizes}`,
    en: (sizes: string) => `for instance ${sizes}`,
  } satisfies TextOf<[string]>,
  newRow: { zh: "补上这一行就够：", en: "This row would take it:" },
  tryIt: { zh: "试这块板", en: "Try this plate" },
} as const;
