// Two configurations, compared by what they mean.

import { useState } from "preact/hooks";
import { Empty, Failure, OpenFirst } from "../../app/parts/failure";
import { UnderWay } from "../../app/parts/under_way";
import { useKept } from "../../app/parts/kept";
import { Needing } from "../../app/parts/needing";
import { Tabs, tabId } from "../../app/parts/tabs";
import { useApp, useSay } from "../../app/state";
import { kRuleTable } from "../../model/check";
import type { ChangedRow, Difference } from "../../model/diff";
import { type ComparisonPart, kComparisonWords } from "../../words/comparison";
import { ChangedPlates } from "./plates";
import { ChangedRegions } from "./regions";
import { ChangedRows } from "./rows";
import { ChangedSettings } from "./settings";
import { SideBySide } from "./side_by_side";
import { type Pair, useDifference, useTablePairs } from "./use_difference";
import "./comparison.css";

const kParts: readonly ComparisonPart[] = ["plates", "rows", "settings", "regions", "tables"];

function useParts(difference: Difference) {
  const say = useSay();
  return kParts.map((name) => ({
    name,
    label: say(kComparisonWords.parts[name]),
    count: name === "tables" ? undefined : difference[name].length,
  }));
}

interface ComparedProps {
  readonly pair: Pair;
  readonly difference: Difference;
  listAll(): void;
}

function Compared({ pair, difference, listAll }: ComparedProps) {
  const say = useSay();
  const [part, setPart] = useKept<ComparisonPart>("compared part", "plates");
  const [role, setRole] = useKept("compared table", kRuleTable);
  const [row, setRow] = useState<ChangedRow | undefined>();
  const parts = useParts(difference);
  const tables = useTablePairs(pair);
  const rules = tables.find((table) => table.role === kRuleTable);
  const showInTables = (changed: ChangedRow) => {
    setRow(changed);
    setRole(kRuleTable);
    setPart("tables");
  };
  const at = {
    ...(row?.oldRow && { old: { row: row.oldRow, column: 1 } }),
    ...(row?.newRow && { now: { row: row.newRow, column: 1 } }),
  };
  return (
    <>
      <Tabs<ComparisonPart>
        label={say(kComparisonWords.part)}
        kind="inner"
        tabs={parts}
        chosen={part}
        panel="part"
        choose={setPart}
      />
      <div id="part" class="panel" role="tabpanel" aria-labelledby={tabId("part", part)}>
        {part === "plates" && <ChangedPlates plates={difference.plates} />}
        {part === "rows" && (
          <ChangedRows rows={difference.rows} pair={pair} table={rules} showInTables={showInTables} />
        )}
        {part === "settings" && <ChangedSettings settings={difference.settings} tables={tables} />}
        {part === "regions" && (
          <ChangedRegions
            pair={pair}
            regions={difference.regions}
            incomplete={difference.incomplete}
            listAll={listAll}
          />
        )}
        {part === "tables" && (
          <SideBySide
            pair={pair}
            tables={tables}
            difference={difference}
            role={role}
            chooseRole={setRole}
            at={at}
          />
        )}
      </div>
    </>
  );
}

function PairBar({ pair, turn }: { pair: Pair; turn: () => void }) {
  const say = useSay();
  return (
    <div class="bar pair-bar">
      <span class="side-badge is-old">{say(kComparisonWords.old)}</span> <b>{pair.old.name}</b>
      <span aria-hidden="true">→</span>
      <span class="side-badge is-now">{say(kComparisonWords.new)}</span> <b>{pair.now.name}</b>
      <button type="button" onClick={turn}>
        {say(kComparisonWords.turn)}
      </button>
    </div>
  );
}

function isEmpty({ settings, rows, plates, regions }: Difference): boolean {
  return settings.length + rows.length + plates.length + regions.length === 0;
}

function ComparedPair({ pair, turn }: { pair: Pair; turn: () => void }) {
  const say = useSay();
  const [listsAll, setListsAll] = useState(false);
  const answer = useDifference(pair, listsAll);
  return (
    <>
      <PairBar pair={pair} turn={turn} />
      {answer.state === "failed" && <Failure error={answer.error} title={kComparisonWords.notCompared} />}
      {answer.state === "running" && (
        <div class="pad">
          <UnderWay text={say(kComparisonWords.comparing)} stop={answer.stop} />
        </div>
      )}
      {answer.value !== undefined && isEmpty(answer.value) && <p class="pad">{say(kComparisonWords.same)}</p>}
      {answer.value !== undefined && (
        <Compared pair={pair} difference={answer.value} listAll={() => setListsAll(true)} />
      )}
    </>
  );
}

export function Comparison() {
  const { workspace, other, openSecond } = useApp();
  const say = useSay();
  const [isTurned, setTurned] = useKept("compared turned", false);
  if (workspace === undefined) return <OpenFirst />;
  if (other === undefined) {
    return (
      <Empty>
        <div class="open-second">
          <p>{say(kComparisonWords.openSecond)}</p>
          {openSecond}
        </div>
      </Empty>
    );
  }
  const pair = isTurned ? { old: other, now: workspace } : { old: workspace, now: other };
  return (
    <Needing tables={[]}>
      <ComparedPair pair={pair} turn={() => setTurned(!isTurned)} />
    </Needing>
  );
}
