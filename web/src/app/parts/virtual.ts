// What of a long list is in sight: the virtualizer, fitted to preact.

import {
  elementScroll,
  observeElementOffset,
  Virtualizer,
  type VirtualizerOptions,
} from "@tanstack/virtual-core";
import type { RefObject } from "preact";
import { useLayoutEffect, useReducer, useState } from "preact/hooks";

interface VirtualProps {
  readonly scroller: RefObject<HTMLElement | null>;
  readonly count: number;
  readonly sizeOf: (index: number) => number;
  readonly isHorizontal?: boolean;
  /** What the frozen part takes at the beginning. */
  readonly frozen?: number;
  readonly overscan?: number;
}

type Options = VirtualizerOptions<HTMLElement, HTMLElement>;

/** The room within the borders and beside the scroll bars, which lie over nothing that must be seen. */
const observeRoom: Options["observeElementRect"] = (instance, tell) => {
  const element = instance.scrollElement;
  if (element === null) return;
  const measure = () => tell({ width: element.clientWidth, height: element.clientHeight });
  measure();
  const observer = new ResizeObserver(measure);
  observer.observe(element);
  return () => observer.disconnect();
};

export function useVirtual(props: VirtualProps): Virtualizer<HTMLElement, HTMLElement> {
  const [, rerender] = useReducer((count: number) => count + 1, 0);
  const options: Options = {
    count: props.count,
    getScrollElement: () => props.scroller.current,
    estimateSize: props.sizeOf,
    horizontal: props.isHorizontal ?? false,
    overscan: props.overscan ?? 6,
    // Items are counted from where the frozen part ends, so what is lost of the room is lost at the far end.
    scrollPaddingEnd: props.frozen ?? 0,
    initialRect: { width: 1200, height: 700 },
    observeElementRect: observeRoom,
    observeElementOffset,
    scrollToFn: elementScroll,
    onChange: () => rerender(undefined),
  };
  const [virtualizer] = useState(() => new Virtualizer<HTMLElement, HTMLElement>(options));
  virtualizer.setOptions(options);
  useLayoutEffect(() => virtualizer._didMount(), [virtualizer]);
  useLayoutEffect(() => virtualizer._willUpdate());
  useLayoutEffect(() => virtualizer.measure(), [virtualizer, props.count, props.sizeOf]);
  return virtualizer;
}
