// Severity as a shape and a word, never by colour alone.

import type { Finding, Severity } from "../../model/check";
import { kPageWords } from "../../words/page";
import { useSay } from "../state";

/** The graver ones first. */
export const kSeverities: readonly Severity[] = ["error", "warning", "hint"];

/** Below 0 when the first one is the graver one. */
export function byGravity(one: Finding, two: Finding): number {
  return kSeverities.indexOf(one.severity) - kSeverities.indexOf(two.severity);
}

const kShapes: Readonly<Record<Severity, string>> = {
  error: "M5 1h6l4 4v6l-4 4H5l-4-4V5z",
  warning: "M8 1.2 15.4 14.6H.6z",
  hint: "M8 1a7 7 0 1 1 0 14A7 7 0 0 1 8 1z",
};

const kSigns: Readonly<Record<Severity, string>> = {
  error: "M5.3 5.3l5.4 5.4M10.7 5.3l-5.4 5.4",
  warning: "M8 6v4M8 12v.6",
  hint: "M8 7.2v4.4M8 4.3v.7",
};

/** An octagon with a cross, a triangle with an exclamation mark, a circle with an i. */
export function SeverityMark({ severity, isNamed = false }: { severity: Severity; isNamed?: boolean }) {
  const say = useSay();
  const name = say(kPageWords.severity[severity]);
  return (
    <svg
      class={`mark mark-${severity}`}
      viewBox="0 0 16 16"
      width="14"
      height="14"
      {...(isNamed ? { role: "img", "aria-label": name } : { "aria-hidden": "true" })}
    >
      <path class="mark-shape" d={kShapes[severity]} />
      <path class="mark-sign" d={kSigns[severity]} />
    </svg>
  );
}
