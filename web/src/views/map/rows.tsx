// The rows of the picture, as its legend.

import { useOpenRow } from "../../app/parts/row_link";
import { useSay } from "../../app/state";
import type { Region, RuleMapPicture } from "../../model/pictures";
import { kMapWords } from "../../words/map";
import { kPlateWords } from "../../words/plate";
import type { Say } from "../../words/say";

/** Ranges that share a bound overlap by the tolerance of a thousandth; nobody sees that, nor should be told. */
const kSeen = 0.01;

/** What becomes of the row in this picture. */
function fate({ wins, hidden: all }: Region, say: Say): string {
  const hidden = all.filter(({ x, y }) => x[1] - x[0] > kSeen && y[1] - y[0] > kSeen);
  if (hidden.length === 0) return "";
  const blockers = [...new Set(hidden.map(({ by }) => by))].sort((a, b) => a - b);
  return wins.length === 0
    ? say(kMapWords.whollyHidden, blockers.join(say(kMapWords.joint)))
    : say(kMapWords.partlyHidden);
}

interface RowsProps {
  readonly picture: RuleMapPicture;
  readonly colors: ReadonlyMap<number, string>;
  readonly outlined: number | undefined;
  outline(row: number | undefined): void;
}

export function Rows({ picture, colors, outlined, outline }: RowsProps) {
  const say = useSay();
  const open = useOpenRow();
  return (
    <section class="map-rows" aria-label={say(kMapWords.rows)}>
      <h2>
        {say(kMapWords.rows)} <span class="quiet">{picture.regions.length}</span>
      </h2>
      <p class="quiet">{say(kMapWords.rowsHint)}</p>
      <ul onPointerLeave={() => outline(undefined)}>
        {picture.regions.map((region) => (
          <li key={region.row}>
            <button
              type="button"
              title={say(kPlateWords.openRow)}
              data-outlined={region.row === outlined}
              onPointerEnter={() => outline(region.row)}
              onFocus={() => outline(region.row)}
              onBlur={() => outline(undefined)}
              onClick={() => open(region.row)}
            >
              <span
                class={`map-swatch${region.wins.length === 0 ? " map-swatch-hidden" : ""}`}
                style={region.wins.length === 0 ? undefined : { background: colors.get(region.row) }}
              />
              <span>{say(kPlateWords.row, region.row)}</span>
              <span class="quiet">{say(kMapWords.layer, region.layer)}</span>
              <span class="map-fate">{fate(region, say)}</span>
            </button>
          </li>
        ))}
      </ul>
      {picture.gaps.length > 0 && (
        <p class="map-gaps">
          <span class="map-swatch map-swatch-gap" /> {say(kMapWords.gaps, picture.gaps.length)}
        </p>
      )}
    </section>
  );
}
