// What is known of one hole: its section, its segments, the types that take it, and those that do not.

import { useRef } from "preact/hooks";
import { useSay } from "../../app/state";
import { shown } from "../../drawing/numbers";
import { SaveButtons } from "../../drawing/save_buttons";
import type { HoleSegmentVerdict, HoleTypeScore, MatchedHole } from "../../model/holes";
import type { HoleSection } from "../../model/pictures";
import { kHoleWords } from "../../words/holes";
import type { Say } from "../../words/say";
import { Section } from "./section";

function Segments({ hole, colors }: { hole: HoleSection; colors: ReadonlyMap<number, string> }) {
  const say = useSay();
  const number = (value: number | null) => (value === null ? say(kHoleWords.unknown) : shown(value));
  return (
    <table class="hole-table">
      <caption>{say(kHoleWords.segments)}</caption>
      <thead>
        <tr>
          <th scope="col">{say(kHoleWords.place)}</th>
          <th scope="col">{say(kHoleWords.diameter)}</th>
          <th scope="col">{say(kHoleWords.from)}</th>
          <th scope="col">{say(kHoleWords.height)}</th>
          <th scope="col">{say(kHoleWords.rHeight)}</th>
          <th scope="col">{say(kHoleWords.color)}</th>
        </tr>
      </thead>
      <tbody>
        {hole.segments.map((segment, index) => (
          <tr key={index}>
            <th scope="row">{say(kHoleWords.group[segment.group])}</th>
            <td>⌀{shown(segment.diameter)}</td>
            <td>
              {segment.from === null ? "?" : shown(segment.from)} –{" "}
              {segment.to === null ? "?" : shown(segment.to)}
            </td>
            <td>{number(segment.height)}</td>
            <td>{segment.rHeight === null ? "" : shown(segment.rHeight)}</td>
            <td>
              <span class="hole-swatch" style={{ background: colors.get(segment.color) }} /> {segment.color}
            </td>
          </tr>
        ))}
      </tbody>
    </table>
  );
}

function list(values: readonly number[] | null, say: Say): string {
  if (values === null) return say(kHoleWords.noList);
  return values.includes(0)
    ? say(kHoleWords.anything)
    : values.map((value) => shown(value)).join(say(kHoleWords.joint));
}

/** The conditions of a segment that fail: what the hole has, and what the type allows. */
function failures(verdict: HoleSegmentVerdict, say: Say): readonly string[] {
  const { group, segment, diameter, color } = verdict;
  const at = say(kHoleWords.group[group]);
  const bad = [];
  if (verdict.diameterVerdict === "refused")
    bad.push(say(kHoleWords.badDiameter, at, segment, shown(diameter), list(verdict.allowedDiameters, say)));
  if (verdict.colorVerdict === "refused")
    bad.push(say(kHoleWords.badColor, at, segment, String(color), list(verdict.allowedColors, say)));
  return bad;
}

function Refusing({ types, isOpen }: { types: readonly HoleTypeScore[]; isOpen: boolean }) {
  const say = useSay();
  if (types.length === 0) return null;
  return (
    <details open={isOpen}>
      <summary>
        {say(kHoleWords.refusedBy)} <span class="quiet">{types.length}</span>
      </summary>
      <ul class="hole-refusals">
        {types.map((type, index) => (
          <li key={index}>
            <strong>{type.name}</strong>
            {(type.segments ?? [])
              .flatMap((segment) => failures(segment, say))
              .map((text) => (
                <span key={text}>{text}</span>
              ))}
          </li>
        ))}
      </ul>
    </details>
  );
}

function Types({ hole }: { hole: HoleSection }) {
  const say = useSay();
  const top = Math.max(...hole.types.map(({ score }) => score), 1);
  return (
    <section>
      <h3>{say(kHoleWords.types)}</h3>
      {hole.tied && <p class="hole-note">{say(kHoleWords.isTied)}</p>}
      {hole.types.length === 0 ? (
        <p class="hole-note">{say(kHoleWords.noTypes)}</p>
      ) : (
        <table class="hole-table">
          <thead>
            <tr>
              <th scope="col">{say(kHoleWords.score)}</th>
              <th scope="col">{say(kHoleWords.type)}</th>
            </tr>
          </thead>
          <tbody>
            {hole.types.map((type, index) => (
              <tr key={index} data-best={type.best}>
                <td class="hole-score">
                  <span style={{ width: `${(type.score / top) * 60}px` }} /> {shown(type.score)}
                </td>
                <td>
                  <strong>{type.name}</strong>{" "}
                  {type.best && (
                    <span class="hole-best">{say(hole.tied ? kHoleWords.tied : kHoleWords.best)}</span>
                  )}
                  <br />
                  <span class="quiet">{type.content}</span>
                </td>
              </tr>
            ))}
          </tbody>
        </table>
      )}
    </section>
  );
}

function Facts({ hole }: { hole: HoleSection }) {
  const say = useSay();
  const facts = [
    [kHoleWords.structure, hole.structure],
    [kHoleWords.largest, `⌀${shown(hole.maxDiameter)}`],
    [kHoleWords.length, hole.length === null ? say(kHoleWords.unknown) : shown(hole.length)],
    [kHoleWords.origin, hole.origin.map((each) => shown(each)).join(", ")],
  ] as const;
  return (
    <dl class="hole-facts">
      {facts.map(([word, value]) => (
        <div key={word.en}>
          <dt>{say(word)}</dt>
          <dd>{value}</dd>
        </div>
      ))}
      <div>
        <dd>{say(hole.through === true ? kHoleWords.isThrough : kHoleWords.perhapsThrough)}</dd>
      </div>
    </dl>
  );
}

interface DetailProps {
  readonly hole: HoleSection;
  readonly match: MatchedHole | undefined;
  readonly colors: ReadonlyMap<number, string>;
}

export function Detail({ hole, match, colors }: DetailProps) {
  const say = useSay();
  const svg = useRef<SVGSVGElement>(null);
  const near = match?.nearStructures ?? [];
  return (
    <section class="hole-detail" aria-label={hole.name}>
      <header class="hole-head">
        <h2>{hole.name}</h2>
        <span class="no-print">
          <SaveButtons picture={() => svg.current} name={hole.name} />
        </span>
      </header>
      <Facts hole={hole} />
      <div class="hole-columns">
        <div>
          <Section hole={hole} colors={colors} svg={svg} />
          {hole.segments.some(({ height }) => height === null) && (
            <p class="quiet">{say(kHoleWords.notToScale)}</p>
          )}
          <Segments hole={hole} colors={colors} />
        </div>
        <div>
          <Types hole={hole} />
          <Refusing types={match?.refusedBy ?? []} isOpen={hole.types.length === 0} />
          {near.length > 0 && (
            <section>
              <h3>{say(kHoleWords.near)}</h3>
              <ul>
                {near.map(({ name, structure }) => (
                  <li key={name}>
                    {name} <span class="quiet">{structure}</span>
                  </li>
                ))}
              </ul>
            </section>
          )}
        </div>
      </div>
    </section>
  );
}
