// The files that `plateconfig report` put into the page.

import { fromBase64 } from "../../engine/base64";
import { dataSource, type Source } from "./source";
import { kUses } from "./uses";

/** The configuration's files lie in a folder of its name, the others beside it. */
interface ReportData {
  readonly name: string;
  /** When the report was written, in the form of ISO 8601. */
  readonly written?: string;
  readonly files: readonly {
    readonly path: string;
    readonly base64: string;
    /** "plates", "holes" or "hole-types"; nothing for the configuration's own. */
    readonly use?: string;
  }[];
}

/** Undefined in a page without data. */
export function reportSource(): Source | undefined {
  const text = document.getElementById("plateconfig-data")?.textContent?.trim() ?? "";
  if (text === "") return undefined;
  const { name, written, files } = JSON.parse(text) as ReportData;
  const entries = files.map(({ path, base64, use }) => {
    const known = kUses.find((each) => each === use);
    return { path, bytes: fromBase64(base64), ...(known && { use: known }) };
  });
  return dataSource(name, entries, written === undefined ? undefined : new Date(written));
}
