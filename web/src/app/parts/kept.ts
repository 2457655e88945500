// What a view keeps while another one is shown.

import { useCallback, useState } from "preact/hooks";

const kept = new Map<string, unknown>();

/** Like useState, but the value is still there when the view is shown again. */
export function useKept<Value>(key: string, initial: Value): [Value, (value: Value) => void] {
  const [value, setValue] = useState<Value>(() => (kept.has(key) ? (kept.get(key) as Value) : initial));
  const keep = useCallback(
    (next: Value) => {
      kept.set(key, next);
      setValue(next);
    },
    [key],
  );
  return [value, keep];
}
