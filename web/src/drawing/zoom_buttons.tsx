// Zooming and moving a picture without a wheel and without dragging.

import { useSay } from "../app/state";
import { kDrawingWords } from "../words/drawing";

interface ZoomButtonsProps {
  /** Whether only a part is in sight, so that there is somewhere to move. */
  readonly isZoomed: boolean;
  zoomBy(factor: number): void;
  /** By shares of what is in sight: to the right and downwards. */
  moveBy(right: number, down: number): void;
  reset(): void;
}

const kZoomStep = 0.7;
/** What was at one end is still in sight at the other. */
export const kMoveStep = 0.25;

const kMoves = [
  ["◀", "left", -kMoveStep, 0],
  ["▲", "up", 0, -kMoveStep],
  ["▼", "down", 0, kMoveStep],
  ["▶", "right", kMoveStep, 0],
] as const;

export function ZoomButtons({ isZoomed, zoomBy, moveBy, reset }: ZoomButtonsProps) {
  const say = useSay();
  return (
    <>
      <button type="button" onClick={() => zoomBy(kZoomStep)} aria-label={say(kDrawingWords.zoomIn)}>
        ＋
      </button>
      <button type="button" onClick={() => zoomBy(1 / kZoomStep)} aria-label={say(kDrawingWords.zoomOut)}>
        －
      </button>
      {kMoves.map(([sign, name, right, down]) => (
        <button
          key={name}
          type="button"
          disabled={!isZoomed}
          title={say(kDrawingWords.moves[name])}
          aria-label={say(kDrawingWords.moves[name])}
          onClick={() => moveBy(right, down)}
        >
          {sign}
        </button>
      ))}
      <button type="button" onClick={reset}>
        {say(kDrawingWords.whole)}
      </button>
    </>
  );
}
