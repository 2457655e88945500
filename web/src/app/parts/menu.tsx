// A button that opens a small panel below it; Escape and a click elsewhere close it.

import type { ComponentChildren } from "preact";
import { useEffect, useRef, useState } from "preact/hooks";

interface MenuProps {
  readonly label: string;
  readonly children: ComponentChildren;
}

export function Menu({ label, children }: MenuProps) {
  const [isOpen, setOpen] = useState(false);
  const root = useRef<HTMLDivElement>(null);
  const button = useRef<HTMLButtonElement>(null);
  useEffect(() => {
    if (!isOpen) return undefined;
    const closeOutside = (event: Event) => {
      if (!root.current?.contains(event.target as Node)) setOpen(false);
    };
    document.addEventListener("pointerdown", closeOutside);
    return () => document.removeEventListener("pointerdown", closeOutside);
  }, [isOpen]);
  return (
    <div
      class="menu"
      ref={root}
      onKeyDown={(event) => {
        if (event.key !== "Escape" || !isOpen) return;
        setOpen(false);
        button.current?.focus();
      }}
    >
      <button type="button" ref={button} aria-expanded={isOpen} onClick={() => setOpen(!isOpen)}>
        {label} <span aria-hidden="true">▾</span>
      </button>
      {isOpen && <div class="menu-panel">{children}</div>}
    </div>
  );
}
