import { type EngineProblem, engineWords } from "../words/engine";

/** The engine itself can not run, whatever the command line: `words` says it to the reader, `message` to who looks closer. */
export class EngineError extends Error {
  override readonly name = "EngineError";

  constructor(
    readonly problem: EngineProblem,
    detail?: string,
  ) {
    super(engineWords[problem].en + (detail ? ` (${detail})` : ""));
  }

  get words(): { readonly zh: string; readonly en: string } {
    return engineWords[this.problem];
  }
}
