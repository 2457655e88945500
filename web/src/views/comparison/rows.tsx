// The rule rows that differ, and their cells in both tables.

import { useState } from "preact/hooks";
import { Empty, Failure } from "../../app/parts/failure";
import { usePrinting } from "../../app/parts/printing";
import { useSay } from "../../app/state";
import type { TableCells } from "../../model/cells";
import type { ChangedRow } from "../../model/diff";
import { kComparisonWords } from "../../words/comparison";
import { useCells } from "../grid/use_cells";
import { DifferenceTable } from "./marked_text";
import type { Pair, TablePair } from "./use_difference";

function cellOf(cells: TableCells | undefined, row: number | null, column: string): string {
  const at = cells?.rows[0]?.cells.indexOf(column) ?? -1;
  return row === null || at === -1 ? "" : (cells?.rows[row - 1]?.cells[at] ?? "");
}

/** "Row 5", "row 5 → 3", the side that has it. */
function Places({ row }: { row: ChangedRow }) {
  const say = useSay();
  const { oldRow, newRow } = row;
  if (oldRow === null) return <>{say(kComparisonWords.row, newRow ?? 0)}</>;
  if (newRow === null || newRow === oldRow) return <>{say(kComparisonWords.row, oldRow)}</>;
  return (
    <>
      {say(kComparisonWords.row, oldRow)} → {newRow}
    </>
  );
}

interface RowDifferenceProps {
  readonly row: ChangedRow;
  readonly old: TableCells | undefined;
  readonly now: TableCells | undefined;
  showInTables(row: ChangedRow): void;
}

function RowDifference({ row, old, now, showInTables }: RowDifferenceProps) {
  const say = useSay();
  return (
    <>
      <div class="detail-head">
        <h2>
          {say(kComparisonWords.change[row.change])} <Places row={row} />
        </h2>
        <span class="spring" />
        <button type="button" onClick={() => showInTables(row)}>
          {say(kComparisonWords.showInTables)}
        </button>
      </div>
      <DifferenceTable
        of={say(kComparisonWords.column)}
        rows={row.columns.map((column) => ({
          name: column,
          old: cellOf(old, row.oldRow, column),
          now: cellOf(now, row.newRow, column),
        }))}
      />
    </>
  );
}

interface RowsProps {
  readonly rows: readonly ChangedRow[];
  readonly pair: Pair;
  readonly table: TablePair | undefined;
  showInTables(row: ChangedRow): void;
}

/** The chosen row; on paper, where none can be chosen, all of them. */
function Chosen({ rows, row: chosen, pair, table, showInTables }: RowsProps & { row: ChangedRow }) {
  const say = useSay();
  const isPrinting = usePrinting();
  const [old, now] = [useCells(pair.old, table?.old), useCells(pair.now, table?.now)];
  const failed = [old, now].find((answer) => answer.state === "failed");
  if (failed?.state === "failed") return <Failure error={failed.error} />;
  const shared = { old: old.value, now: now.value, showInTables };
  return (
    <div class="scroll" tabIndex={0} role="group" aria-label={say(kComparisonWords.parts.rows)}>
      {(isPrinting ? rows : [chosen]).map((row, index) => (
        <RowDifference key={index} row={row} {...shared} />
      ))}
    </div>
  );
}

const kSigns = { added: "+", removed: "−", changed: "≠" } as const;

export function ChangedRows(props: RowsProps) {
  const { rows } = props;
  const say = useSay();
  const [at, setAt] = useState(0);
  const row = rows[Math.min(at, rows.length - 1)];
  if (row === undefined) return <Empty>{say(kComparisonWords.noneOf)}</Empty>;
  return (
    <div class="with-side">
      <nav class="side" aria-label={say(kComparisonWords.list)}>
        <ul>
          {rows.map((each, index) => (
            <li key={index}>
              <button
                type="button"
                class={`side-item row-item is-${each.change}`}
                aria-current={each === row ? "true" : undefined}
                onClick={() => setAt(index)}
              >
                <span class="side-name">
                  <b class="row-sign" aria-hidden="true">
                    {kSigns[each.change]}
                  </b>{" "}
                  <Places row={each} /> {say(kComparisonWords.change[each.change])}
                </span>
                <span class="quiet">{say(kComparisonWords.columns, each.columns.length)}</span>
              </button>
            </li>
          ))}
        </ul>
      </nav>
      <Chosen {...props} row={row} />
    </div>
  );
}
