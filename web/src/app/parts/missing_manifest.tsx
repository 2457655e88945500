// Tables whose roles nothing tells: the program finds them by the columns, and the reader keeps what it writes.

import type { ComponentChildren } from "preact";
import { useState } from "preact/hooks";
import type { Run } from "../../engine/engine";
import type { CheckReport } from "../../model/check";
import { kFindingsWords } from "../../words/findings";
import { filesOf, shownFile, useApp, useSay } from "../state";
import { Failure } from "./failure";
import { roleName } from "./role_name";
import { saveFile } from "./save";

const kWords = kFindingsWords.manifest;
const kManifest = "tables.json";

export function isManifestMissing(report: CheckReport): boolean {
  return report.findings.some(({ code }) => code === "manifest-missing");
}

/** What is amiss, and a button that finds the roles; what was found stands above the findings. */
export function FindRoles({ children }: { children: ComponentChildren }) {
  const { engine, workspace, language, addFile, show, tell } = useApp();
  const say = useSay();
  const [run, setRun] = useState<Run | undefined>();
  if (workspace === undefined) return null;
  const path = `${workspace.folder}/${kManifest}`;
  const find = async () => {
    const tables = filesOf(workspace).filter((file) => file.path !== path);
    const done = await engine.run(["init", workspace.folder, "--lang", language], tables);
    setRun(done);
    const manifest = done.written.find((file) => file.path === path);
    if (manifest === undefined) return;
    addFile(kManifest, manifest.bytes);
    show("findings");
  };
  return (
    <section class="manifest">
      {children}
      {run !== undefined && <Failure error={(run.err + run.out).trim()} />}
      <button type="button" class="main-button" onClick={() => void find().catch(tell)}>
        {say(kWords.find)}
      </button>
    </section>
  );
}

export function MissingManifest() {
  const say = useSay();
  return (
    <FindRoles>
      <h2>{say(kWords.title)}</h2>
      <p>{say(kWords.text)}</p>
    </FindRoles>
  );
}

/** After the roles were found: what they are, and the file to keep. */
export function FoundManifest() {
  const { workspace, addedFile, check } = useApp();
  const say = useSay();
  const manifest = workspace?.files.find(({ path }) => path === `${workspace.folder}/${kManifest}`);
  if (addedFile !== kManifest || manifest === undefined) return null;
  return (
    <section class="manifest">
      <p>{say(kWords.found)}</p>
      <table class="roles">
        <tbody>
          {(check.value?.checked.tables ?? []).map((table) => (
            <tr key={table.role}>
              <th scope="row">{shownFile(table.file)}</th>
              <td>{roleName(table, say)}</td>
            </tr>
          ))}
        </tbody>
      </table>
      <button
        type="button"
        class="main-button"
        onClick={() => saveFile(kManifest, manifest.bytes.slice(), "application/json")}
      >
        {say(kWords.save)}
      </button>
      <p class="quiet">{say(kWords.saved)}</p>
    </section>
  );
}
