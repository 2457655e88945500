// A picture as a file of its own: SVG as it stands, or PNG at twice its size.

import { type ComponentChild, render } from "preact";
import { saveFile } from "../app/parts/save";

/** Draws a picture apart from the page, for a file that is the same whatever the window is like. */
export function drawnApart(picture: ComponentChild): SVGSVGElement | null {
  const place = document.createElement("div");
  render(picture, place);
  return place.querySelector("svg");
}

const kNamespace = "http://www.w3.org/2000/svg";

/** The picture's own text, with its size and without what only the page needs. */
export function svgText(svg: SVGSVGElement): string {
  const copy = svg.cloneNode(true) as SVGSVGElement;
  const { width, height } = sizeOf(svg);
  copy.setAttribute("xmlns", kNamespace);
  copy.setAttribute("width", String(width));
  copy.setAttribute("height", String(height));
  for (const element of [copy, ...copy.querySelectorAll("*")]) {
    for (const name of ["tabindex", "class", "style"]) element.removeAttribute(name);
  }
  for (const element of copy.querySelectorAll("[data-page-only]")) element.remove();
  return new XMLSerializer().serializeToString(copy);
}

function sizeOf(svg: SVGSVGElement): { width: number; height: number } {
  const { width, height } = svg.viewBox.baseVal;
  return width > 0 ? { width, height } : svg.getBoundingClientRect();
}

export function saveSvg(svg: SVGSVGElement, name: string): void {
  saveFile(`${name}.svg`, svgText(svg), "image/svg+xml");
}

async function imageOf(text: string): Promise<HTMLImageElement> {
  const image = new Image();
  image.src = `data:image/svg+xml;charset=utf-8,${encodeURIComponent(text)}`;
  await image.decode();
  return image;
}

export async function savePng(svg: SVGSVGElement, name: string, factor = 2): Promise<void> {
  const { width, height } = sizeOf(svg);
  const canvas = document.createElement("canvas");
  canvas.width = Math.round(width * factor);
  canvas.height = Math.round(height * factor);
  const context = canvas.getContext("2d");
  if (context === null) return;
  context.fillStyle = "#ffffff";
  context.fillRect(0, 0, canvas.width, canvas.height);
  context.drawImage(await imageOf(svgText(svg)), 0, 0, canvas.width, canvas.height);
  const blob = await new Promise<Blob | null>((done) => canvas.toBlob(done, "image/png"));
  if (blob !== null) saveFile(`${name}.png`, blob, "image/png");
}
