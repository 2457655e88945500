"""Finds the places of a C++ source that can be broken on purpose, one at a time.

The sources are formatted by clang-format, so an operator between blanks is a binary operator, and `<` without blanks is a
bracket. Texts, comments and preprocessor lines are left alone. A change that does not compile is no mutant; the trial
drops it."""

import dataclasses
import re

SWAPS = {
    "==": "!=", "!=": "==", "<": "<=", "<=": "<", ">": ">=", ">=": ">",
    "+": "-", "-": "+", "*": "/", "/": "*", "%": "*",
    "&&": "||", "||": "&&", "+=": "-=", "-=": "+=", "&": "|", "|": "&",
}
BINARY = re.compile(r"(?<= )(==|!=|<=|>=|<|>|\+=|-=|\+|-|\*|/|%|&&|\|\||&|\|)(?= |$)")
STEP = re.compile(r"\+\+|--")
NEGATION = re.compile(r"(?<=[( ])!(?=[\w(])")
TRUTH = re.compile(r"\b(true|false)\b")
NUMBER = re.compile(r"(?<![\w.'])\d+(\.\d+)?(?![\w.'])")
CONDITION = re.compile(r"\b(?:if|while) \(")
RESULT = re.compile(r"\breturn (?!\{\};)([^;]+);")
# Results that are what an empty one is anyway.
EMPTY = re.compile(r'false|0(\.0)?|""|nullptr|std::nullopt|[\w:]+(\(\)|\{\})')
LEFT_ALONE = re.compile(r"^\s*(#|static_assert|using |template\b|namespace )")


@dataclasses.dataclass(frozen=True)
class Mutant:
    path: str
    line: int      # from 1
    column: int    # from 1, in characters
    before: str
    after: str

    def applied_to(self, text):
        """The file's text with this one change."""
        lines = text.split("\n")
        old = lines[self.line - 1]
        at = self.column - 1
        assert old.startswith(self.before, at)
        lines[self.line - 1] = old[:at] + self.after + old[at + len(self.before):]
        return "\n".join(lines)

    def __str__(self):
        return f"{self.path}:{self.line}:{self.column}: {self.before}  ->  {self.after}"


def blanked(text):
    """The text with comments and the insides of literals replaced by blanks; every place stays where it is."""
    pattern = re.compile(
        r'//[^\n]*|/\*.*?\*/|R"(?P<mark>[^(\s]*)\(.*?\)(?P=mark)"|"(?:\\.|[^"\\\n])*"|(?<!\w)\'(?:\\.|[^\'\\\n])+\'', re.DOTALL)
    return pattern.sub(lambda found: re.sub(r"[^\n]", " ", found.group()), text)


def closing(line, start):
    """Where the bracket that opens at `start` is closed on this line; -1 when it is not."""
    depth = 0
    for at in range(start, len(line)):
        depth += {"(": 1, ")": -1}.get(line[at], 0)
        if depth == 0:
            return at
    return -1


def conditions(line):
    """The conditions of `if` and `while` that end on the line they begin on, without what is declared before them."""
    for found in CONDITION.finditer(line):
        start, end = found.end(), closing(line, found.end() - 1)
        if end < 0:
            continue
        inner = line.rfind("; ", start, end)
        start = inner + 2 if inner >= 0 else start
        if not re.search(r"[^=!<>]=[^=]", line[start:end]):
            yield start, end


def changes(line, original):
    """(where, before, after) for one line; `line` is the blanked one, what stood there comes from `original`."""
    for found in BINARY.finditer(line):
        yield found.start(), found.group(), SWAPS[found.group()]
    for found in STEP.finditer(line):
        yield found.start(), found.group(), "--" if found.group() == "++" else "++"
    for found in NEGATION.finditer(line):
        yield found.start(), "!", ""
    for found in TRUTH.finditer(line):
        yield found.start(), found.group(), "false" if found.group() == "true" else "true"
    for found in NUMBER.finditer(line):
        number = found.group()
        yield found.start(), number, f"{float(number) + 1}" if "." in number else str(int(number) + 1)
    for start, end in conditions(line):
        yield start, original[start:end], f"!({original[start:end]})"
    for found in RESULT.finditer(line):
        result = original[found.start(1):found.end(1)]
        if not EMPTY.fullmatch(result):
            yield found.start(1), result, "{}"


def mutants_of(path, text):
    originals = text.split("\n")
    for number, line in enumerate(blanked(text).split("\n"), start=1):
        if LEFT_ALONE.match(line):
            continue
        for at, before, after in changes(line, originals[number - 1]):
            yield Mutant(path, number, at + 1, before, after)
