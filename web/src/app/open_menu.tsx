// The ways to open something by a click.

import { useRef } from "preact/hooks";
import { kOpenWords } from "../words/open";
import { folderSource, listSource, type Source } from "./open/source";
import type { Opening, Side } from "./open/use_opening";
import { configurationFolders, nameOf } from "./open/workspaces";
import { Menu } from "./parts/menu";
import { useSay } from "./state";

/** None when the user thinks better of it, or when the browser has no such dialog. */
async function pickedFolders(): Promise<readonly Source[]> {
  try {
    const handle = await window.showDirectoryPicker?.({ id: "plateconfig", mode: "read" });
    return handle === undefined ? [] : [folderSource(handle)];
  } catch (error) {
    if (error instanceof DOMException && error.name === "AbortError") return [];
    throw error;
  }
}

interface PickProps {
  readonly opening: Opening;
  readonly side: Side;
  readonly label: string;
  readonly isFolder: boolean;
  readonly isMain?: boolean;
}

/** A button that opens the browser's dialog: its folder dialog, whose handle reads anew, or else an <input>. */
export function PickButton({ opening, side, label, isFolder, isMain = false }: PickProps) {
  const input = useRef<HTMLInputElement>(null);
  const pick = () => {
    if (!isFolder || window.showDirectoryPicker === undefined) return input.current?.click();
    return void pickedFolders().then(
      (sources) => sources.length > 0 && opening.open(sources, side),
      opening.tell,
    );
  };
  return (
    <>
      <button type="button" class={isMain ? "main-button" : undefined} onClick={pick}>
        {label}
      </button>
      <input
        ref={input}
        type="file"
        hidden
        multiple
        {...(isFolder ? { webkitdirectory: true } : {})}
        onChange={(event) => {
          const files = [...(event.currentTarget.files ?? [])];
          event.currentTarget.value = "";
          if (files.length > 0)
            opening.open(isFolder ? [listSource(files)] : files.map((file) => listSource([file])), side);
        }}
      />
    </>
  );
}

/** Other configuration folders of what is open can be compared without opening anything. */
function OtherFolders({ opening }: { opening: Opening }) {
  const say = useSay();
  const opened = opening.sides.config;
  const others = configurationFolders(opened?.entries ?? []).filter((folder) => folder !== opened?.folder);
  if (others.length === 0) return null;
  const chosen = others.find((folder) => folder === opening.sides.other?.folder) ?? "";
  return (
    <label class="field">
      {say(kOpenWords.comparedWith)}
      <select
        value={chosen}
        onChange={(event) => opening.compareWith(event.currentTarget.value || undefined)}
      >
        <option value="">{say(kOpenWords.none)}</option>
        {others.map((folder) => (
          <option key={folder} value={folder}>
            {nameOf(folder) || opened?.name}
          </option>
        ))}
      </select>
    </label>
  );
}

/** What makes a comparison possible. */
export function OpenSecond({ opening }: { opening: Opening }) {
  const say = useSay();
  return (
    <>
      <PickButton opening={opening} side="other" label={say(kOpenWords.compareFolder)} isFolder isMain />
      <OtherFolders opening={opening} />
    </>
  );
}

export function OpenMenu({ opening }: { opening: Opening }) {
  const say = useSay();
  return (
    <Menu label={say(kOpenWords.open)}>
      <PickButton opening={opening} side="config" label={say(kOpenWords.openAnother)} isFolder />
      <PickButton opening={opening} side="config" label={say(kOpenWords.openFiles)} isFolder={false} />
      <PickButton opening={opening} side="other" label={say(kOpenWords.compareFolder)} isFolder />
      <OtherFolders opening={opening} />
    </Menu>
  );
}
