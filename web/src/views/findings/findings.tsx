// What `check` found: a list, and beside it the cell of the chosen one.

import { useMemo } from "preact/hooks";
import { checkArguments } from "../../app/check_arguments";
import { Empty, Failure, OpenFirst } from "../../app/parts/failure";
import { CopyButton } from "../../app/parts/finding_card";
import { useKept } from "../../app/parts/kept";
import { saveFile } from "../../app/parts/save";
import { filesOf, shownFile, useApp, useSay } from "../../app/state";
import type { CheckReport, Finding } from "../../model/check";
import { kFindingsWords } from "../../words/findings";
import { kPageWords } from "../../words/page";
import type { Say } from "../../words/say";
import { kNoFilter, listedFindings, placeOf, shownPlace } from "./filter";
import { FilterSide } from "./filter_side";
import { FindingDetail } from "./finding_detail";
import { FindingList } from "./finding_list";
import { FoundManifest, MissingManifest } from "./missing_manifest";

/** The list as somebody mails it. */
function asText(findings: readonly Finding[], say: Say): string {
  return findings
    .map((finding) => {
      const place = `${shownFile(finding.file)} ${shownPlace(finding, say)}`;
      const fix = finding.fix === null ? "" : `  ${say(kFindingsWords.fix)}: ${finding.fix}`;
      return `${place}  ${say(kPageWords.severity[finding.severity])}  ${finding.message}${fix}`;
    })
    .join("\n");
}

/** The program's own CSV: of the whole check, with all its columns. */
function useSaveCsv(): () => Promise<void> {
  const { engine, workspace, language } = useApp();
  const say = useSay();
  return async () => {
    if (workspace === undefined) return;
    const run = await engine.run(checkArguments(workspace, language, "csv"), filesOf(workspace));
    saveFile(say(kFindingsWords.csvName), run.out, "text/csv");
  };
}

function ListBar({ listed, report }: { listed: readonly Finding[]; report: CheckReport }) {
  const say = useSay();
  const { tell } = useApp();
  const saveCsv = useSaveCsv();
  return (
    <div class="bar">
      <span role="status">{say(kFindingsWords.shown, listed.length, report.findings.length)}</span>
      <span class="spring" />
      <CopyButton text={asText(listed, say)} label={say(kFindingsWords.copy)} />
      <button type="button" class="small" onClick={() => void saveCsv().catch(tell)}>
        {say(kFindingsWords.csv)}
      </button>
    </div>
  );
}

/** What was looked at, and what was not. */
function Checked({ report }: { report: CheckReport }) {
  const say = useSay();
  const { tables, ruleRows, processes, incomplete } = report.checked;
  return (
    <div class="checked">
      <p>{say(kFindingsWords.checked, tables.length, ruleRows, processes)}</p>
      {incomplete.length > 0 && (
        <details>
          <summary>{say(kFindingsWords.incomplete)}</summary>
          <ul>
            {incomplete.map((text) => (
              <li key={text}>{text}</li>
            ))}
          </ul>
        </details>
      )}
    </div>
  );
}

function Reported({ report }: { report: CheckReport }) {
  const { select } = useApp();
  const say = useSay();
  const [filter, setFilter] = useKept("findings filter", kNoFilter);
  const [chosen, setChosen] = useKept<Finding | undefined>("chosen finding", undefined);
  const listed = useMemo(() => listedFindings(report.findings, filter), [report, filter]);
  // Until one is chosen the first is shown, and so when the chosen one is no longer listed.
  const at = Math.max(0, chosen === undefined ? -1 : listed.indexOf(chosen));
  const open = (finding: Finding | undefined) =>
    finding !== undefined && select({ file: finding.file, cell: placeOf(finding) });
  const shown = listed[at];
  return (
    <div class="with-side">
      <FilterSide report={report} filter={filter} change={setFilter} />
      <div class="findings">
        <div class="findings-list">
          {report.findings.some(({ code }) => code === "manifest-missing") && <MissingManifest />}
          <FoundManifest />
          <ListBar listed={listed} report={report} />
          {listed.length === 0 ? (
            <Empty>
              {say(report.findings.length === 0 ? kFindingsWords.none : kFindingsWords.noneShown)}
            </Empty>
          ) : (
            <FindingList
              findings={listed}
              chosen={at}
              choose={(index) => setChosen(listed[index])}
              open={(index) => open(listed[index])}
            />
          )}
          <Checked report={report} />
        </div>
        <section class="findings-detail" aria-label={say(kFindingsWords.finding)}>
          {shown !== undefined && <FindingDetail finding={shown} open={() => open(shown)} />}
        </section>
      </div>
    </div>
  );
}

export function Findings() {
  const { workspace, check } = useApp();
  const say = useSay();
  if (workspace === undefined) return <OpenFirst />;
  if (check.state === "failed") return <Failure error={check.error} />;
  if (check.value === undefined) return <p class="quiet pad">{say(kPageWords.checking)}</p>;
  return <Reported report={check.value} />;
}
