// The rule map: the plane of two sizes, and which row the plates at each place get.

import { useEffect, useMemo, useRef, useState } from "preact/hooks";
import { useAnswer } from "../../app/answer";
import { Failure, OpenFirst } from "../../app/parts/failure";
import { useKept } from "../../app/parts/kept";
import { useOpenRow } from "../../app/parts/row_link";
import { useApp, useSay } from "../../app/state";
import { shown } from "../../drawing/numbers";
import type { Logs, Zoom } from "../../drawing/plane";
import { SaveButtons } from "../../drawing/save_buttons";
import { ZoomButtons } from "../../drawing/zoom_buttons";
import type { RuleMapPicture } from "../../model/pictures";
import { kMapWords } from "../../words/map";
import { kSizeWords } from "../../words/plate";
import type { Say } from "../../words/say";
import { useFiles } from "../plate/asking";
import { rowColors } from "./colors";
import { Controls } from "./controls";
import type { Place } from "./hits";
import { hitAt } from "./hits";
import { isPart, isReadable, planeOf } from "./layout";
import { MapPicture } from "./plane";
import { middleOf, movedByShare, usePointing, zoomAround } from "./pointing";
import type { MapQuestion } from "./question";
import { kFirstQuestion, mapArguments } from "./question";
import { Rows } from "./rows";
import { questionFor, Steps, useSteps } from "./steps";
import "./map.css";

const kSlidePause = 60;

function useMap(question: MapQuestion) {
  const { engine, language, workspace } = useApp();
  const folder = workspace?.folder ?? "config";
  const args = ["picture", "map", "--config", folder, ...mapArguments(question), "--lang", language];
  return useAnswer<RuleMapPicture>(engine, args, useFiles(), kSlidePause);
}

/** What a plate at the cross gets. */
function readout(picture: RuleMapPicture, cross: Place | undefined, say: Say): string {
  if (cross === undefined) return `${say(kMapWords.point)} (${say(kMapWords.keys)})`;
  const at = (size: "x" | "y") => `${say(kSizeWords[picture[size].size])} ${shown(cross[size], 1)}`;
  const { winner, hidden, isGap } = hitAt(picture, cross);
  const also =
    hidden.length === 0
      ? []
      : [say(kMapWords.alsoFits, hidden.map(({ row }) => row).join(say(kMapWords.joint)))];
  const gets =
    winner !== undefined
      ? say(kMapWords.gets, winner.row, winner.layer)
      : say(isGap ? kMapWords.isGap : kMapWords.outside);
  return [`${at("x")}  ${at("y")}`, gets, ...also].join("   ");
}

function Notes({ picture }: { picture: RuleMapPicture }) {
  const say = useSay();
  const notes = [
    ...(picture.possible ? [] : [kMapWords.impossible]),
    ...(picture.possible && picture.regions.length === 0 ? [kMapWords.nothing] : []),
    ...(picture.complete ? [] : [kMapWords.incomplete]),
  ];
  return (
    <>
      {notes.map((note) => (
        <p key={note.en} class="map-note" role="status">
          {say(note)}
        </p>
      ))}
    </>
  );
}

function MapPane() {
  const say = useSay();
  const openRow = useOpenRow();
  const steps = useSteps();
  const svg = useRef<SVGSVGElement>(null);
  const [question, ask] = useKept<MapQuestion>("map-question", kFirstQuestion);
  const [logs, setLogs] = useKept<Logs>("map-logs", { x: false, y: false });
  const [zoom, setZoom] = useState<Zoom>({});
  const [cross, point] = useState<Place | undefined>();
  const [outlined, outline] = useState<number | undefined>();
  const [at, setAt] = useKept<number | undefined>("map-step", undefined);
  const [wantsHidden, setWantsHidden] = useState<boolean | undefined>();

  const answer = useMap(question);
  const picture = answer.value;
  const plane = useMemo(() => picture && planeOf(picture, zoom, logs), [picture, zoom, logs]);
  const whole = useMemo(() => picture && planeOf(picture, {}, logs), [picture, logs]);
  const isClear = useMemo(() => picture !== undefined && isReadable(picture), [picture]);
  const showsHidden = wantsHidden ?? isClear;
  const rows = useMemo(() => rowColors(picture?.regions ?? []), [picture]);
  useEffect(() => setZoom({}), [question.x, question.y]);

  const openAt = (place: Place) => {
    const winner = picture && hitAt(picture, place).winner;
    if (winner !== undefined) openRow(winner.row);
  };
  const handlers = usePointing({ svg, plane, whole, cross, zoom, point, setZoom, openAt });

  const finding = at === undefined ? undefined : steps[at];
  const go = (next: number) => {
    setAt(next);
    const step = steps[next];
    if (step?.witness === undefined) return;
    setZoom({});
    ask(questionFor(step, question));
  };
  const { witness } = finding ?? {};
  const shownPlace = cross ?? (witness && { x: witness[question.x], y: witness[question.y] });
  const zoomBy = (factor: number) => {
    if (plane && whole) setZoom(zoomAround(plane, whole, shownPlace ?? middleOf(plane), factor));
  };
  const moveBy = (right: number, down: number) => {
    if (plane && whole) setZoom(movedByShare(plane, whole, right, down));
  };

  return (
    <div class="rule-map">
      <div class="picture-main" aria-busy={answer.state === "running"}>
        <Controls question={question} picture={picture} logs={logs} ask={ask} setLogs={setLogs} />
        {answer.state === "failed" && <Failure error={answer.error} />}
        {picture && plane && (
          <>
            <Notes picture={picture} />
            <MapPicture
              picture={picture}
              plane={plane}
              colors={rows}
              svg={svg}
              cross={shownPlace}
              outlined={outlined ?? (finding?.code === "row-shadowed" ? finding.row : undefined)}
              showsHidden={showsHidden}
              handlers={handlers}
            />
            <div class="picture-bar">
              <p class={`map-readout ${shownPlace ? "" : "no-print"}`} aria-live="polite">
                {readout(picture, shownPlace, say)}
              </p>
              <span class="no-print">
                <label class="tick">
                  <input
                    type="checkbox"
                    checked={showsHidden}
                    onChange={(event) => setWantsHidden(event.currentTarget.checked)}
                  />
                  {say(kMapWords.allHidden)}
                </label>
                <ZoomButtons
                  isZoomed={whole !== undefined && isPart(plane, whole)}
                  zoomBy={zoomBy}
                  moveBy={moveBy}
                  reset={() => setZoom({})}
                />
                <SaveButtons
                  picture={() => svg.current}
                  name={`${say(kMapWords.map)}-${question.x}-${question.y}`}
                />
              </span>
            </div>
          </>
        )}
      </div>
      <div class="picture-side">
        <Steps steps={steps} at={at} go={go} />
        {picture && <Rows picture={picture} colors={rows} outlined={outlined} outline={outline} />}
      </div>
    </div>
  );
}

export function RuleMap() {
  const { workspace } = useApp();
  return workspace === undefined ? <OpenFirst /> : <MapPane />;
}
