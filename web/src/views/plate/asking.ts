// What the view asks the program.

import { useMemo } from "preact/hooks";
import { useAnswer } from "../../app/answer";
import { filesOf, useApp } from "../../app/state";
import { kRuleTable } from "../../model/check";
import type { ExplainedPlate } from "../../model/explain";
import type { Plate } from "../../model/plate";
import type { ProcessedPlate } from "../../model/process";
import type { Setting } from "../../model/show";
import type { PlateForm } from "./form";
import { kTriedFile, triedPlate } from "./form";
import { kNoRemarks, remarksOf } from "./remarks";

const kNearest = "5";
const kTypingPause = 120;

/** The files of the folder that is open, the same array as long as they are the same. */
export function useFiles() {
  const { workspace } = useApp();
  return useMemo(() => filesOf(workspace), [workspace]);
}

/** The end of every command line on the folder that is open. */
function useCommon(): readonly string[] {
  const { language, workspace } = useApp();
  return ["--config", workspace?.folder ?? "config", "--format", "json", "--lang", language];
}

/** The program's example plate, which has every feature that the rules ask for. */
export function useExample() {
  const { engine } = useApp();
  return useAnswer<readonly Plate[]>(engine, ["template", "plates", ...useCommon()], useFiles());
}

function isOfColors({ value, unit }: Setting): boolean {
  return unit !== "" && Array.isArray(value) && value.every((each) => typeof each === "number");
}

/** The general parameters of the rule table: the settings in front that are lists of colours. */
export function useColors(): readonly Setting[] {
  const { engine } = useApp();
  const answer = useAnswer<readonly Setting[]>(engine, ["show", kRuleTable, ...useCommon()], useFiles());
  return useMemo(() => {
    const settings = answer.value ?? [];
    const end = settings.findIndex((setting) => !isOfColors(setting));
    return end < 0 ? settings : settings.slice(0, end);
  }, [answer.value]);
}

/** The paths of the files of plates; none is no question. */
function usePlateFiles(): readonly string[] | undefined {
  const { workspace } = useApp();
  const paths = workspace?.plates.map(({ path }) => path) ?? [];
  return paths.length === 0 ? undefined : paths;
}

export function usePlates() {
  const { engine } = useApp();
  const paths = usePlateFiles();
  const common = useCommon();
  const args = paths && ["process", ...common, ...paths];
  return useAnswer<readonly ProcessedPlate[]>(engine, args, useFiles());
}

/** The plates of this name as they were read. */
export function useChosen(name: string | undefined) {
  const { engine } = useApp();
  const paths = usePlateFiles();
  const common = useCommon();
  const isAsked = name !== undefined && paths !== undefined;
  const args = isAsked ? ["explain", ...common, "--rows", "1", "--plate", name, ...paths] : undefined;
  return useAnswer<readonly ExplainedPlate[]>(engine, args, useFiles());
}

/** What the plate of the form gets, with all rows that refuse it or the nearest. */
export function useTried(form: PlateForm | undefined, isComplete: boolean) {
  const { engine } = useApp();
  const folder = useFiles();
  const tried = useMemo(() => form && triedPlate(form), [form]);
  const files = useMemo(() => (tried ? [...folder, tried.file] : folder), [folder, tried]);
  const args = ["explain", ...useCommon(), "--rows", isComplete ? "0" : kNearest, kTriedFile];
  const answer = useAnswer<readonly ExplainedPlate[]>(engine, tried && args, files, kTypingPause);
  const messages = answer.state === "done" ? answer.messages : "";
  const remarks = useMemo(() => (tried ? remarksOf(messages, tried) : kNoRemarks), [messages]);
  return {
    plate: answer.value?.[0],
    remarks,
    isRunning: answer.state === "running",
    isDone: answer.state === "done",
    error: answer.state === "failed" ? answer.error : undefined,
  };
}
