// The list of findings.

import type { TextOf } from "./say";

export const kFindingsWords = {
  filter: { zh: "筛选", en: "Filter" },
  severity: { zh: "级别", en: "Severity" },
  files: { zh: "文件", en: "Files" },
  allFiles: { zh: "全部文件", en: "All files" },
  code: { zh: "代码", en: "Code" },
  allCodes: { zh: "全部代码", en: "All codes" },
  search: { zh: "搜索", en: "Search" },
  list: { zh: "问题列表", en: "List of findings" },
  shown: {
    zh: (shown: number, all: number) => (shown === all ? `共 ${all} 个` : `显示 ${shown} 个，共 ${all} 个`),
    en: (shown: number, all: number) => (shown === all ? `${all} in all` : `${shown} of ${all} shown`),
  } satisfies TextOf<[number, number]>,
  noneShown: { zh: "没有符合筛选条件的问题。", en: "No finding passes the filter." },
  none: { zh: "没有发现问题。", en: "Nothing found." },
  checked: {
    zh: (tables: number, rows: number, processes: number) =>
      `已检查 ${tables} 张表、${rows} 个规则行、${processes} 道工艺。`,
    en: (tables: number, rows: number, processes: number) =>
      `Checked: ${tables} tables, ${rows} rule rows, ${processes} processes.`,
  } satisfies TextOf<[number, number, number]>,
  copy: { zh: "复制为文本", en: "Copy as text" },
  csv: { zh: "保存为 CSV", en: "Save as CSV" },
  csvName: { zh: "问题.csv", en: "findings.csv" },
  reset: { zh: "清除筛选", en: "Clear the filter" },
  openTable: { zh: "在表格中查看", en: "Open in the table" },
  witness: { zh: "例如这块板", en: "Such as this plate" },
  newRow: { zh: "可在表末加的一行", en: "A row that would take these plates, behind the last one" },
  copyRow: { zh: "复制此行（粘贴到 Excel）", en: "Copy the row (for Excel)" },
  listAll: { zh: "全部列出", en: "List all" },
  exampleOf: {
    zh: (length: string, width: string, thickness: string, weight: string, color: number) =>
      `${length} × ${width} × ${thickness} mm，重量 ${weight}，体颜色 ${color}`,
    en: (length: string, width: string, thickness: string, weight: string, color: number) =>
      `${length} × ${width} × ${thickness} mm, weight ${weight}, body colour ${color}`,
  } satisfies TextOf<[string, string, string, string, number]>,
  faces: {
    zh: (colors: string) => `，面颜色 ${colors}`,
    en: (colors: string) => `, face colours ${colors}`,
  } satisfies TextOf<[string]>,
  has: {
    zh: (features: string) => `，有 ${features}`,
    en: (features: string) => `, with ${features}`,
  } satisfies TextOf<[string]>,
  file: { zh: "文件", en: "File" },
  place: { zh: "位置", en: "Place" },
  finding: { zh: "问题", en: "Finding" },
  fix: { zh: "改为", en: "Write" },
  manifest: {
    title: { zh: "这个文件夹还没有 tables.json", en: "This folder has no tables.json yet" },
    text: {
      zh: "tables.json 说明哪张表作什么用；没有它就无法检查。程序可以按列名找出各表的用途。",
      en: "tables.json says which table plays which role; nothing can be checked without it. The program finds the roles by the columns.",
    },
    find: { zh: "找出各表的用途", en: "Find the roles" },
    save: { zh: "保存 tables.json", en: "Save tables.json" },
    saved: {
      zh: "请把它放进配置文件夹，与各表在一起。",
      en: "Put it into the configuration folder, beside the tables.",
    },
    found: {
      zh: "已找出各表的用途，现在按它检查：",
      en: "The roles were found, and the check goes by them now:",
    },
  },
} as const;
