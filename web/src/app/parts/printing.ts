// The page on paper: what is printed is drawn before the printer gets it.

import { options } from "preact";
import { useEffect, useState } from "preact/hooks";

/** Draws at once what a change asks for: a printer does not wait. */
function drawnAtOnce(change: () => void): void {
  const before = options.debounceRendering;
  let draw: (() => void) | undefined;
  options.debounceRendering = (callback) => {
    draw = callback;
  };
  try {
    change();
  } finally {
    options.debounceRendering = before;
  }
  draw?.();
}

/** Calls back when the page goes onto paper, and when it comes back from there. */
function onPrinting(change: (isPrinting: boolean) => void): () => void {
  const print = matchMedia("print");
  const begin = () => change(true);
  const end = () => change(false);
  // Tools that show the page as it would be on paper only say that the medium is another one.
  const turn = () => change(print.matches);
  window.addEventListener("beforeprint", begin);
  window.addEventListener("afterprint", end);
  print.addEventListener("change", turn);
  return () => {
    window.removeEventListener("beforeprint", begin);
    window.removeEventListener("afterprint", end);
    print.removeEventListener("change", turn);
  };
}

/** True while the page is on paper, which shows all of a list and not only what is in sight. */
export function usePrinting(): boolean {
  const [isPrinting, setPrinting] = useState(() => matchMedia("print").matches);
  useEffect(() => onPrinting((is) => drawnAtOnce(() => setPrinting(is))), []);
  return isPrinting;
}

/** Paper can not be clicked: what is folded up there is opened meanwhile. */
export function useUnfoldedOnPaper(): void {
  useEffect(() => {
    let unfolded: HTMLDetailsElement[] = [];
    return onPrinting((isPrinting) => {
      for (const details of unfolded) details.open = false;
      unfolded = isPrinting ? [...document.querySelectorAll<HTMLDetailsElement>("details:not([open])")] : [];
      for (const details of unfolded) details.open = true;
    });
  }, []);
}
