// One table as a spreadsheet shows it; of a long or wide one only what is in sight is in the page.

import type { VirtualItem } from "@tanstack/virtual-core";
import type { TargetedKeyboardEvent } from "preact";
import { useCallback, useEffect, useId, useMemo, useRef } from "preact/hooks";
import { memo } from "../../app/parts/memo";
import { copyText } from "../../app/parts/save";
import { SeverityMark } from "../../app/parts/severity";
import { useVirtual } from "../../app/parts/virtual";
import type { Finding } from "../../model/check";
import type { TableCells } from "../../model/cells";
import { spotAfterKey } from "./grid_keys";
import { type FindingsBySpot, letters, nameOfSpot, type Spot, type Tints, usedAs, worst } from "./places";
import { columnWidths } from "./widths";

const kRowHeight = 26;
const kLettersHeight = 22;
const kHeaderHeight = kLettersHeight + kRowHeight;
const kGutter = 56;

interface GridProps {
  readonly cells: TableCells;
  readonly label: string;
  readonly findings?: FindingsBySpot;
  readonly tints?: Tints;
  readonly selected: Spot | undefined;
  select(spot: Spot): void;
  /** Called with the grid's element, for grids that scroll together. */
  readonly onScroll?: (element: HTMLElement) => void;
  readonly scrollerRef?: (element: HTMLDivElement | null) => void;
}

const kNone: FindingsBySpot = new Map();
const kNoCells: readonly string[] = [];

interface CellProps {
  readonly id: string;
  readonly text: string;
  readonly column: number;
  readonly start: number;
  readonly width: number;
  readonly findings: readonly Finding[] | undefined;
  readonly tint: string | undefined;
  readonly isSelected: boolean;
  readonly isHeader: boolean;
}

function Cell({ id, text, column, start, width, findings, tint, isSelected, isHeader }: CellProps) {
  const severity = findings && worst(findings);
  const used = findings && usedAs(findings, text);
  const classes = ["cell", severity && `is-${severity}`, tint && `is-${tint}`, isSelected && "is-selected"];
  return (
    <div
      id={id}
      role={isHeader ? "columnheader" : "gridcell"}
      aria-colindex={column}
      aria-selected={isSelected}
      class={classes.filter(Boolean).join(" ")}
      style={{ left: `${start}px`, width: `${width}px` }}
    >
      <span class="cell-text">{text.replace(/\r?\n/g, "⏎")}</span>
      {used !== undefined && <span class="cell-used">⇒ {used === "" ? "∅" : used}</span>}
      {severity && <SeverityMark severity={severity} isNamed />}
    </div>
  );
}

interface RowProps {
  readonly row: number;
  readonly id: string;
  readonly cells: readonly string[];
  readonly columns: readonly VirtualItem[];
  readonly findings: FindingsBySpot;
  readonly tints: Tints | undefined;
  /** The selected column when the selected cell is in this row; 0: the whole row. */
  readonly selectedColumn: number | undefined;
  /** Where the row begins, below the letters or in the body. */
  readonly top: number;
}

/** While the grid scrolls, rows that stay in sight stay as they are. */
const Row = memo(function Row(props: RowProps) {
  const { row, id, cells, columns, findings, tints, selectedColumn, top } = props;
  const ofRow = findings.get(String(row));
  const severity = ofRow && worst(ofRow);
  const tint = tints?.get(String(row));
  const isSelected = selectedColumn !== undefined;
  return (
    <div
      role="row"
      aria-rowindex={row}
      class={`row ${tint ? `is-${tint}` : ""} ${severity ? `row-${severity}` : ""}`}
      style={{ transform: `translateY(${top}px)` }}
    >
      <div
        role="rowheader"
        id={`${id}-${row}`}
        class={`gutter ${isSelected ? "is-current" : ""} ${severity ? `is-${severity}` : ""}`}
      >
        {severity && <SeverityMark severity={severity} isNamed />}
        {row}
      </div>
      {columns.map(({ index, start, size }) => {
        const name = nameOfSpot({ row, column: index + 1 });
        return (
          <Cell
            key={index}
            id={`${id}-${name}`}
            text={cells[index] ?? ""}
            column={index + 1}
            start={start + kGutter}
            width={size}
            findings={findings.get(name)}
            tint={tints?.get(name)}
            isSelected={selectedColumn === index + 1 || selectedColumn === 0}
            isHeader={row === 1}
          />
        );
      })}
    </div>
  );
});

/** The spot below the pointer, told by the cell's place. */
function spotAt(target: EventTarget | null): Spot | undefined {
  const cell = (target as Element | null)?.closest?.("[aria-colindex], [role=rowheader]");
  const row = Number(cell?.closest("[aria-rowindex]")?.getAttribute("aria-rowindex"));
  if (!cell || !row) return undefined;
  return { row, column: Number(cell.getAttribute("aria-colindex") ?? 0) };
}

export function Grid(props: GridProps) {
  const { cells, label, findings = kNone, tints, selected, select } = props;
  const id = useId();
  const scroller = useRef<HTMLDivElement>(null);
  const widths = useMemo(() => columnWidths(cells, findings), [cells, findings]);
  const widthOf = useCallback((index: number) => widths[index] ?? 56, [widths]);
  const heightOf = useCallback(() => kRowHeight, []);
  const bodyRows = Math.max(0, cells.rows.length - 1);
  const rows = useVirtual({ scroller, count: bodyRows, sizeOf: heightOf, frozen: kHeaderHeight });
  const columns = useVirtual({
    scroller,
    count: cells.columns,
    sizeOf: widthOf,
    isHorizontal: true,
    frozen: kGutter,
    overscan: 3,
  });
  useEffect(() => {
    if (selected === undefined) return;
    if (selected.row > 1) rows.scrollToIndex(selected.row - 2, { align: "auto" });
    if (selected.column > 0) columns.scrollToIndex(selected.column - 1, { align: "auto" });
  }, [selected?.row, selected?.column, cells, rows, columns]);

  // Who was sent here goes on by keys; whoever is elsewhere on the page stays there.
  useEffect(() => {
    const at = document.activeElement;
    if (at === document.body || at?.matches(".panel")) scroller.current?.focus({ preventScroll: true });
  }, []);

  const onKeyDown = (event: TargetedKeyboardEvent<HTMLDivElement>) => {
    const spot = selected ?? { row: 1, column: 1 };
    if ((event.ctrlKey || event.metaKey) && event.key === "c" && String(getSelection()) === "") {
      void copyText(cells.rows[spot.row - 1]?.cells[spot.column - 1] ?? "");
      return;
    }
    const page = Math.floor((event.currentTarget.clientHeight - kHeaderHeight) / kRowHeight) - 1;
    const next = spotAfterKey(event, spot, {
      rows: cells.rows.length,
      columns: cells.columns,
      page: Math.max(1, page),
    });
    if (next === undefined) return;
    event.preventDefault();
    select(next);
  };
  const shownColumns = columns.getVirtualItems();
  const width = columns.getTotalSize() + kGutter;
  const rowProps = (row: number) => ({
    ...{ id, row, findings, tints, columns: shownColumns },
    cells: cells.rows[row - 1]?.cells ?? kNoCells,
    selectedColumn: selected?.row === row ? selected.column : undefined,
  });
  return (
    <div
      class="grid"
      role="grid"
      tabIndex={0}
      aria-label={label}
      aria-rowcount={cells.rows.length}
      aria-colcount={cells.columns}
      aria-activedescendant={selected && `${id}-${nameOfSpot(selected)}`}
      ref={(element) => {
        scroller.current = element;
        props.scrollerRef?.(element);
      }}
      onKeyDown={onKeyDown}
      onPointerDown={(event) => {
        const spot = spotAt(event.target);
        if (spot !== undefined) select(spot);
      }}
      onScroll={(event) => props.onScroll?.(event.currentTarget)}
    >
      <div class="grid-head" role="rowgroup" style={{ width: `${width}px`, height: `${kHeaderHeight}px` }}>
        <div class="letters" role="presentation" style={{ height: `${kLettersHeight}px` }}>
          <div class="gutter" />
          {shownColumns.map(({ index, start, size }) => (
            <div
              key={index}
              aria-hidden="true"
              class={`letter ${selected?.column === index + 1 ? "is-current" : ""}`}
              style={{ left: `${start + kGutter}px`, width: `${size}px` }}
            >
              {letters(index + 1)}
            </div>
          ))}
        </div>
        {cells.rows.length > 0 && <Row {...rowProps(1)} top={kLettersHeight} />}
      </div>
      <div
        class="grid-body"
        role="rowgroup"
        style={{ width: `${width}px`, height: `${rows.getTotalSize()}px` }}
      >
        {rows.getVirtualItems().map(({ index, start }) => (
          <Row key={index} {...rowProps(index + 2)} top={start} />
        ))}
      </div>
    </div>
  );
}
