// The top of the page: what is open, and what can be done with all of it.

import { kFailureWords } from "../words/failure";
import { kOpenWords } from "../words/open";
import { kPageWords } from "../words/page";
import type { Language } from "../words/say";
import { FilesMenu } from "./files_menu";
import type { Opening } from "./open/use_opening";
import { configurationFolders, nameOf } from "./open/workspaces";
import { OpenMenu } from "./open_menu";
import { UnderWay } from "./parts/under_way";
import { kSeverities, SeverityMark } from "./parts/severity";
import { useApp, useSay } from "./state";

/** What is looked at; of several configuration folders one is chosen. */
function FolderName({ opening, name }: { opening: Opening; name: string }) {
  const say = useSay();
  const opened = opening.sides.config;
  const folders = configurationFolders(opened?.entries ?? []);
  if (opened === undefined || folders.length < 2) return <>{name}</>;
  return (
    <label class="inline-field">
      <span class="visually-hidden">{say(kOpenWords.configuration)}</span>
      <select
        value={opened.folder}
        onChange={(event) => opening.chooseFolder("config", event.currentTarget.value)}
      >
        {folders.map((folder) => (
          <option key={folder} value={folder}>
            {nameOf(folder) || opened.name}
          </option>
        ))}
      </select>
    </label>
  );
}

function Counts() {
  const { check, show } = useApp();
  const say = useSay();
  if (check.state === "running") return <UnderWay text={say(kPageWords.checking)} stop={check.stop} />;
  if (check.state === "failed" && typeof check.error !== "string") {
    return (
      <button type="button" onClick={check.error.again}>
        {say(kFailureWords.checkAgain)}
      </button>
    );
  }
  if (check.state !== "done") return null;
  const { errors, warnings, hints } = check.value.summary;
  const counts = { error: errors, warning: warnings, hint: hints };
  return (
    <button type="button" class="counts" onClick={() => show("findings")}>
      {kSeverities.map((severity) => (
        <span key={severity} class={`tally ${counts[severity] === 0 ? "none" : ""}`}>
          <SeverityMark severity={severity} /> {say(kPageWords.counts[severity], counts[severity])}
        </span>
      ))}
    </button>
  );
}

/** The second folder, with the way to what differs, and the way out of the comparison. */
function ComparedWith({ opening }: { opening: Opening }) {
  const { other, show } = useApp();
  const say = useSay();
  if (other === undefined) return null;
  return (
    <span class="compared-with">
      <button type="button" onClick={() => show("comparison")}>
        {say(kOpenWords.comparedWith)}
        {say(kOpenWords.colon)}
        <b>{other.name}</b>
      </button>
      <button
        type="button"
        title={say(kOpenWords.endComparison)}
        aria-label={say(kOpenWords.endComparison)}
        onClick={() => opening.compareWith(undefined)}
      >
        ×
      </button>
    </span>
  );
}

interface HeaderProps {
  readonly opening: Opening;
  readonly language: Language;
  speak(language: Language): void;
}

export function Header({ opening, language, speak }: HeaderProps) {
  const say = useSay();
  const { workspace } = useApp();
  const next = language === "zh" ? "en" : "zh";
  return (
    <header class="header">
      <h1>
        <span class="product">plateconfig</span>
        {workspace !== undefined && (
          <span class="folder-name">
            <FolderName opening={opening} name={workspace.name} />
          </span>
        )}
      </h1>
      {workspace !== undefined && <Counts />}
      <ComparedWith opening={opening} />
      <span class="spring" />
      {opening.isBusy && <span class="quiet">{say(kPageWords.busy)}</span>}
      {workspace !== undefined && <FilesMenu opening={opening} />}
      {workspace !== undefined && (
        <button type="button" title={say(kPageWords.againTitle)} onClick={opening.again}>
          {say(kPageWords.again)} <kbd>F5</kbd>
        </button>
      )}
      {workspace !== undefined && <OpenMenu opening={opening} />}
      <button type="button" onClick={() => window.print()}>
        {say(kPageWords.print)}
      </button>
      <button
        type="button"
        lang={next === "zh" ? "zh-CN" : "en"}
        title={say(kPageWords.languageTitle)}
        onClick={() => speak(next)}
      >
        {say(kPageWords.language)}
      </button>
    </header>
  );
}
