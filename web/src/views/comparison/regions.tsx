// The plates whose text changes, whether the file of plates has such ones or not: boxes of sizes, by colours and features.

import { useMemo, useState } from "preact/hooks";
import { Empty } from "../../app/parts/failure";
import { useSay } from "../../app/state";
import type { ChangedRegion } from "../../model/diff";
import { type Bounds, type Box, type Group, kSizes, type SizeName } from "../../model/plate";
import { kComparisonWords } from "../../words/comparison";
import { kSizeWords } from "../../words/plate";
import type { Say } from "../../words/say";
import { PlateLine } from "../findings/finding_detail";
import { RegionMap } from "./region_map";
import type { Pair } from "./use_difference";

/** The drawing tool's number for "no bound". */
const kUnbounded = 999_999;

function answers(group: Group, name: "profile" | "wireCutting", say: Say): string {
  const words = kComparisonWords[name];
  const spoken = (is: boolean | undefined) => say(is ? words.yes : words.no);
  if (group[name] !== undefined) return spoken(group[name]);
  const [old, now] =
    name === "profile" ? [group.oldProfile, group.newProfile] : [group.oldWireCutting, group.newWireCutting];
  return old === now ? spoken(now) : `${spoken(now)} (${say(kComparisonWords.before, spoken(old))})`;
}

export function groupText(group: Group, say: Say): string {
  const colors =
    group.colors.length === 0
      ? say(kComparisonWords.otherColors)
      : say(kComparisonWords.colors, group.colors.join("_"));
  return [colors, answers(group, "profile", say), answers(group, "wireCutting", say)].join(" · ");
}

/** The greatest bound that any region states, for the bars; each size has its own. */
function greatest(regions: readonly ChangedRegion[]): Readonly<Record<SizeName, number>> {
  const of = (size: SizeName) =>
    Math.max(
      1,
      ...regions.flatMap(({ box }) =>
        box[size].filter((bound): bound is number => bound !== null && bound < kUnbounded),
      ),
    );
  return { length: of("length"), width: of("width"), thickness: of("thickness"), weight: of("weight") };
}

function isOpen(bound: number | null): bound is null {
  return bound === null || bound >= kUnbounded;
}

function number(value: number): string {
  return String(Number(value.toFixed(3)));
}

function rangeText([low, high]: Bounds, say: Say): string {
  if (isOpen(high)) return low === 0 ? say(kComparisonWords.anySize) : `≥ ${number(low)}`;
  return low === 0 ? `≤ ${number(high)}` : `${number(low)} – ${number(high)}`;
}

/** Where a range lies between 0 and the greatest bound; one without end runs out of the bar. */
function RangeBar({ size, bounds, most }: { size: SizeName; bounds: Bounds; most: number }) {
  const say = useSay();
  const [low, high] = bounds;
  const end = isOpen(high) ? 100 : (high / most) * 92;
  const start = Math.min((low / most) * 92, 99);
  return (
    <div class="range">
      <span class="range-name">{say(kSizeWords[size])}</span>
      <svg class="range-bar" viewBox="0 0 100 8" preserveAspectRatio="none" aria-hidden="true">
        <rect x="0" y="3" width="100" height="2" class="range-ground" />
        <rect x={start} y="1" width={Math.max(1, end - start)} height="6" class="range-part" />
      </svg>
      <span class="range-text">{rangeText(bounds, say)}</span>
    </div>
  );
}

function BoxBars({ box, most }: { box: Box; most: Readonly<Record<SizeName, number>> }) {
  return (
    <div class="ranges">
      {kSizes.map((size) => (
        <RangeBar key={size} size={size} bounds={box[size]} most={most[size]} />
      ))}
    </div>
  );
}

interface RegionProps {
  readonly region: ChangedRegion;
  readonly number: number;
  readonly most: Readonly<Record<SizeName, number>>;
  readonly isChosen: boolean;
  choose(): void;
}

function Region({ region, number: index, most, isChosen, choose }: RegionProps) {
  const say = useSay();
  const row = (line: number | null) =>
    line === null ? say(kComparisonWords.noRow) : say(kComparisonWords.row, line);
  return (
    <article class={`region ${isChosen ? "is-chosen" : ""}`}>
      <h2>
        <button type="button" class="region-number" aria-pressed={isChosen} onClick={choose}>
          {index}
        </button>{" "}
        {row(region.oldRow)} → {row(region.newRow)}
      </h2>
      <BoxBars box={region.box} most={most} />
      <p class="quiet">
        {say(kComparisonWords.witness)} <PlateLine plate={region.witness} />
      </p>
    </article>
  );
}

function groupsOf(
  regions: readonly ChangedRegion[],
): readonly (readonly [string, readonly ChangedRegion[]])[] {
  const groups = new Map<string, ChangedRegion[]>();
  for (const region of regions) {
    const key = JSON.stringify(region.group);
    const ofGroup = groups.get(key);
    if (ofGroup === undefined) groups.set(key, [region]);
    else ofGroup.push(region);
  }
  return [...groups];
}

interface RegionsProps {
  readonly pair: Pair;
  readonly regions: readonly ChangedRegion[];
  readonly incomplete: readonly string[];
  listAll(): void;
}

export function ChangedRegions({ pair, regions, incomplete, listAll }: RegionsProps) {
  const say = useSay();
  const groups = useMemo(() => groupsOf(regions), [regions]);
  const [key, setKey] = useState<string | undefined>();
  const [chosen, setChosen] = useState(0);
  const most = useMemo(() => greatest(regions), [regions]);
  const [shownKey, shown] = groups.find(([each]) => each === key) ?? groups[0] ?? [];
  if (shown === undefined || shownKey === undefined) return <Empty>{say(kComparisonWords.noneOf)}</Empty>;
  return (
    <>
      <div class="bar">
        <label>
          {say(kComparisonWords.group)}{" "}
          <select
            value={shownKey}
            onChange={(event) => {
              setKey(event.currentTarget.value);
              setChosen(0);
            }}
          >
            {groups.map(([each, ofGroup]) => (
              <option key={each} value={each}>
                {groupText(ofGroup[0]!.group, say)} ({ofGroup.length})
              </option>
            ))}
          </select>
        </label>
        {incomplete.length > 0 && (
          <>
            <span class="spring" />
            <details class="incomplete">
              <summary>{say(kComparisonWords.incomplete)}</summary>
              <ul>
                {incomplete.map((text) => (
                  <li key={text}>{text}</li>
                ))}
              </ul>
            </details>
            <button type="button" onClick={listAll}>
              {say(kComparisonWords.all)}
            </button>
          </>
        )}
      </div>
      <div class="regions">
        <div class="scroll" tabIndex={0} role="group" aria-label={say(kComparisonWords.parts.regions)}>
          {shown.map((region, index) => (
            <Region
              key={index}
              region={region}
              number={index + 1}
              most={most}
              isChosen={index === chosen}
              choose={() => setChosen(index)}
            />
          ))}
        </div>
        <RegionMap pair={pair} region={shown[Math.min(chosen, shown.length - 1)] ?? shown[0]!} />
      </div>
    </>
  );
}
