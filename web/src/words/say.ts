// How the page speaks: a text is both languages at once, so that a missing one does not compile.

export type Language = "zh" | "en";

/** A fixed text. */
export type Text = Readonly<Record<Language, string>>;

/** A text with places in it. */
export type TextOf<Places extends readonly unknown[]> = Readonly<
  Record<Language, (...places: Places) => string>
>;

/** Says a text in one language: `say(words.open)`, `say(words.rows, 12)`. */
export interface Say {
  (text: Text): string;
  <Places extends readonly unknown[]>(text: TextOf<Places>, ...places: Places): string;
}

export function sayIn(language: Language): Say {
  return <Places extends readonly unknown[]>(text: Text | TextOf<Places>, ...places: Places): string => {
    const spoken = text[language];
    return typeof spoken === "string" ? spoken : spoken(...places);
  };
}

/** The browser's language, when nobody has chosen one. */
export function browserLanguage(): Language {
  return navigator.language.toLowerCase().startsWith("zh") ? "zh" : "en";
}
