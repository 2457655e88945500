/** Bytes as base64; in pieces, because a call takes only so many arguments. */
export function toBase64(bytes: Uint8Array): string {
  const pieces: string[] = [];
  for (let at = 0; at < bytes.length; at += 0x8000) {
    pieces.push(String.fromCharCode(...bytes.subarray(at, at + 0x8000)));
  }
  return btoa(pieces.join(""));
}

/** The bytes that a base64 text stands for; blanks and line ends within it do not count. */
export function fromBase64(text: string): Uint8Array<ArrayBuffer> {
  const binary = atob(text);
  const bytes = new Uint8Array(binary.length);
  for (let i = 0; i < binary.length; i++) bytes[i] = binary.charCodeAt(i);
  return bytes;
}
