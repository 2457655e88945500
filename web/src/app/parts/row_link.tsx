// A row of the rule table, to be opened there.

import { kRuleTable } from "../../model/check";
import { kPlateWords } from "../../words/plate";
import { useApp, useSay } from "../state";
import "./common.css";

/** The rule table as findings name it; undefined while `check` runs, or when there is none. */
export function useRuleTable(): string | undefined {
  const { check } = useApp();
  return check.value?.checked.tables.find(({ role }) => role === kRuleTable)?.file;
}

/** Opens a row of the rule table in its grid. */
export function useOpenRow(): (row: number) => void {
  const { select } = useApp();
  const file = useRuleTable();
  return (row) => {
    if (file !== undefined) select({ file, cell: String(row) });
  };
}

export function RowLink({ row, children }: { row: number; children?: string }) {
  const say = useSay();
  const open = useOpenRow();
  return (
    <button type="button" class="link" title={say(kPlateWords.openRow)} onClick={() => open(row)}>
      {children ?? say(kPlateWords.row, row)}
    </button>
  );
}
