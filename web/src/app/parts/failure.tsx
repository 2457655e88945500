// What stands instead of a view that has nothing to show.

import type { ComponentChildren } from "preact";
import { kFailureWords } from "../../words/failure";
import { kPageWords } from "../../words/page";
import type { Text } from "../../words/say";
import type { OwnFailure } from "../answer";
import { useApp, useSay, type Workspace } from "../state";

/** The program knows the folders by the page's names for them, the reader by their own. */
function withOwnName(text: string, workspace: Workspace | undefined): string {
  if (workspace === undefined) return text;
  return text.replace(new RegExp(`(?<![\\w./-])${workspace.folder}/`, "g"), () => `${workspace.name}/`);
}

/** The program's own error text, or why it was not asked. */
export function Failure({ error, title }: { error: string | OwnFailure; title?: Text }) {
  const say = useSay();
  const { workspace, other } = useApp();
  if (typeof error !== "string") {
    return (
      <div class="failure" role="alert">
        <p>{say(error.words)}</p>
        <button type="button" onClick={error.again}>
          {say(kFailureWords.again)}
        </button>
      </div>
    );
  }
  return (
    <div class="failure" role="alert">
      <p>{say(title ?? kPageWords.failed)}</p>
      <pre>{withOwnName(withOwnName(error, workspace), other)}</pre>
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
