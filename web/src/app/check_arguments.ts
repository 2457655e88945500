// The command line of the check that all views share, in the form that is asked for.

import type { Language } from "../words/say";
import type { Workspace } from "./state";

export function checkArguments(
  workspace: Workspace,
  language: Language,
  format: "json" | "csv",
): readonly string[] {
  const plates = workspace.plates.flatMap(({ path }) => ["--plates", path]);
  const types = workspace.holeTypes.flatMap(({ path }) => ["--types", path]);
  return ["check", "--config", workspace.folder, ...plates, ...types, "--format", format, "--lang", language];
}
