// Which parts of a sheet another configuration draws in another way.

import type { SheetPart } from "../../model/pictures";

/** What is seen of a part; not from which cell it comes. */
function looks({ keys: _keys, assumes: _assumes, ...seen }: SheetPart): string {
  return JSON.stringify(seen);
}

/** The parts that the other sheet does not have in just this way; none when there is no other sheet. */
export function differing(
  parts: readonly SheetPart[],
  others: readonly SheetPart[] | undefined,
): ReadonlySet<SheetPart> {
  if (others === undefined) return new Set();
  const known = new Set(others.map(looks));
  return new Set(parts.filter((part) => !known.has(looks(part))));
}
