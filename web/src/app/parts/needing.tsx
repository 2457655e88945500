// A view that has nothing to show without certain tables says which one it lacks, and what to do.

import type { ComponentChildren } from "preact";
import type { CheckReport, Finding } from "../../model/check";
import { kFailureWords, type NeededTable } from "../../words/failure";
import type { Text } from "../../words/say";
import { useApp, useSay, type Workspace } from "../state";
import { FindingCard } from "./finding_card";
import { FindRoles, isManifestMissing, MissingManifest } from "./missing_manifest";

const kMostCards = 3;

function tellingOf(report: CheckReport, file: string): readonly Finding[] {
  return report.findings
    .filter((finding) => finding.severity !== "hint" && finding.file.startsWith(file))
    .slice(0, kMostCards);
}

/** What `check` says of the file that stands in the way. */
function Obstacle({ text, findings }: { text: Text; findings: readonly Finding[] }) {
  const { show, workspace } = useApp();
  const say = useSay();
  return (
    <section class="manifest">
      <h2>{say(text)}</h2>
      {findings.map((finding, index) => (
        <div key={index}>
          <b>{finding.file.slice(workspace === undefined ? 0 : workspace.folder.length + 1)}</b>
          <FindingCard finding={finding} />
        </div>
      ))}
      <button type="button" class="main-button" onClick={() => show("findings")}>
        {say(kFailureWords.findings)}
      </button>
    </section>
  );
}

/** Above the findings: what makes all the others small. Nothing when rules were read. */
export function NoRules({ report }: { report: CheckReport }) {
  const say = useSay();
  const { tables, ruleRows } = report.checked;
  if (ruleRows > 0 || isManifestMissing(report)) return null;
  const isUnusable = report.findings.some(({ severity }) => severity === "error");
  if (tables.length === 0) return isUnusable ? null : <NoRole roles={["process-rules"]} />;
  return (
    <section class="manifest">
      <h2>{say(kFailureWords.noTexts)}</h2>
    </section>
  );
}

function NoRole({ roles }: { roles: readonly NeededTable[] }) {
  const say = useSay();
  const names = roles.map((role) => say(kFailureWords.tables[role]));
  return (
    <FindRoles>
      <h2>{say(kFailureWords.noRole, names.join(say(kFailureWords.or)))}</h2>
      <p>{say(kFailureWords.findRole)}</p>
    </FindRoles>
  );
}

/** What stands in the way of a view that needs these tables; undefined: nothing. */
function obstacleTo(needed: readonly NeededTable[], report: CheckReport, workspace: Workspace) {
  if (isManifestMissing(report)) return <MissingManifest />;
  const { tables, ruleRows } = report.checked;
  const fileOf = (role: NeededTable) => tables.find((table) => table.role === role)?.file;
  const absent = needed.filter((role) => fileOf(role) === undefined);
  // With a second ending it is wrong too.
  const manifest = tellingOf(report, `${workspace.folder}/tables.json`);
  if (tables.length === 0 && manifest.some(({ severity }) => severity === "error"))
    return <Obstacle text={kFailureWords.unusable} findings={manifest} />;
  if (absent.length > 0) return <NoRole roles={absent} />;
  const rules = needed.includes("process-rules") ? fileOf("process-rules") : undefined;
  if (rules === undefined || ruleRows > 0) return undefined;
  return <Obstacle text={kFailureWords.noRows} findings={tellingOf(report, rules)} />;
}

interface NeedingProps {
  readonly tables: readonly NeededTable[];
  readonly children: ComponentChildren;
}

/** The view itself where nothing stands in its way, and until `check` has said so. */
export function Needing({ tables, children }: NeedingProps) {
  const { check, workspace } = useApp();
  if (check.value === undefined || workspace === undefined) return <>{children}</>;
  return obstacleTo(tables, check.value, workspace) ?? <>{children}</>;
}
