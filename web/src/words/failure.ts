// What stands where a view has nothing to show.

import type { TextOf } from "./say";

export const kFailureWords = {
  stopped: { zh: "已取消，没有结果。", en: "This was stopped, so there is no answer." },
  again: { zh: "重新运行", en: "Run it again" },
  checkAgain: { zh: "重新检查", en: "Check again" },
  findings: { zh: "查看问题", en: "Show the findings" },
  noRole: {
    zh: (tables: string) => `tables.json 没有说明哪个文件是${tables}，这里因此没有可显示的内容。`,
    en: (tables: string) =>
      `tables.json does not say which file is the ${tables}, so there is nothing to show here.`,
  } satisfies TextOf<[string]>,
  findRole: {
    zh: "如果这张表就在文件夹里，程序可以按列名找出来。",
    en: "If the table is in the folder, the program finds it by its columns.",
  },
  unusable: {
    zh: "tables.json 有错误，读不出各表的用途，这里因此没有可显示的内容。",
    en: "tables.json is wrong, and does not tell the tables' roles, so there is nothing to show here.",
  },
  noTexts: {
    zh: "没有读出任何规则行，所有的板都得不到工艺文本。",
    en: "No rule row was read, so no plate gets a text.",
  },
  noRows: {
    zh: "规则表没有读出任何规则行，这里因此没有可显示的内容。",
    en: "No rule row could be read from the rule table, so there is nothing to show here.",
  },
  tables: {
    "process-rules": { zh: "“工艺规则”（process-rules）", en: "rule table (process-rules)" },
    "process-settings": {
      zh: "“工艺设置”（process-settings）",
      en: "table of process settings (process-settings)",
    },
  },
  or: { zh: "和", en: " and the " },
} as const;

export type NeededTable = keyof typeof kFailureWords.tables;
