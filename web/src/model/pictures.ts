// `picture map`, `picture holes` and `picture sheet`; docs/pictures.md says what the members mean.

import type { Bounds, Group, SizeName } from "./plate";

// ---- map ----

export interface Side {
  readonly size: SizeName;
  readonly from: number;
  readonly to: number;
}

/** A closed part of the picture. */
export interface Area {
  readonly x: readonly [number, number];
  readonly y: readonly [number, number];
}

export interface HiddenArea extends Area {
  /** The row that takes it. */
  readonly by: number;
}

export interface Region {
  readonly row: number;
  readonly line: number;
  readonly layer: string;
  readonly matches: readonly Area[];
  readonly wins: readonly Area[];
  readonly hidden: readonly HiddenArea[];
  /** The rows of `hidden` that take something worth telling. */
  readonly hiddenBy: readonly number[];
  /** Rows above that are seen to win beside it. */
  readonly neighbours: readonly number[];
}

/** Whether the plate's faces have a profile colour and a wire-cutting colour. */
export interface Answers {
  readonly profile: boolean;
  readonly wireCutting: boolean;
}

export interface ColorClass {
  /** Empty: every other colour. */
  readonly colors: readonly number[];
  readonly example: number;
}

export interface SizeStory {
  readonly hull: Bounds | null;
  readonly shown: readonly [number, number];
  readonly bounds: readonly number[];
  readonly slider: { readonly from: number; readonly to: number; readonly step: number };
}

export interface RuleMapPicture {
  readonly x: Side;
  readonly y: Side;
  readonly plate: Answers & { readonly bodyColor: number };
  readonly fixed: Readonly<Partial<Record<SizeName, number>>>;
  readonly possible: boolean;
  readonly group: Group;
  readonly choices: { readonly colors: readonly ColorClass[]; readonly answers: readonly Answers[] };
  readonly sizes: Readonly<Record<SizeName, SizeStory>>;
  readonly hull: Readonly<Record<SizeName, Bounds>> | null;
  readonly regions: readonly Region[];
  readonly gaps: readonly Area[];
  readonly complete: boolean;
}

// ---- holes ----

export type SegmentGroup = "top" | "through" | "bottom";

export interface HoleSegment {
  readonly group: SegmentGroup;
  readonly shape: string;
  readonly diameter: number;
  readonly from: number | null;
  readonly to: number | null;
  readonly height: number | null;
  readonly rHeight: number | null;
  readonly color: number;
}

export interface AcceptingType {
  readonly name: string;
  readonly score: number;
  readonly best: boolean;
  readonly content: string;
}

export interface HoleSection {
  readonly name: string;
  readonly structure: string;
  readonly through: boolean | null;
  readonly length: number | null;
  readonly maxDiameter: number;
  readonly origin: readonly number[];
  readonly segments: readonly HoleSegment[];
  readonly tied: boolean;
  readonly types: readonly AcceptingType[];
}

export interface HolesPicture {
  readonly holes: readonly HoleSection[];
}

// ---- sheet ----

export interface Words {
  readonly zh: string;
  readonly en: string;
}

export interface SheetKey {
  readonly role: string;
  readonly column: string;
  readonly file: string | null;
  readonly cell: string | null;
  readonly value: unknown;
  readonly source: string;
}

interface Look {
  readonly color: number | null;
  readonly layer: number | null;
}

export type Shape =
  | {
      readonly kind: "rectangle";
      readonly x: number;
      readonly y: number;
      readonly width: number;
      readonly height: number;
    }
  | {
      readonly kind: "line";
      readonly x: number;
      readonly y: number;
      readonly x2: number;
      readonly y2: number;
    }
  | { readonly kind: "circle"; readonly x: number; readonly y: number; readonly diameter: number }
  | { readonly kind: "point"; readonly x: number; readonly y: number; readonly anchor?: string | null }
  | {
      readonly kind: "text";
      readonly x: number;
      readonly y: number;
      readonly anchor?: string | null;
      readonly text: string | null;
      readonly attribute: string | null;
      readonly textHeight: number | null;
      readonly font: string | null;
    };

export type SheetPart = Shape &
  Look & {
    readonly label: Words;
    readonly assumes: readonly string[];
    readonly keys: readonly SheetKey[];
  };

export type Specimen = Look &
  (
    | { readonly kind: "circle"; readonly diameter: number }
    | {
        readonly kind: "text";
        readonly text: string | null;
        readonly attribute: string | null;
        readonly textHeight: number | null;
        readonly font: string | null;
      }
    | { readonly kind: "length"; readonly length: number }
    | { readonly kind: "rectangle"; readonly width: number; readonly height: number }
    | { readonly kind: "line" }
  );

export interface UnknownPlace {
  readonly what: Words;
  readonly why: Words;
  readonly specimen: Specimen | null;
  readonly keys: readonly SheetKey[];
}

export interface DrawnSheet {
  readonly name: string;
  readonly title: Words;
  readonly width: number;
  readonly height: number;
  readonly parts: readonly SheetPart[];
  readonly unknown: readonly UnknownPlace[];
}

export interface SheetPicture {
  readonly paper: { readonly width: number; readonly height: number; readonly given: boolean };
  readonly size: "large" | "small";
  readonly assumed: readonly { readonly id: string; readonly text: Words }[];
  readonly sheets: readonly DrawnSheet[];
}
