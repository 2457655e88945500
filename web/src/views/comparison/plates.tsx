// The plates whose text changes.

import { useState } from "preact/hooks";
import { Empty } from "../../app/parts/failure";
import { useApp, useSay } from "../../app/state";
import type { ChangedPlate } from "../../model/diff";
import { kComparisonWords } from "../../words/comparison";
import { TextPair } from "./marked_text";

function Plate({ plate }: { plate: ChangedPlate }) {
  return (
    <article class="changed-plate">
      <h2>{plate.name}</h2>
      <TextPair
        old={{ row: plate.old.line, text: plate.old.text }}
        now={{ row: plate.new.line, text: plate.new.text }}
      />
    </article>
  );
}

/** So many are drawn at once; more come with a search. */
const kShown = 200;

export function ChangedPlates({ plates }: { plates: readonly ChangedPlate[] }) {
  const { workspace, other } = useApp();
  const say = useSay();
  const [text, setText] = useState("");
  if ((workspace?.plates ?? []).length + (other?.plates ?? []).length === 0)
    return <Empty>{say(kComparisonWords.noPlates)}</Empty>;
  if (plates.length === 0) return <Empty>{say(kComparisonWords.noneOf)}</Empty>;
  const found = plates.filter(({ name, old, new: now }) =>
    [name, old.text, now.text].some((part) => part.includes(text)),
  );
  return (
    <>
      <div class="bar">
        <span>{say(kComparisonWords.plateChanged, plates.length)}</span>
        <span class="spring" />
        <input
          type="search"
          placeholder={say(kComparisonWords.search)}
          aria-label={say(kComparisonWords.search)}
          value={text}
          onInput={(event) => setText(event.currentTarget.value)}
        />
      </div>
      <div class="scroll" tabIndex={0} role="group" aria-label={say(kComparisonWords.parts.plates)}>
        {found.slice(0, kShown).map((plate) => (
          <Plate key={plate.name} plate={plate} />
        ))}
        {found.length > kShown && <p class="quiet pad">… {found.length - kShown}</p>}
      </div>
    </>
  );
}
