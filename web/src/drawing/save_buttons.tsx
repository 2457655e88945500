import { useApp, useSay } from "../app/state";
import { kDrawingWords } from "../words/drawing";
import "../app/parts/common.css";
import { savePng, saveSvg } from "./save";

interface SaveButtonsProps {
  /** The file's, without its ending. */
  readonly name: string;
  picture(): SVGSVGElement | null;
}

/** Saves a picture. */
export function SaveButtons({ name, picture }: SaveButtonsProps) {
  const say = useSay();
  const { tell } = useApp();
  const save = (into: typeof saveSvg | typeof savePng) => {
    const svg = picture();
    if (svg !== null) Promise.resolve(into(svg, name)).catch(tell);
  };
  return (
    <span class="save-buttons">
      <button type="button" onClick={() => save(saveSvg)}>
        {say(kDrawingWords.saveSvg)}
      </button>
      <button type="button" onClick={() => save(savePng)}>
        {say(kDrawingWords.savePng)}
      </button>
    </span>
  );
}
