"""The test program with one source changed: only the objects that hold the changed line are compiled, into a folder of their
own, and linked with all others as they are. The build itself and the sources stay as they are."""

import os
import resource
import shlex
import shutil
import subprocess

TESTS = "tests/plateconfig_tests"
BYTES_OF_MEMORY, BYTES_OF_A_FILE = 6 << 30, 8 << 30
SECONDS_ASLEEP = 900


def quiet(command, **more):
    return subprocess.run([str(part) for part in command], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL,
                          stderr=subprocess.DEVNULL, **more).returncode == 0


def limit_damage(seconds):
    """A change may ask for all memory, write without end, or never come to an end. The processor's time is counted, so that a
    busy machine ends no run too early."""
    for what, most in ((resource.RLIMIT_AS, BYTES_OF_MEMORY), (resource.RLIMIT_FSIZE, BYTES_OF_A_FILE), (resource.RLIMIT_CPU, seconds)):
        resource.setrlimit(what, (most, most))


class Commands:
    """How the build makes the test program: {object: the words of its command}, and those of the linker's."""

    def __init__(self, build):
        listed = subprocess.run(["ninja", "-C", build, "-t", "commands", TESTS], check=True, capture_output=True, text=True).stdout
        self.compilers = {}
        for line in listed.splitlines():
            words = shlex.split(line)
            if "-c" in words and words[words.index("-o") + 1].endswith(".o"):
                self.compilers[words[words.index("-o") + 1]] = words
            elif words[:2] == [":", "&&"]:
                self.linker = words[2:-2]  # The last one; around it ": && … && :".


def without(words, option):
    """The command without an option and its value."""
    at = words.index(option)
    return words[:at] + words[at + 2:]


class Workshop:
    """A folder in which one changed program at a time is made and tried."""

    def __init__(self, folder, root, build, commands):
        self._folder, self._root, self._build, self._commands = folder, root, build, commands
        self._program = folder / "plateconfig_tests"

    def take_unchanged(self):
        """The program as the build made it."""
        shutil.rmtree(self._folder, ignore_errors=True)
        self._folder.mkdir(parents=True)
        shutil.copy2(self._build / TESTS, self._program)

    def make(self, path, text, objects):
        """True when the program could be made with `text` as the file `path`, in those objects."""
        shutil.rmtree(self._folder, ignore_errors=True)
        changed = self._folder / "sources" / path
        changed.parent.mkdir(parents=True)
        changed.write_text(text, encoding="utf-8")
        made = {name: self._folder / f"{number}.o" for number, name in enumerate(objects)}
        return all(self._compile(name, path, result) for name, result in made.items()) and self._link(made)

    def _compile(self, name, path, result):
        words = without(without(self._commands.compilers[name], "-MF"), "-MT")
        words[words.index("-o") + 1] = result
        source = words.index("-c") + 1
        if words[source] == str(self._root / path):
            words[source] = self._folder / "sources" / path
        return self._run([part for word in words for part in self._preferring_changed(word)] + ["-w"])

    def _preferring_changed(self, word):
        """Where headers are looked for, the changed one is found first."""
        if isinstance(word, str) and word.startswith(f"-I{self._root}"):
            return [f"-I{self._folder}/sources{word[len(f'-I{self._root}'):]}", word]
        return [word]

    def _link(self, made):
        words = list(self._commands.linker)
        words[words.index("-o") + 1] = self._program
        from_archives = [result for name, result in made.items() if name not in words]
        words = [made.get(word, word) for word in words]
        first_archive = next(at for at, word in enumerate(words) if str(word).endswith(".a"))
        return self._run(words[:first_archive] + from_archives + words[first_archive:])

    def _run(self, words):
        # What is compiled once only need not be kept.
        return quiet(words, cwd=self._build, env=os.environ | {"CCACHE_DISABLE": "1"})

    def passes(self, suites, seconds):
        """True when the suites' tests pass; the first failure ends the run, and one that does not end in so many seconds has failed."""
        home = self._folder / "home"
        home.mkdir(exist_ok=True)
        surroundings = {"HOME": str(home), "TMPDIR": str(home), "LOCPATH": str(self._build / "tests" / "locales")}
        chosen = ":".join(f"{suite}.*" for suite in suites)
        try:
            return quiet([self._program, f"--gtest_filter={chosen}", "--gtest_fail_fast", "--gtest_brief=1"], cwd=home,
                         env=os.environ | surroundings, timeout=SECONDS_ASLEEP, preexec_fn=lambda: limit_damage(int(seconds)))
        except subprocess.TimeoutExpired:
            return False
