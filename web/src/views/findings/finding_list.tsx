// The findings below each other; of a long list only what is in sight is in the page, unless it is printed.

import { useCallback, useEffect, useId, useRef } from "preact/hooks";
import { indexAfterKey, isBare } from "../../app/parts/list_keys";
import { usePrinting } from "../../app/parts/printing";
import { SeverityMark } from "../../app/parts/severity";
import { useVirtual } from "../../app/parts/virtual";
import { shownFile, useSay } from "../../app/state";
import type { Finding } from "../../model/check";
import { kFindingsWords } from "../../words/findings";
import { kGridWords } from "../../words/grid";
import { shownPlace } from "./filter";

const kItemHeight = 46;

/** A cell's name, or what stands in its place. */
function Place({ finding }: { finding: Finding }) {
  const say = useSay();
  const place = shownPlace(finding, say);
  return finding.cell === null ? <>{place}</> : <b>{place}</b>;
}

function Change({ finding }: { finding: Finding }) {
  const say = useSay();
  const { text, fix, usedAs } = finding;
  if (fix === null && usedAs === null) return null;
  return (
    <span class="change">
      {text !== null && text !== "" && <del>{text}</del>}
      {fix !== null && <ins>{fix === "" ? say(kGridWords.emptyText) : fix}</ins>}
      {fix === null && usedAs !== null && (
        <span>
          {say(kGridWords.readAs)} {usedAs === "" ? say(kGridWords.emptyText) : usedAs}
        </span>
      )}
    </span>
  );
}

function Item({ finding }: { finding: Finding }) {
  return (
    <>
      <SeverityMark severity={finding.severity} isNamed />
      <span class="finding-message">{finding.message}</span>
      <span class="finding-place">
        <Place finding={finding} /> {finding.columnName !== null && <span>{finding.columnName}</span>}
      </span>
      <Change finding={finding} />
      <span class="finding-file">{shownFile(finding.file)}</span>
    </>
  );
}

interface ListProps {
  readonly findings: readonly Finding[];
  /** Of the findings, of which there is at least one. */
  readonly chosen: number;
  choose(index: number): void;
  open(index: number): void;
}

export function FindingList({ findings, chosen, choose, open }: ListProps) {
  const say = useSay();
  const id = useId();
  const scroller = useRef<HTMLDivElement>(null);
  const isPrinting = usePrinting();
  const heightOf = useCallback(() => kItemHeight, []);
  const items = useVirtual({ scroller, count: findings.length, sizeOf: heightOf });
  useEffect(() => {
    items.scrollToIndex(chosen, { align: "auto" });
  }, [chosen, items]);
  const onKeyDown = (event: KeyboardEvent) => {
    if (event.key === "Enter" && isBare(event)) return open(chosen);
    const next = indexAfterKey(event, chosen, findings.length);
    if (next === undefined) return;
    event.preventDefault();
    choose(next);
  };
  const shown = isPrinting
    ? findings.map((_, index) => ({ index, start: index * kItemHeight }))
    : items.getVirtualItems();
  return (
    <div
      class="finding-list"
      role="listbox"
      tabIndex={0}
      aria-label={say(kFindingsWords.list)}
      aria-activedescendant={`${id}-${chosen}`}
      ref={scroller}
      onKeyDown={onKeyDown}
    >
      <div role="presentation" class="finding-space" style={{ height: `${items.getTotalSize()}px` }}>
        {shown.map(({ index, start }) => {
          const finding = findings[index];
          return finding === undefined ? null : (
            <div
              key={index}
              id={`${id}-${index}`}
              role="option"
              aria-selected={index === chosen}
              aria-setsize={findings.length}
              aria-posinset={index + 1}
              class={`finding finding-${finding.severity}`}
              style={{ transform: `translateY(${start}px)`, height: `${kItemHeight}px` }}
              onClick={() => choose(index)}
              onDblClick={() => open(index)}
            >
              <Item finding={finding} />
            </div>
          );
        })}
      </div>
    </div>
  );
}
