// The tables as a spreadsheet shows them.

import type { Text, TextOf } from "./say";
import type { TableForm } from "../model/cells";

export const kGridWords = {
  tables: { zh: "配置表", en: "Tables" },
  besideTables: { zh: "板和孔", en: "Plates and holes" },
  otherFiles: { zh: "其他文件", en: "Other files" },
  noTables: { zh: "这里没有表格。", en: "There are no tables here." },
  loading: { zh: "正在读取表格…", en: "Reading the table…" },
  noProblems: { zh: "此表没有发现问题", en: "Nothing found in this table" },
  problems: { zh: "此表的问题", en: "Findings of this table" },
  wholeFile: { zh: "整个文件", en: "The whole file" },
  pick: {
    zh: "选中有颜色的单元格，这里说明问题和改法。",
    en: "Select a coloured cell: what is wrong and what to write stands here.",
  },
  pickCell: { zh: "选中一个单元格，这里显示它的全部内容。", en: "Select a cell to see all of it here." },
  next: { zh: "下一个问题", en: "Next finding" },
  previous: { zh: "上一个问题", en: "Previous finding" },
  find: { zh: "在表中查找", en: "Find in the table" },
  notFound: { zh: "没有找到", en: "Not found" },
  emptyCell: { zh: "（空单元格）", en: "(empty cell)" },
  row: { zh: (n: number) => `第 ${n} 行`, en: (n: number) => `Row ${n}` },
  line: { zh: (n: number) => `文件第 ${n} 行`, en: (n: number) => `line ${n} of the file` },
  size: {
    zh: (rows: number, columns: number) => `${rows} 行 × ${columns} 列`,
    en: (rows: number, columns: number) => `${rows} rows × ${columns} columns`,
  } satisfies TextOf<[number, number]>,
  cut: {
    zh: (rows: number, all: number) => `此表太大：只印出前 ${rows} 行，共 ${all} 行。各行的问题仍全部列出。`,
    en: (rows: number, all: number) =>
      `This table is too large to be printed whole: its first ${rows} of ${all} rows are. Findings are listed of all rows.`,
  } satisfies TextOf<[number, number]>,
  readAs: { zh: "读作", en: "Read as" },
  write: { zh: "改为", en: "Write" },
  advice: { zh: "办法", en: "What to do" },
  emptyText: { zh: "（空）", en: "(empty)" },
  meaning: { zh: "为什么", en: "Why it matters" },
  copy: { zh: "复制", en: "Copy" },
  gone: {
    zh: (file: string) => `文件夹里没有“${file}”。`,
    en: (file: string) => `There is no “${file}” in the folder.`,
  } satisfies TextOf<[string]>,
  forms: {
    table: undefined,
    utf8: {
      zh: "此文件是 UTF-8，绘图工具认不出其中的中文；这里按原意显示。",
      en: "This file is UTF-8: the drawing tool does not recognise its Chinese. It is shown as it was meant.",
    },
    utf16: {
      zh: "此文件是 UTF-16，绘图工具从中读不出任何一列，因此没有可显示的单元格。",
      en: "This file is UTF-16: the drawing tool reads no column of it, so there are no cells to show.",
    },
    workbook: {
      zh: "此文件是 Excel 工作簿，不是 CSV，因此没有可显示的单元格。",
      en: "This file is an Excel workbook, not a CSV table, so there are no cells to show.",
    },
    "carriage-returns": {
      zh: "此文件的各行只以 CR 结尾，绘图工具把整个文件当作一行。",
      en: "The lines of this file end with CR alone: to the drawing tool it is one line.",
    },
    "separator-line": {
      zh: "“sep=”占了表头的位置，绘图工具找不到任何一列。",
      en: "“sep=” stands where the header should be, so that the drawing tool finds no column.",
    },
    "wrong-separator": {
      zh: "此文件不是用逗号分隔的，绘图工具把每一行当作一个单元格。",
      en: "This file is not separated by commas: to the drawing tool each row is one cell.",
    },
  } satisfies Record<TableForm, Text | undefined>,
} as const;
