export function Sheet() { return null; }
