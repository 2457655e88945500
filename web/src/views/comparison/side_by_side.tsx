// One table of both folders beside each other, changed cells coloured; the two scroll together.

import { useMemo, useRef, useState } from "preact/hooks";
import { Failure } from "../../app/parts/failure";
import { roleName } from "../../app/parts/role_name";
import { usePrinting } from "../../app/parts/printing";
import { shownFile, useSay, type Workspace } from "../../app/state";
import { kRuleTable } from "../../model/check";
import type { TableCells } from "../../model/cells";
import type { Difference } from "../../model/diff";
import { kComparisonWords } from "../../words/comparison";
import { kGridWords } from "../../words/grid";
import { Grid } from "../grid/grid";
import { PaperTable } from "../grid/paper_table";
import { nameOfSpot, type Spot, type Tints } from "../grid/places";
import { fileNamed, useCells } from "../grid/use_cells";
import { common } from "./text_difference";
import type { Pair, TablePair } from "./use_difference";

type Side = "old" | "now";

/** The cells of a column below the header, with their rows, without the empty ones. */
function columnOf(cells: TableCells, header: string): readonly (Spot & { readonly text: string })[] {
  const index = cells.rows[0]?.cells.indexOf(header) ?? -1;
  return cells.rows.flatMap((row, at) => {
    const text = row.cells[index] ?? "";
    return at === 0 || text === "" ? [] : [{ row: at + 1, column: index + 1, text }];
  });
}

/** Of the columns of changed settings, the cells that the other table's column lacks. */
function settingTints(cells: TableCells, others: TableCells | undefined, columns: readonly string[]) {
  const tints = new Map<string, "changed">();
  for (const header of columns) {
    const mine = columnOf(cells, header);
    const its = others === undefined ? [] : columnOf(others, header);
    const [inMine] = common(
      mine.map(({ text }) => text),
      its.map(({ text }) => text),
    );
    mine.forEach((spot, index) => {
      if (!inMine[index]) tints.set(nameOfSpot(spot), "changed");
    });
  }
  return tints;
}

function tintsOf({ cells, others, difference, role, side }: TintProps): Tints {
  const columns = difference.settings.filter((setting) => setting.role === role).map(({ column }) => column);
  const tints = new Map<string, "added" | "removed" | "changed">(settingTints(cells, others, columns));
  if (role !== kRuleTable) return tints;
  for (const changed of difference.rows) {
    const row = side === "old" ? changed.oldRow : changed.newRow;
    if (row === null) continue;
    tints.set(nameOfSpot({ row, column: 0 }), changed.change);
    for (const column of changed.columns) {
      const at = cells.rows[0]?.cells.indexOf(column) ?? -1;
      if (at !== -1) tints.set(nameOfSpot({ row, column: at + 1 }), changed.change);
    }
  }
  return tints;
}

interface TintProps {
  readonly cells: TableCells;
  readonly others: TableCells | undefined;
  readonly difference: Difference;
  readonly role: string;
  readonly side: Side;
}

interface SideProps {
  readonly side: Side;
  readonly workspace: Workspace;
  readonly path: string | undefined;
  /** The other folder, and its table of the role. */
  readonly otherWorkspace: Workspace;
  readonly otherPath: string | undefined;
  readonly role: string;
  readonly difference: Difference;
  readonly selected: Spot | undefined;
  select(spot: Spot): void;
  onScroll(element: HTMLElement): void;
  scrollerRef(element: HTMLDivElement | null): void;
}

function SideGrid(props: SideProps) {
  const { side, workspace, path, role, difference, otherWorkspace, otherPath } = props;
  const say = useSay();
  const isThere = fileNamed(workspace, path) !== undefined;
  const answer = useCells(workspace, isThere ? path : undefined);
  const cells = answer.value;
  const others = useCells(
    otherWorkspace,
    fileNamed(otherWorkspace, otherPath) === undefined ? undefined : otherPath,
  ).value;
  const tints = useMemo(
    () => cells && tintsOf({ cells, others, difference, role, side }),
    [cells, others, difference, role, side],
  );
  const isPrinting = usePrinting();
  const text = props.selected && cells?.rows[props.selected.row - 1]?.cells[props.selected.column - 1];
  return (
    <section class="compared">
      <h2>
        <span class={`side-badge is-${side}`}>
          {say(side === "old" ? kComparisonWords.old : kComparisonWords.new)}
        </span>{" "}
        {workspace.name} / {path && shownFile(path)}
      </h2>
      <div class="cell-bar">
        <output class="cell-name">{props.selected && nameOfSpot(props.selected)}</output>
        <span class="cell-content">{text}</span>
      </div>
      {!isThere && <p class="form-note">{say(kComparisonWords.onlyOne)}</p>}
      {answer.state === "failed" && <Failure error={answer.error} />}
      {isThere && cells === undefined && answer.state !== "failed" && (
        <p class="quiet pad">{say(kGridWords.loading)}</p>
      )}
      {cells !== undefined && (
        <Grid
          cells={cells}
          label={cells.file}
          selected={props.selected}
          select={props.select}
          onScroll={props.onScroll}
          scrollerRef={props.scrollerRef}
          {...(tints && { tints })}
        />
      )}
      {cells !== undefined && isPrinting && <PaperTable title="" cells={cells} {...(tints && { tints })} />}
    </section>
  );
}

/** What one grid is scrolled to, the other is too. */
function useScrollTogether() {
  const elements = useRef<Partial<Record<Side, HTMLElement | null>>>({});
  const follow = (side: Side) => (element: HTMLElement) => {
    const other = elements.current[side === "old" ? "now" : "old"];
    if (!other) return;
    if (other.scrollLeft !== element.scrollLeft) other.scrollLeft = element.scrollLeft;
    if (other.scrollTop !== element.scrollTop) other.scrollTop = element.scrollTop;
  };
  const keep = (side: Side) => (element: HTMLDivElement | null) => {
    elements.current[side] = element;
  };
  return { follow, keep };
}

/** A changed row stands elsewhere in the other table; other cells are looked at in the same place. */
function opposite(spot: Spot, from: Side, difference: Difference, role: string): Spot {
  if (role !== kRuleTable) return spot;
  const [mine, its] = from === "old" ? (["oldRow", "newRow"] as const) : (["newRow", "oldRow"] as const);
  const row = difference.rows.find((each) => each[mine] === spot.row)?.[its];
  return { row: row ?? spot.row, column: spot.column };
}

interface SideBySideProps {
  readonly pair: Pair;
  readonly tables: readonly TablePair[];
  readonly difference: Difference;
  readonly role: string;
  chooseRole(role: string): void;
  /** Where the reader was sent in the rule table. */
  readonly at: Readonly<Partial<Record<Side, Spot>>>;
}

export function SideBySide({ pair, tables, difference, role, chooseRole, at }: SideBySideProps) {
  const say = useSay();
  const [spots, setSpots] = useState(at);
  const { follow, keep } = useScrollTogether();
  const table = tables.find((each) => each.role === role) ?? tables[0];
  if (table === undefined) return null;
  const select = (side: Side) => (spot: Spot) => {
    const other = opposite(spot, side, difference, table.role);
    setSpots(side === "old" ? { old: spot, now: other } : { now: spot, old: other });
  };
  const shared = { role: table.role, difference };
  const sideProps = (side: Side) => ({
    side,
    selected: spots[side],
    select: select(side),
    onScroll: follow(side),
    scrollerRef: keep(side),
    ...shared,
  });
  return (
    <>
      <div class="bar">
        <label>
          {say(kComparisonWords.chooseTable)}{" "}
          <select
            value={table.role}
            onChange={(event) => {
              setSpots({});
              chooseRole(event.currentTarget.value);
            }}
          >
            {tables.map((each) => (
              <option key={each.role} value={each.role}>
                {shownFile(each.now ?? each.old ?? "")} · {roleName(each, say)}
                {each.isSame ? "" : " ≠"}
              </option>
            ))}
          </select>
        </label>
      </div>
      <div class="side-by-side">
        <SideGrid
          key={`old ${table.old}`}
          {...sideProps("old")}
          workspace={pair.old}
          path={table.old}
          otherWorkspace={pair.now}
          otherPath={table.now}
        />
        <SideGrid
          key={`now ${table.now}`}
          {...sideProps("now")}
          workspace={pair.now}
          path={table.now}
          otherWorkspace={pair.old}
          otherPath={table.old}
        />
      </div>
    </>
  );
}
