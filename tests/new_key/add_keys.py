#!/usr/bin/env python3
"""Adds the keys of CONTRIBUTING.md to a copy of the sources, and looks whether they are there.

    add_keys.py SOURCE_DIR ANALYSIS_ARCHIVE LIBRARY_ARCHIVE COMPILER [FLAG...]
"""

import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

# Section of the page -> role, column, cell, and what is to be shown of it.
KEYS = {
    "Your first change: add a key":
        ("system-settings", "标签字高", "4.250", "标签字高|mm|height of label text|标签的字写多高|3.5|4.25"),
    "A process setting":
        ("process-settings", "制造流程右边距", "7x", "制造流程右边距||right margin of the process text|工艺文本离右边多远|0|7"),
}

# What knows the layout of the two classes; everything else comes from the archives.
SOURCES = ["src/settings/system_default.cpp", "src/rules/rule_tables.cpp", "analysis/schema/snapshot.cpp",
           "analysis/schema/settings.cpp", "tests/new_key/show_settings.cpp"]

EDIT = re.compile(r"In `(src/[^`]+)`, below `([^`]+)`:\n\n {4,7}(.+)\n")


def section(page, title):
    return page.split(f"## {title}\n", 1)[1].split("\n## ", 1)[0]


def insert(path, anchor, line):
    """Puts the line below the first one that holds the anchor."""
    lines = path.read_text(encoding="utf-8").split("\n")
    at = next(index for index, text in enumerate(lines) if anchor in text)
    lines.insert(at + 1, line)
    path.write_text("\n".join(lines), encoding="utf-8")


def add_key(copy, text, title):
    edits = EDIT.findall(text)
    files = {file for file, _, _ in edits}
    if len(edits) != 2 or len(files) != 2:
        sys.exit(f"'{title}' shows {len(edits)} lines in {len(files)} files of the library, not 2 in 2")
    for file, anchor, line in edits:
        insert(copy / file, anchor, line)


def main():
    source, analysis, library = map(pathlib.Path, sys.argv[1:4])
    compiler, *flags = sys.argv[4:]
    page = (source / "CONTRIBUTING.md").read_text(encoding="utf-8")
    with tempfile.TemporaryDirectory() as folder:
        copy = pathlib.Path(folder)
        for name in ("src", "analysis"):
            shutil.copytree(source / name, copy / name)
        shutil.copytree(source / "tests/new_key", copy / "tests/new_key")
        for title in KEYS:
            add_key(copy, section(page, title), title)
        program = copy / "show_settings"
        # The copy's folders come before those of the flags, which only the host's headers are wanted from.
        subprocess.run([compiler, "-std=c++20", "-DPLATECONFIG_STATIC", f"-I{copy}", f"-I{copy}/src", *flags,
                        *(copy / name for name in SOURCES), analysis, library, "-o", program], check=True)
        for role, column, cell, shown in KEYS.values():
            table = copy / "table.csv"
            table.write_bytes(f"{column}\n{cell}\n".encode("gbk"))
            lines = subprocess.run([program, role, table], check=True, capture_output=True).stdout.decode("utf-8")
            if shown not in lines.split("\n"):
                sys.exit(f"of {column} there should be\n{shown}\namong\n{lines}")
    return 0


if __name__ == "__main__":
    sys.exit(main())
