// The plates of the loaded file, those without a text first.

import { useMemo, useRef, useState } from "preact/hooks";
import { Failure } from "../../app/parts/failure";
import { useVirtual } from "../../app/parts/virtual";
import type { Answer } from "../../app/answer";
import { useSay } from "../../app/state";
import type { PlateStatus, ProcessedPlate } from "../../model/process";
import { kPlateWords } from "../../words/plate";
import { StatusMark } from "./status_mark";
import "../../app/parts/common.css";

const kOrder: Readonly<Record<PlateStatus, number>> = { "no-row": 0, "no-text": 1, written: 2 };
const kRowHeight = 30;
const rowHeight = () => kRowHeight;

/** Without a text first, else as in the file. */
export function inOrder(plates: readonly ProcessedPlate[]): readonly ProcessedPlate[] {
  return [...plates].sort((a, b) => kOrder[a.status] - kOrder[b.status]);
}

interface PlateListProps {
  readonly answer: Answer<readonly ProcessedPlate[]>;
  readonly chosen: ProcessedPlate | undefined;
  choose(plate: ProcessedPlate): void;
}

function Items({
  plates,
  chosen,
  choose,
}: Omit<PlateListProps, "answer"> & { plates: readonly ProcessedPlate[] }) {
  const say = useSay();
  const scroller = useRef<HTMLDivElement>(null);
  const virtual = useVirtual({ scroller, count: plates.length, sizeOf: rowHeight });
  return (
    <div class="item-list" ref={scroller}>
      <ul style={{ height: `${virtual.getTotalSize()}px` }} aria-label={say(kPlateWords.plates)}>
        {virtual.getVirtualItems().map(({ index, start }) => {
          const plate = plates[index];
          if (plate === undefined) return null;
          return (
            <li key={index} style={{ top: `${start}px` }}>
              <button
                type="button"
                aria-current={plate === chosen ? "true" : undefined}
                onClick={() => choose(plate)}
              >
                <span class="item-name">{plate.name}</span>
                {plate.status === "written" && plate.line !== null ? (
                  <span class="quiet">{say(kPlateWords.row, plate.line)}</span>
                ) : (
                  <StatusMark status={plate.status} isShort />
                )}
              </button>
            </li>
          );
        })}
      </ul>
    </div>
  );
}

export function PlateList({ answer, chosen, choose }: PlateListProps) {
  const say = useSay();
  const [part, setPart] = useState("");
  const all = answer.value;
  const plates = useMemo(
    () => inOrder(all ?? []).filter(({ name }) => name.toLowerCase().includes(part.trim().toLowerCase())),
    [all, part],
  );
  if (answer.state === "failed") return <Failure error={answer.error} />;
  const without = (all ?? []).filter(({ status }) => status !== "written").length;
  return (
    <section class="side-list" aria-label={say(kPlateWords.plates)}>
      <h2>{say(kPlateWords.plates)}</h2>
      {answer.state === "idle" ? (
        <p class="quiet">{say(kPlateWords.noPlates)}</p>
      ) : (
        <>
          <p class="quiet">{say(kPlateWords.counts, all?.length ?? 0, without)}</p>
          <input
            type="search"
            value={part}
            placeholder={say(kPlateWords.find)}
            aria-label={say(kPlateWords.find)}
            onInput={(event) => setPart(event.currentTarget.value)}
          />
          <Items plates={plates} chosen={chosen} choose={choose} />
        </>
      )}
    </section>
  );
}
