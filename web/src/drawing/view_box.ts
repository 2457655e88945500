// What of a large picture is in sight: moved by dragging, zoomed by the wheel and by buttons.

import type { RefObject } from "preact";
import { useCallback, useEffect, useLayoutEffect, useRef, useState } from "preact/hooks";

export interface ViewBox {
  readonly x: number;
  readonly y: number;
  readonly width: number;
  readonly height: number;
}

const kWheelFactor = 1.0015;
const kMostZoom = 0.02;

/** Zoomed by `factor` around a place of the picture; never out of the whole. */
export function zoomedBox(box: ViewBox, whole: ViewBox, factor: number, x: number, y: number): ViewBox {
  const share = Math.min(1, Math.max(kMostZoom, (box.width * factor) / whole.width));
  const real = (share * whole.width) / box.width;
  return within(
    {
      x: x - (x - box.x) * real,
      y: y - (y - box.y) * real,
      width: box.width * real,
      height: box.height * real,
    },
    whole,
  );
}

/** Moved back until it lies within the whole. */
export function within(box: ViewBox, whole: ViewBox): ViewBox {
  const at = (from: number, size: number, low: number, all: number) =>
    Math.min(Math.max(from, low), low + Math.max(0, all - size));
  return {
    ...box,
    x: at(box.x, box.width, whole.x, whole.width),
    y: at(box.y, box.height, whole.y, whole.height),
  };
}

/** Moved by shares of itself; never out of the whole. */
export function movedBox(box: ViewBox, whole: ViewBox, right: number, down: number): ViewBox {
  return within({ ...box, x: box.x + right * box.width, y: box.y + down * box.height }, whole);
}

export interface Zoomable {
  readonly box: ViewBox;
  readonly isZoomed: boolean;
  zoomBy(factor: number): void;
  /** By shares of what is in sight. */
  moveBy(right: number, down: number): void;
  reset(): void;
  readonly latest: Latest;
  setBox(box: ViewBox): void;
}

/** How many units of the picture a pixel of the screen is: for lines and labels that keep their size. */
export function usePixel(picture: RefObject<SVGSVGElement | null>, box: ViewBox): number {
  const [pixel, setPixel] = useState(box.width / 900);
  useLayoutEffect(() => {
    const measure = () => {
      const scale = picture.current?.getScreenCTM()?.a ?? 0;
      if (scale > 0) setPixel(1 / scale);
    };
    measure();
    window.addEventListener("resize", measure);
    return () => window.removeEventListener("resize", measure);
  }, [picture.current, box]);
  return pixel;
}

interface Latest {
  readonly current: { readonly box: ViewBox; readonly whole: ViewBox };
}

export function useViewBox(whole: ViewBox): Zoomable {
  const [box, setBox] = useState(whole);
  const latest = useRef({ box, whole });
  latest.current = { box, whole };
  useEffect(() => setBox(whole), [whole.x, whole.y, whole.width, whole.height]);

  const zoomBy = useCallback((factor: number) => {
    const { box: now, whole: all } = latest.current;
    setBox(zoomedBox(now, all, factor, now.x + now.width / 2, now.y + now.height / 2));
  }, []);

  const moveBy = useCallback((right: number, down: number) => {
    const { box: now, whole: all } = latest.current;
    setBox(movedBox(now, all, right, down));
  }, []);

  const isZoomed = box.width < whole.width || box.height < whole.height;
  return { box, isZoomed, zoomBy, moveBy, reset: () => setBox(whole), latest, setBox };
}

/** Makes a picture follow the wheel and dragging. */
export function useFollowing(picture: RefObject<SVGSVGElement | null>, { latest, setBox }: Zoomable): void {
  useEffect(() => {
    const svg = picture.current;
    return svg === null ? undefined : following(svg, latest, setBox);
  }, [picture.current]);
}

function following(svg: SVGSVGElement, latest: Latest, setBox: (box: ViewBox) => void): () => void {
  let last: DOMPoint | undefined;
  const spot = (event: MouseEvent) =>
    new DOMPoint(event.clientX, event.clientY).matrixTransform(svg.getScreenCTM()?.inverse());
  const onWheel = (event: WheelEvent) => {
    event.preventDefault();
    const { box, whole } = latest.current;
    const { x, y } = spot(event);
    setBox(zoomedBox(box, whole, kWheelFactor ** event.deltaY, x, y));
  };
  const onDown = (event: PointerEvent) => {
    last = event.button === 0 ? spot(event) : undefined;
  };
  const onMove = (event: PointerEvent) => {
    if (last === undefined) return;
    const { box, whole } = latest.current;
    const now = spot(event);
    setBox(within({ ...box, x: box.x + last.x - now.x, y: box.y + last.y - now.y }, whole));
  };
  const onUp = () => {
    last = undefined;
  };
  svg.addEventListener("wheel", onWheel, { passive: false });
  svg.addEventListener("pointerdown", onDown);
  svg.addEventListener("pointermove", onMove);
  window.addEventListener("pointerup", onUp);
  return () => {
    svg.removeEventListener("wheel", onWheel);
    svg.removeEventListener("pointerdown", onDown);
    svg.removeEventListener("pointermove", onMove);
    window.removeEventListener("pointerup", onUp);
  };
}
