// The drawing sheet that the settings describe, to scale, each part with the setting that places it.

import { useMemo, useRef, useState } from "preact/hooks";
import { useAnswer } from "../../app/answer";
import { Failure, OpenFirst } from "../../app/parts/failure";
import { useKept } from "../../app/parts/kept";
import { AppContext, filesOf, useApp, useSay, type Workspace } from "../../app/state";
import { kInk } from "../../drawing/looks";
import { shown } from "../../drawing/numbers";
import { lineColorAt } from "../../drawing/palette";
import { drawnApart } from "../../drawing/save";
import { SaveButtons } from "../../drawing/save_buttons";
import { useViewBox } from "../../drawing/view_box";
import { ZoomButtons } from "../../drawing/zoom_buttons";
import type { DrawnSheet, SheetPart, SheetPicture } from "../../model/pictures";
import { kSheetWords } from "../../words/sheet";
import { kPapers, landscape, portrait } from "./paper";
import { Lists, useOpenPart } from "./parts";
import { differing, differingPlaces } from "./sameness";
import { SavedSheet, SheetDrawing, wholeOf } from "./sheet_drawing";
import "../../app/parts/common.css";
import "./sheet.css";

interface SheetQuestion {
  readonly size: "large" | "small";
  /** Empty: nobody chose one. */
  readonly paper: string;
  readonly sheet: string;
}

const kFirstQuestion: SheetQuestion = { size: "large", paper: "", sheet: "" };

function useSheets(workspace: Workspace | undefined, { size, paper }: SheetQuestion) {
  const { engine, language } = useApp();
  const files = useMemo(() => filesOf(workspace), [workspace]);
  const args =
    workspace === undefined
      ? undefined
      : ["picture", "sheet", "--config", workspace.folder, "--size", size, "--lang", language].concat(
          paper === "" ? [] : ["--paper", paper],
        );
  return useAnswer<SheetPicture>(engine, args, files);
}

function ascending(colors: readonly (number | null)[]): readonly number[] {
  return [...new Set(colors)].filter((color) => color !== null).sort((a, b) => a - b);
}

/** A colour of the page for each colour index, those on the sheets first; none stated is ink. */
function colorsOf(sheets: readonly DrawnSheet[]): ReadonlyMap<number | null, string> {
  const placed = ascending(sheets.flatMap(({ parts }) => parts.map(({ color }) => color)));
  const others = ascending(
    sheets.flatMap(({ unknown }) => unknown.map(({ specimen }) => specimen?.color ?? null)),
  );
  const indices = [...new Set([...placed, ...others])];
  return new Map<number | null, string>([
    ...indices.map((index, at) => [index, lineColorAt(at)] as const),
    [null, kInk],
  ]);
}

interface BarProps {
  readonly picture: SheetPicture;
  readonly question: SheetQuestion;
  readonly shownSheet: string;
  ask(question: SheetQuestion): void;
}

function Bar({ picture, question, shownSheet, ask }: BarProps) {
  const say = useSay();
  const { language } = useApp();
  const { paper } = picture;
  return (
    <form class="sheet-bar" onSubmit={(event) => event.preventDefault()}>
      <fieldset class="sheet-choice">
        <legend>{say(kSheetWords.kinds)}</legend>
        {picture.sheets.map(({ name, title }) => (
          <label key={name} class="tick">
            <input
              type="radio"
              name="sheet"
              checked={name === shownSheet}
              onChange={() => ask({ ...question, sheet: name })}
            />
            {title[language]}
          </label>
        ))}
      </fieldset>
      <fieldset class="sheet-choice">
        <legend>{say(kSheetWords.size)}</legend>
        {(["large", "small"] as const).map((size) => (
          <label key={size} class="tick">
            <input
              type="radio"
              name="size"
              checked={question.size === size}
              onChange={() => ask({ ...question, size })}
            />
            {say(kSheetWords[size])}
          </label>
        ))}
      </fieldset>
      <label class="sheet-paper">
        {say(kSheetWords.paper)}
        <select
          value={question.paper}
          onChange={(event) => ask({ ...question, paper: event.currentTarget.value })}
        >
          <option value="">
            {say(
              kSheetWords.assumedPaper,
              paper.given ? "420x297" : `${shown(paper.width)}x${shown(paper.height)}`,
            )}
          </option>
          {kPapers.map((each) => (
            <option key={landscape(each)} value={landscape(each)}>
              {say(kSheetWords.landscape, each.name)} {landscape(each)}
            </option>
          ))}
          {kPapers.map((each) => (
            <option key={portrait(each)} value={portrait(each)}>
              {say(kSheetWords.portrait, each.name)} {portrait(each)}
            </option>
          ))}
        </select>
      </label>
    </form>
  );
}

function ColorLegend({ colors }: { colors: ReadonlyMap<number | null, string> }) {
  const say = useSay();
  return (
    <p class="sheet-colors">
      {say(kSheetWords.colors)}
      {[...colors].map(([index, color]) => (
        <span key={index}>
          <span class="sheet-swatch" style={{ background: color }} /> {index ?? say(kSheetWords.noColor)}
        </span>
      ))}
    </p>
  );
}

interface PaneProps {
  readonly picture: SheetPicture;
  readonly otherPicture: SheetPicture | undefined;
  readonly question: SheetQuestion;
  ask(question: SheetQuestion): void;
}

function Pane({ picture, otherPicture, question, ask }: PaneProps) {
  const say = useSay();
  const app = useApp();
  const { workspace, other } = app;
  const sheet = picture.sheets.find(({ name }) => name === question.sheet) ?? picture.sheets[0];
  const otherSheet = otherPicture?.sheets.find(({ name }) => name === sheet?.name);
  const zoom = useViewBox(wholeOf(sheet ?? picture.paper));
  const svg = useRef<SVGSVGElement>(null);
  const otherSvg = useRef<SVGSVGElement>(null);
  const [marked, mark] = useState<SheetPart | undefined>();
  const openHere = useOpenPart("config");
  const openOther = useOpenPart("other");
  const colors = useMemo(
    () => colorsOf([...picture.sheets, ...(otherPicture?.sheets ?? [])]),
    [picture, otherPicture],
  );
  const changed = useMemo(() => differing(sheet?.parts ?? [], otherSheet?.parts), [sheet, otherSheet]);
  const otherChanged = useMemo(
    () => (otherSheet ? differing(otherSheet.parts, sheet?.parts) : new Set<SheetPart>()),
    [sheet, otherSheet],
  );
  if (sheet === undefined) return null;
  const listed = { colors, marked, mark };
  const common = { zoom, ...listed };
  const saved = () =>
    drawnApart(
      <AppContext.Provider value={app}>
        <SavedSheet sheet={sheet} box={zoom.box} colors={colors} differing={changed} />
      </AppContext.Provider>,
    );
  return (
    <div class="sheet-view">
      <div class="picture-main">
        <Bar picture={picture} question={question} shownSheet={sheet.name} ask={ask} />
        <div class="sheet-pictures">
          <figure>
            {otherSheet && <figcaption>{workspace?.name}</figcaption>}
            <SheetDrawing sheet={sheet} svg={svg} differing={changed} open={openHere} {...common} />
          </figure>
          {otherSheet && (
            <figure>
              <figcaption>{other?.name}</figcaption>
              <SheetDrawing
                sheet={otherSheet}
                svg={otherSvg}
                differing={otherChanged}
                open={openOther}
                {...common}
              />
            </figure>
          )}
        </div>
        <div class="picture-bar">
          <ColorLegend colors={colors} />
          <span class="no-print">
            <ZoomButtons {...zoom} />
            <SaveButtons picture={saved} name={`${say(kSheetWords.sheet)}-${sheet.name}`} />
          </span>
        </div>
      </div>
      <div class="picture-side">
        <Lists
          picture={picture}
          sheet={sheet}
          name={otherSheet && workspace?.name}
          differing={changed}
          differingPlaces={differingPlaces(sheet.unknown, otherSheet?.unknown)}
          side="config"
          {...listed}
        />
        {otherSheet && otherPicture && (
          <Lists
            picture={otherPicture}
            sheet={otherSheet}
            name={other?.name}
            differing={otherChanged}
            differingPlaces={differingPlaces(otherSheet.unknown, sheet.unknown)}
            side="other"
            {...listed}
          />
        )}
      </div>
    </div>
  );
}

export function Sheet() {
  const { workspace, other } = useApp();
  const [question, ask] = useKept<SheetQuestion>("sheet-question", kFirstQuestion);
  const answer = useSheets(workspace, question);
  const otherAnswer = useSheets(other, question);
  if (workspace === undefined) return <OpenFirst />;
  if (answer.state === "failed") return <Failure error={answer.error} />;
  if (answer.value === undefined) return null;
  return (
    <>
      {otherAnswer.state === "failed" && <Failure error={otherAnswer.error} />}
      <Pane picture={answer.value} otherPicture={otherAnswer.value} question={question} ask={ask} />
    </>
  );
}
