// A table as it is printed: what is wrong in it first, then all its cells, in bands of columns that fit the paper.

import { useMemo } from "preact/hooks";
import { SeverityMark } from "../../app/parts/severity";
import { useSay } from "../../app/state";
import type { Finding } from "../../model/check";
import type { CellRow, TableCells } from "../../model/cells";
import { kFindingsWords } from "../../words/findings";
import { kGridWords } from "../../words/grid";
import { kPageWords } from "../../words/page";
import type { Say } from "../../words/say";
import { type Band, kNumbersWidth, type PaperLayout, paperLayout } from "./paper";
import {
  type FindingsBySpot,
  inOrder,
  letters,
  nameOfSpot,
  spotOf,
  type Tints,
  usedAs,
  worst,
} from "./places";
import "./paper.css";

interface PaperTableProps {
  readonly title: string;
  readonly cells: TableCells;
  readonly findings?: FindingsBySpot;
  readonly tints?: Tints;
}

const kNone: FindingsBySpot = new Map();

/** Those of the whole file first, then from the left to the right and down. */
function placed(findings: FindingsBySpot): readonly (readonly [string, Finding])[] {
  const places = [...findings].map(([name, ofSpot]) => ({ name, ofSpot, spot: spotOf(name) }));
  const order = { row: 0, column: 0 };
  places.sort((one, two) => inOrder(one.spot ?? order, two.spot ?? order));
  return places.flatMap(({ name, ofSpot }) => ofSpot.map((finding) => [name, finding] as const));
}

function placeText(name: string, say: Say): string {
  const spot = spotOf(name);
  if (spot === undefined) return say(kGridWords.wholeFile);
  return spot.column === 0 ? say(kGridWords.row, spot.row) : name;
}

function FindingRow({ name, finding }: { name: string; finding: Finding }) {
  const say = useSay();
  const { severity, message, usedAs: used, fix } = finding;
  const shown = (text: string | null) => (text === "" ? say(kGridWords.emptyText) : text);
  return (
    <tr>
      <th scope="row">{placeText(name, say)}</th>
      <td>
        <SeverityMark severity={severity} /> {say(kPageWords.severity[severity])}
      </td>
      <td>{message}</td>
      <td>{shown(used)}</td>
      <td>{shown(fix)}</td>
    </tr>
  );
}

function PaperFindings({ findings }: { findings: FindingsBySpot }) {
  const say = useSay();
  const listed = placed(findings);
  if (listed.length === 0) return null;
  const { place, severity, finding, fix } = kFindingsWords;
  return (
    <table class="paper-findings">
      <caption>{say(kGridWords.problems)}</caption>
      <thead>
        <tr>
          {[place, severity, finding, kGridWords.readAs, fix].map((word) => (
            <th key={word.en} scope="col">
              {say(word)}
            </th>
          ))}
        </tr>
      </thead>
      <tbody>
        {listed.map(([name, each], index) => (
          <FindingRow key={index} name={name} finding={each} />
        ))}
      </tbody>
    </table>
  );
}

interface PaperCellProps {
  readonly text: string;
  readonly findings: readonly Finding[] | undefined;
  readonly tint: string | undefined;
}

function PaperCell({ text, findings, tint }: PaperCellProps) {
  const severity = findings && worst(findings);
  const used = findings && usedAs(findings, text);
  const classes = [severity && `is-${severity}`, tint && `is-${tint}`].filter(Boolean).join(" ");
  return (
    <td class={classes || undefined}>
      {severity && <SeverityMark severity={severity} />}
      {text}
      {used !== undefined && <span class="paper-used"> ⇒ {used === "" ? "∅" : used}</span>}
    </td>
  );
}

interface BandProps extends Required<Pick<PaperTableProps, "cells" | "findings">> {
  readonly tints: PaperTableProps["tints"];
  readonly layout: PaperLayout;
  readonly band: Band;
}

/** The letters and the header stand again on each page. */
function PaperBand({ cells, findings, tints, layout, band }: BandProps) {
  const columns = layout.widths.map((_, column) => column).slice(band.from, band.to);
  const row = ({ cells: texts }: CellRow, index: number) => (
    <tr key={index} class={tints?.get(String(index + 1)) && `is-${tints.get(String(index + 1))}`}>
      <th scope="row" class={findings.has(String(index + 1)) ? "is-wrong" : undefined}>
        {index + 1}
      </th>
      {columns.map((column) => {
        const name = nameOfSpot({ row: index + 1, column: column + 1 });
        return (
          <PaperCell
            key={column}
            text={texts[column] ?? ""}
            findings={findings.get(name)}
            tint={tints?.get(name)}
          />
        );
      })}
    </tr>
  );
  const width = columns.reduce((sum, column) => sum + (layout.widths[column] ?? 0), kNumbersWidth);
  const [header, ...body] = cells.rows.slice(0, layout.rows);
  return (
    <table class="paper-band" style={{ width: `${width}px` }}>
      <colgroup>
        <col style={{ width: `${kNumbersWidth}px` }} />
        {columns.map((column) => (
          <col key={column} style={{ width: `${layout.widths[column]}px` }} />
        ))}
      </colgroup>
      <thead>
        <tr>
          <th />
          {columns.map((column) => (
            <th key={column} scope="col">
              {letters(column + 1)}
            </th>
          ))}
        </tr>
        {header && row(header, 0)}
      </thead>
      <tbody>{body.map((each, index) => row(each, index + 1))}</tbody>
    </table>
  );
}

export function PaperTable({ title, cells, findings = kNone, tints }: PaperTableProps) {
  const say = useSay();
  const layout = useMemo(() => paperLayout(cells, findings), [cells, findings]);
  const all = cells.rows.length;
  return (
    <section class="paper">
      {layout.isLandscape && <style>{"@page { size: A4 landscape; }"}</style>}
      <h2>
        {title} <small>{say(kGridWords.size, all, cells.columns)}</small>
      </h2>
      {layout.rows < all && <p class="form-note">{say(kGridWords.cut, layout.rows, all)}</p>}
      <PaperFindings findings={findings} />
      {layout.bands.map((band) => (
        <PaperBand key={band.from} {...{ cells, findings, tints, layout, band }} />
      ))}
    </section>
  );
}
