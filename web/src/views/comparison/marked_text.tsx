// An old and a new text below each other, with what differs marked: by a line as well as by colour.

import type { ComponentChildren } from "preact";
import { useMemo } from "preact/hooks";
import { useSay } from "../../app/state";
import { kComparisonWords } from "../../words/comparison";
import { kGridWords } from "../../words/grid";
import { differences, type Piece } from "./text_difference";

function Marked({ pieces, as: Mark }: { pieces: readonly Piece[]; as: "del" | "ins" }) {
  return (
    <>
      {pieces.map(({ text, isSame }, index) =>
        isSame ? <span key={index}>{text}</span> : <Mark key={index}>{text}</Mark>,
      )}
    </>
  );
}

/** The two texts alone. Beside nothing at all a text needs no marks. */
function useMarked(old: string, now: string) {
  const [one, two] = useMemo(() => differences(old, now), [old, now]);
  if (old === "" || now === "") return { old: <>{old}</>, now: <>{now}</> };
  return { old: <Marked pieces={one} as="del" />, now: <Marked pieces={two} as="ins" /> };
}

interface SideText {
  readonly row: number | null;
  readonly text: string;
}

function Head({ side }: { side: SideText }) {
  const say = useSay();
  return (
    <span class="text-row">
      {side.row === null ? say(kComparisonWords.noRow) : say(kComparisonWords.row, side.row)}
    </span>
  );
}

export function TextPair({ old, now }: { old: SideText; now: SideText }) {
  const say = useSay();
  const marked = useMarked(old.text, now.text);
  return (
    <dl class="text-pair">
      <dt>{say(kComparisonWords.old)}</dt>
      <dd>
        <Head side={old} /> {marked.old}
      </dd>
      <dt>{say(kComparisonWords.new)}</dt>
      <dd>
        <Head side={now} /> {marked.now}
      </dd>
    </dl>
  );
}

function DifferenceRow({ name, old, now }: { name: string; old: string; now: string }) {
  const say = useSay();
  const marked = useMarked(old, now);
  const empty = <span class="quiet">{say(kGridWords.emptyText)}</span>;
  return (
    <tr>
      <th scope="row">{name}</th>
      <td>{old === "" ? empty : marked.old}</td>
      <td>{now === "" ? empty : marked.now}</td>
    </tr>
  );
}

interface DifferenceTableProps {
  /** What the first column names. */
  readonly of: string;
  readonly rows: readonly { readonly name: string; readonly old: string; readonly now: string }[];
  readonly children?: ComponentChildren;
}

/** Old and new values beside each other; `children` may be a caption. */
export function DifferenceTable({ of, rows, children }: DifferenceTableProps) {
  const say = useSay();
  return (
    <table class="plain difference">
      {children}
      <thead>
        <tr>
          <th scope="col">{of}</th>
          <th scope="col">{say(kComparisonWords.old)}</th>
          <th scope="col">{say(kComparisonWords.new)}</th>
        </tr>
      </thead>
      <tbody>
        {rows.map((row) => (
          <DifferenceRow key={row.name} {...row} />
        ))}
      </tbody>
    </table>
  );
}
