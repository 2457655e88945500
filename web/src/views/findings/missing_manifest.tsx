// A folder without tables.json: the program finds the roles of its tables, and the reader keeps what it writes.

import { useState } from "preact/hooks";
import { Failure } from "../../app/parts/failure";
import { roleName } from "../../app/parts/role_name";
import { saveFile } from "../../app/parts/save";
import { filesOf, shownFile, useApp, useSay } from "../../app/state";
import type { Run } from "../../engine/engine";
import { kFindingsWords } from "../../words/findings";

const kWords = kFindingsWords.manifest;

export function MissingManifest() {
  const { engine, workspace, language, addFile, tell } = useApp();
  const say = useSay();
  const [run, setRun] = useState<Run | undefined>();
  if (workspace === undefined) return null;
  const find = async () => {
    const done = await engine.run(["init", workspace.folder, "--lang", language], filesOf(workspace));
    setRun(done);
    const manifest = done.written.find(({ path }) => path === `${workspace.folder}/tables.json`);
    if (manifest !== undefined) addFile("tables.json", manifest.bytes);
  };
  return (
    <section class="manifest">
      <h2>{say(kWords.title)}</h2>
      <p>{say(kWords.text)}</p>
      {run !== undefined && <Failure error={(run.err + run.out).trim()} />}
      <button type="button" class="main-button" onClick={() => void find().catch(tell)}>
        {say(kWords.find)}
      </button>
    </section>
  );
}

/** After the roles were found: what they are, and the file to keep. */
export function FoundManifest() {
  const { workspace, addedFile, check } = useApp();
  const say = useSay();
  const manifest = workspace?.files.find(({ path }) => path === `${workspace.folder}/tables.json`);
  if (addedFile !== "tables.json" || manifest === undefined) return null;
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
        onClick={() => saveFile("tables.json", manifest.bytes.slice(), "application/json")}
      >
        {say(kWords.save)}
      </button>
      <p class="quiet">{say(kWords.saved)}</p>
    </section>
  );
}
