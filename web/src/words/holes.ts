// Combined holes.

import type { SegmentGroup } from "../model/pictures";
import type { Text, TextOf } from "./say";

export const kHoleWords = {
  holes: { zh: "组合孔", en: "Combined holes" },
  counts: {
    zh: (all: number, without: number, tied: number) =>
      `共 ${all} 个${without > 0 ? `，${without} 个无类型` : ""}${tied > 0 ? `，${tied} 个并列` : ""}`,
    en: (all: number, without: number, tied: number) =>
      `${all} ${all === 1 ? "hole" : "holes"}${without > 0 ? `, ${without} without a type` : ""}${tied > 0 ? `, ${tied} tied` : ""}`,
  } satisfies TextOf<[number, number, number]>,
  find: { zh: "按名称或结构查找", en: "Find a name or structure" },
  openHoles: {
    zh: "请打开组合孔文件（holes.csv）和孔类型文件（hole-types.csv）。",
    en: "Open a file of combined holes (holes.csv) and one of hole types (hole-types.csv).",
  },
  openTypes: { zh: "还缺孔类型文件（hole-types.csv）。", en: "The hole types (hole-types.csv) are missing." },
  openOnlyTypes: { zh: "还缺组合孔文件（holes.csv）。", en: "The combined holes (holes.csv) are missing." },
  noType: { zh: "无类型", en: "no type" },
  tied: { zh: "并列", en: "tied" },
  structure: { zh: "结构", en: "Structure" },
  largest: { zh: "最大直径", en: "Largest diameter" },
  origin: { zh: "原点", en: "Origin" },
  length: { zh: "全深", en: "Whole depth" },
  isThrough: { zh: "通孔", en: "through" },
  perhapsThrough: { zh: "是否打通：文件没有说", en: "through or blind: the file does not say" },
  section: {
    zh: (name: string) => `${name} 的剖面`,
    en: (name: string) => `Section of ${name}`,
  } satisfies TextOf<[string]>,
  group: {
    top: { zh: "顶", en: "top" },
    through: { zh: "通", en: "through" },
    bottom: { zh: "底", en: "bottom" },
  } satisfies Record<SegmentGroup, Text>,
  segments: { zh: "各段，从顶面往下", en: "Segments, from the top face down" },
  place: { zh: "位置", en: "Group" },
  diameter: { zh: "直径", en: "Diameter" },
  color: { zh: "颜色", en: "Colour" },
  colorOf: {
    zh: (color: number) => `颜色 ${color}`,
    en: (color: number) => `colour ${color}`,
  } satisfies TextOf<[number]>,
  height: { zh: "高度", en: "Height" },
  rHeight: { zh: "R高度", en: "R height" },
  from: { zh: "深度", en: "Depth" },
  unknown: { zh: "未给出", en: "not given" },
  notToScale: {
    zh: "虚线的段没有高度，不按比例。",
    en: "Dashed segments have no height and are not to scale.",
  },
  types: { zh: "符合的类型，得分高的在前", en: "Types that it belongs to, the best score first" },
  noTypes: { zh: "没有类型接受这个孔。", en: "No type accepts this hole." },
  isTied: {
    zh: "几个类型得分相同，文件不能决定用哪一个。",
    en: "Types share the best score: the files do not decide between them.",
  },
  score: { zh: "得分", en: "Score" },
  best: { zh: "最佳", en: "best" },
  refusedBy: {
    zh: "结构相同而不接受的类型，最接近的在前",
    en: "Types of this structure that refuse it, the nearest first",
  },
  near: { zh: "没有此结构的类型；结构最接近的：", en: "No type has this structure; the nearest:" },
  anything: { zh: "任意", en: "any" },
  noList: { zh: "未列出", en: "no list" },
  joint: { zh: "、", en: ", " },
  badDiameter: {
    zh: (group: string, segment: number, value: string, allowed: string) =>
      `${group}第 ${segment} 段：直径 ${value} 不符，允许 ${allowed}`,
    en: (group: string, segment: number, value: string, allowed: string) =>
      `${group} ${segment}: diameter ${value}, but ${allowed} is asked for`,
  } satisfies TextOf<[string, number, string, string]>,
  badColor: {
    zh: (group: string, segment: number, value: string, allowed: string) =>
      `${group}第 ${segment} 段：颜色 ${value} 不符，允许 ${allowed}`,
    en: (group: string, segment: number, value: string, allowed: string) =>
      `${group} ${segment}: colour ${value}, but ${allowed} is asked for`,
  } satisfies TextOf<[string, number, string, string]>,
  type: { zh: "类型", en: "Type" },
} as const;
