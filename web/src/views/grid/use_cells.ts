// The cells of one table of the workspace.

import { useMemo } from "preact/hooks";
import { type Answer, useAnswer } from "../../app/answer";
import { filesOf, useApp, type Workspace } from "../../app/state";
import type { InputFile } from "../../engine/engine";
import type { TableCells } from "../../model/cells";

export function fileNamed(workspace: Workspace | undefined, path: string | undefined): InputFile | undefined {
  if (workspace === undefined || path === undefined) return undefined;
  return filesOf(workspace).find((file) => file.path === path);
}

/** Undefined `path` asks nothing; a file that is not there is told by the program. */
export function useCells(workspace: Workspace | undefined, path: string | undefined): Answer<TableCells> {
  const { engine, language } = useApp();
  const files = useMemo(() => {
    const file = fileNamed(workspace, path);
    return file === undefined ? [] : [file];
  }, [workspace, path]);
  const args = path === undefined ? undefined : ["picture", "cells", path, "--lang", language];
  return useAnswer<TableCells>(engine, args, files);
}
