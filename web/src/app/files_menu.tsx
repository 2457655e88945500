// What each file is used as; the user may know better.

import { kOpenWords } from "../words/open";
import type { Entry } from "./open/source";
import { kUses, type Use } from "./open/uses";
import type { Opening } from "./open/use_opening";
import { filesBeside, filesIn, nameOf } from "./open/workspaces";
import { Menu } from "./parts/menu";
import { useSay } from "./state";

type Shown = Use | "table" | "unused";

function FileRow({ entry, shown, opening }: { entry: Entry; shown: Shown; opening: Opening }) {
  const say = useSay();
  const without: Shown = shown === "table" ? "table" : "unused";
  return (
    <tr>
      <th scope="row">{entry.path}</th>
      <td>
        <select
          aria-label={`${entry.path}: ${say(kOpenWords.usedFor)}`}
          value={shown}
          onChange={(event) => {
            const value = event.currentTarget.value as Shown;
            opening.use(entry.path, value === "table" || value === "unused" ? undefined : value);
          }}
        >
          {[without, ...kUses].map((use) => (
            <option key={use} value={use}>
              {say(kOpenWords.uses[use])}
            </option>
          ))}
        </select>
      </td>
    </tr>
  );
}

export function FilesMenu({ opening }: { opening: Opening }) {
  const say = useSay();
  const opened = opening.sides.config;
  if (opened === undefined) return null;
  const tables = new Set(filesIn(opened.entries, opened.folder).map(({ path }) => path));
  const shownAs = (path: string): Shown => opened.uses.get(path) ?? (tables.has(path) ? "table" : "unused");
  const files = filesBeside(opened.entries, opened.folder).filter(
    ({ path }) => !/^tables\.json/i.test(nameOf(path)),
  );
  return (
    <Menu label={say(kOpenWords.files)}>
      <table class="files">
        <thead>
          <tr>
            <th scope="col">{say(kOpenWords.files)}</th>
            <th scope="col">{say(kOpenWords.usedFor)}</th>
          </tr>
        </thead>
        <tbody>
          {files.map((entry) => (
            <FileRow key={entry.path} entry={entry} shown={shownAs(entry.path)} opening={opening} />
          ))}
        </tbody>
      </table>
    </Menu>
  );
}
