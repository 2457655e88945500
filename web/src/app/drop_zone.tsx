// Dropping works anywhere on the page; with a folder open there are two places, one to open and one to compare.

import { useEffect, useState } from "preact/hooks";
import { kOpenWords } from "../words/open";
import { droppedSources } from "./open/dropped";
import type { Opening, Side } from "./open/use_opening";
import { useSay } from "./state";

function holdsFiles(event: DragEvent): boolean {
  return event.dataTransfer?.types.includes("Files") ?? false;
}

/** True while something is dragged over the page. Leaving fires for each element, so that enters are counted. */
function useDragging(): [boolean, () => void] {
  const [depth, setDepth] = useState(0);
  useEffect(() => {
    const enter = (event: DragEvent) => holdsFiles(event) && setDepth((now) => now + 1);
    const leave = (event: DragEvent) => holdsFiles(event) && setDepth((now) => Math.max(0, now - 1));
    const allow = (event: DragEvent) => holdsFiles(event) && event.preventDefault();
    document.addEventListener("dragenter", enter);
    document.addEventListener("dragleave", leave);
    document.addEventListener("dragover", allow);
    return () => {
      document.removeEventListener("dragenter", enter);
      document.removeEventListener("dragleave", leave);
      document.removeEventListener("dragover", allow);
    };
  }, []);
  return [depth > 0, () => setDepth(0)];
}

function sideOf(event: DragEvent): Side {
  return (event.target as Element | null)?.closest?.("[data-side]")?.getAttribute("data-side") === "other"
    ? "other"
    : "config";
}

export function DropZone({ opening, isOpen }: { opening: Opening; isOpen: boolean }) {
  const say = useSay();
  const [isDragging, endDragging] = useDragging();
  const { open } = opening;
  useEffect(() => {
    const drop = (event: DragEvent) => {
      if (event.dataTransfer === null || !holdsFiles(event)) return;
      event.preventDefault();
      endDragging();
      open(droppedSources(event.dataTransfer), sideOf(event));
    };
    document.addEventListener("drop", drop);
    return () => document.removeEventListener("drop", drop);
  }, [open]);
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
