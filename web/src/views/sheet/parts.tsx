// What is on the sheet, what could not be placed, and what was taken for granted.

import { useApp, useSay } from "../../app/state";
import { shown } from "../../drawing/numbers";
import type { DrawnSheet, SheetKey, SheetPart, SheetPicture, UnknownPlace } from "../../model/pictures";
import { kSheetWords } from "../../words/sheet";
import type { Say } from "../../words/say";
import { SpecimenDrawing, specimenText } from "./specimen";

export function isOpenable(key: SheetKey): key is SheetKey & { file: string; cell: string } {
  return key.file !== null && key.cell !== null;
}

function useOpenKey(side: "config" | "other") {
  const { select } = useApp();
  return (key: SheetKey) => {
    if (isOpenable(key)) select({ file: key.file, cell: key.cell, side });
  };
}

/** The cell of the first setting that places the part. */
export function useOpenPart(side: "config" | "other") {
  const open = useOpenKey(side);
  return (part: { readonly keys: readonly SheetKey[] }) => {
    const key = part.keys.find(isOpenable);
    if (key !== undefined) open(key);
  };
}

function valueText(value: unknown): string {
  if (typeof value === "number") return shown(value);
  if (Array.isArray(value)) return value.map(valueText).join("_");
  return value === null || value === undefined ? "" : String(value);
}

function Keys({ keys, side }: { keys: readonly SheetKey[]; side: "config" | "other" }) {
  const say = useSay();
  const open = useOpenKey(side);
  return (
    <ul class="sheet-keys">
      {keys.map((key, index) => (
        <li key={index}>
          {isOpenable(key) ? (
            <button type="button" class="link" title={say(kSheetWords.openCell)} onClick={() => open(key)}>
              {key.column}
            </button>
          ) : (
            <span>{key.column}</span>
          )}{" "}
          <span class="sheet-value">{valueText(key.value)}</span>
          {key.source !== "table" && <span class="quiet"> {say(kSheetWords.isDefault)}</span>}
        </li>
      ))}
    </ul>
  );
}

/** What is known of a part beside its place, and the numbers of what was taken for granted for it. */
function facts(part: SheetPart, notes: readonly string[], say: Say): string {
  const assumed = part.assumes.map((id) => notes.indexOf(id) + 1);
  return [
    say(kSheetWords.at, shown(part.x, 1), shown(part.y, 1)),
    ...(part.kind === "text" && part.textHeight !== null
      ? [say(kSheetWords.textHeight, shown(part.textHeight))]
      : []),
    ...(part.kind === "circle" ? [`⌀${shown(part.diameter)}`] : []),
    ...(part.color === null ? [] : [say(kSheetWords.color, part.color)]),
    ...(part.layer === null ? [] : [say(kSheetWords.layer, part.layer)]),
    ...(assumed.length === 0 ? [] : [say(kSheetWords.assumes, assumed)]),
  ].join(" · ");
}

/** What a text says, or the attribute that fills it. */
function content(part: SheetPart): string {
  if (part.kind !== "text") return "";
  if (part.text !== null) return `“${part.text}”`;
  return part.attribute === null ? "" : `<${part.attribute}>`;
}

interface PartsProps {
  readonly parts: readonly SheetPart[];
  /** Ids of what was taken for granted, in the order of the notes. */
  readonly notes: readonly string[];
  readonly marked: SheetPart | undefined;
  readonly differing: ReadonlySet<SheetPart>;
  readonly side: "config" | "other";
  mark(part: SheetPart | undefined): void;
}

function Parts({ parts, notes, marked, differing, side, mark }: PartsProps) {
  const say = useSay();
  const { language } = useApp();
  const open = useOpenPart(side);
  return (
    <ul class="sheet-list" onPointerLeave={() => mark(undefined)}>
      {parts.map((part, index) => (
        <li key={index} data-marked={part === marked} onPointerEnter={() => mark(part)}>
          <button
            type="button"
            class="sheet-item"
            title={say(kSheetWords.openCell)}
            onFocus={() => mark(part)}
            onBlur={() => mark(undefined)}
            onClick={() => open(part)}
          >
            {part.label[language]} <span class="sheet-content">{content(part)}</span>
            {differing.has(part) && <span class="sheet-differs"> ≠ {say(kSheetWords.differs)}</span>}
          </button>
          <span class="quiet sheet-facts">{facts(part, notes, say)}</span>
          {part === marked && <Keys keys={part.keys} side={side} />}
        </li>
      ))}
    </ul>
  );
}

interface UnknownProps {
  readonly place: UnknownPlace;
  readonly differs: boolean;
  readonly colors: ReadonlyMap<number | null, string>;
  readonly side: "config" | "other";
}

function Unknown({ place, differs, colors, side }: UnknownProps) {
  const say = useSay();
  const { language } = useApp();
  const label = place.what[language];
  return (
    <li>
      <strong>{label}</strong> {specimenText(place, say)}
      {differs && <span class="sheet-differs"> ≠ {say(kSheetWords.differs)}</span>}
      {place.specimen && <SpecimenDrawing specimen={place.specimen} label={label} colors={colors} />}
      <span class="sheet-why">{place.why[language]}</span>
      <Keys keys={place.keys} side={side} />
    </li>
  );
}

interface UnknownsProps extends Omit<UnknownProps, "place" | "differs"> {
  readonly places: readonly UnknownPlace[];
  readonly differing: ReadonlySet<UnknownPlace>;
}

function Unknowns({ places, differing, ...props }: UnknownsProps) {
  const say = useSay();
  if (places.length === 0) return null;
  return (
    <details open>
      <summary>
        {say(kSheetWords.unknown)} <span class="quiet">{places.length}</span>
      </summary>
      <p class="quiet">{say(kSheetWords.atSize)}</p>
      <ul class="sheet-unknown">
        {places.map((place, index) => (
          <Unknown key={index} place={place} differs={differing.has(place)} {...props} />
        ))}
      </ul>
    </details>
  );
}

function Assumed({ picture }: { picture: SheetPicture }) {
  const say = useSay();
  const { language } = useApp();
  if (picture.assumed.length === 0) return null;
  return (
    <section>
      <h2>{say(kSheetWords.assumed)}</h2>
      <ol class="sheet-assumed">
        {picture.assumed.map(({ id, text }) => (
          <li key={id}>{text[language]}</li>
        ))}
      </ol>
    </section>
  );
}

interface ListsProps
  extends Omit<PartsProps, "parts" | "notes">, Omit<UnknownsProps, "places" | "differing"> {
  readonly picture: SheetPicture;
  readonly sheet: DrawnSheet;
  /** The folder's, where there are two. */
  readonly name: string | undefined;
  readonly differingPlaces: ReadonlySet<UnknownPlace>;
}

/** All that is said of one folder's sheet. */
export function Lists({ picture, sheet, name, differingPlaces, colors, ...props }: ListsProps) {
  const say = useSay();
  const title = name === undefined ? say(kSheetWords.parts) : say(kSheetWords.partsOf, name);
  return (
    <>
      <section aria-label={title}>
        <h2>
          {title} <span class="quiet">{sheet.parts.length}</span>
        </h2>
        <p class="quiet no-print">{say(kSheetWords.partsHint)}</p>
        <Parts parts={sheet.parts} notes={picture.assumed.map(({ id }) => id)} {...props} />
      </section>
      <Unknowns places={sheet.unknown} differing={differingPlaces} colors={colors} side={props.side} />
      <Assumed picture={picture} />
    </>
  );
}
