// What of a sheet another configuration says in another way.

import type { SheetPart, UnknownPlace } from "../../model/pictures";

/** What is seen of a part; not from which cell it comes. */
function looks({ keys: _keys, assumes: _assumes, ...seen }: SheetPart): string {
  return JSON.stringify(seen);
}

/** Of what has no place the settings are all that is seen. */
function says({ keys, ...known }: UnknownPlace): string {
  return JSON.stringify([known, keys.map(({ column, value }) => [column, value])]);
}

function unlike<Item>(
  items: readonly Item[],
  others: readonly Item[] | undefined,
  textOf: (item: Item) => string,
): ReadonlySet<Item> {
  if (others === undefined) return new Set();
  const known = new Set(others.map(textOf));
  return new Set(items.filter((item) => !known.has(textOf(item))));
}

/** The parts that the other sheet does not have in just this way; none when there is no other sheet. */
export function differing(
  parts: readonly SheetPart[],
  others: readonly SheetPart[] | undefined,
): ReadonlySet<SheetPart> {
  return unlike(parts, others, looks);
}

/** The same of what has no place. */
export function differingPlaces(
  places: readonly UnknownPlace[],
  others: readonly UnknownPlace[] | undefined,
): ReadonlySet<UnknownPlace> {
  return unlike(places, others, says);
}
