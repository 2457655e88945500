// What a plate gets, as a shape and a word.

import { useSay } from "../../app/state";
import type { PlateStatus } from "../../model/process";
import { kPlateWords } from "../../words/plate";

const kSigns: Readonly<Record<PlateStatus, string>> = { written: "✓", "no-row": "✕", "no-text": "!" };

export function StatusMark({ status, isShort = false }: { status: PlateStatus; isShort?: boolean }) {
  const say = useSay();
  return (
    <span class={`status status-${status}`}>
      <span class="status-sign" aria-hidden="true">
        {kSigns[status]}
      </span>
      {say(isShort ? kPlateWords.short[status] : kPlateWords.status[status])}
    </span>
  );
}
