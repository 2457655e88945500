// A long list to choose from: one stop of the Tab key, arrows within; only what is in sight is in the page.

import type { ComponentChildren } from "preact";
import { useCallback, useEffect, useId, useRef } from "preact/hooks";
import { indexAfterKey } from "./list_keys";
import { useVirtual } from "./virtual";
import "./common.css";

interface ItemListProps<Item> {
  readonly label: string;
  readonly items: readonly Item[];
  /** -1: none of these. */
  readonly chosen: number;
  readonly itemHeight: number;
  readonly children: (item: Item) => ComponentChildren;
  choose(item: Item): void;
}

export function ItemList<Item>({ label, items, chosen, itemHeight, children, choose }: ItemListProps<Item>) {
  const id = useId();
  const scroller = useRef<HTMLDivElement>(null);
  const heightOf = useCallback(() => itemHeight, [itemHeight]);
  const virtual = useVirtual({ scroller, count: items.length, sizeOf: heightOf });
  useEffect(() => {
    if (chosen !== -1) virtual.scrollToIndex(chosen, { align: "auto" });
  }, [chosen, items.length, virtual]);
  const onKeyDown = (event: KeyboardEvent) => {
    const next = items[indexAfterKey(event, chosen, items.length) ?? -1];
    if (next === undefined) return;
    event.preventDefault();
    choose(next);
  };
  if (items.length === 0) return <div class="item-list" />;
  const shown = virtual.getVirtualItems();
  const isShown = shown.some(({ index }) => index === chosen);
  return (
    <div
      class="item-list"
      role="listbox"
      tabIndex={0}
      aria-label={label}
      aria-activedescendant={isShown ? `${id}-${chosen}` : undefined}
      ref={scroller}
      onKeyDown={onKeyDown}
    >
      <div role="presentation" class="item-space" style={{ height: `${virtual.getTotalSize()}px` }}>
        {shown.map(({ index, start }) => {
          const item = items[index];
          return item === undefined ? null : (
            <div
              key={index}
              id={`${id}-${index}`}
              role="option"
              aria-selected={index === chosen}
              aria-setsize={items.length}
              aria-posinset={index + 1}
              class="item"
              style={{ transform: `translateY(${start}px)`, height: `${itemHeight}px` }}
              onClick={() => choose(item)}
            >
              {children(item)}
            </div>
          );
        })}
      </div>
    </div>
  );
}
