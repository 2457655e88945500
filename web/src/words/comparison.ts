// Two folders, compared.

import type { ChangedRow } from "../model/diff";
import type { Text, TextOf } from "./say";

export type ComparisonPart = "plates" | "rows" | "settings" | "regions" | "tables";

export const kComparisonWords = {
  openSecond: {
    zh: "要看改动前后的差别，请再打开一个配置文件夹：拖到窗口的右半边，或用下面的按钮。",
    en: "To see what an edit changes, open a second configuration folder: drop it on the right half of the window, or use the button.",
  },
  comparing: { zh: "正在对比…", en: "Comparing…" },
  parts: {
    plates: { zh: "板的文本", en: "Plates" },
    rows: { zh: "规则行", en: "Rule rows" },
    settings: { zh: "设置", en: "Settings" },
    regions: { zh: "板的区域", en: "Regions of plates" },
    tables: { zh: "并排看表格", en: "Tables side by side" },
  } satisfies Record<ComparisonPart, Text>,
  part: { zh: "差别的种类", en: "Kinds of differences" },
  old: { zh: "旧", en: "Old" },
  new: { zh: "新", en: "New" },
  turn: { zh: "⇄ 新旧对调", en: "⇄ Swap old and new" },
  same: { zh: "两个配置没有差别。", en: "The two configurations do not differ." },
  noneOf: { zh: "这一项没有差别。", en: "Nothing differs here." },
  noPlates: {
    zh: "还没有板表：一起打开板表，就能看到哪些板的文本会变。",
    en: "No file of plates is open: open one to see whose text changes.",
  },
  plateChanged: {
    zh: (n: number) => `${n} 块板的文本变了`,
    en: (n: number) => (n === 1 ? "The text of one plate changes" : `The texts of ${n} plates change`),
  } satisfies TextOf<[number]>,
  row: { zh: (n: number) => `第 ${n} 行`, en: (n: number) => `row ${n}` },
  noRow: { zh: "没有符合的规则行", en: "no rule row fits" },
  search: { zh: "搜索", en: "Search" },
  change: {
    added: { zh: "新增", en: "added" },
    removed: { zh: "删除", en: "removed" },
    changed: { zh: "修改", en: "changed" },
  } satisfies Record<ChangedRow["change"], Text>,
  columns: {
    zh: (n: number) => `${n} 列`,
    en: (n: number) => (n === 1 ? "1 column" : `${n} columns`),
  } satisfies TextOf<[number]>,
  column: { zh: "列", en: "Column" },
  table: { zh: "表", en: "Table" },
  setting: { zh: "设置", en: "Setting" },
  showInTables: { zh: "在表格中查看", en: "Show in the tables" },
  list: { zh: "有差别的规则行", en: "Rule rows that differ" },
  group: { zh: "哪一类板", en: "Which plates" },
  colors: { zh: (colors: string) => `体颜色 ${colors}`, en: (colors: string) => `body colour ${colors}` },
  otherColors: { zh: "其他体颜色", en: "any other body colour" },
  profile: {
    yes: { zh: "有型面", en: "profile" },
    no: { zh: "无型面", en: "no profile" },
  },
  wireCutting: {
    yes: { zh: "有线割", en: "wire cutting" },
    no: { zh: "无线割", en: "no wire cutting" },
  },
  before: { zh: (text: string) => `原为${text}`, en: (text: string) => `was ${text}` },
  yes: { zh: "是", en: "yes" },
  no: { zh: "否", en: "no" },
  anySize: { zh: "不限", en: "any" },
  witness: { zh: "例如", en: "such as" },
  regionsMap: {
    zh: (sizes: string, color: number) => `受影响的板：${sizes}、体颜色 ${color} 处的截面`,
    en: (sizes: string, color: number) => `Affected plates, cut at ${sizes}, body colour ${color}`,
  } satisfies TextOf<[string, number]>,
  mapName: { zh: "变动图", en: "Changes" },
  mapLegend: {
    zh: "方框内是旧行号→新行号，∅ 表示没有符合的规则行；十字是所选区域的例子。",
    en: "In the boxes: old row → new row, ∅ for no row that fits; the cross is the example of the chosen region.",
  },
  incomplete: { zh: "没有全部列出：", en: "Not listed in full:" },
  all: { zh: "全部列出", en: "List all" },
  chooseTable: { zh: "哪一张表", en: "Which table" },
  onlyOne: { zh: "只有一方有这张表。", en: "Only one of the two has this table." },
} as const;
