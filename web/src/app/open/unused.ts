// Single files that were opened, and that nothing is done with: the reader has to know it.

import { kOpenWords } from "../../words/open";
import type { Text, TextOf } from "../../words/say";
import { type Entry, isWorkbook, type Source } from "./source";
import type { OpenedFolder } from "./workspaces";

interface Opened extends OpenedFolder {
  readonly sources: readonly Source[];
}

/** Tables of the folder may be opened by themselves, to take the place of the folder's own. */
function isTable(name: string, before: readonly Entry[]): boolean {
  return /^tables\.json/i.test(name) || before.some(({ path }) => path === name);
}

function told(names: readonly string[], words: TextOf<[string]>): Text {
  if (names.length === 0) return { zh: "", en: "" };
  return { zh: words.zh(names.join("”、“")), en: words.en(names.join("”, “")) };
}

/** What is said of them; undefined when all are used, or when there is no folder that they could belong to. */
export function unusedText(
  given: readonly Source[],
  { sources, entries, uses }: Opened,
  before: readonly Entry[],
): Text | undefined {
  if (!sources.some((source) => source.isFolder)) return undefined;
  const names = given.filter(({ isFolder }) => !isFolder).map(({ name }) => name);
  const unused = names.filter((name) => !uses.has(name) && !isTable(name, before));
  const workbooks = unused.filter(isWorkbook);
  const rest = unused.filter((name) => !isWorkbook(name));
  const isRead = (name: string) => entries.some(({ path }) => path === name);
  const texts = [
    told(workbooks, kOpenWords.workbook),
    told(rest.filter(isRead), kOpenWords.unlikeAny),
    told(
      rest.filter((name) => !isRead(name)),
      kOpenWords.notRead,
    ),
  ];
  if (unused.length === 0) return undefined;
  return {
    zh: texts.map(({ zh }) => zh).join(""),
    en: texts
      .map(({ en }) => en)
      .join(" ")
      .trim(),
  };
}
