// Opening folders and files.

import type { Text, TextOf } from "./say";

export const kOpenWords = {
  open: { zh: "打开", en: "Open" },
  openFolder: { zh: "打开文件夹", en: "Open a folder" },
  openFiles: { zh: "打开文件", en: "Open files" },
  openAnother: { zh: "打开其他文件夹", en: "Open another folder" },
  compareFolder: { zh: "打开要对比的文件夹", en: "Open a folder to compare with" },
  dropHere: { zh: "把配置文件夹拖到这里", en: "Drop a configuration folder here" },
  dropHint: {
    zh: "存放工艺规则等表格的文件夹，板表、组合孔表可以一起拖进来。",
    en: "The folder of the rule table and the settings tables; files of plates and of holes may come with it.",
  },
  or: { zh: "或者", en: "or" },
  last: {
    zh: (name: string) => `再次打开“${name}”`,
    en: (name: string) => `Open “${name}” again`,
  } satisfies TextOf<[string]>,
  dropToOpen: { zh: "放在这里：打开", en: "Drop here: open" },
  dropToCompare: {
    zh: "放在这里：作为新的一方，与当前文件夹对比",
    en: "Drop here: compare it, as the new one, with the open folder",
  },
  stale: {
    zh: "文件在打开之后又被修改，浏览器不允许再次读取。请把文件夹重新拖进来。",
    en: "The files were changed after they were opened, and the browser does not read them again. Drop the folder once more.",
  },
  tooLarge: {
    zh: (path: string) => `文件太多或太大，读到“${path}”为止。请只拖入配置文件夹。`,
    en: (path: string) =>
      `There are too many files, or too large ones; stopped at “${path}”. Drop the configuration folder alone.`,
  } satisfies TextOf<[string]>,
  unreadable: {
    zh: (reason: string) => `无法读取：${reason}`,
    en: (reason: string) => `This can not be read: ${reason}`,
  } satisfies TextOf<[string]>,
  nothingToRead: {
    zh: "这里没有可读的表格（CSV）或 JSON 文件。",
    en: "There is no table (CSV) or JSON file to read here.",
  },
  notAllowed: {
    zh: "浏览器没有允许读取这个文件夹。",
    en: "The browser was not allowed to read this folder.",
  },
  files: { zh: "文件", en: "Files" },
  usedFor: { zh: "用作", en: "Used as" },
  configuration: { zh: "配置", en: "Configuration" },
  comparedWith: { zh: "对比", en: "Compared with" },
  none: { zh: "（无）", en: "(none)" },
  uses: {
    plates: { zh: "板表", en: "plates" },
    holes: { zh: "组合孔", en: "combined holes" },
    "hole-types": { zh: "孔类型", en: "hole types" },
    table: { zh: "配置表", en: "a table" },
    unused: { zh: "不用", en: "not used" },
  } satisfies Record<string, Text>,
} as const;
