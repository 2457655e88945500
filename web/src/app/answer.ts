// One run of the companion as a view waits for it: runs anew when its arguments or files change, and cancels what nobody waits for.

import { useEffect, useRef, useState } from "preact/hooks";
import { EngineError } from "../engine/engine_error";
import type { Engine, InputFile, Run } from "../engine/engine";
import { kFailureWords } from "../words/failure";
import type { Text } from "../words/say";

/** What the page itself says in place of an answer, and what asks once more. */
export interface OwnFailure {
  readonly words: Text;
  again(): void;
}

export type Answer<Value> =
  /** Nothing was asked. */
  | { readonly state: "idle"; readonly value?: undefined }
  /** Under way; `value` is the answer before, to be shown meanwhile; `stop` gives it up. */
  | { readonly state: "running"; readonly value?: Value; readonly stop?: () => void }
  | { readonly state: "done"; readonly value: Value; readonly code: number; readonly messages: string }
  /** The run ended with code 2, or with something else than JSON: `error` is the program's own text. Or there was no run. */
  | { readonly state: "failed"; readonly error: string | OwnFailure; readonly value?: undefined };

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

function reasonOf(error: unknown, again: () => void): string | OwnFailure {
  if (error instanceof EngineError) return { words: error.words, again };
  return error instanceof Error ? error.message : String(error);
}

async function ask<Value>(
  engine: Engine,
  args: readonly string[],
  files: readonly InputFile[],
  signal: AbortSignal,
  again: () => void,
): Promise<Answer<Value>> {
  try {
    return answerOf<Value>(await engine.run(args, files, signal));
  } catch (error) {
    return { state: "failed", error: reasonOf(error, again) };
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
  const [attempt, setAttempt] = useState(0);
  const asked = args === undefined ? undefined : JSON.stringify(args);
  useEffect(() => {
    if (asked === undefined) {
      last.current = undefined;
      setAnswer(kIdle);
      return undefined;
    }
    const abort = new AbortController();
    const again = () => setAttempt(attempt + 1);
    const stop = () => {
      abort.abort();
      setAnswer({ state: "failed", error: { words: kFailureWords.stopped, again } });
    };
    setAnswer({ state: "running", stop, ...(last.current !== undefined && { value: last.current }) });
    const timer = setTimeout(() => {
      void ask<Value>(engine, JSON.parse(asked) as string[], files, abort.signal, again).then((given) => {
        if (abort.signal.aborted) return;
        last.current = given.value;
        setAnswer(given);
      });
    }, delay);
    return () => {
      clearTimeout(timer);
      abort.abort();
    };
  }, [engine, asked, files, delay, attempt]);
  return answer;
}
