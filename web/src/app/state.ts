// What every view knows of the page, and what it may ask for.

import { type ComponentChildren, createContext } from "preact";
import { useContext, useMemo } from "preact/hooks";
import type { Engine, InputFile } from "../engine/engine";
import type { CheckReport } from "../model/check";
import type { Language, Say } from "../words/say";
import { sayIn } from "../words/say";
import type { Answer } from "./answer";

/** A configuration folder as the engine sees it, with what is looked at beside it. */
export interface Workspace {
  /** The folder's own name, as it is shown. */
  readonly name: string;
  /** Its folder in the engine's file system: "config", of the second one "other". */
  readonly folder: "config" | "other";
  /** What lies in the folder: paths begin with `folder` and a slash. */
  readonly files: readonly InputFile[];
  /** Beside the folder: paths begin with `plates/`, `holes/` or `hole-types/`; all of them go on the command line. */
  readonly plates: readonly InputFile[];
  readonly holes: readonly InputFile[];
  readonly holeTypes: readonly InputFile[];
  /** The same as long as it is the same folder, however often it is read again. */
  readonly opened: string;
  /** Of a report: when it was written. */
  readonly written?: Date;
  /** Grows whenever anything of it is read again. */
  readonly revision: number;
}

export type ViewName = "findings" | "tables" | "map" | "plate" | "sheet" | "holes" | "comparison";

/** A cell of a table: of the engine's path of the table, with the spreadsheet's own row and column, both from 1. */
export interface CellPlace {
  readonly file: string;
  /** As findings name it, "C17"; a whole row, "17"; or the row that line 19 of the file is in, "@19". */
  readonly cell: string;
  /** "other" for the second folder's table. */
  readonly side?: "config" | "other";
}

export interface App {
  readonly engine: Engine;
  readonly language: Language;
  /** Undefined until a folder is open. */
  readonly workspace: Workspace | undefined;
  /** The second folder, for comparison. */
  readonly other: Workspace | undefined;
  /** What `check` says of the workspace, in the page's language. */
  readonly check: Answer<CheckReport>;
  readonly view: ViewName;
  /** The cell that was selected last; the view "tables" shows it. */
  readonly selected: CellPlace | undefined;
  show(view: ViewName): void;
  /** Opens the grid of the cell's table there. */
  select(place: CellPlace): void;
  /** Opens the view "plate" on this plate of the loaded file. */
  tryPlate(name: string): void;
  /** The plate that `tryPlate` asked for. */
  readonly triedPlate: string | undefined;
  /** The controls that open a second folder, for a view that has nothing to show without it. */
  readonly openSecond: ComponentChildren;
  /** Puts a file that the program wrote into the workspace; the disk stays as it is. */
  addFile(name: string, bytes: Uint8Array): void;
  /** Says above the page what went wrong with something that no view waits for. */
  tell(error: unknown): void;
  /** The file that was added so, until the folder is read again. */
  readonly addedFile: string | undefined;
}

export const AppContext = createContext<App | undefined>(undefined);

export function useApp(): App {
  const app = useContext(AppContext);
  if (app === undefined) throw new Error("a view stands outside of the page");
  return app;
}

/** Says texts in the page's language. */
export function useSay(): Say {
  const { language } = useApp();
  return useMemo(() => sayIn(language), [language]);
}

/** What is looked at beside the folder. */
export function filesBeside({ plates, holes, holeTypes }: Workspace): readonly InputFile[] {
  return [...plates, ...holes, ...holeTypes];
}

/** All files that a run on this workspace may read. */
export function filesOf(workspace: Workspace | undefined): readonly InputFile[] {
  if (workspace === undefined) return [];
  return [...workspace.files, ...filesBeside(workspace)];
}

/** A file's path as people know it: without the engine's folder. */
export function shownFile(path: string): string {
  return path.slice(path.indexOf("/") + 1);
}
