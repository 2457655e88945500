// The files that `plateconfig report` put into the page.

import { fromBase64 } from "../../engine/base64";
import { dataSource, type Source } from "./source";
import type { Use } from "./uses";

interface ReportData {
  readonly name: string;
  readonly files: readonly { readonly path: string; readonly use?: Use; readonly base64: string }[];
}

/** Undefined in a page without data. */
export function reportSource(): Source | undefined {
  const text = document.getElementById("plateconfig-data")?.textContent?.trim() ?? "";
  if (text === "") return undefined;
  const { name, files } = JSON.parse(text) as ReportData;
  return dataSource(
    name,
    files.map(({ path, base64 }) => ({ path, bytes: fromBase64(base64) })),
    new Map(files.flatMap(({ path, use }) => (use === undefined ? [] : [[path, use]]))),
  );
}
