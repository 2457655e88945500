"""Makes the changes one at a time, builds, runs the tests that reach the changed line, and reports who survived."""

import argparse
import collections
import concurrent.futures
import pathlib
import queue
import random
import subprocess
import sys

from mutants import mutants_of
from reach import COVERAGE_FLAGS, Reach, load_or_record

ROOT = pathlib.Path(__file__).resolve().parents[2]
WORK = ROOT / "build" / "mutate"
SECONDS_A_RUN = 120
DIED, SURVIVED, NO_MUTANT = "died", "survived", "does not compile"


def arguments():
    parser = argparse.ArgumentParser(prog="scripts/mutate", description="Breaks the code on purpose and looks whether a test notices.")
    parser.add_argument("places", nargs="*", default=["src"], help="files or folders; src when none is named")
    parser.add_argument("--count", type=int, default=1000, help="so many changes, chosen at random (1000)")
    parser.add_argument("--all", action="store_true", help="every change")
    parser.add_argument("--seed", type=int, default=1, help="another choice of changes")
    parser.add_argument("--jobs", type=int, default=2, help="so many at once, each with a build of its own (2)")
    return parser.parse_args()


def run(command, **more):
    return subprocess.run([str(part) for part in command], stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, **more)


def must(command):
    result = run(command)
    if result.returncode != 0:
        sys.exit(f"{result.stdout}\nscripts/mutate: this failed: {' '.join(map(str, command))}")


def listed_files(*places):
    output = subprocess.run(["git", "ls-files", "-co", "--exclude-standard", *places], check=True, capture_output=True, text=True,
                            cwd=ROOT).stdout
    return [name for name in output.splitlines() if (ROOT / name).is_file()]


def write_if_changed(path, data):
    """A file that stays as it is need not be compiled again."""
    if path.is_file() and path.read_bytes() == data:
        return False
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_bytes(data)
    return True


class Tree:
    """A copy of the sources with a build of its own."""

    def __init__(self, name, flags):
        self.sources = WORK / name / "sources"
        self.build = WORK / name / "build"
        self.program = self.build / "tests" / "plateconfig_tests"
        self.changed = any([write_if_changed(self.sources / file, (ROOT / file).read_bytes()) for file in listed_files()])
        must(["cmake", "-S", self.sources, "-B", self.build, "-G", "Ninja", "-DCMAKE_BUILD_TYPE=None", f"-DCMAKE_CXX_FLAGS={flags}",
              "-DPLATECONFIG_WARNINGS_AS_ERRORS=OFF"])

    def make(self):
        return run(["cmake", "--build", self.build, "--target", "plateconfig_tests"]).returncode == 0

    def must_make(self):
        print(f"Building {self.build.relative_to(ROOT)}", flush=True)
        must(["cmake", "--build", self.build, "--target", "plateconfig_tests"])

    def passes(self, suites):
        """True when the suites' tests pass; the first failure ends the run, and one that does not end has failed."""
        suite_filter = ":".join(f"{suite}.*" for suite in suites)
        try:
            return run([self.program, f"--gtest_filter={suite_filter}", "--gtest_fail_fast", "--gtest_brief=1"],
                       timeout=SECONDS_A_RUN).returncode == 0
        except (subprocess.TimeoutExpired, UnicodeDecodeError):
            return False

    def fate_of(self, mutant, suites):
        if not suites:
            return SURVIVED
        path = self.sources / mutant.path
        text = path.read_text(encoding="utf-8")
        path.write_text(mutant.applied_to(text), encoding="utf-8")
        try:
            if not self.make():
                return NO_MUTANT
            return SURVIVED if self.passes(suites) else DIED
        finally:
            path.write_text(text, encoding="utf-8")


def tests_as_they_reach():
    tree = Tree("reach", COVERAGE_FLAGS)
    kept = WORK / "reach.json"
    if tree.changed:
        kept.unlink(missing_ok=True)
    if not kept.is_file():
        tree.must_make()
    return Reach(load_or_record(kept, tree.program, tree.build, tree.sources))


def chosen(options, reach):
    files = [name for name in listed_files(*options.places) if name.endswith((".cpp", ".h", ".hxx"))]
    found = [mutant for file in files for mutant in mutants_of(file, (ROOT / file).read_text(encoding="utf-8"))
             if reach.has_code_at(mutant)]
    random.Random(options.seed).shuffle(found)
    return found


def fates(mutants, wanted, jobs, reach):
    """(mutant, fate) until `wanted` changes compiled."""
    trees = queue.SimpleQueue()
    for number in range(jobs):
        tree = Tree(f"worker-{number}", "-O0 -g0")
        tree.must_make()
        trees.put(tree)

    def judge(mutant):
        tree = trees.get()
        try:
            return mutant, tree.fate_of(mutant, reach.suites_at(mutant))
        finally:
            trees.put(tree)

    made = 0
    remaining = iter(mutants)
    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        while made < wanted:
            batch = [mutant for mutant, _ in zip(remaining, range(min(wanted - made, 4 * jobs)))]
            if not batch:
                return
            for mutant, fate in pool.map(judge, batch):
                made += fate != NO_MUTANT
                yield mutant, fate


def main():
    options = arguments()
    WORK.mkdir(parents=True, exist_ok=True)
    reach = tests_as_they_reach()
    mutants = chosen(options, reach)
    if not mutants:
        sys.exit("scripts/mutate: there is nothing to change in " + " ".join(options.places))
    count = collections.Counter()
    survivors = WORK / "survivors.txt"
    with survivors.open("w", encoding="utf-8") as report:
        for mutant, fate in fates(mutants, len(mutants) if options.all else options.count, options.jobs, reach):
            count[fate] += 1
            if fate == SURVIVED:
                print(f"survived: {mutant}", flush=True)
                print(mutant, file=report, flush=True)
    total = count[DIED] + count[SURVIVED]
    share = 100.0 * count[DIED] / total if total else 0.0
    print(f"{count[NO_MUTANT]} changes did not compile")
    print(f"{count[DIED]} of {total} changes were noticed ({share:.1f} %), {count[SURVIVED]} were not")


if __name__ == "__main__":
    main()
