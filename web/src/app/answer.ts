// One run of the companion as a view waits for it: runs anew when its arguments or files change, and cancels what nobody waits for.

import { useEffect, useRef, useState } from "preact/hooks";
import { EngineError } from "../engine/engine_error";
import type { Engine, InputFile, Run } from "../engine/engine";

export type Answer<Value> =
  /** Nothing was asked. */
  | { readonly state: "idle"; readonly value?: undefined }
  /** Under way; `value` is the answer before, to be shown meanwhile; `stop` gives it up. */
  | { readonly state: "running"; readonly value?: Value; readonly stop?: () => void }
  | { readonly state: "done"; readonly value: Value; readonly code: number; readonly messages: string }
  /** The run ended with code 2, or with something else than JSON: `error` is the program's own text. */
  | { readonly state: "failed"; readonly error: string; readonly value?: undefined };

/** What stands instead of an answer that the user gave up; it is no text of the program. */
const kStopped = { state: "failed", error: "已取消 / cancelled" } as const;

export const kIdle = { state: "idle" } as const;

/** What a run came to: its JSON, or its error text. */
export function answerOf<Value>(run: Run): Answer<Value> {
  const text = run.out.trim();
  if (text === "") return { state: "failed", error: run.err.trim() };
  try {
    return { state: "done", value: JSON.parse(text) as Value, code: run.code, messages: run.err.trim() };
  } catch {
    return { state: "failed", error: (run.err + run.out).trim() };
  }
}

/** What the engine says of itself comes in both languages: here nobody knows which one is read. */
function textOf(error: unknown): string {
  if (error instanceof EngineError) return `${error.words.zh}\n${error.words.en}`;
  return error instanceof Error ? error.message : String(error);
}

async function ask<Value>(
  engine: Engine,
  args: readonly string[],
  files: readonly InputFile[],
  signal: AbortSignal,
): Promise<Answer<Value>> {
  try {
    return answerOf<Value>(await engine.run(args, files, signal));
  } catch (error) {
    return { state: "failed", error: textOf(error) };
  }
}

/**
 * The answer to `plateconfig ARGS…` with `--format json`. `args` undefined asks nothing. `files` has to be the same array as long as the
 * files are the same (take `filesOf` through useMemo). `delay` waits for typing to end, in milliseconds.
 */
export function useAnswer<Value>(
  engine: Engine,
  args: readonly string[] | undefined,
  files: readonly InputFile[],
  delay = 0,
): Answer<Value> {
  const [answer, setAnswer] = useState<Answer<Value>>(kIdle);
  const last = useRef<Value | undefined>(undefined);
  const asked = args === undefined ? undefined : JSON.stringify(args);
  useEffect(() => {
    if (asked === undefined) {
      last.current = undefined;
      setAnswer(kIdle);
      return undefined;
    }
    const abort = new AbortController();
    const stop = () => {
      abort.abort();
      setAnswer(kStopped);
    };
    setAnswer({ state: "running", stop, ...(last.current !== undefined && { value: last.current }) });
    const timer = setTimeout(() => {
      void ask<Value>(engine, JSON.parse(asked) as string[], files, abort.signal).then((given) => {
        if (abort.signal.aborted) return;
        last.current = given.value;
        setAnswer(given);
      });
    }, delay);
    return () => {
      clearTimeout(timer);
      abort.abort();
    };
  }, [engine, asked, files, delay]);
  return answer;
}
