import { kMostMegabytes } from "../engine/limits";

/** What is said when the engine can not run. */
export const engineWords = {
  webAssemblyOff: {
    zh: "浏览器关闭了 WebAssembly，本页无法检查配置。请让管理员为此文件允许 WebAssembly，或换用 Edge、Chrome 的普通模式打开。",
    en: "This browser has WebAssembly switched off, and the page can not check anything without it. Ask your administrator to allow it, or open the page in Edge or Chrome outside of their strict modes.",
  },
  browserTooOld: {
    zh: "浏览器版本太旧，无法运行本页。请用近三年的 Edge 或 Chrome 打开。",
    en: "This browser is too old for the page. Open it with an Edge or Chrome of the last three years.",
  },
  tooLarge: {
    zh: `文件加起来超过 ${kMostMegabytes} MB，本页放不下。请只打开需要的文件，或用命令行程序 plateconfig。`,
    en: `The files are more than ${kMostMegabytes} MB together, which the page has no room for. Open only those that are needed, or use the command plateconfig.`,
  },
  pageDamaged: {
    zh: "本页的文件不完整或已损坏，请重新获取。",
    en: "This page's file is damaged or not complete. Get it once more.",
  },
  broken: {
    zh: "运算意外中断，可能是内存不足。请重新打开本页再试，或减少文件。",
    en: "The engine stopped unexpectedly, perhaps for want of memory. Open the page again, or with fewer files.",
  },
} as const satisfies Record<string, { zh: string; en: string }>;

export type EngineProblem = keyof typeof engineWords;
