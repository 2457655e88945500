// Which findings are listed.

import { byGravity } from "../../app/parts/severity";
import type { Finding, Severity } from "../../model/check";
import { kGridWords } from "../../words/grid";
import type { Say } from "../../words/say";

export interface Filter {
  readonly severities: readonly Severity[];
  readonly file: string | undefined;
  readonly code: string | undefined;
  readonly text: string;
}

export const kNoFilter: Filter = { severities: [], file: undefined, code: undefined, text: "" };

function holds(finding: Finding, text: string): boolean {
  const { message, text: offending, fix, cell, code, columnName, file } = finding;
  return [message, offending, fix, cell, code, columnName, file].some((part) =>
    part?.toLowerCase().includes(text),
  );
}

/** No severity chosen means all of them. */
function passes(finding: Finding, { severities, file, code, text }: Filter): boolean {
  if (severities.length > 0 && !severities.includes(finding.severity)) return false;
  if (file !== undefined && finding.file !== file) return false;
  if (code !== undefined && finding.code !== code) return false;
  return text === "" || holds(finding, text.toLowerCase());
}

/** The graver ones first, otherwise in the order of the report. */
export function listedFindings(findings: readonly Finding[], filter: Filter): readonly Finding[] {
  return findings.filter((finding) => passes(finding, filter)).sort(byGravity);
}

/** How often each value occurs, the most frequent first. */
export function countsOf(values: readonly string[]): readonly (readonly [string, number])[] {
  const counts = new Map<string, number>();
  for (const value of values) counts.set(value, (counts.get(value) ?? 0) + 1);
  return [...counts].sort((one, two) => two[1] - one[1]);
}

/** Where a finding points to, for `select`: the cell, the row, or the line of the file; the table's begin for the whole file. */
export function placeOf(finding: Finding): string {
  if (finding.cell !== null) return finding.cell;
  if (finding.row !== undefined) return String(finding.row);
  return finding.line === null ? "A1" : `@${finding.line}`;
}

/** The same for people; a line of the file is no row of the spreadsheet where cells hold line breaks. */
export function shownPlace(finding: Finding, say: Say): string {
  if (finding.cell !== null) return finding.cell;
  if (finding.row !== undefined) return say(kGridWords.row, finding.row);
  return finding.line === null ? say(kGridWords.wholeFile) : say(kGridWords.line, finding.line);
}
