// What is said while the program works; it can be stopped.

import { kPageWords } from "../../words/page";
import { useSay } from "../state";

export function UnderWay({ text, stop }: { text: string; stop: (() => void) | undefined }) {
  const say = useSay();
  return (
    <span class="under-way" role="status">
      {text}
      {stop !== undefined && (
        <button type="button" class="small" onClick={stop}>
          {say(kPageWords.stop)}
        </button>
      )}
    </span>
  );
}
