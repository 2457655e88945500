// The rows of the picture, as its legend.

import { useRef } from "preact/hooks";
import { useOpenRow } from "../../app/parts/row_link";
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

interface RowProps {
  readonly region: Region;
  readonly color: string | undefined;
  readonly isOutlined: boolean;
  outline(row: number | undefined): void;
}

function Row({ region, color, isOutlined, outline }: RowProps) {
  const say = useSay();
  const open = useOpenRow();
  const isHidden = region.wins.length === 0;
  const told = fate(region, say);
  return (
    <button
      type="button"
      title={told === "" ? say(kPlateWords.openRow) : told}
      data-outlined={isOutlined}
      onPointerEnter={() => outline(region.row)}
      onFocus={() => outline(region.row)}
      onBlur={() => outline(undefined)}
      onClick={() => open(region.row)}
    >
      <span
        class={`map-swatch${isHidden ? " map-swatch-hidden" : ""}`}
        style={isHidden ? undefined : { background: color }}
      />
      <span>{say(kPlateWords.row, region.row)}</span>
      <span class="quiet">{say(kMapWords.layer, region.layer)}</span>
      <span class="map-fate">{told}</span>
    </button>
  );
}

/** However many rows there are, the page has those in sight alone. */
function RowList({ picture, colors, outlined, outline }: RowsProps) {
  const say = useSay();
  const scroller = useRef<HTMLDivElement>(null);
  const { regions } = picture;
  const virtual = useVirtual({ scroller, count: regions.length, sizeOf: rowHeight });
  return (
    <div class="map-row-list" ref={scroller} onPointerLeave={() => outline(undefined)}>
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
                <Row
                  region={region}
                  color={colors.get(region.row)}
                  isOutlined={region.row === outlined}
                  outline={outline}
                />
              </li>
            )
          );
        })}
      </ul>
    </div>
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
