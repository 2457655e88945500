// The page of a code, as `check --explain CODE` prints it: the sentences of the finding, then what it means.

import { useEffect, useState } from "preact/hooks";
import type { Engine } from "../../engine/engine";
import { useApp } from "../state";

export interface CodePage {
  /** What to do about it; it may have places that only the finding fills. */
  readonly advice: string | undefined;
  readonly meaning: string;
}

const kPages = new Map<string, Promise<CodePage>>();

/** A title, the indented sentences (message, advice), a paragraph. */
function pageFrom(out: string): CodePage {
  const [, sentences, ...meaning] = out.trim().split(/\n\n+/);
  const advice = sentences?.split("\n")[1]?.trim();
  return { advice, meaning: meaning.join("\n") };
}

function pageOf(engine: Engine, code: string, language: string): Promise<CodePage> {
  const key = `${language} ${code}`;
  const known = kPages.get(key);
  if (known !== undefined) return known;
  const asked = engine
    .run(["check", "--explain", code, "--lang", language], [])
    .then((run) => pageFrom(run.out));
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
