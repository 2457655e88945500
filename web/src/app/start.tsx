// The page before anything is open.

import { useEffect, useState } from "preact/hooks";
import { kOpenWords } from "../words/open";
import { kStartWords } from "../words/page";
import { mayRead, rememberedFolder } from "./open/remembered";
import { folderSource } from "./open/source";
import type { Opening } from "./open/use_opening";
import { PickButton } from "./open_menu";
import { useSay } from "./state";

/** The folder of the last time. Where the browser still allows to read it, it opens by itself. */
function LastFolder({ opening }: { opening: Opening }) {
  const say = useSay();
  const [last, setLast] = useState<FileSystemDirectoryHandle | undefined>();
  const { open } = opening;
  useEffect(() => {
    let isWanted = true;
    void rememberedFolder().then(async (handle) => {
      if (handle === undefined) return;
      const isAllowed = await mayRead(handle, false);
      if (!isWanted) return; // Something else was opened meanwhile.
      if (isAllowed) open([folderSource(handle)], "config");
      else setLast(handle);
    });
    return () => {
      isWanted = false;
    };
  }, [open]);
  if (last === undefined) return null;
  const openLast = async () => {
    if (await mayRead(last, true)) open([folderSource(last)], "config");
    else opening.tell(new DOMException("", "NotAllowedError"));
  };
  return (
    <button type="button" onClick={() => void openLast().catch(opening.tell)}>
      {say(kOpenWords.last, last.name)}
    </button>
  );
}

export function Start({ opening }: { opening: Opening }) {
  const say = useSay();
  return (
    <div class="start">
      <div class="start-drop">
        <svg viewBox="0 0 48 40" width="72" height="60" aria-hidden="true">
          <path
            class="folder-back"
            d="M3 8a3 3 0 0 1 3-3h12l4 5h20a3 3 0 0 1 3 3v22a3 3 0 0 1-3 3H6a3 3 0 0 1-3-3z"
          />
          <path class="folder-grid" d="M11 18h26v14H11zM11 22.7h26M11 27.3h26M19.7 18v14M28.3 18v14" />
        </svg>
        <p class="start-title">{say(kOpenWords.dropHere)}</p>
        <p class="quiet">{say(kOpenWords.dropHint)}</p>
        <div class="start-buttons">
          <PickButton opening={opening} side="config" label={say(kOpenWords.openFolder)} isFolder isMain />
          <PickButton opening={opening} side="config" label={say(kOpenWords.openFiles)} isFolder={false} />
          <LastFolder opening={opening} />
        </div>
      </div>
      <div class="start-text">
        <h2>{say(kStartWords.lead)}</h2>
        <ul>
          {kStartWords.points.map((point) => (
            <li key={point.en}>{say(point)}</li>
          ))}
        </ul>
        <p class="quiet">{say(kStartWords.plain)}</p>
      </div>
    </div>
  );
}
