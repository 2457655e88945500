// What all pictures say.

export const kDrawingWords = {
  saveSvg: { zh: "保存 SVG", en: "Save SVG" },
  savePng: { zh: "保存 PNG", en: "Save PNG" },
  zoomIn: { zh: "放大", en: "Zoom in" },
  zoomOut: { zh: "缩小", en: "Zoom out" },
  moves: {
    left: { zh: "看左边", en: "Look further left" },
    up: { zh: "看上边", en: "Look further up" },
    down: { zh: "看下边", en: "Look further down" },
    right: { zh: "看右边", en: "Look further right" },
  },
  across: { zh: "横轴", en: "Across" },
  upwards: { zh: "纵轴", en: "Upwards" },
  log: { zh: "对数", en: "log" },
  logX: { zh: "横轴用对数刻度", en: "Logarithmic, across" },
  logY: { zh: "纵轴用对数刻度", en: "Logarithmic, upwards" },
  whole: { zh: "全图", en: "Whole picture" },
} as const;
