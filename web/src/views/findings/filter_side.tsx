// The filter beside the list.

import { kSeverities, SeverityMark } from "../../app/parts/severity";
import { shownFile, useSay } from "../../app/state";
import type { CheckReport, Severity } from "../../model/check";
import { kFindingsWords } from "../../words/findings";
import { kPageWords } from "../../words/page";
import { SeverityCounts } from "../grid/table_pane";
import { findingsByFile } from "../grid/tables";
import { countsOf, type Filter, kNoFilter } from "./filter";

interface FilterProps {
  readonly report: CheckReport;
  readonly filter: Filter;
  change(filter: Filter): void;
}

function toggled(severities: readonly Severity[], severity: Severity): readonly Severity[] {
  return severities.includes(severity)
    ? severities.filter((each) => each !== severity)
    : [...severities, severity];
}

function SeverityFilter({ report, filter, change }: FilterProps) {
  const say = useSay();
  const { errors, warnings, hints } = report.summary;
  const counts = { error: errors, warning: warnings, hint: hints };
  return (
    <div class="severity-filter" role="group" aria-label={say(kFindingsWords.severity)}>
      {kSeverities.map((severity) => (
        <button
          key={severity}
          type="button"
          aria-pressed={filter.severities.includes(severity)}
          onClick={() => change({ ...filter, severities: toggled(filter.severities, severity) })}
        >
          <SeverityMark severity={severity} /> {say(kPageWords.severity[severity])} <b>{counts[severity]}</b>
        </button>
      ))}
    </div>
  );
}

function FileFilter({ report, filter, change }: FilterProps) {
  const say = useSay();
  const item = (file: string | undefined, name: string, findings: CheckReport["findings"]) => (
    <li key={file ?? ""}>
      <button
        type="button"
        class="side-item"
        aria-pressed={filter.file === file}
        onClick={() => change({ ...filter, file })}
      >
        <span class="side-name">{name}</span>
        <SeverityCounts findings={findings} />
      </button>
    </li>
  );
  return (
    <section>
      <h2>{say(kFindingsWords.files)}</h2>
      <ul>
        {item(undefined, say(kFindingsWords.allFiles), [])}
        {[...findingsByFile(report)].map(([file, findings]) => item(file, shownFile(file), findings))}
      </ul>
    </section>
  );
}

export function FilterSide(props: FilterProps) {
  const { report, filter, change } = props;
  const say = useSay();
  const isFiltered = JSON.stringify(filter) !== JSON.stringify(kNoFilter);
  return (
    <nav class="side" aria-label={say(kFindingsWords.filter)}>
      <SeverityFilter {...props} />
      <input
        type="search"
        class="wide"
        placeholder={say(kFindingsWords.search)}
        aria-label={say(kFindingsWords.search)}
        value={filter.text}
        onInput={(event) => change({ ...filter, text: event.currentTarget.value })}
      />
      <select
        class="wide"
        aria-label={say(kFindingsWords.code)}
        value={filter.code ?? ""}
        onChange={(event) => change({ ...filter, code: event.currentTarget.value || undefined })}
      >
        <option value="">{say(kFindingsWords.allCodes)}</option>
        {countsOf(report.findings.map(({ code }) => code)).map(([code, count]) => (
          <option key={code} value={code}>
            {code} ({count})
          </option>
        ))}
      </select>
      {isFiltered && (
        <button type="button" class="wide" onClick={() => change(kNoFilter)}>
          {say(kFindingsWords.reset)}
        </button>
      )}
      <FileFilter {...props} />
    </nav>
  );
}
