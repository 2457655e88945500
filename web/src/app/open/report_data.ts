// The files that `plateconfig report` put into the page.

import { fromBase64 } from "../../engine/base64";
import { dataSource, type Source } from "./source";

interface ReportData {
  readonly name: string;
  readonly files: readonly { readonly path: string; readonly base64: string }[];
}

/** The configuration's own files lie in the engine's folder; what was opened is that folder. */
function withoutFolder(path: string): string {
  return path.replace(/^config\//, "");
}

/** Undefined in a page without data. */
export function reportSource(): Source | undefined {
  const text = document.getElementById("plateconfig-data")?.textContent?.trim() ?? "";
  if (text === "") return undefined;
  const { name, files } = JSON.parse(text) as ReportData;
  return dataSource(
    name,
    files.map(({ path, base64 }) => ({ path: withoutFolder(path), bytes: fromBase64(base64) })),
  );
}
