// The form: a field for each thing that a plate has, and for each feature that the rules ask for.

import { useSay } from "../../app/state";
import type { Setting } from "../../model/show";
import { kPlateWords, kSizeWords } from "../../words/plate";
import type { Text } from "../../words/say";
import type { AskedFeatures, FieldName, PlateForm } from "./form";
import { kColumns, toggled, pieces, withFeature, withField, withOrdered } from "./form";
import type { Remarks } from "./remarks";

interface FieldsProps {
  readonly form: PlateForm;
  readonly asked: AskedFeatures;
  /** What the rule table's general parameters say of colours. */
  readonly colors: readonly Setting[];
  readonly remarks: Remarks;
  change(form: PlateForm): void;
}

interface InputProps {
  readonly id: string;
  readonly label: string;
  readonly unit?: string;
  readonly value: string;
  readonly remark: string | undefined;
  readonly isWide?: boolean;
  change(text: string): void;
}

function Input({ id, label, unit, value, remark, isWide = false, change }: InputProps) {
  const remarkId = `${id}-remark`;
  return (
    <div
      class={`plate-field${isWide ? " plate-field-wide" : ""}${remark === undefined ? "" : " plate-field-odd"}`}
    >
      <label for={id}>
        {label}
        {unit !== undefined && <span class="quiet"> {unit}</span>}
      </label>
      <input
        id={id}
        value={value}
        spellcheck={false}
        autocomplete="off"
        aria-invalid={remark !== undefined}
        aria-describedby={remark === undefined ? undefined : remarkId}
        onInput={(event) => change(event.currentTarget.value)}
      />
      {remark !== undefined && (
        <p class="remark" id={remarkId}>
          {remark}
        </p>
      )}
    </div>
  );
}

const kFieldWords: Readonly<Record<FieldName, Text>> = {
  ...kSizeWords,
  name: kPlateWords.name,
  layer: kPlateWords.layer,
  color: kPlateWords.bodyColor,
  faceColors: kPlateWords.faceColors,
};

function Field({
  field,
  unit,
  isWide,
  ...props
}: FieldsProps & { field: FieldName; unit?: string; isWide?: boolean }) {
  const say = useSay();
  const { form, remarks, change } = props;
  return (
    <Input
      id={`plate-${field}`}
      label={say(kFieldWords[field])}
      value={form.fields[field]}
      remark={remarks.at.get(field)}
      {...(unit === undefined ? {} : { unit })}
      {...(isWide === undefined ? {} : { isWide })}
      change={(text) => change(withField(form, field, text))}
    />
  );
}

/** A parameter of the body says so in its name. */
function isOfBody(setting: Setting): boolean {
  return setting.column.includes(kColumns.color);
}

function colorsOf(setting: Setting): readonly string[] {
  return Array.isArray(setting.value) ? setting.value.map(String) : [];
}

/** The colours of one general parameter, as buttons that put them into their field. */
function ColorRow({ setting, form, change }: { setting: Setting } & Pick<FieldsProps, "form" | "change">) {
  const field: FieldName = isOfBody(setting) ? "color" : "faceColors";
  const chosen = pieces(form.fields[field]);
  const set = (color: string) =>
    change(withField(form, field, isOfBody(setting) ? color : toggled(form.fields.faceColors, color)));
  return (
    <div class="color-row" role="group" aria-label={setting.column}>
      <span>{setting.column}</span>
      {colorsOf(setting).map((color) => (
        <button
          key={color}
          type="button"
          class="chip"
          aria-pressed={chosen.includes(color)}
          onClick={() => set(color)}
        >
          {color}
        </button>
      ))}
    </div>
  );
}

function Colors(props: FieldsProps) {
  const say = useSay();
  const { colors, form, change } = props;
  return (
    <fieldset>
      <legend>{say(kPlateWords.colors)}</legend>
      <div class="plate-fields">
        <Field field="color" {...props} />
        <Field field="faceColors" {...props} unit={say(kPlateWords.faceColorsHint)} isWide />
      </div>
      {colors.length > 0 && <p class="quiet plate-hint">{say(kPlateWords.meaning)}</p>}
      {colors.map((setting) => (
        <ColorRow key={setting.column} setting={setting} form={form} change={change} />
      ))}
    </fieldset>
  );
}

interface TickProps {
  readonly label: string;
  readonly isTicked: boolean;
  tick(isTicked: boolean): void;
}

function Tick({ label, isTicked, tick }: TickProps) {
  return (
    <label class="tick">
      <input type="checkbox" checked={isTicked} onChange={(event) => tick(event.currentTarget.checked)} />
      {label}
    </label>
  );
}

/** What the rules ask for, and what else the plate has. */
function names(asked: readonly string[], others: readonly string[]): readonly string[] {
  return [...asked, ...others.filter((name) => !asked.includes(name))];
}

function Features(props: FieldsProps) {
  const say = useSay();
  const { form, asked, remarks, change } = props;
  const held = Object.entries(form.features);
  const ticked = names(
    asked.ticked,
    held.filter(([, value]) => typeof value === "boolean").map(([name]) => name),
  );
  const listed = names(
    asked.typed,
    held.filter(([, value]) => typeof value === "string").map(([name]) => name),
  );
  return (
    <>
      {listed.length > 0 && (
        <fieldset>
          <legend>{say(kPlateWords.lists)}</legend>
          <div class="plate-fields">
            {listed.map((name) => (
              <Input
                key={name}
                id={`feature-${name}`}
                label={name}
                value={String(form.features[name] ?? "")}
                remark={remarks.at.get(name)}
                change={(text) => change(withFeature(form, name, text))}
              />
            ))}
          </div>
        </fieldset>
      )}
      {ticked.length > 0 && (
        <fieldset>
          <legend>{say(kPlateWords.features)}</legend>
          <div class="ticks">
            {ticked.map((name) => (
              <Tick
                key={name}
                label={name}
                isTicked={form.features[name] === true}
                tick={(value) => change(withFeature(form, name, value))}
              />
            ))}
          </div>
        </fieldset>
      )}
    </>
  );
}

function Ordered({ form, asked, change }: FieldsProps) {
  const say = useSay();
  const all = names(asked.ordered, form.ordered);
  if (all.length === 0) return null;
  return (
    <fieldset>
      <legend>{say(kPlateWords.ordered)}</legend>
      <div class="ticks ticks-short">
        {all.map((name) => (
          <Tick
            key={name}
            label={name}
            isTicked={form.ordered.includes(name)}
            tick={(value) => change(withOrdered(form, name, value))}
          />
        ))}
      </div>
    </fieldset>
  );
}

export function PlateFields(props: FieldsProps) {
  const say = useSay();
  return (
    <>
      <fieldset>
        <legend>{say(kPlateWords.sizes)}</legend>
        <div class="plate-fields">
          <Field field="length" unit="mm" {...props} />
          <Field field="width" unit="mm" {...props} />
          <Field field="thickness" unit="mm" {...props} />
          <Field field="weight" {...props} />
          <Field field="layer" {...props} />
          <Field field="name" {...props} />
        </div>
      </fieldset>
      <Colors {...props} />
      <Features {...props} />
      <Ordered {...props} />
    </>
  );
}
