"""Records which test suites reach which line, with gcov: a build of its own, one run of each suite."""

import json
import pathlib
import subprocess
import time

COVERAGE_FLAGS = "-O0 -g0 --coverage"


def suites_of(program):
    listed = subprocess.run([program, "--gtest_list_tests"], check=True, capture_output=True, text=True).stdout
    return [line.split("#")[0].strip().rstrip(".") for line in listed.splitlines() if line and not line.startswith(" ")]


def counters(build):
    return [path for folder in ("src", "analysis") for path in (build / folder).rglob("*.gcda")]


def counted_lines(build, root):
    """{file: {line: how often it ran}} since the counters were removed, for every line that has code."""
    counted = {}
    files = [str(path) for path in counters(build)]
    if not files:
        return counted
    output = subprocess.run(["gcov", "--json-format", "--stdout", "--source-prefix", str(root), "--relative-only", *files],
                            check=True, capture_output=True, text=True, cwd=build).stdout
    for document in output.splitlines():
        for file in json.loads(document)["files"]:
            lines = counted.setdefault(file["file"], {})
            for line in file["lines"]:
                number = line["line_number"]
                lines[number] = lines.get(number, 0) + line["count"]
    return counted


def record(program, build, root):
    """{"seconds": {suite: its run's time}, "suites": {file: {line: [suites]}}}; a line that no suite reaches has none."""
    seconds, suites = {}, {}
    for suite in suites_of(program):
        for path in counters(build):
            path.unlink()
        start = time.monotonic()
        subprocess.run([program, f"--gtest_filter={suite}.*"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        seconds[suite] = time.monotonic() - start
        for file, lines in counted_lines(build, root).items():
            for line, count in lines.items():
                reaching = suites.setdefault(file, {}).setdefault(str(line), [])
                if count > 0:
                    reaching.append(suite)
    return {"seconds": seconds, "suites": suites}


def load_or_record(kept, program, build, root):
    if kept.is_file():
        return json.loads(kept.read_text(encoding="utf-8"))
    print("Recording which tests reach which line", flush=True)
    reach = record(program, build, root)
    kept.write_text(json.dumps(reach), encoding="utf-8")
    return reach


class Reach:
    """Which suites reach a line, the fastest first."""

    def __init__(self, recorded):
        self._seconds = recorded["seconds"]
        self._suites = recorded["suites"]

    def has_code_at(self, mutant):
        return str(mutant.line) in self._suites.get(mutant.path, {})

    def suites_at(self, mutant):
        found = self._suites.get(mutant.path, {}).get(str(mutant.line), [])
        return sorted(found, key=lambda suite: self._seconds[suite])
