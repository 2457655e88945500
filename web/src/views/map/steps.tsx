// The gaps and the rows without plates that the check found, one after another, each shown with its example.

import { keep } from "../../app/parts/kept";
import { RowLink } from "../../app/parts/row_link";
import { SeverityMark } from "../../app/parts/severity";
import { useApp, useSay } from "../../app/state";
import { typed } from "../../drawing/numbers";
import type { Finding } from "../../model/check";
import { kSizes, type Plate } from "../../model/plate";
import { kMapWords } from "../../words/map";
import { kSizeWords } from "../../words/plate";
import { formOf, kTriedForm } from "../plate/form";
import type { MapQuestion } from "./question";

const kCodes = ["row-shadowed", "gap", "row-never-matches"];

/** Rows without plates first: they are mistakes more often than gaps. */
export function useSteps(): readonly Finding[] {
  const { check } = useApp();
  const findings = check.value?.findings ?? [];
  return kCodes.flatMap((code) => findings.filter((finding) => finding.code === code));
}

/** The picture in which the finding's example lies. */
export function questionFor({ witness, group }: Finding, question: MapQuestion): MapQuestion {
  if (witness === undefined) return question;
  return {
    ...question,
    fixed: Object.fromEntries(kSizes.map((size) => [size, witness[size]])),
    bodyColor: witness.color,
    profile: group?.profile ?? false,
    wireCutting: group?.wireCutting ?? false,
  };
}

function NewRow({ cells }: { cells: Readonly<Record<string, string>> }) {
  const say = useSay();
  return (
    <>
      <p>{say(kMapWords.newRow)}</p>
      <dl class="map-new-row">
        {Object.entries(cells).map(([column, cell]) => (
          <div key={column}>
            <dt>{column}</dt>
            <dd>{cell}</dd>
          </div>
        ))}
      </dl>
    </>
  );
}

function Step({ finding }: { finding: Finding }) {
  const say = useSay();
  const { show } = useApp();
  const { witness } = finding;
  const tryIt = (plate: Plate) => {
    keep(kTriedForm, formOf(plate));
    show("plate");
  };
  return (
    <div class="map-step">
      <p>
        <SeverityMark severity={finding.severity} isNamed /> {finding.message}
      </p>
      {finding.row !== undefined && (
        <p class="map-links">
          <RowLink row={finding.row} />
          {finding.blockers?.map((row) => (
            <RowLink key={row} row={row} />
          ))}
        </p>
      )}
      {witness && (
        <>
          <p class="quiet">
            {say(
              kMapWords.example,
              kSizes.map((size) => `${say(kSizeWords[size])} ${typed(witness[size])}`).join("  "),
            )}
          </p>
          <button type="button" class="small no-print" onClick={() => tryIt(witness)}>
            {say(kMapWords.tryIt)}
          </button>
        </>
      )}
      {finding.newRow && <NewRow cells={finding.newRow} />}
    </div>
  );
}

interface StepsProps {
  readonly steps: readonly Finding[];
  readonly at: number | undefined;
  go(at: number): void;
}

export function Steps({ steps, at, go }: StepsProps) {
  const say = useSay();
  const finding = at === undefined ? undefined : steps[at];
  if (steps.length === 0) return <p class="quiet">{say(kMapWords.noSteps)}</p>;
  return (
    <section class={`map-steps ${finding ? "" : "no-print"}`} aria-label={say(kMapWords.steps)}>
      <h2>{say(kMapWords.steps)}</h2>
      <p class="map-step-buttons">
        <button type="button" disabled={at === undefined || at === 0} onClick={() => go((at ?? 1) - 1)}>
          {say(kMapWords.previous)}
        </button>
        <button
          type="button"
          disabled={at !== undefined && at + 1 >= steps.length}
          onClick={() => go(at === undefined ? 0 : at + 1)}
        >
          {say(kMapWords.next)}
        </button>
        <span class="quiet" aria-live="polite">
          {say(kMapWords.step, at === undefined ? 0 : at + 1, steps.length)}
        </span>
      </p>
      {finding && <Step finding={finding} />}
    </section>
  );
}
