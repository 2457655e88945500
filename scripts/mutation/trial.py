"""Makes the changes one at a time, runs the tests that reach the changed line, and reports who survived. What was found is kept, so
that a trial that was stopped goes on where it was."""

import argparse
import collections
import concurrent.futures
import hashlib
import itertools
import json
import os
import pathlib
import queue
import random
import subprocess
import sys

from mutants import mutants_of
from program import TESTS, Commands, Workshop
from reach import Reach, load_or_record

ROOT = pathlib.Path(__file__).resolve().parents[2]
WORK = ROOT / "build" / "mutate"
DIED, SURVIVED, NO_MUTANT = "died", "survived", "does not compile"
FIRST_SECONDS = 2  # The fastest suites that take so long together are tried first, then those that take twice as long, and so on.


def arguments():
    parser = argparse.ArgumentParser(prog="scripts/mutate", description="Breaks the code on purpose and looks whether a test notices.")
    parser.add_argument("places", nargs="*", default=["src"], help="files or folders; src when none is named")
    parser.add_argument("--count", type=int, default=1000, help="so many changes, chosen at random (1000)")
    parser.add_argument("--all", action="store_true", help="every change")
    parser.add_argument("--seed", type=int, default=1, help="another choice of changes")
    parser.add_argument("--jobs", type=int, default=2, help="so many at once (2)")
    return parser.parse_args()


def build(preset):
    """The build folder in which the test program now stands."""
    for command in (["cmake", "--preset", preset], ["cmake", "--build", "--preset", preset, "--target", "plateconfig_tests"]):
        result = subprocess.run(command, cwd=ROOT, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)
        if result.returncode != 0:
            sys.exit(f"{result.stdout}\nscripts/mutate: this failed: {' '.join(command)}")
    return ROOT / "build" / preset


def listed_files(*places):
    output = subprocess.run(["git", "ls-files", "-co", "--exclude-standard", *places], check=True, capture_output=True, text=True,
                            cwd=ROOT).stdout
    return [name for name in output.splitlines() if (ROOT / name).is_file()]


def digest(files):
    return hashlib.sha256(b"\0".join((ROOT / file).read_bytes() for file in files)).hexdigest()[:16]


class Fates:
    """What became of each change, kept in a file. A change that was noticed stays so while its file does; whether another test
    notices a survivor is found out again."""

    def __init__(self, file):
        self._file = file
        self._tests = digest(listed_files("tests"))
        self._sources = {}
        self._known = {}
        for line in file.read_text(encoding="utf-8").splitlines() if file.is_file() else ():
            kept = json.loads(line)
            self._known[kept["mutant"], kept["source"]] = kept

    def _source(self, mutant):
        return self._sources.setdefault(mutant.path, digest([mutant.path]))

    def known(self, mutant):
        kept = self._known.get((str(mutant), self._source(mutant)))
        return kept["fate"] if kept and (kept["fate"] != SURVIVED or kept["tests"] == self._tests) else None

    def keep(self, mutant, fate):
        kept = {"mutant": str(mutant), "source": self._source(mutant), "tests": self._tests, "fate": fate}
        with self._file.open("a", encoding="utf-8") as file:
            print(json.dumps(kept, ensure_ascii=False), file=file)


class Trial:
    def __init__(self, reach, commands, build, jobs):
        self._reach = reach
        self._workshops = queue.SimpleQueue()
        for number in range(jobs):
            self._workshops.put(Workshop(WORK / f"workshop-{number}", ROOT, build, commands))

    def must_pass_unchanged(self):
        """Where a test fails anyway, every change would seem to be noticed."""
        workshop = self._workshops.get()
        workshop.take_unchanged()
        if not self._passes(workshop, self._reach.all_suites()):
            sys.exit("scripts/mutate: the tests fail without a change")
        self._workshops.put(workshop)

    def fate_of(self, mutant):
        suites = self._reach.suites_at(mutant)
        if not suites:
            return SURVIVED
        workshop = self._workshops.get()
        try:
            text = (ROOT / mutant.path).read_text(encoding="utf-8")
            if not workshop.make(mutant.path, mutant.applied_to(text), self._reach.objects_at(mutant)):
                return NO_MUTANT
            return SURVIVED if all(self._passes(workshop, some) for some in self._portions(suites)) else DIED
        finally:
            self._workshops.put(workshop)

    def _portions(self, suites):
        """The suites, the fastest first, in portions that take longer and longer: most changes are noticed by the first."""
        portion, seconds = [], FIRST_SECONDS
        for suite in suites:
            if portion and self._reach.seconds_of([*portion, suite]) > seconds:
                yield portion
                portion, seconds = [], 2 * seconds
            portion.append(suite)
        yield portion

    def _passes(self, workshop, suites):
        return workshop.passes(suites, 10 + 2 * self._reach.seconds_of(suites))


def chosen(options, reach):
    files = [name for name in listed_files(*options.places) if name.endswith((".cpp", ".h", ".hxx"))]
    found = [mutant for file in files for mutant in mutants_of(file, (ROOT / file).read_text(encoding="utf-8"))
             if reach.has_code_at(mutant)]
    random.Random(options.seed).shuffle(found)
    return found


def tried(mutants, wanted, jobs, trial, kept):
    """(mutant, fate) until `wanted` changes compiled."""

    def judge(mutant):
        fate = kept.known(mutant)
        if fate is None:
            fate = trial.fate_of(mutant)
            kept.keep(mutant, fate)
        return mutant, fate

    made = 0
    remaining = iter(mutants)
    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        while made < wanted:
            batch = list(itertools.islice(remaining, min(wanted - made, 8 * jobs)))
            if not batch:
                return
            for mutant, fate in pool.map(judge, batch):
                made += fate != NO_MUTANT
                yield mutant, fate


def summary(count):
    total = count[DIED] + count[SURVIVED]
    share = 100.0 * count[DIED] / total if total else 0.0
    return f"{count[DIED]} of {total} changes were noticed ({share:.1f} %), {count[SURVIVED]} were not"


def main():
    options = arguments()
    os.nice(19)
    WORK.mkdir(parents=True, exist_ok=True)
    plain, counting = build("debug"), build("coverage")
    reach = Reach(load_or_record(WORK / "reach.json", counting / TESTS, counting, ROOT))
    mutants = chosen(options, reach)
    if not mutants:
        sys.exit("scripts/mutate: there is nothing to change in " + " ".join(options.places))
    trial = Trial(reach, Commands(plain), plain, options.jobs)
    trial.must_pass_unchanged()
    count = collections.Counter()
    with (WORK / "survivors.txt").open("w", encoding="utf-8") as report:
        wanted = len(mutants) if options.all else options.count
        for mutant, fate in tried(mutants, wanted, options.jobs, trial, Fates(WORK / "fates.jsonl")):
            count[fate] += 1
            if fate == SURVIVED:
                print(f"survived: {mutant}", flush=True)
                print(mutant, file=report, flush=True)
    print(f"{count[NO_MUTANT]} changes did not compile")
    print(summary(count))


if __name__ == "__main__":
    main()
