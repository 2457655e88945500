// What the plate gets, and why.

import type { ComponentChildren } from "preact";
import { useState } from "preact/hooks";
import { RowLink } from "../../app/parts/row_link";
import { copyText } from "../../app/parts/save";
import { useSay } from "../../app/state";
import type { ExplainedPlate } from "../../model/explain";
import type { ExplainedProcess, RefusedRow, Verdict } from "../../model/process";
import { kPageWords } from "../../words/page";
import { kPlateWords } from "../../words/plate";
import type { Change } from "./changes";
import { changesFor } from "./changes";
import { changeText, hasText, refusalText } from "./sentences";
import { StatusMark } from "./status_mark";

function Copy({ text }: { text: string }) {
  const say = useSay();
  const [note, setNote] = useState<string | undefined>();
  const copy = async () => {
    setNote(say((await copyText(text)) ? kPageWords.copied : kPageWords.notCopied));
    setTimeout(() => setNote(undefined), 2000);
  };
  return (
    <button type="button" class="no-print" onClick={() => void copy()}>
      <span aria-live="polite">{note ?? say(kPlateWords.copy)}</span>
    </button>
  );
}

/** The line breaks of the table's cells are CR LF, and mean a new line on the drawing too. */
function ProcessText({ plate }: { plate: ExplainedPlate }) {
  const say = useSay();
  return (
    <section class="process-text" aria-label={say(kPlateWords.text)}>
      <header>
        <StatusMark status={plate.status} />
        {plate.line !== null && <RowLink row={plate.line}>{say(kPlateWords.fits, plate.line)}</RowLink>}
        {plate.text !== "" && <Copy text={plate.text} />}
      </header>
      {plate.text !== "" && <p class="drawn">{plate.text.replaceAll("\r\n", "\n")}</p>}
    </section>
  );
}

const kVerdictSigns: Readonly<Record<Verdict, string>> = {
  written: "●",
  "does-not-apply": "○",
  "no-text": "–",
};

function ProcessRow({ process, isByHand }: { process: ExplainedProcess; isByHand: boolean }) {
  const say = useSay();
  return (
    <tr class={`verdict-${process.verdict}`}>
      <th scope="row">{process.process}</th>
      <td>
        {process.condition} {process.parameter !== "" && <span class="number">{process.parameter}</span>}
      </td>
      <td class="number">{hasText(process, isByHand, say)}</td>
      <td class="verdict">
        <span aria-hidden="true">{kVerdictSigns[process.verdict]}</span>{" "}
        {say(kPlateWords.verdicts[process.verdict])}
      </td>
      <td class="cell-text">{process.text}</td>
    </tr>
  );
}

interface ProcessesProps {
  readonly processes: readonly ExplainedProcess[];
  /** Those that are ordered by hand. */
  readonly byHand: readonly string[];
}

function Processes({ processes, byHand }: ProcessesProps) {
  const say = useSay();
  const [onlyWritten, setOnlyWritten] = useState(false);
  if (processes.length === 0) return null;
  const listed = onlyWritten ? processes.filter(({ verdict }) => verdict === "written") : processes;
  return (
    <section>
      <header class="section-head">
        <h3>{say(kPlateWords.processes)}</h3>
        <label class="tick no-print">
          <input
            type="checkbox"
            checked={onlyWritten}
            onChange={(event) => setOnlyWritten(event.currentTarget.checked)}
          />
          {say(kPlateWords.onlyWritten)}
        </label>
      </header>
      <table class="processes">
        <thead>
          <tr>
            <th scope="col">{say(kPlateWords.process)}</th>
            <th scope="col">{say(kPlateWords.condition)}</th>
            <th scope="col">{say(kPlateWords.has)}</th>
            <th scope="col">{say(kPlateWords.verdict)}</th>
            <th scope="col">{say(kPlateWords.cell)}</th>
          </tr>
        </thead>
        <tbody>
          {listed.map((process, index) => (
            <ProcessRow key={index} process={process} isByHand={byHand.includes(process.process)} />
          ))}
        </tbody>
      </table>
    </section>
  );
}

type Apply = (changes: readonly Change[]) => void;

/** What would have to change for the row, with a button that does it. */
function Changes({ row, apply }: { row: RefusedRow; apply: Apply }) {
  const say = useSay();
  const changes = changesFor(row.refusals);
  if (changes.length < row.refusals.length) return null;
  return (
    <div class="plate-changes">
      <p>
        <strong>{say(kPlateWords.change, row.line)}</strong>
      </p>
      <ul>
        {changes.map((change, index) => (
          <li key={index}>{changeText(change, say)}</li>
        ))}
      </ul>
      <button type="button" title={say(kPlateWords.applyTitle)} onClick={() => apply(changes)}>
        {say(kPlateWords.apply)}
      </button>
    </div>
  );
}

function Refused({ row, children }: { row: RefusedRow; children?: ComponentChildren }) {
  const say = useSay();
  return (
    <li>
      <RowLink row={row.line} />
      <div>
        {row.refusals.map((refusal, index) => (
          <span key={index} class="refusal">
            {refusalText(refusal, say)}
          </span>
        ))}
        {children}
      </div>
    </li>
  );
}

interface RefusedRowsProps {
  readonly plate: ExplainedPlate;
  readonly isComplete: boolean;
  askAll(isComplete: boolean): void;
  readonly apply: Apply;
}

function RefusedRows({ plate, isComplete, askAll, apply }: RefusedRowsProps) {
  const say = useSay();
  const [nearest] = plate.refusedRows;
  if (nearest === undefined) return null;
  return (
    <section>
      <header class="section-head">
        <h3>{say(plate.line === null ? kPlateWords.refused : kPlateWords.refusedBefore)}</h3>
        {(plate.furtherRows > 0 || isComplete) && (
          <button type="button" class="no-print" onClick={() => askAll(!isComplete)}>
            {say(isComplete ? kPlateWords.fewer : kPlateWords.all)}
            {!isComplete && ` (${say(kPlateWords.further, plate.furtherRows)})`}
          </button>
        )}
      </header>
      {plate.line === null && <Changes row={nearest} apply={apply} />}
      <ol class="refused">
        {plate.refusedRows.map((row) => (
          <Refused key={row.line} row={row} />
        ))}
      </ol>
      {plate.line !== null && <Changes row={nearest} apply={apply} />}
    </section>
  );
}

export function Result(props: RefusedRowsProps & Pick<ProcessesProps, "byHand">) {
  return (
    <>
      <ProcessText plate={props.plate} />
      {props.plate.line === null && <RefusedRows {...props} />}
      <Processes processes={props.plate.processes} byHand={props.byHand} />
      {props.plate.line !== null && <RefusedRows {...props} />}
    </>
  );
}
