// A table with what stands in the selected cell above it and what is wrong there beside it.

import { useMemo, useState } from "preact/hooks";
import { Failure } from "../../app/parts/failure";
import { FindingCard } from "../../app/parts/finding_card";
import { usePrinting } from "../../app/parts/printing";
import { kSeverities, SeverityMark } from "../../app/parts/severity";
import { shownFile, useApp, useSay, type Workspace } from "../../app/state";
import type { Finding } from "../../model/check";
import type { TableCells } from "../../model/cells";
import { kGridWords } from "../../words/grid";
import { Grid } from "./grid";
import { PaperTable } from "./paper_table";
import {
  type FindingsBySpot,
  findingsBySpot,
  inOrder,
  nameOfSpot,
  type Spot,
  spotIn,
  spotOfFinding,
} from "./places";
import { fileNamed, useCells } from "./use_cells";

/** What stands in the selected cell, whole: in the grid it may be cut off. */
function CellBar({ cells, spot }: { cells: TableCells; spot: Spot | undefined }) {
  const say = useSay();
  if (spot === undefined)
    return (
      <div class="cell-bar">
        <span class="quiet">{say(kGridWords.pickCell)}</span>
      </div>
    );
  const row = cells.rows[spot.row - 1];
  const text = spot.column === 0 ? undefined : row?.cells[spot.column - 1];
  const header = spot.row > 1 ? cells.rows[0]?.cells[spot.column - 1] : undefined;
  return (
    <div class="cell-bar">
      <output class="cell-name">{nameOfSpot(spot)}</output>
      {header !== undefined && <span class="cell-header">{header}</span>}
      <span class="cell-content">
        {spot.column === 0
          ? say(kGridWords.row, spot.row)
          : text || <span class="quiet">{say(kGridWords.emptyCell)}</span>}
      </span>
      {row !== undefined && row.line !== spot.row && (
        <span class="quiet">{say(kGridWords.line, row.line)}</span>
      )}
    </div>
  );
}

/** The findings at a spot: of the cell, of its row; those of the whole file come last. */
function findingsAt(bySpot: FindingsBySpot, spot: Spot | undefined): readonly Finding[] {
  if (spot === undefined) return [];
  const names = spot.column === 0 ? [String(spot.row)] : [nameOfSpot(spot), String(spot.row)];
  return names.flatMap((name) => bySpot.get(name) ?? []);
}

function Beside({ bySpot, spot }: { bySpot: FindingsBySpot; spot: Spot | undefined }) {
  const say = useSay();
  const here = findingsAt(bySpot, spot);
  const whole = bySpot.get("") ?? [];
  return (
    <aside class="beside" aria-label={say(kGridWords.problems)}>
      {here.length > 0 && spot !== undefined && <h3>{nameOfSpot(spot)}</h3>}
      {here.map((finding, index) => (
        <FindingCard key={index} finding={finding} />
      ))}
      {here.length + whole.length === 0 && <p class="quiet pad">{say(kGridWords.pick)}</p>}
      {whole.length > 0 && <h3>{say(kGridWords.wholeFile)}</h3>}
      {whole.map((finding, index) => (
        <FindingCard key={index} finding={finding} />
      ))}
    </aside>
  );
}

/** The next or previous spot with a finding, round the table. */
function spotBeside(
  findings: readonly Finding[],
  cells: TableCells,
  spot: Spot | undefined,
  step: 1 | -1,
): Spot | undefined {
  const spots = findings.flatMap((finding) => spotOfFinding(finding, cells) ?? []).sort(inOrder);
  if (spot === undefined) return step === 1 ? spots[0] : spots.at(-1);
  if (step === 1) return spots.find((each) => inOrder(each, spot) > 0) ?? spots[0];
  return spots.filter((each) => inOrder(each, spot) < 0).at(-1) ?? spots.at(-1);
}

/** The next cell that holds a text, row by row behind the selected one, round the table. */
function spotHolding(cells: TableCells, text: string, from: Spot | undefined): Spot | undefined {
  const sought = text.toLowerCase();
  const found: Spot[] = [];
  cells.rows.forEach((row, index) =>
    row.cells.forEach((cell, column) => {
      if (cell.toLowerCase().includes(sought)) found.push({ row: index + 1, column: column + 1 });
    }),
  );
  return found.find((spot) => from === undefined || inOrder(spot, from) > 0) ?? found[0];
}

interface BarProps {
  readonly cells: TableCells;
  readonly findings: readonly Finding[];
  readonly spot: Spot | undefined;
  select(spot: Spot): void;
}

function Find({ cells, spot, select }: BarProps) {
  const say = useSay();
  const [isLost, setLost] = useState(false);
  const find = (text: string) => {
    const found = text === "" ? undefined : spotHolding(cells, text, spot);
    setLost(text !== "" && found === undefined);
    if (found !== undefined) select(found);
  };
  return (
    <>
      <input
        type="search"
        class="find"
        placeholder={say(kGridWords.find)}
        aria-label={say(kGridWords.find)}
        onInput={() => setLost(false)}
        onKeyDown={(event) => event.key === "Enter" && find(event.currentTarget.value)}
      />
      <span class="quiet" role="status">
        {isLost ? say(kGridWords.notFound) : ""}
      </span>
    </>
  );
}

/** How many findings of each severity; nothing when there are none. */
export function SeverityCounts({ findings }: { findings: readonly Finding[] }) {
  return (
    <span class="severity-counts">
      {kSeverities.map((severity) => {
        const count = findings.filter((finding) => finding.severity === severity).length;
        return count === 0 ? null : (
          <span key={severity}>
            <SeverityMark severity={severity} isNamed />
            {count}
          </span>
        );
      })}
    </span>
  );
}

function Bar(props: BarProps) {
  const say = useSay();
  const { cells, findings, spot, select } = props;
  const step = (by: 1 | -1) => {
    const next = spotBeside(findings, cells, spot, by);
    if (next !== undefined) select(next);
  };
  return (
    <div class="bar">
      {findings.length === 0 ? (
        <span class="quiet">{say(kGridWords.noProblems)}</span>
      ) : (
        <SeverityCounts findings={findings} />
      )}
      <button type="button" disabled={findings.length === 0} onClick={() => step(-1)}>
        ↑ {say(kGridWords.previous)}
      </button>
      <button type="button" disabled={findings.length === 0} onClick={() => step(1)}>
        ↓ {say(kGridWords.next)}
      </button>
      <Find {...props} />
      <span class="spring" />
      <span class="quiet">{say(kGridWords.size, cells.rows.length, cells.columns)}</span>
    </div>
  );
}

interface TablePaneProps {
  readonly workspace: Workspace;
  readonly path: string;
  readonly findings: readonly Finding[];
  /** Where the reader was sent: a cell's name. */
  readonly at: string | undefined;
  select(name: string): void;
  /** Without tools, as a part of another view. */
  readonly isCompact?: boolean;
}

function Loaded({ cells, findings, at, select, isCompact = false }: TablePaneProps & { cells: TableCells }) {
  const say = useSay();
  const spot = at === undefined ? undefined : spotIn(cells, at);
  const bySpot = useMemo(() => findingsBySpot(findings, cells), [findings, cells]);
  const selectSpot = (next: Spot) => select(nameOfSpot(next));
  const form = kGridWords.forms[cells.form];
  const isPrinting = usePrinting();
  return (
    <div class="table-pane">
      {!isCompact && <Bar cells={cells} findings={findings} spot={spot} select={selectSpot} />}
      <CellBar cells={cells} spot={spot} />
      {form !== undefined && <p class="form-note">{say(form)}</p>}
      <div class="table-body">
        {cells.rows.length > 0 && (
          <Grid cells={cells} label={cells.file} findings={bySpot} selected={spot} select={selectSpot} />
        )}
        {!isCompact && findings.length > 0 && <Beside bySpot={bySpot} spot={spot} />}
      </div>
      {!isCompact && isPrinting && (
        <PaperTable title={shownFile(cells.file)} cells={cells} findings={bySpot} />
      )}
    </div>
  );
}

export function TablePane(props: TablePaneProps) {
  const say = useSay();
  const { check } = useApp();
  const isThere = fileNamed(props.workspace, props.path) !== undefined;
  const answer = useCells(props.workspace, isThere ? props.path : undefined);
  if (!isThere) {
    return (
      <div class="table-pane">
        <p class="form-note">{say(kGridWords.gone, shownFile(props.path))}</p>
        {check.value && props.findings.map((finding, index) => <FindingCard key={index} finding={finding} />)}
      </div>
    );
  }
  if (answer.state === "failed") return <Failure error={answer.error} />;
  if (answer.value === undefined) return <p class="quiet pad">{say(kGridWords.loading)}</p>;
  return <Loaded {...props} cells={answer.value} />;
}
