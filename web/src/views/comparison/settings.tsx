// The settings that have another value.

import { Empty } from "../../app/parts/failure";
import { roleName } from "../../app/parts/role_name";
import { useSay } from "../../app/state";
import type { Role } from "../../model/check";
import type { ChangedSetting } from "../../model/diff";
import type { SettingValue } from "../../model/show";
import { kComparisonWords } from "../../words/comparison";
import { kGridWords } from "../../words/grid";
import type { Say } from "../../words/say";
import { useMarked } from "./marked_text";

/** A value on one line: the values of a list stand behind each other. */
function shown(value: SettingValue, say: Say): string {
  if (Array.isArray(value)) return value.map((each) => shown(each, say)).join(" · ");
  if (typeof value === "boolean") return say(value ? kComparisonWords.yes : kComparisonWords.no);
  return String(value);
}

function Row({ setting }: { setting: ChangedSetting }) {
  const say = useSay();
  const [old, now] = [shown(setting.old, say), shown(setting.new, say)];
  const marked = useMarked(old, now);
  const empty = <span class="quiet">{say(kGridWords.emptyText)}</span>;
  return (
    <tr>
      <th scope="row">{setting.column}</th>
      <td>{old === "" ? empty : marked.old}</td>
      <td>{now === "" ? empty : marked.now}</td>
    </tr>
  );
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
        <table key={role} class="plain difference">
          <caption>
            {nameOf(role)} <span class="count">{ofRole.length}</span>
          </caption>
          <thead>
            <tr>
              <th scope="col">{say(kComparisonWords.setting)}</th>
              <th scope="col">{say(kComparisonWords.old)}</th>
              <th scope="col">{say(kComparisonWords.new)}</th>
            </tr>
          </thead>
          <tbody>
            {ofRole.map((setting) => (
              <Row key={setting.column} setting={setting} />
            ))}
          </tbody>
        </table>
      ))}
    </div>
  );
}
