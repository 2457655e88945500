// Pointing at the map, moving and zooming it: with the mouse, and with the keys.

import type { RefObject } from "preact";
import { useEffect, useRef } from "preact/hooks";
import type { Plane, Zoom } from "../../drawing/plane";
import { moved, zoomed } from "../../drawing/scales";
import { kMoveStep } from "../../drawing/zoom_buttons";
import type { Place } from "./hits";
import { kFrame } from "./layout";

interface Pointing {
  readonly svg: RefObject<SVGSVGElement | null>;
  readonly plane: Plane | undefined;
  /** What it is when nothing is zoomed. */
  readonly whole: Plane | undefined;
  readonly cross: Place | undefined;
  readonly zoom: Zoom;
  point(place: Place | undefined): void;
  setZoom(zoom: Zoom): void;
  openAt(place: Place): void;
}

const kStep = 4;
const kFastStep = 40;
const kClickReach = 4;
const kWheelFactor = 1.0015;

const kArrows: Readonly<Record<string, readonly [number, number]>> = {
  ArrowLeft: [-1, 0],
  ArrowRight: [1, 0],
  ArrowUp: [0, -1],
  ArrowDown: [0, 1],
};

/** Where the mouse is, in the picture's own units. */
function spotOf(svg: SVGSVGElement, event: MouseEvent): { x: number; y: number } | undefined {
  const matrix = svg.getScreenCTM();
  return matrix === null
    ? undefined
    : new DOMPoint(event.clientX, event.clientY).matrixTransform(matrix.inverse());
}

function isInPlane({ x, y }: { x: number; y: number }): boolean {
  const { left, right, top, bottom, width, height } = kFrame;
  return x >= left && x <= width - right && y >= top && y <= height - bottom;
}

/** `whole` is the plane when nothing is zoomed. */
export function zoomAround(plane: Plane, whole: Plane, place: Place, factor: number): Zoom {
  return {
    x: zoomed(plane.x, factor, place.x, whole.x),
    y: zoomed(plane.y, factor, place.y, whole.y),
  };
}

export function middleOf(plane: Plane): Place {
  const along = ({ from, to, free }: Plane["x"]) => free.value((free.place(from) + free.place(to)) / 2);
  return { x: along(plane.x), y: along(plane.y) };
}

/** The plane that lies so many units of the picture further to the right and further down. */
export function movedBy(plane: Plane, whole: Plane, right: number, down: number): Zoom {
  return { x: moved(plane.x, right, whole.x), y: moved(plane.y, down, whole.y) };
}

/** Moved by shares of what is in sight. */
export function movedByShare(plane: Plane, whole: Plane, right: number, down: number): Zoom {
  const { left, right: rim, top, bottom, width, height } = kFrame;
  return movedBy(plane, whole, right * (width - left - rim), down * (height - top - bottom));
}

export function usePointing(pointing: Pointing): Record<string, unknown> {
  const latest = useRef(pointing);
  latest.current = pointing;
  const drag = useRef<{ x: number; y: number; isMoved: boolean } | undefined>(undefined);

  // A wheel that turns the picture must not turn the page; preact's own listeners could not stop it.
  useEffect(() => {
    const svg = pointing.svg.current;
    if (svg === null) return undefined;
    const onWheel = (event: WheelEvent) => {
      const { plane, whole, setZoom } = latest.current;
      const spot = spotOf(svg, event);
      if (plane === undefined || whole === undefined || spot === undefined || !isInPlane(spot)) return;
      event.preventDefault();
      const place = { x: plane.x.invert(spot.x), y: plane.y.invert(spot.y) };
      setZoom(zoomAround(plane, whole, place, kWheelFactor ** event.deltaY));
    };
    svg.addEventListener("wheel", onWheel, { passive: false });
    return () => svg.removeEventListener("wheel", onWheel);
  }, [pointing.svg.current]);

  const placeOf = (event: MouseEvent): Place | undefined => {
    const { svg, plane } = latest.current;
    const spot = svg.current === null ? undefined : spotOf(svg.current, event);
    if (spot === undefined || plane === undefined || !isInPlane(spot)) return undefined;
    return { x: plane.x.invert(spot.x), y: plane.y.invert(spot.y) };
  };

  const onPointerMove = (event: PointerEvent) => {
    const { svg, plane, whole, zoom, point, setZoom } = latest.current;
    const spot = svg.current === null ? undefined : spotOf(svg.current, event);
    const from = drag.current;
    const isFar =
      from !== undefined && spot !== undefined && Math.hypot(spot.x - from.x, spot.y - from.y) > kClickReach;
    const isMoving = (from?.isMoved ?? false) || isFar;
    if (isMoving && from && spot && plane && whole && (zoom.x || zoom.y)) {
      setZoom(movedBy(plane, whole, from.x - spot.x, from.y - spot.y));
      drag.current = { x: spot.x, y: spot.y, isMoved: true };
      return;
    }
    point(placeOf(event));
  };

  const onKeyDown = (event: KeyboardEvent) => {
    const { plane, whole, zoom, cross, point, setZoom, openAt } = latest.current;
    if (plane === undefined || whole === undefined) return;
    const arrow = kArrows[event.key];
    const at = cross ?? middleOf(plane);
    if (event.key === "Enter" && cross !== undefined) openAt(cross);
    if (event.key === "Escape") point(undefined);
    if (arrow === undefined) return;
    event.preventDefault();
    if (event.ctrlKey) {
      const [right, down] = [arrow[0] * kMoveStep, arrow[1] * kMoveStep];
      if (zoom.x || zoom.y) setZoom(movedByShare(plane, whole, right, down));
      return;
    }
    const step = event.shiftKey ? kFastStep : kStep;
    point({
      x: plane.x.invert(plane.x(at.x) + arrow[0] * step),
      y: plane.y.invert(plane.y(at.y) + arrow[1] * step),
    });
  };

  return {
    onPointerDown: (event: PointerEvent) => {
      const { svg } = latest.current;
      const spot = svg.current === null ? undefined : spotOf(svg.current, event);
      drag.current = spot && { x: spot.x, y: spot.y, isMoved: false };
    },
    onPointerMove,
    onPointerLeave: () => {
      drag.current = undefined;
      latest.current.point(undefined);
    },
    onPointerUp: (event: PointerEvent) => {
      const isClick = drag.current !== undefined && !drag.current.isMoved;
      drag.current = undefined;
      const place = placeOf(event);
      if (isClick && place !== undefined && event.button === 0) latest.current.openAt(place);
    },
    onKeyDown,
  };
}
