"""Records with gcov, one run for each test suite, which suites reach which line, and in which objects the line is. Of a function in a
header every object has a copy, of which the linker takes one."""

import hashlib
import json
import os
import subprocess
import time

from lines import counted_lines, counters


def suites_of(program):
    listed = subprocess.run([program, "--gtest_list_tests"], check=True, capture_output=True, text=True).stdout
    names = (line.split("#")[0].strip() for line in listed.splitlines() if not line.startswith(" "))
    return [name.removesuffix(".") for name in names if name.endswith(".")]


BYTES_BEFORE_COUNTS = 32  # Ends with the largest of all counts, which differs from run to run.


def counts_in(path):
    return path.read_bytes()[BYTES_BEFORE_COUNTS:]


class Recorder:
    def __init__(self, program, build, root):
        self._program, self._build, self._root = program, build, root
        self._idle = {}

    def run(self, tests):
        """The counters that the tests changed: those that differ from what a run without tests leaves."""
        for path in counters(self._build):
            path.unlink()
        subprocess.run([self._program, f"--gtest_filter={tests}"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                       env=os.environ | {"LOCPATH": str(self._build / "tests" / "locales")})
        return [path for path in counters(self._build) if self._idle.get(path) != counts_in(path)]

    def record(self):
        """{"seconds": {suite: its run's time}, "lines": {file: {line: {"suites": […], "objects": […]}}}}"""
        self._idle = {path: counts_in(path) for path in self.run("-*")}
        seconds, lines = {}, {}
        self._note(lines, None, list(self._idle))
        for suite in suites_of(self._program):
            start = time.monotonic()
            changed = self.run(f"{suite}.*")
            seconds[suite] = round(time.monotonic() - start, 2)
            self._note(lines, suite, changed)
        return {"seconds": seconds, "lines": lines}

    def _note(self, lines, suite, files):
        for made, file, line, count in counted_lines(files, self._build, self._root):
            known = lines.setdefault(file, {}).setdefault(str(line), {"suites": [], "objects": []})
            for kind, what in (("suites", suite), ("objects", made)):
                if count > 0 and suite and what not in known[kind]:
                    known[kind].append(what)


def load_or_record(kept, program, build, root):
    """What was recorded with this very program, or else a new record."""
    digest = hashlib.sha256(program.read_bytes()).hexdigest()
    if kept.is_file():
        recorded = json.loads(kept.read_text(encoding="utf-8"))
        if recorded["program"] == digest:
            return recorded
    print("Recording which tests reach which line", flush=True)
    recorded = Recorder(program, build, root).record() | {"program": digest}
    kept.write_text(json.dumps(recorded), encoding="utf-8")
    return recorded


class Reach:
    """Which suites reach a line, the fastest first, and which objects have it."""

    def __init__(self, recorded):
        self._seconds = recorded["seconds"]
        self._lines = recorded["lines"]

    def _at(self, mutant):
        return self._lines.get(mutant.path, {}).get(str(mutant.line))

    def has_code_at(self, mutant):
        return self._at(mutant) is not None

    def objects_at(self, mutant):
        return self._at(mutant)["objects"]

    def suites_at(self, mutant):
        return sorted(self._at(mutant)["suites"], key=lambda suite: self._seconds[suite])

    def all_suites(self):
        return list(self._seconds)

    def seconds_of(self, suites):
        return sum(self._seconds[suite] for suite in suites)
