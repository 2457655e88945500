// Try a plate: what it gets while it is being typed, and why.

import { useEffect, useState } from "preact/hooks";
import { Failure, OpenFirst } from "../../app/parts/failure";
import { useKept } from "../../app/parts/kept";
import { useApp, useSay } from "../../app/state";
import type { ProcessedPlate } from "../../model/process";
import { kPlateWords } from "../../words/plate";
import { useChosen, useColors, useExample, usePlates, useTried } from "./asking";
import type { AskedFeatures, PlateForm } from "./form";
import { askedBy, formOf, kTriedForm, withMembers, withoutFeatures } from "./form";
import { PlateFields } from "./plate_fields";
import { PlateList } from "./plate_list";
import { Result } from "./result";
import "./plate.css";

const kNothingAsked: AskedFeatures = { ticked: [], typed: [], ordered: [] };

/** The plate of the file that is being tried; `fill` puts it into the form once it was read. */
function useChoice(plates: readonly ProcessedPlate[] | undefined, fill: (form: PlateForm) => void) {
  const { triedPlate } = useApp();
  const [chosen, choose] = useState<ProcessedPlate | undefined>();
  const [taken, take] = useKept<string | undefined>("taken-plate", undefined);
  const read = useChosen(chosen?.name);
  useEffect(() => {
    const asked = plates?.find(({ name }) => name === triedPlate);
    // Once: who comes back to this view goes on with the plate as it was changed.
    if (asked === undefined || triedPlate === taken) return;
    choose(asked);
    take(triedPlate);
  }, [plates, triedPlate]);
  const entry =
    read.state === "done"
      ? read.value.find(({ file, fileLine }) => file === chosen?.file && fileLine === chosen.fileLine)
      : undefined;
  useEffect(() => {
    if (entry !== undefined) fill(formOf(entry.plate));
  }, [entry]);
  return [chosen, choose] as const;
}

function Trial() {
  const say = useSay();
  const example = useExample();
  const colors = useColors();
  const plates = usePlates();
  const [form, setForm] = useKept<PlateForm | undefined>(kTriedForm, undefined);
  const [chosen, choose] = useChoice(plates.value, setForm);
  const [isComplete, askAll] = useState(false);
  const [first] = example.value ?? [];
  useEffect(() => {
    if (form === undefined && first !== undefined) setForm(formOf(first));
  }, [form, first]);
  const tried = useTried(form, isComplete);

  const asked = first === undefined ? kNothingAsked : askedBy(first);

  if (example.state === "failed") return <Failure error={example.error} />;
  if (form === undefined) return null;
  return (
    <div class="try-plate">
      <PlateList answer={plates} chosen={chosen} choose={choose} />
      <section class="plate-form" aria-label={say(kPlateWords.form)}>
        <header class="section-head">
          <h2>{form.fields.name === "" ? say(kPlateWords.form) : form.fields.name}</h2>
          <span class="no-print">
            <button
              type="button"
              title={say(kPlateWords.exampleTitle)}
              disabled={first === undefined}
              onClick={() => first && setForm(formOf(first))}
            >
              {say(kPlateWords.example)}
            </button>
            <button type="button" onClick={() => setForm(withoutFeatures(form))}>
              {say(kPlateWords.clear)}
            </button>
          </span>
        </header>
        <PlateFields form={form} asked={asked} colors={colors} remarks={tried.remarks} change={setForm} />
      </section>
      <section class="plate-result" aria-label={say(kPlateWords.result)} aria-busy={tried.isRunning}>
        {tried.error !== undefined && <Failure error={tried.error} />}
        {tried.plate !== undefined && tried.remarks.others.length > 0 && (
          <ul class="remarks">
            {tried.remarks.others.map((text) => (
              <li key={text}>{text}</li>
            ))}
          </ul>
        )}
        {tried.plate === undefined && tried.isDone && <p class="remark">{say(kPlateWords.mend)}</p>}
        {tried.plate !== undefined && (
          <Result
            plate={tried.plate}
            byHand={asked.ordered}
            isComplete={isComplete}
            askAll={askAll}
            apply={(members) => setForm(withMembers(form, members))}
          />
        )}
      </section>
    </div>
  );
}

export function TryPlate() {
  const { workspace } = useApp();
  return workspace === undefined ? <OpenFirst /> : <Trial />;
}
