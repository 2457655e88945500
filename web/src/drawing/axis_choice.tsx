// Which size an axis spans, and how.

import { useId } from "preact/hooks";
import { useSay } from "../app/state";
import { kSizes, type SizeName } from "../model/plate";
import { kDrawingWords } from "../words/drawing";
import { kSizeWords } from "../words/plate";
import "./drawing.css";

interface AxisChoiceProps {
  readonly axis: "x" | "y";
  readonly size: SizeName;
  readonly isLog: boolean;
  choose(size: SizeName): void;
  setLog(isLog: boolean): void;
}

export function AxisChoice({ axis, size, isLog, choose, setLog }: AxisChoiceProps) {
  const say = useSay();
  const id = useId();
  return (
    <div class="axis-choice">
      <label for={id}>{say(axis === "x" ? kDrawingWords.across : kDrawingWords.upwards)}</label>
      <select id={id} value={size} onChange={(event) => choose(event.currentTarget.value as SizeName)}>
        {kSizes.map((each) => (
          <option key={each} value={each}>
            {say(kSizeWords[each])}
          </option>
        ))}
      </select>
      <label class="tick" title={say(axis === "x" ? kDrawingWords.logX : kDrawingWords.logY)}>
        <input type="checkbox" checked={isLog} onChange={(event) => setLog(event.currentTarget.checked)} />
        {say(kDrawingWords.log)}
      </label>
    </div>
  );
}
