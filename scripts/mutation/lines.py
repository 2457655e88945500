"""What gcov counted in a build with --coverage: how often each line of this project's sources ran."""

import json
import pathlib
import subprocess

COUNTED = ("src/", "analysis/", "tools/")


def counters(build):
    """The files with counts that programs of the build left, one per object."""
    return sorted(path for folder in ("src", "analysis", "tools", "tests") for path in (build / folder).rglob("*.gcda"))


def counted_lines(files, build, root):
    """(object, file, line, how often it ran) for every line that has code in those objects."""
    command = ["gcov", "--json-format", "--stdout", "--source-prefix", str(root), "--relative-only", *map(str, files)]
    output = subprocess.run(command, check=True, capture_output=True, text=True, cwd=build).stdout if files else ""
    for document in map(json.loads, output.splitlines()):
        made = str(pathlib.Path(document["data_file"]).relative_to(build).with_suffix(".o"))
        for file in document["files"]:
            name = file["file"].removeprefix(f"{root}/")
            if name.startswith(COUNTED):
                for line in file["lines"]:
                    yield made, name, line["line_number"], line["count"]
