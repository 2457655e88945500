import type { RefObject } from "preact";
import { useSay } from "../app/state";
import { kDrawingWords } from "../words/drawing";
import "../app/parts/common.css";
import { savePng, saveSvg } from "./save";

/** Saves a picture; `name` is the file's, without its ending. */
export function SaveButtons({ picture, name }: { picture: RefObject<SVGSVGElement | null>; name: string }) {
  const say = useSay();
  return (
    <span class="save-buttons">
      <button type="button" onClick={() => picture.current && saveSvg(picture.current, name)}>
        {say(kDrawingWords.saveSvg)}
      </button>
      <button type="button" onClick={() => picture.current && void savePng(picture.current, name)}>
        {say(kDrawingWords.savePng)}
      </button>
    </span>
  );
}
