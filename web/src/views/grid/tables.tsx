// All tables of the folder, and the one that is looked at.

import { useMemo } from "preact/hooks";
import { OpenFirst } from "../../app/parts/failure";
import { roleName } from "../../app/parts/role_name";
import { filesBeside, shownFile, useApp, useSay, type Workspace } from "../../app/state";
import { type CheckReport, type Finding, kRuleTable, type Role } from "../../model/check";
import { kGridWords } from "../../words/grid";
import type { Text } from "../../words/say";
import { SeverityCounts, TablePane } from "./table_pane";

interface ListedFile {
  readonly path: string;
  readonly name: string;
  readonly role: Role | undefined;
}

interface ListedGroup {
  readonly title: Text;
  readonly files: readonly ListedFile[];
}

function listed(path: string, role?: Role): ListedFile {
  return { path, name: shownFile(path), role };
}

/** Tables in the order of their roles, then what no role names. */
function groupsOf(workspace: Workspace, report: CheckReport | undefined): readonly ListedGroup[] {
  const tables = (report?.checked.tables ?? []).map((table) => listed(table.file, table));
  const others = workspace.files.filter(
    ({ path }) => /\.csv$/i.test(path) && !tables.some((table) => table.path === path),
  );
  return [
    { title: kGridWords.tables, files: tables },
    {
      title: kGridWords.besideTables,
      files: filesBeside(workspace)
        .filter(({ path }) => /\.csv$/i.test(path))
        .map(({ path }) => listed(path)),
    },
    { title: kGridWords.otherFiles, files: others.map(({ path }) => listed(path)) },
  ].filter(({ files }) => files.length > 0);
}

/** The rule table is what most keepers come for. */
function firstShown(groups: readonly ListedGroup[]): string | undefined {
  const files = groups.flatMap((group) => group.files);
  return (files.find(({ role }) => role?.role === kRuleTable) ?? files[0])?.path;
}

const kNoFindings: readonly Finding[] = [];

export function findingsByFile(report: CheckReport | undefined): ReadonlyMap<string, readonly Finding[]> {
  const byFile = new Map<string, Finding[]>();
  for (const finding of report?.findings ?? []) {
    const ofFile = byFile.get(finding.file);
    if (ofFile === undefined) byFile.set(finding.file, [finding]);
    else ofFile.push(finding);
  }
  return byFile;
}

interface FileListProps {
  readonly groups: readonly ListedGroup[];
  readonly chosen: string | undefined;
  readonly byFile: ReadonlyMap<string, readonly Finding[]>;
  choose(path: string): void;
}

function FileList({ groups, chosen, byFile, choose }: FileListProps) {
  const say = useSay();
  return (
    <nav class="side" aria-label={say(kGridWords.tables)}>
      {groups.map(({ title, files }) => (
        <section key={title.en}>
          <h2>{say(title)}</h2>
          <ul>
            {files.map(({ path, name, role }) => (
              <li key={path}>
                <button
                  type="button"
                  class="side-item"
                  aria-current={path === chosen ? "true" : undefined}
                  onClick={() => choose(path)}
                >
                  <span class="side-name">{name}</span>
                  <SeverityCounts findings={byFile.get(path) ?? kNoFindings} />
                  {role !== undefined && <span class="side-role">{roleName(role, say)}</span>}
                </button>
              </li>
            ))}
          </ul>
        </section>
      ))}
    </nav>
  );
}

export function Tables() {
  const { workspace, check, selected, select } = useApp();
  const say = useSay();
  const report = check.value;
  const groups = useMemo(
    () => (workspace === undefined ? [] : groupsOf(workspace, report)),
    [workspace, report],
  );
  const byFile = useMemo(() => findingsByFile(report), [report]);
  if (workspace === undefined) return <OpenFirst />;
  const chosen = selected?.file ?? firstShown(groups);
  return (
    <div class="with-side">
      <FileList
        groups={groups}
        chosen={chosen}
        byFile={byFile}
        choose={(file) => select({ file, cell: "A1" })}
      />
      {chosen === undefined ? (
        <p class="quiet pad">{say(kGridWords.noTables)}</p>
      ) : (
        <TablePane
          key={chosen}
          workspace={workspace}
          path={chosen}
          findings={byFile.get(chosen) ?? kNoFindings}
          at={selected?.cell}
          select={(cell) => select({ file: chosen, cell })}
        />
      )}
    </div>
  );
}
