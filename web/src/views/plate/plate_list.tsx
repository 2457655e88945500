// The plates of the loaded file, those without a text first.

import { useMemo, useState } from "preact/hooks";
import { Failure } from "../../app/parts/failure";
import { ItemList } from "../../app/parts/item_list";
import type { Answer } from "../../app/answer";
import { useSay } from "../../app/state";
import type { PlateStatus, ProcessedPlate } from "../../model/process";
import { kPlateWords } from "../../words/plate";
import { StatusMark } from "./status_mark";

const kOrder: Readonly<Record<PlateStatus, number>> = { "no-row": 0, "no-text": 1, written: 2 };
const kItemHeight = 30;

/** Without a text first, else as in the file. */
export function inOrder(plates: readonly ProcessedPlate[]): readonly ProcessedPlate[] {
  return [...plates].sort((a, b) => kOrder[a.status] - kOrder[b.status]);
}

interface PlateListProps {
  readonly answer: Answer<readonly ProcessedPlate[]>;
  readonly chosen: ProcessedPlate | undefined;
  choose(plate: ProcessedPlate): void;
}

function Gets({ plate }: { plate: ProcessedPlate }) {
  const say = useSay();
  if (plate.status !== "written" || plate.line === null) return <StatusMark status={plate.status} isShort />;
  return <span class="quiet">{say(kPlateWords.row, plate.line)}</span>;
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
          <ItemList
            label={say(kPlateWords.plates)}
            items={plates}
            chosen={chosen === undefined ? -1 : plates.indexOf(chosen)}
            itemHeight={kItemHeight}
            choose={choose}
          >
            {(plate) => (
              <>
                <span class="item-name">{plate.name}</span>
                <Gets plate={plate} />
              </>
            )}
          </ItemList>
        </>
      )}
    </section>
  );
}
