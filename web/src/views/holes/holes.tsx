// Combined holes: each in section, beside the types that it belongs to.

import { useMemo, useState } from "preact/hooks";
import { useAnswer } from "../../app/answer";
import { Empty, Failure, OpenFirst } from "../../app/parts/failure";
import { ItemList } from "../../app/parts/item_list";
import { useKept } from "../../app/parts/kept";
import { useApp, useSay } from "../../app/state";
import { colorAt } from "../../drawing/palette";
import type { MatchedHole } from "../../model/holes";
import type { HoleSection, HolesPicture } from "../../model/pictures";
import { kHoleWords } from "../../words/holes";
import { useFiles } from "../plate/asking";
import { Detail } from "./detail";
import { SectionMark } from "./section";
import "./holes.css";

const kItemHeight = 38;

function useHoles() {
  const { engine, language, workspace } = useApp();
  const files = useFiles();
  const types = workspace?.holeTypes ?? [];
  const holes = workspace?.holes ?? [];
  const isAsked = types.length > 0 && holes.length > 0;
  const inputs = isAsked
    ? [
        ...types.flatMap(({ path }) => ["--types", path]),
        "--lang",
        language,
        ...holes.map(({ path }) => path),
      ]
    : undefined;
  return {
    picture: useAnswer<HolesPicture>(engine, inputs && ["picture", "holes", ...inputs], files),
    matches: useAnswer<readonly MatchedHole[]>(
      engine,
      inputs && ["holes", "--explain", "--format", "json", ...inputs],
      files,
    ),
  };
}

/** A colour of the page for each colour index, in the order of the indices; the index always stands beside it. */
export function colorsOf(holes: readonly HoleSection[]): ReadonlyMap<number, string> {
  const indices = [...new Set(holes.flatMap(({ segments }) => segments.map(({ color }) => color)))];
  return new Map(indices.sort((a, b) => a - b).map((index, at) => [index, colorAt(at)]));
}

/** Holes without a type first, then those that are tied. */
function urgency(hole: HoleSection): number {
  return hole.types.length === 0 ? 0 : hole.tied ? 1 : 2;
}

interface Entry {
  readonly hole: HoleSection;
  readonly index: number;
}

function Verdict({ hole }: { hole: HoleSection }) {
  const say = useSay();
  if (hole.types.length === 0) return <span class="hole-none">✕ {say(kHoleWords.noType)}</span>;
  if (hole.tied) return <span class="hole-tied">＝ {say(kHoleWords.tied)}</span>;
  return <span class="quiet">{hole.types[0]?.name}</span>;
}

function useEntries(holes: readonly HoleSection[], part: string): readonly Entry[] {
  return useMemo(() => {
    const wish = part.trim().toLowerCase();
    return holes
      .map((hole, index) => ({ hole, index }))
      .filter(({ hole }) => `${hole.name} ${hole.structure}`.toLowerCase().includes(wish))
      .sort((a, b) => urgency(a.hole) - urgency(b.hole));
  }, [holes, part]);
}

function HolesPane({ picture, matches }: { picture: HolesPicture; matches: readonly MatchedHole[] }) {
  const say = useSay();
  const { holes } = picture;
  const [part, setPart] = useState("");
  const entries = useEntries(holes, part);
  const colors = useMemo(() => colorsOf(holes), [holes]);
  const [kept, choose] = useKept<number | undefined>("hole", undefined);
  const chosen = kept !== undefined && kept < holes.length ? kept : (entries[0]?.index ?? 0);
  const hole = holes[chosen];
  const without = holes.filter(({ types }) => types.length === 0).length;
  return (
    <div class="holes">
      <section class="side-list" aria-label={say(kHoleWords.holes)}>
        <h2>{say(kHoleWords.holes)}</h2>
        <p class="quiet">
          {say(kHoleWords.counts, holes.length, without, holes.filter(({ tied }) => tied).length)}
        </p>
        <input
          type="search"
          value={part}
          placeholder={say(kHoleWords.find)}
          aria-label={say(kHoleWords.find)}
          onInput={(event) => setPart(event.currentTarget.value)}
        />
        <ItemList
          label={say(kHoleWords.holes)}
          items={entries}
          chosen={entries.findIndex(({ index }) => index === chosen)}
          itemHeight={kItemHeight}
          choose={({ index }) => choose(index)}
        >
          {(entry) => (
            <>
              <SectionMark hole={entry.hole} colors={colors} />
              <span class="hole-names">
                <span class="item-name">{entry.hole.name}</span>
                <Verdict hole={entry.hole} />
              </span>
            </>
          )}
        </ItemList>
      </section>
      {hole && <Detail key={chosen} hole={hole} match={matches[chosen]} colors={colors} />}
    </div>
  );
}

export function Holes() {
  const say = useSay();
  const { workspace } = useApp();
  const { picture, matches } = useHoles();
  if (workspace === undefined) return <OpenFirst />;
  const { holes, holeTypes } = workspace;
  if (holes.length === 0 || holeTypes.length === 0) {
    const words =
      holes.length > 0
        ? kHoleWords.openTypes
        : holeTypes.length > 0
          ? kHoleWords.openOnlyTypes
          : kHoleWords.openHoles;
    return <Empty>{say(words)}</Empty>;
  }
  if (picture.state === "failed") return <Failure error={picture.error} />;
  return picture.value ? <HolesPane picture={picture.value} matches={matches.value ?? []} /> : null;
}
