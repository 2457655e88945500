// One finding in full: what is wrong, what the library makes of it, what to write, and why it matters.

import { useEffect, useState } from "preact/hooks";
import type { Finding } from "../../model/check";
import { kGridWords } from "../../words/grid";
import { kPageWords } from "../../words/page";
import { useSay } from "../state";
import { type CodePage, useCodePage } from "./code_page";
import { copyText } from "./save";
import { SeverityMark } from "./severity";

export function CopyButton({ text, label }: { text: string; label?: string }) {
  const say = useSay();
  const [told, setTold] = useState<string | undefined>();
  useEffect(() => {
    if (told === undefined) return undefined;
    const timer = setTimeout(() => setTold(undefined), 2000);
    return () => clearTimeout(timer);
  }, [told]);
  const copy = async () => setTold(say((await copyText(text)) ? kPageWords.copied : kPageWords.notCopied));
  return (
    <button type="button" class="small" onClick={() => void copy()}>
      <span role="status">{told ?? label ?? say(kGridWords.copy)}</span>
    </button>
  );
}

/** A text as it stands in a cell; blanks at its ends can be seen. */
export function CellText({ text }: { text: string }) {
  const say = useSay();
  if (text === "") return <span class="quiet">{say(kGridWords.emptyText)}</span>;
  return <span class="cell-quote">{text}</span>;
}

/** Advice with a place that only this finding fills says less than its message. */
function adviceFor(finding: Finding, page: CodePage | undefined): string | undefined {
  if (finding.fix !== null || page === undefined || page.adviceHasPlaces) return undefined;
  return page.advice ?? undefined;
}

function Facts({ finding, advice }: { finding: Finding; advice: string | undefined }) {
  const say = useSay();
  const { usedAs, fix } = finding;
  if (usedAs === null && fix === null && advice === undefined) return null;
  return (
    <dl class="card-facts">
      {usedAs !== null && (
        <>
          <dt>{say(kGridWords.readAs)}</dt>
          <dd>
            <CellText text={usedAs} />
          </dd>
        </>
      )}
      {fix !== null && (
        <>
          <dt>{say(kGridWords.write)}</dt>
          <dd class="card-fix">
            <CellText text={fix} /> <CopyButton text={fix} />
          </dd>
        </>
      )}
      {advice !== undefined && (
        <>
          <dt>{say(kGridWords.advice)}</dt>
          <dd>{advice}</dd>
        </>
      )}
    </dl>
  );
}

export function FindingCard({ finding }: { finding: Finding }) {
  const say = useSay();
  const page = useCodePage(finding.code);
  return (
    <article class={`card card-${finding.severity}`}>
      <p class="card-message">
        <SeverityMark severity={finding.severity} />
        <strong>{say(kPageWords.severity[finding.severity])}</strong> {finding.message}
      </p>
      <Facts finding={finding} advice={adviceFor(finding, page)} />
      <details class="meaning">
        <summary>
          {say(kGridWords.meaning)} <code>{finding.code}</code>
        </summary>
        <p>{page?.meaning ?? "…"}</p>
      </details>
    </article>
  );
}
