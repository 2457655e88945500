// The settings that have another value.

import { Empty } from "../../app/parts/failure";
import { roleName } from "../../app/parts/role_name";
import { useSay } from "../../app/state";
import type { Role } from "../../model/check";
import type { ChangedSetting } from "../../model/diff";
import type { SettingValue } from "../../model/show";
import { kComparisonWords } from "../../words/comparison";
import type { Say } from "../../words/say";
import { DifferenceTable } from "./marked_text";

/** A value on one line: the values of a list stand behind each other. */
function shown(value: SettingValue, say: Say): string {
  if (Array.isArray(value)) return value.map((each) => shown(each, say)).join(" · ");
  if (typeof value === "boolean") return say(value ? kComparisonWords.yes : kComparisonWords.no);
  return String(value);
}

function byRole(
  settings: readonly ChangedSetting[],
): readonly (readonly [string, readonly ChangedSetting[]])[] {
  const roles = [...new Set(settings.map(({ role }) => role))];
  return roles.map((role) => [role, settings.filter((setting) => setting.role === role)]);
}

interface SettingsProps {
  readonly settings: readonly ChangedSetting[];
  readonly tables: readonly Role[];
}

export function ChangedSettings({ settings, tables }: SettingsProps) {
  const say = useSay();
  if (settings.length === 0) return <Empty>{say(kComparisonWords.noneOf)}</Empty>;
  const nameOf = (role: string) => {
    const known = tables.find((table) => table.role === role);
    return known === undefined ? role : roleName(known, say);
  };
  return (
    <div class="scroll" tabIndex={0} role="group" aria-label={say(kComparisonWords.parts.settings)}>
      {byRole(settings).map(([role, ofRole]) => (
        <DifferenceTable
          key={role}
          of={say(kComparisonWords.setting)}
          rows={ofRole.map(({ column, old, new: now }) => ({
            name: column,
            old: shown(old, say),
            now: shown(now, say),
          }))}
        >
          <caption>
            {nameOf(role)} <span class="count">{ofRole.length}</span>
          </caption>
        </DifferenceTable>
      ))}
    </div>
  );
}
