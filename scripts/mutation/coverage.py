"""Prints how many lines of the library, the analysis and the command the tests reached, and the lines they did not reach.

    coverage.py BUILD

ends with status 1 when a line of the library or the analysis was not reached."""

import collections
import functools
import itertools
import pathlib
import sys

from lines import COUNTED, counted_lines, counters

ROOT = pathlib.Path(__file__).resolve().parents[2]
COMPLETE = ("src/", "analysis/")


@functools.cache
def texts(file):
    return (ROOT / file).read_text(encoding="utf-8").split("\n")


def counts(build):
    """{file: {line: how often it ran}}; a line of a template or of a header's function counts in every object that has it. To a
    closing bracket alone the compiler gives what it cleans up after an exception, which nobody wrote."""
    counted = collections.defaultdict(collections.Counter)
    for _, file, line, count in counted_lines(counters(build), build, ROOT):
        if texts(file)[line - 1].strip(" });"):
            counted[file][line] += count
    return counted


def spans(numbers):
    """[3, 4, 5, 9] -> "3-5, 9"."""
    runs = [[number for _, number in run] for _, run in itertools.groupby(enumerate(sorted(numbers)), lambda pair: pair[1] - pair[0])]
    return ", ".join(str(run[0]) if len(run) == 1 else f"{run[0]}-{run[-1]}" for run in runs)


def figure(counted, folder):
    lines = [count for file, counter in counted.items() if file.startswith(folder) for count in counter.values()]
    reached = sum(count > 0 for count in lines)
    return f"{folder:10} {100.0 * reached / len(lines):6.2f} %  {reached} of {len(lines)} lines" if lines else f"{folder:10} nothing ran"


def main():
    counted = counts(pathlib.Path(sys.argv[1]).resolve())
    missed = {file: [line for line, count in sorted(counter.items()) if count == 0] for file, counter in sorted(counted.items())}
    missed = {file: lines for file, lines in missed.items() if lines}
    print("Lines that the tests reach (the sources for Windows are not compiled here):")
    for folder in COUNTED:
        print(figure(counted, folder))
    for file, lines in missed.items():
        print(f"not reached: {file}: {spans(lines)}")
    incomplete = not counted or any(file.startswith(COMPLETE) for file in missed)
    sys.exit(1 if incomplete else 0)


if __name__ == "__main__":
    main()
