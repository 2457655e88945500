// The page's frame.

import type { ViewName } from "../app/state";
import type { Text, TextOf } from "./say";

export const kPageWords = {
  title: { zh: "模具配置检查", en: "Mould tables" },
  tabs: {
    findings: { zh: "问题", en: "Findings" },
    tables: { zh: "表格", en: "Tables" },
    map: { zh: "规则图", en: "Rule map" },
    plate: { zh: "试一块板", en: "Try a plate" },
    sheet: { zh: "图纸", en: "Sheet" },
    holes: { zh: "组合孔", en: "Holes" },
    comparison: { zh: "对比", en: "Comparison" },
  } satisfies Record<ViewName, Text>,
  views: { zh: "视图", en: "Views" },
  local: {
    zh: "数据不离开本机：本页不联网，也不修改您的文件。",
    en: "Nothing leaves this machine: the page asks no network, and changes none of your files.",
  },
  again: { zh: "重新读取", en: "Look again" },
  againTitle: {
    zh: "在 Excel 中保存之后重新读取（快捷键 F5）",
    en: "Read the files once more, after a save in Excel (key F5)",
  },
  print: { zh: "打印", en: "Print" },
  language: { zh: "English", en: "中文" },
  languageTitle: { zh: "Switch to English", en: "切换为中文" },
  close: { zh: "关闭", en: "Close" },
  busy: { zh: "正在读取…", en: "Reading…" },
  checking: { zh: "正在检查…", en: "Checking…" },
  stop: { zh: "取消", en: "Stop" },
  failed: { zh: "程序没有给出结果：", en: "The program gave no answer:" },
  severity: {
    error: { zh: "错误", en: "Error" },
    warning: { zh: "警告", en: "Warning" },
    hint: { zh: "提示", en: "Hint" },
  },
  counts: {
    error: { zh: (n: number) => `${n} 个错误`, en: (n: number) => `${n} ${n === 1 ? "error" : "errors"}` },
    warning: {
      zh: (n: number) => `${n} 个警告`,
      en: (n: number) => `${n} ${n === 1 ? "warning" : "warnings"}`,
    },
    hint: { zh: (n: number) => `${n} 个提示`, en: (n: number) => `${n} ${n === 1 ? "hint" : "hints"}` },
  } satisfies Record<string, TextOf<[number]>>,
  role: {
    zh: (role: string, chineseName: string) => `${chineseName}（${role}）`,
    en: (role: string) => role,
  } satisfies TextOf<[string, string]>,
  openFirst: { zh: "请先打开一个配置文件夹。", en: "Open a configuration folder first." },
  copied: { zh: "已复制", en: "Copied" },
  notCopied: { zh: "浏览器不允许复制", en: "The browser does not allow to copy" },
  written: {
    zh: (time: string) => `报告生成于 ${time}`,
    en: (time: string) => `Report of ${time}`,
  } satisfies TextOf<[string]>,
} as const;

/** What the page can do, for somebody who opens it the first time. */
export const kStartWords = {
  lead: {
    zh: "打开一个配置文件夹，看看表格写得对不对、每块板得到什么工艺文本、为什么。",
    en: "Open a configuration folder to see whether its tables are right, and which process text each plate gets, and why.",
  },
  points: [
    {
      zh: "写错的单元格：读成了什么，应当怎样写",
      en: "Wrong cells: what they are read as, and what to write instead",
    },
    {
      zh: "规则表覆盖哪些板，哪里有空缺、哪些行永远用不到",
      en: "Which plates the rule table covers, where its gaps are, which rows never match",
    },
    {
      zh: "改动前后的差别：哪些板的文本会变",
      en: "What an edit changes: the plates whose text becomes another",
    },
  ],
  plain: {
    zh: "表格是 Excel 保存的“CSV（逗号分隔）”。",
    en: "The tables are files that Excel saves as “CSV (Comma delimited)”.",
  },
} as const;
