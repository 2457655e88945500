// What all pictures say.

export const kDrawingWords = {
  saveSvg: { zh: "保存 SVG", en: "Save SVG" },
  savePng: { zh: "保存 PNG", en: "Save PNG" },
  zoomIn: { zh: "放大", en: "Zoom in" },
  zoomOut: { zh: "缩小", en: "Zoom out" },
  whole: { zh: "全图", en: "Whole picture" },
} as const;
