// What the map shows: its axes, and the plates in it.

import { useId, useState } from "preact/hooks";
import { useSay } from "../../app/state";
import { AxisChoice } from "../../drawing/axis_choice";
import { typed } from "../../drawing/numbers";
import type { Logs } from "../../drawing/plane";
import type { ColorClass, RuleMapPicture } from "../../model/pictures";
import { kSizes, type SizeName } from "../../model/plate";
import { kMapWords } from "../../words/map";
import { kSizeWords } from "../../words/plate";
import type { MapQuestion } from "./question";
import { otherSizes, withAxis, withFixed } from "./question";
import { sizeLabel } from "./plane";

interface ControlsProps {
  readonly question: MapQuestion;
  readonly picture: RuleMapPicture | undefined;
  readonly logs: Logs;
  ask(question: MapQuestion): void;
  setLogs(logs: Logs): void;
}

function Axis({ axis, question, picture, logs, ask, setLogs }: ControlsProps & { axis: "x" | "y" }) {
  return (
    <AxisChoice
      axis={axis}
      size={question[axis]}
      isLog={logs[axis]}
      choose={(size) => ask(withAxis(question, axis, size, picture))}
      setLog={(isLog) => setLogs({ ...logs, [axis]: isLog })}
    />
  );
}

/** What is being typed stays while an answer arrives; it counts when the field is left. */
function NumberInput({ id, value, set }: { id: string; value: number; set(text: string): void }) {
  const [draft, setDraft] = useState<string | undefined>();
  return (
    <input
      type="number"
      id={id}
      min="0"
      step="any"
      value={draft ?? typed(value)}
      onInput={(event) => setDraft(event.currentTarget.value)}
      onChange={(event) => {
        set(event.currentTarget.value);
        setDraft(undefined);
      }}
    />
  );
}

/** A slider with the rows' bounds as marks, and the exact number beside. */
function Fixed({ size, question, picture, ask }: ControlsProps & { size: SizeName }) {
  const say = useSay();
  const id = useId();
  const story = picture?.sizes[size];
  const value = question.fixed[size] ?? picture?.fixed[size];
  if (story === undefined || value === undefined) return null;
  const { from, to, step } = story.slider;
  const set = (text: string) => {
    const number = Number(text);
    const isPossible = from > 0 ? number > 0 : number >= 0;
    if (text !== "" && Number.isFinite(number) && isPossible) ask(withFixed(question, size, number));
  };
  return (
    <div class="map-fixed">
      <label for={id}>{sizeLabel(size, say)}</label>
      <NumberInput id={id} value={value} set={set} />
      <input
        type="range"
        aria-label={say(kSizeWords[size])}
        min={from}
        max={to}
        step={step}
        list={`${id}-bounds`}
        value={value}
        onInput={(event) => set(event.currentTarget.value)}
      />
      <datalist id={`${id}-bounds`}>
        {story.bounds.map((bound) => (
          <option key={bound} value={bound} />
        ))}
      </datalist>
    </div>
  );
}

function Body({ question, picture, ask }: ControlsProps) {
  const say = useSay();
  const id = useId();
  if (picture === undefined) return null;
  const { bodyColor } = picture.plate;
  const isHere = ({ colors }: ColorClass) => colors.join("_") === picture.group.colors.join("_");
  return (
    <div class="map-axis">
      <label for={id}>{say(kMapWords.body)}</label>
      <select
        id={id}
        value={picture.choices.colors.find(isHere)?.example ?? bodyColor}
        onChange={(event) => ask({ ...question, bodyColor: Number(event.currentTarget.value) })}
      >
        {picture.choices.colors.map(({ colors, example }) => (
          <option key={example} value={example}>
            {colors.length === 0 ? say(kMapWords.otherColors, example) : colors.join("_")}
          </option>
        ))}
      </select>
    </div>
  );
}

function Answer({ name, question, ask }: ControlsProps & { name: "profile" | "wireCutting" }) {
  const say = useSay();
  return (
    <label class="tick">
      <input
        type="checkbox"
        checked={question[name]}
        onChange={(event) => ask({ ...question, [name]: event.currentTarget.checked })}
      />
      {say(kMapWords[name])}
    </label>
  );
}

export function Controls(props: ControlsProps) {
  return (
    <form class="map-controls" onSubmit={(event) => event.preventDefault()}>
      <Axis axis="x" {...props} />
      <Axis axis="y" {...props} />
      {otherSizes(props.question).map((size) => (
        <Fixed key={size} size={size} {...props} />
      ))}
      <Body {...props} />
      <div class="map-answers">
        <Answer name="profile" {...props} />
        <Answer name="wireCutting" {...props} />
      </div>
    </form>
  );
}
