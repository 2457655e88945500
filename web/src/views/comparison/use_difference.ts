// What `diff` says of the two folders, and which tables each of them has.

import { useMemo } from "preact/hooks";
import { type Answer, useAnswer } from "../../app/answer";
import { filesOf, useApp, type Workspace } from "../../app/state";
import type { InputFile } from "../../engine/engine";
import type { CheckedTable, CheckReport, Role } from "../../model/check";
import type { Difference } from "../../model/diff";

export interface Pair {
  readonly old: Workspace;
  readonly now: Workspace;
}

/** Files of plates of both folders may have one name; the first folder that has any tells the plates. */
function platesOf({ old, now }: Pair): readonly InputFile[] {
  const [first, second] = old.folder === "config" ? [old, now] : [now, old];
  return first.plates.length > 0 ? first.plates : second.plates;
}

export function useDifference(pair: Pair, listsAll: boolean): Answer<Difference> {
  const { engine, language } = useApp();
  const { old, now } = pair;
  const files = useMemo(() => {
    return [...old.files, ...now.files, ...platesOf({ old, now })];
  }, [old, now]);
  const args = useMemo(() => {
    const options = [
      ...platesOf({ old, now }).flatMap(({ path }) => ["--plates", path]),
      ...(listsAll ? ["--limit", "0"] : []),
    ];
    return ["diff", old.folder, now.folder, ...options, "--format", "json", "--lang", language];
  }, [old, now, listsAll, language]);
  return useAnswer<Difference>(engine, args, files);
}

/** The tables of a folder by their roles: a check that looks for next to nothing names them. */
function useTables(workspace: Workspace): readonly CheckedTable[] {
  const { engine } = useApp();
  const files = useMemo(() => filesOf(workspace), [workspace]);
  const args = ["check", "--config", workspace.folder, "--only", "manifest-missing", "--format", "json"];
  return useAnswer<CheckReport>(engine, args, files).value?.checked.tables ?? [];
}

export interface TablePair extends Role {
  readonly old: string | undefined;
  readonly now: string | undefined;
  /** Whether the two files are the same, byte for byte. */
  readonly isSame: boolean;
}

export function useTablePairs({ old, now }: Pair): readonly TablePair[] {
  const [one, two] = [useTables(old), useTables(now)];
  return useMemo(() => {
    const roles = new Map([...one, ...two].map(({ role, chineseName }) => [role, chineseName]));
    return [...roles].map(([role, chineseName]) => {
      const [before, after] = [one, two].map((tables) => tables.find((table) => table.role === role));
      const isSame = before?.sha256 === after?.sha256;
      return { role, chineseName, old: before?.file, now: after?.file, isSame };
    });
  }, [one, two]);
}
