// The page of a code: what `check --explain CODE` says of it.

import { useEffect, useState } from "preact/hooks";
import type { Engine } from "../../engine/engine";
import { useApp } from "../state";

export interface CodePage {
  /** What to do about it. */
  readonly advice: string | null;
  /** Whether it has places that only a finding fills. */
  readonly adviceHasPlaces: boolean;
  readonly meaning: string;
}

const kPages = new Map<string, Promise<CodePage>>();

function pageOf(engine: Engine, code: string, language: string): Promise<CodePage> {
  const key = `${language} ${code}`;
  const known = kPages.get(key);
  if (known !== undefined) return known;
  const asked = engine
    .run(["check", "--explain", code, "--format", "json", "--lang", language], [])
    .then((run) => JSON.parse(run.out) as CodePage);
  kPages.set(key, asked);
  asked.catch(() => kPages.delete(key));
  return asked;
}

export function useCodePage(code: string): CodePage | undefined {
  const { engine, language } = useApp();
  const [page, setPage] = useState<CodePage | undefined>();
  useEffect(() => {
    let isWanted = true;
    setPage(undefined);
    pageOf(engine, code, language).then(
      (read) => isWanted && setPage(read),
      () => undefined,
    );
    return () => {
      isWanted = false;
    };
  }, [engine, code, language]);
  return page;
}
