// The page: what is open, which view is shown, and the views themselves.

import type { ComponentType } from "preact";
import { useCallback, useEffect, useMemo, useRef, useState } from "preact/hooks";
import type { Engine } from "../engine/engine";
import type { CheckReport } from "../model/check";
import { Comparison } from "../views/comparison/comparison";
import { Findings } from "../views/findings/findings";
import { Tables } from "../views/grid/tables";
import { Holes } from "../views/holes/holes";
import { RuleMap } from "../views/map/map";
import { Sheet } from "../views/sheet/sheet";
import { TryPlate } from "../views/plate/plate";
import { kPageWords } from "../words/page";
import { browserLanguage, type Language } from "../words/say";
import { type Answer, useAnswer } from "./answer";
import { checkArguments } from "./check_arguments";
import { DropZone } from "./drop_zone";
import { Header } from "./header";
import { OpenSecond } from "./open_menu";
import { reportSource } from "./open/report_data";
import { type Opening, useOpening } from "./open/use_opening";
import { useUnfoldedOnPaper } from "./parts/printing";
import { type Tab, Tabs, tabId } from "./parts/tabs";
import { Start } from "./start";
import {
  AppContext,
  type App,
  type CellPlace,
  filesOf,
  useApp,
  useSay,
  type ViewName,
  type Workspace,
} from "./state";

const kViews: readonly { readonly name: ViewName; readonly view: ComponentType }[] = [
  { name: "findings", view: Findings },
  { name: "tables", view: Tables },
  { name: "map", view: RuleMap },
  { name: "plate", view: TryPlate },
  { name: "sheet", view: Sheet },
  { name: "holes", view: Holes },
  { name: "comparison", view: Comparison },
];

const kLanguageKey = "plateconfig-language";

function rememberedLanguage(): Language {
  try {
    const kept = localStorage.getItem(kLanguageKey);
    return kept === "zh" || kept === "en" ? kept : browserLanguage();
  } catch {
    return browserLanguage();
  }
}

/** The language, and what chooses it; the document says it too, for screen readers and fonts. */
function useLanguage(): [Language, (language: Language) => void] {
  const [language, setLanguage] = useState(rememberedLanguage);
  useEffect(() => {
    document.documentElement.lang = language === "zh" ? "zh-CN" : "en";
    try {
      localStorage.setItem(kLanguageKey, language);
    } catch {
      // The page works without a memory.
    }
  }, [language]);
  return [language, setLanguage];
}

/** While the same folder is read again, what was found before stays in sight. */
function useCheck(engine: Engine, workspace: Workspace | undefined, language: Language): Answer<CheckReport> {
  const files = useMemo(() => filesOf(workspace), [workspace]);
  const args = useMemo(
    () => (workspace === undefined ? undefined : checkArguments(workspace, language, "json")),
    [workspace, language],
  );
  const answer = useAnswer<CheckReport>(engine, args, files);
  // A folder that was just opened is drawn once before its check begins: the answer is still that of the one before.
  const checked = useRef<{ readonly value: CheckReport; readonly opened: string | undefined } | undefined>(
    undefined,
  );
  if (answer.state === "done" && answer.value !== checked.current?.value)
    checked.current = { value: answer.value, opened: workspace?.opened };
  if (answer.value === undefined || checked.current?.opened === workspace?.opened) return answer;
  return { state: "running", ...("stop" in answer && answer.stop && { stop: answer.stop }) };
}

/** Where the reader is: the view, and what other views sent it there for. */
function usePlace() {
  const [view, show] = useState<ViewName>("findings");
  const [selected, setSelected] = useState<CellPlace | undefined>();
  const [triedPlate, setTriedPlate] = useState<string | undefined>();
  const select = useCallback((place: CellPlace) => {
    setSelected(place);
    show("tables");
  }, []);
  const tryPlate = useCallback((name: string) => {
    setTriedPlate(name);
    show("plate");
  }, []);
  return { view, show, selected, select, triedPlate, tryPlate };
}

/** F5 reads the files again, as everybody expects of it; without files it loads the page anew. */
function useAgainKey(opening: Opening): void {
  const isOpen = opening.workspace !== undefined;
  useEffect(() => {
    const onKey = (event: KeyboardEvent) => {
      if (event.key !== "F5" || event.ctrlKey || event.shiftKey || !isOpen) return;
      event.preventDefault();
      opening.again();
    };
    document.addEventListener("keydown", onKey);
    return () => document.removeEventListener("keydown", onKey);
  }, [isOpen, opening.again]);
}

/** A report has its files inside. True in one: nothing else opens by itself there. */
function useReport(open: Opening["open"]): boolean {
  const source = useMemo(reportSource, []);
  useEffect(() => {
    if (source !== undefined) open([source], "config");
  }, [open, source]);
  return source !== undefined;
}

function Footer() {
  const { workspace, language } = useApp();
  const say = useSay();
  const written = workspace?.written?.toLocaleString(language, { dateStyle: "long", timeStyle: "short" });
  return (
    <footer class="footer">
      {written !== undefined && <strong>{say(kPageWords.written, written)} </strong>}
      {say(kPageWords.local)}
    </footer>
  );
}

function Notice({ opening }: { opening: Opening }) {
  const say = useSay();
  if (opening.notice === undefined) return null;
  return (
    <div class="notice" role="alert">
      <span>{say(opening.notice)}</span>
      <button type="button" onClick={opening.dismissNotice}>
        {say(kPageWords.close)}
      </button>
    </div>
  );
}

function useTabs(app: App): readonly Tab<ViewName>[] {
  const say = useSay();
  const findings = app.check.value?.findings.length;
  return kViews.map(({ name }) => ({
    name,
    label: say(kPageWords.tabs[name]),
    count: name === "findings" ? findings : undefined,
  }));
}

function Views({ app }: { app: App }) {
  const say = useSay();
  const tabs = useTabs(app);
  const panel = useRef<HTMLDivElement>(null);
  // What sent the reader to another view is gone with the view that it stood in, and the focus with it.
  useEffect(() => {
    if (document.activeElement === document.body) panel.current?.focus({ preventScroll: true });
  }, [app.view]);
  const View = kViews.find(({ name }) => name === app.view)?.view ?? Findings;
  return (
    <main class="view">
      <Tabs label={say(kPageWords.views)} tabs={tabs} chosen={app.view} panel="view" choose={app.show} />
      <div
        id="view"
        ref={panel}
        tabIndex={-1}
        class={`panel panel-${app.view}`}
        role="tabpanel"
        aria-labelledby={tabId("view", app.view)}
      >
        <View />
      </div>
    </main>
  );
}

export function Page({ engine }: { engine: Engine }) {
  const [language, speak] = useLanguage();
  const opening = useOpening(engine);
  const { workspace, other } = opening;
  const check = useCheck(engine, workspace, language);
  const place = usePlace();
  useAgainKey(opening);
  const isReport = useReport(opening.open);
  useUnfoldedOnPaper();
  const { addFile, addedFile, tell } = opening;
  const openSecond = <OpenSecond opening={opening} />;
  const app: App = {
    engine,
    language,
    workspace,
    other,
    check,
    addFile,
    addedFile,
    openSecond,
    tell,
    ...place,
  };
  useEffect(() => {
    document.title = workspace === undefined ? "plateconfig" : `${workspace.name} - plateconfig`;
  }, [workspace]);
  return (
    <AppContext.Provider value={app}>
      <Header opening={opening} language={language} speak={speak} />
      <Notice opening={opening} />
      {workspace === undefined ? (
        <main class="view">{!isReport && <Start opening={opening} />}</main>
      ) : (
        <Views app={app} />
      )}
      <Footer />
      <DropZone opening={opening} isOpen={workspace !== undefined} />
    </AppContext.Provider>
  );
}
