// The rows of the picture, as its legend.

import { useRef } from "preact/hooks";
import { useOpenRow } from "../../app/parts/row_link";
import { usePrinting } from "../../app/parts/printing";
import { useVirtual } from "../../app/parts/virtual";
import { useSay } from "../../app/state";
import type { Region, RuleMapPicture } from "../../model/pictures";
import { kMapWords } from "../../words/map";
import { kPlateWords } from "../../words/plate";
import type { Say } from "../../words/say";

const kRowHeight = 30;
const rowHeight = () => kRowHeight;

/** What becomes of the row in this picture. */
function fate({ wins, hiddenBy }: Region, say: Say): string {
  if (hiddenBy.length === 0) return "";
  return wins.length === 0
    ? say(kMapWords.whollyHidden, hiddenBy.join(say(kMapWords.joint)))
    : say(kMapWords.partlyHidden);
}

interface RowsProps {
  readonly picture: RuleMapPicture;
  readonly colors: ReadonlyMap<number, string>;
  readonly outlined: number | undefined;
  outline(row: number | undefined): void;
}

function Row({ region, colors, outlined, outline }: RowsProps & { region: Region }) {
  const say = useSay();
  const open = useOpenRow();
  const isHidden = region.wins.length === 0;
  const told = fate(region, say);
  return (
    <button
      type="button"
      title={told === "" ? say(kPlateWords.openRow) : told}
      data-outlined={region.row === outlined}
      onPointerEnter={() => outline(region.row)}
      onFocus={() => outline(region.row)}
      onBlur={() => outline(undefined)}
      onClick={() => open(region.row)}
    >
      <span
        class={`map-swatch${isHidden ? " map-swatch-hidden" : ""}`}
        style={isHidden ? undefined : { background: colors.get(region.row) }}
      />
      <span>{say(kPlateWords.row, region.row)}</span>
      <span class="quiet">{say(kMapWords.layer, region.layer)}</span>
      <span class="map-fate">{told}</span>
    </button>
  );
}

/** However many rows there are, the page has those in sight alone; paper has all. */
function RowList(props: RowsProps) {
  const say = useSay();
  const scroller = useRef<HTMLDivElement>(null);
  const isPrinting = usePrinting();
  const { regions } = props.picture;
  const virtual = useVirtual({ scroller, count: regions.length, sizeOf: rowHeight });
  if (isPrinting) return <AllRows {...props} />;
  return (
    <div class="map-row-list" ref={scroller} onPointerLeave={() => props.outline(undefined)}>
      <ul style={{ height: `${virtual.getTotalSize()}px` }} aria-label={say(kMapWords.rows)}>
        {virtual.getVirtualItems().map(({ index, start }) => {
          const region = regions[index];
          return (
            region && (
              <li
                key={region.row}
                style={{ top: `${start}px` }}
                aria-setsize={regions.length}
                aria-posinset={index + 1}
              >
                <Row {...props} region={region} />
              </li>
            )
          );
        })}
      </ul>
    </div>
  );
}

function AllRows(props: RowsProps) {
  return (
    <ul class="map-rows-on-paper">
      {props.picture.regions.map((region) => (
        <li key={region.row}>
          <Row {...props} region={region} />
        </li>
      ))}
    </ul>
  );
}

export function Rows(props: RowsProps) {
  const say = useSay();
  const { regions, gaps } = props.picture;
  return (
    <section class="map-rows" aria-label={say(kMapWords.rows)}>
      <h2>
        {say(kMapWords.rows)} <span class="quiet">{regions.length}</span>
      </h2>
      <p class="quiet">{say(kMapWords.rowsHint)}</p>
      <RowList {...props} />
      {gaps.length > 0 && (
        <p class="map-gaps">
          <span class="map-swatch map-swatch-gap" /> {say(kMapWords.gaps, gaps.length)}
        </p>
      )}
    </section>
  );
}
