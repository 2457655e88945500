// A row of tabs: one stop of the Tab key, arrows within.

import type { TargetedKeyboardEvent } from "preact";
import { useRef } from "preact/hooks";
import { isBare } from "./list_keys";

export interface Tab<Name extends string> {
  readonly name: Name;
  readonly label: string;
  readonly count?: number | undefined;
}

interface TabsProps<Name extends string> {
  readonly label: string;
  readonly tabs: readonly Tab<Name>[];
  readonly chosen: Name;
  /** The id of the panel that shows the chosen one. */
  readonly panel: string;
  readonly kind?: "main" | "inner";
  choose(name: Name): void;
}

const kSteps: Readonly<Record<string, number>> = { ArrowRight: 1, ArrowLeft: -1 };

function target(event: KeyboardEvent, at: number, count: number): number | undefined {
  if (!isBare(event)) return undefined;
  if (event.key === "Home") return 0;
  if (event.key === "End") return count - 1;
  const step = kSteps[event.key];
  return step === undefined ? undefined : (at + step + count) % count;
}

export function tabId(panel: string, name: string): string {
  return `${panel}-tab-${name}`;
}

export function Tabs<Name extends string>({
  label,
  tabs,
  chosen,
  panel,
  kind = "main",
  choose,
}: TabsProps<Name>) {
  const row = useRef<HTMLDivElement>(null);
  const onKeyDown = (event: TargetedKeyboardEvent<HTMLDivElement>) => {
    const at = tabs.findIndex((tab) => tab.name === chosen);
    const next = tabs[target(event, at, tabs.length) ?? -1];
    if (next === undefined) return;
    event.preventDefault();
    choose(next.name);
    row.current?.querySelector<HTMLElement>(`#${tabId(panel, next.name)}`)?.focus();
  };
  return (
    <div class={`tabs tabs-${kind}`} role="tablist" aria-label={label} ref={row} onKeyDown={onKeyDown}>
      {tabs.map((tab) => (
        <button
          key={tab.name}
          type="button"
          role="tab"
          id={tabId(panel, tab.name)}
          aria-controls={panel}
          aria-selected={tab.name === chosen}
          tabIndex={tab.name === chosen ? 0 : -1}
          onClick={() => choose(tab.name)}
        >
          {tab.label}
          {tab.count !== undefined && <span class="count">{tab.count}</span>}
        </button>
      ))}
    </div>
  );
}
