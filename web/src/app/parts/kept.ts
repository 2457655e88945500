// What a view keeps while another one is shown.

import { useCallback, useState } from "preact/hooks";

const kept = new Map<string, unknown>();

/** Leaves a value for a view that is shown next. */
export function keep(key: string, value: unknown): void {
  kept.set(key, value);
}

/** Like useState, but the value is still there when the view is shown again. */
export function useKept<Value>(key: string, initial: Value): [Value, (value: Value) => void] {
  const [value, setValue] = useState<Value>(() => (kept.has(key) ? (kept.get(key) as Value) : initial));
  const change = useCallback(
    (next: Value) => {
      keep(key, next);
      setValue(next);
    },
    [key],
  );
  return [value, change];
}
