// What stands instead of a view that has nothing to show.

import type { ComponentChildren } from "preact";
import { kPageWords } from "../../words/page";
import { useSay } from "../state";

/** The program's own error text. */
export function Failure({ error }: { error: string }) {
  const say = useSay();
  return (
    <div class="failure" role="alert">
      <p>{say(kPageWords.failed)}</p>
      <pre>{error}</pre>
    </div>
  );
}

export function Empty({ children }: { children: ComponentChildren }) {
  return <div class="empty">{children}</div>;
}

/** Before a folder is open. */
export function OpenFirst() {
  const say = useSay();
  return <Empty>{say(kPageWords.openFirst)}</Empty>;
}
