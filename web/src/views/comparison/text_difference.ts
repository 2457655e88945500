// Where two texts differ, for the eye: words and numbers as a whole, Chinese character by character.

export interface Piece {
  readonly text: string;
  readonly isSame: boolean;
}

/** Longer ones are shown as wholly different, beyond what is the same at both ends. */
const kMostPairs = 2_000_000;

function tokens(text: string): readonly string[] {
  return text.match(/[A-Za-z]+|[0-9.]+|\s+|[\s\S]/gu) ?? [];
}

/** How many tokens the longest common subsequence of the rests from (i, j) on has. */
function lengths(old: readonly string[], now: readonly string[]): Uint16Array {
  const width = now.length + 1;
  const table = new Uint16Array((old.length + 1) * width);
  for (let i = old.length - 1; i >= 0; i--) {
    for (let j = now.length - 1; j >= 0; j--) {
      const at = i * width + j;
      table[at] =
        old[i] === now[j]
          ? (table[at + width + 1] ?? 0) + 1
          : Math.max(table[at + width] ?? 0, table[at + 1] ?? 0);
    }
  }
  return table;
}

/** For each element of both lists whether it is common to them, in the same order. */
export function common(old: readonly string[], now: readonly string[]): [boolean[], boolean[]] {
  const inOld = new Array<boolean>(old.length).fill(false);
  const inNow = new Array<boolean>(now.length).fill(false);
  if (old.length * now.length > kMostPairs) return [inOld, inNow];
  const table = lengths(old, now);
  const width = now.length + 1;
  for (let i = 0, j = 0; i < old.length && j < now.length;) {
    if (old[i] === now[j]) {
      inOld[i++] = true;
      inNow[j++] = true;
    } else if ((table[(i + 1) * width + j] ?? 0) >= (table[i * width + j + 1] ?? 0)) i++;
    else j++;
  }
  return [inOld, inNow];
}

function pieces(all: readonly string[], same: readonly boolean[]): readonly Piece[] {
  const joined: Piece[] = [];
  all.forEach((text, index) => {
    const isSame = same[index] ?? false;
    const last = joined.at(-1);
    if (last?.isSame === isSame) joined[joined.length - 1] = { text: last.text + text, isSame };
    else joined.push({ text, isSame });
  });
  return joined;
}

function sameAtStart(old: readonly string[], now: readonly string[]): number {
  let count = 0;
  while (count < old.length && count < now.length && old[count] === now[count]) count++;
  return count;
}

/** Both texts cut into what they share and what they do not. */
export function differences(old: string, now: string): readonly [readonly Piece[], readonly Piece[]] {
  const [one, two] = [tokens(old), tokens(now)];
  const start = sameAtStart(one, two);
  const end = sameAtStart([...one.slice(start)].reverse(), [...two.slice(start)].reverse());
  const [inOld, inNow] = common(one.slice(start, one.length - end), two.slice(start, two.length - end));
  const around = (middle: boolean[]) =>
    [...Array(start).fill(true), ...middle, ...Array(end).fill(true)] as boolean[];
  return [pieces(one, around(inOld)), pieces(two, around(inNow))];
}
