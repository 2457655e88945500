// The drawing sheet.

import type { TextOf } from "./say";

export const kSheetWords = {
  sheet: { zh: "图纸", en: "Sheet" },
  paper: { zh: "图纸大小", en: "Paper" },
  assumedPaper: {
    zh: (size: string) => `未选（暂按 ${size}）`,
    en: (size: string) => `not chosen (${size} taken)`,
  } satisfies TextOf<[string]>,
  landscape: {
    zh: (name: string) => `${name} 横放`,
    en: (name: string) => `${name} landscape`,
  } satisfies TextOf<[string]>,
  portrait: {
    zh: (name: string) => `${name} 竖放`,
    en: (name: string) => `${name} portrait`,
  } satisfies TextOf<[string]>,
  size: { zh: "按", en: "As a" },
  large: { zh: "大图", en: "large sheet" },
  small: { zh: "小图", en: "small sheet" },
  kinds: { zh: "图的种类", en: "Kinds of sheets" },
  picture: {
    zh: (title: string, width: string, height: string) => `${title}，${width} x ${height} mm`,
    en: (title: string, width: string, height: string) => `${title}, ${width} x ${height} mm`,
  } satisfies TextOf<[string, string, string]>,
  parts: { zh: "图上的内容", en: "What is on the sheet" },
  partsOf: {
    zh: (name: string) => `${name}：图上的内容`,
    en: (name: string) => `${name}: what is on the sheet`,
  } satisfies TextOf<[string]>,
  partsHint: {
    zh: "指向一项，图上会标出；点击打开它的单元格",
    en: "Point at one to mark it in the picture; a click opens its cell",
  },
  openCell: { zh: "打开这个单元格", en: "Open this cell" },
  isDefault: { zh: "默认值", en: "default" },
  atSize: {
    zh: "按实际大小画出（1:1）；放不下的，长度中间断开，其他注明比例",
    en: "Drawn at their size (1:1). What has no room is a broken length, or has its scale beside it.",
  },
  unknown: { zh: "设置没有说明位置的内容", en: "What the settings do not place" },
  assumed: { zh: "画图时的假定", en: "Taken for granted" },
  assumes: {
    zh: (notes: readonly number[]) => `假定 ${notes.join("、")}`,
    en: (notes: readonly number[]) => `taken for granted: ${notes.join(", ")}`,
  } satisfies TextOf<[readonly number[]]>,
  colors: { zh: "颜色号", en: "Colour indices" },
  noColor: { zh: "未说明", en: "not stated" },
  at: {
    zh: (x: string, y: string) => `(${x}, ${y})`,
    en: (x: string, y: string) => `(${x}, ${y})`,
  } satisfies TextOf<[string, string]>,
  differs: { zh: "不同", en: "differs" },
  layer: { zh: (layer: number) => `图层 ${layer}`, en: (layer: number) => `layer ${layer}` } satisfies TextOf<
    [number]
  >,
  color: {
    zh: (color: number) => `颜色 ${color}`,
    en: (color: number) => `colour ${color}`,
  } satisfies TextOf<[number]>,
  textHeight: {
    zh: (height: string) => `字高 ${height}`,
    en: (height: string) => `text height ${height}`,
  } satisfies TextOf<[string]>,
} as const;
