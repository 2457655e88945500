export function Holes() { return null; }
