// The keys of a list that is one stop of the Tab key.

/** Without Alt, Ctrl and their like: with them a key is the browser's (Alt+← goes a page back). */
export function isBare(event: KeyboardEvent): boolean {
  return !event.altKey && !event.ctrlKey && !event.metaKey && !event.shiftKey;
}

const kSteps: Readonly<Record<string, number>> = {
  ArrowDown: 1,
  ArrowUp: -1,
  PageDown: 12,
  PageUp: -12,
  Home: -Infinity,
  End: Infinity,
};

/** Where a key leads from an item (-1: none is chosen), or undefined when it is none of the list's. */
export function indexAfterKey(event: KeyboardEvent, at: number, count: number): number | undefined {
  const step = isBare(event) ? kSteps[event.key] : undefined;
  if (step === undefined || count === 0) return undefined;
  return Math.min(count - 1, Math.max(0, at + step));
}
