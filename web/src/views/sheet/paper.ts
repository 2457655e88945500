// Papers that a drawing is made on (ISO 216), as the program's option takes them: no table says which one it is.

export interface Paper {
  readonly name: string;
  readonly short: number;
  readonly long: number;
}

export const kPapers: readonly Paper[] = [
  { name: "A4", short: 210, long: 297 },
  { name: "A3", short: 297, long: 420 },
  { name: "A2", short: 420, long: 594 },
  { name: "A1", short: 594, long: 841 },
  { name: "A0", short: 841, long: 1189 },
];

export const landscape = ({ short, long }: Paper): string => `${long}x${short}`;
export const portrait = ({ short, long }: Paper): string => `${short}x${long}`;
