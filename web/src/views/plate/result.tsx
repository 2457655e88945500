// What the plate gets, and why.

import { useState } from "preact/hooks";
import { RowLink } from "../../app/parts/row_link";
import { copyText } from "../../app/parts/save";
import { useSay } from "../../app/state";
import type { ChangedMembers, ExplainedPlate, RefusedRow } from "../../model/explain";
import type { ExplainedProcess, Verdict } from "../../model/process";
import { kPageWords } from "../../words/page";
import { kPlateWords } from "../../words/plate";
import { changesOf } from "./changes";
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

type Apply = (members: ChangedMembers) => void;

interface ChangeProps {
  readonly plate: ExplainedPlate;
  readonly row: RefusedRow;
  readonly apply: Apply;
}

/** What would have to change for the row, with a button that does it. */
function ChangeList({ plate, row, apply }: ChangeProps) {
  const say = useSay();
  const { change } = row;
  if (change === null) return <p>{say(kPlateWords.unmeetable)}</p>;
  return (
    <>
      <ul>
        {changesOf(plate.plate, change.plate).map((each, index) => (
          <li key={index}>{changeText(each, say)}</li>
        ))}
      </ul>
      {change.line !== row.line && <p>{say(kPlateWords.taken, change.line)}</p>}
      <button
        type="button"
        class="no-print"
        title={say(kPlateWords.applyTitle)}
        onClick={() => apply(change.plate)}
      >
        {say(kPlateWords.apply)}
      </button>
    </>
  );
}

/** Folded, it has no content: there may be thousands of rows. */
function Change({ isOpen: isFirstOpen, ...props }: ChangeProps & { isOpen: boolean }) {
  const say = useSay();
  const [isOpen, open] = useState(isFirstOpen);
  return (
    <details class="plate-changes" open={isOpen} onToggle={(event) => open(event.currentTarget.open)}>
      <summary>{say(kPlateWords.change, props.row.line)}</summary>
      {isOpen && <ChangeList {...props} />}
    </details>
  );
}

function Refused({ isOpen, ...props }: ChangeProps & { isOpen: boolean }) {
  const say = useSay();
  return (
    <li>
      <RowLink row={props.row.line} />
      <div>
        {props.row.refusals.map((refusal, index) => (
          <span key={index} class="refusal">
            {refusalText(refusal, say)}
          </span>
        ))}
        <Change {...props} isOpen={isOpen} />
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
  if (plate.refusedRows.length === 0) return null;
  const isNearestFirst = plate.line === null;
  return (
    <section>
      <header class="section-head">
        <h3>{say(isNearestFirst ? kPlateWords.refused : kPlateWords.refusedBefore)}</h3>
        {(plate.furtherRows > 0 || isComplete) && (
          <button type="button" class="no-print" onClick={() => askAll(!isComplete)}>
            {say(isComplete ? kPlateWords.fewer : kPlateWords.all)}
            {!isComplete && ` (${say(kPlateWords.further, plate.furtherRows)})`}
          </button>
        )}
      </header>
      <ol class="refused">
        {plate.refusedRows.map((row, index) => (
          <Refused
            key={row.line}
            plate={plate}
            row={row}
            apply={apply}
            isOpen={isNearestFirst && index === 0}
          />
        ))}
      </ol>
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
