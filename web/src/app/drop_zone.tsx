// Dropping works anywhere on the page; with a folder open there are two places, one to open and one to compare.

import { useCallback, useLayoutEffect, useState } from "preact/hooks";
import { kOpenWords } from "../words/open";
import { droppedSources } from "./open/dropped";
import type { Opening, Side } from "./open/use_opening";
import { useSay } from "./state";

function holdsFiles(event: DragEvent): boolean {
  return event.dataTransfer?.types.includes("Files") ?? false;
}

/** While something is dragged over the page the browser says so at least every half second. */
const kSilence = 900;

/** True while files are dragged over the page. A drag that ends elsewhere may end without a word, so that silence ends it too. */
function useDragging(): [boolean, () => void] {
  const [isDragging, setDragging] = useState(false);
  const end = useCallback(() => setDragging(false), []);
  useLayoutEffect(() => {
    let silence: ReturnType<typeof setTimeout> | undefined;
    const over = (event: DragEvent) => {
      if (!holdsFiles(event)) return;
      event.preventDefault();
      setDragging(true);
      clearTimeout(silence);
      silence = setTimeout(end, kSilence);
    };
    const leave = (event: DragEvent) => event.relatedTarget === null && end();
    document.addEventListener("dragenter", over);
    document.addEventListener("dragover", over);
    document.addEventListener("dragleave", leave);
    return () => {
      clearTimeout(silence);
      document.removeEventListener("dragenter", over);
      document.removeEventListener("dragover", over);
      document.removeEventListener("dragleave", leave);
    };
  }, [end]);
  return [isDragging, end];
}

function sideOf(event: DragEvent): Side {
  return (event.target as Element | null)?.closest?.("[data-side]")?.getAttribute("data-side") === "other"
    ? "other"
    : "config";
}

/** Listens from the first picture on: layout effects come before it. */
export function DropZone({ opening, isOpen }: { opening: Opening; isOpen: boolean }) {
  const say = useSay();
  const [isDragging, endDragging] = useDragging();
  const { open } = opening;
  useLayoutEffect(() => {
    const drop = (event: DragEvent) => {
      if (event.dataTransfer === null || !holdsFiles(event)) return;
      event.preventDefault();
      endDragging();
      open(droppedSources(event.dataTransfer), sideOf(event));
    };
    document.addEventListener("drop", drop);
    return () => document.removeEventListener("drop", drop);
  }, [open, endDragging]);
  if (!isDragging) return null;
  return (
    <div class="drop-zones">
      <div class="drop-zone" data-side="config">
        {say(kOpenWords.dropToOpen)}
      </div>
      {isOpen && (
        <div class="drop-zone" data-side="other">
          {say(kOpenWords.dropToCompare)}
        </div>
      )}
    </div>
  );
}
