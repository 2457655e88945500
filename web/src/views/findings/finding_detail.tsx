// The chosen finding: what is wrong, and its cell in the table.

import { useEffect, useState } from "preact/hooks";
import { CopyButton, FindingCard } from "../../app/parts/finding_card";
import { shownFile, useApp, useSay } from "../../app/state";
import type { Finding } from "../../model/check";
import type { Plate } from "../../model/plate";
import { kFindingsWords } from "../../words/findings";
import { TablePane } from "../grid/table_pane";
import { placeOf, shownPlace } from "./filter";

/** A feature as a file of plates would have it: its column and its cell. */
function featureText([name, value]: [string, boolean | number | readonly number[]]): string {
  if (value === true) return name;
  return `${name} ${Array.isArray(value) ? value.join("_") : value === false ? "N" : value}`;
}

/** A plate in one line. */
export function PlateLine({ plate }: { plate: Plate }) {
  const say = useSay();
  const { length, width, thickness, weight, color, faceColors } = plate;
  const has = [...Object.entries(plate.features ?? {}).map(featureText), ...(plate.customProcesses ?? [])];
  const sizes = [length, width, thickness, weight].map(String) as [string, string, string, string];
  return (
    <>
      {say(kFindingsWords.exampleOf, ...sizes, color)}
      {faceColors.length > 0 && say(kFindingsWords.faces, faceColors.join("_"))}
      {has.length > 0 && say(kFindingsWords.has, has.join(", "))}
    </>
  );
}

/** A quoted cell for the clipboard, which spreadsheets take apart at tabs. */
function pasted(text: string): string {
  return /[\t\n"]/.test(text) ? `"${text.replaceAll('"', '""')}"` : text;
}

function NewRow({ row }: { row: Readonly<Record<string, string>> }) {
  const say = useSay();
  const cells = Object.entries(row);
  const text = [cells.map(([name]) => pasted(name)), cells.map(([, cell]) => pasted(cell))]
    .map((line) => line.join("\t"))
    .join("\r\n");
  return (
    <section class="new-row">
      <h3>
        {say(kFindingsWords.newRow)} <CopyButton text={text} label={say(kFindingsWords.copyRow)} />
      </h3>
      <div class="scroll-x" tabIndex={0} role="group" aria-label={say(kFindingsWords.newRow)}>
        <table class="plain">
          <thead>
            <tr>
              {cells.map(([name]) => (
                <th key={name} scope="col">
                  {name}
                </th>
              ))}
            </tr>
          </thead>
          <tbody>
            <tr>
              {cells.map(([name, cell]) => (
                <td key={name}>{cell}</td>
              ))}
            </tr>
          </tbody>
        </table>
      </div>
    </section>
  );
}

export function FindingDetail({ finding, open }: { finding: Finding; open: () => void }) {
  const { workspace, check } = useApp();
  const say = useSay();
  const ofFile = check.value?.findings.filter(({ file }) => file === finding.file) ?? [];
  const place = placeOf(finding);
  const [at, setAt] = useState(place);
  useEffect(() => setAt(place), [finding, place]);
  return (
    <div class="detail">
      <div class="detail-head">
        <h2>
          {shownFile(finding.file)} {shownPlace(finding, say)}
        </h2>
        <span class="spring" />
        {/\.csv$/i.test(finding.file) && (
          <button type="button" onClick={open}>
            {say(kFindingsWords.openTable)} <kbd>Enter</kbd>
          </button>
        )}
      </div>
      <FindingCard finding={finding} />
      {finding.witness !== undefined && (
        <p class="witness">
          {say(kFindingsWords.witness)}: <PlateLine plate={finding.witness} />
        </p>
      )}
      {finding.newRow !== undefined && <NewRow row={finding.newRow} />}
      {workspace !== undefined && /\.csv$/i.test(finding.file) && (
        <TablePane
          key={finding.file}
          workspace={workspace}
          path={finding.file}
          findings={ofFile}
          at={at}
          select={setAt}
          isCompact
        />
      )}
    </div>
  );
}
