#!/usr/bin/env python3
"""mutate.py [HOW_MANY [SEED]]: makes one small change to src at a time and runs the tests for it.

Each change could be a slip: another comparison, sign, number, text or cell of a table, a step left
out, two steps exchanged. The tests should notice it. If they do not, its place and the lines
before and after it are printed for a human to judge, since some changes make no difference.
HOW_MANY is 100 and SEED random unless given. Works on copies of the project, one for each
processor. The walks of the window need what scripts/screen.sh installs.
"""

import os
import random
import re
import shutil
import signal
import subprocess
import sys
import tempfile
import threading
import time
from concurrent.futures import ThreadPoolExecutor
from contextlib import suppress
from pathlib import Path

PROJECT = Path(__file__).resolve().parent.parent
# A test run that takes longer than SECONDS and longer than SLOWER times its usual time hangs, and
# so notices the change.
SLOWER, SECONDS = 10, 120

# The tests of each folder of src: the target to build, and the command to run in the build folder.
# The random tests are short: a change that only they notice should count as missed.
CORE = ("core_tests", ("env", "TEPHREX_MONKEY_ACTIONS=2000", "tests/core_tests",
                       "--gtest_fail_fast"))
WINDOW = ("window_tests", ("env", "QT_QPA_PLATFORM=offscreen", "TEPHREX_MONKEY_ACTIONS=200",
                           "tests/window_tests", "--gtest_fail_fast"))
DRAW = ("draw_tests", ("env", "QT_QPA_PLATFORM=offscreen", "tests/draw_tests",
                       "--gtest_fail_fast"))
DRAWING = ("tephrexdraw", ("ctest", "-V", "-R", "^draw$"))
WALKS = ("tephrexedit", ("ctest", "-V", "--stop-on-failure", "-R", "^(session|spoken)$"))
EARLY = ("closed_early", ("ctest", "-V", "-R", "^closed-early$"))
TESTS = {"": (EARLY, WALKS), "window": (WINDOW, WALKS), "check": (CORE,), "draw": (DRAW, DRAWING)}
TESTS_OF_OTHER_FOLDERS = (CORE, WINDOW)

# Patterns are matched against code only: comments, and texts between their quotes, are blanked out.
SWAPS = {
    "comparison": {" < ": " <= ", " <= ": " < ", " > ": " >= ", " >= ": " > ", " == ": " != ",
                   " != ": " == "},
    "sign": {" + ": " - ", " - ": " + ", " += ": " -= ", "++": "--", "--": "++", "(-": "(",
             " -": " "},
    "logic": {" && ": " || ", " || ": " && ", "true": "false", "false": "true", "(!": "("},
}
ARRAY = re.compile(r"std::array<.*?>")
CELL = re.compile(r"(?<=[{ ])([oXA-E])(?=[,}])")
NUMBER = re.compile(r"(?<![\w.\"'])\d+(\.\d+)?(?![\w.]*['x])")
TEXT = re.compile(r'"([^"\\]|\\.)*"')
STATEMENT = re.compile(r"^( +)(?!return|const |auto |using |break|\})[^ ].*;$")
ROW = re.compile(r"^( +)\{.*\},?$")
# Steps that do not affect others of their kind: exchanging two of them changes nothing.
QUIET = re.compile(r"EnableBurstFields\(|\.Set(Enabled|Caption|Visible|ToolTipText)\("
                   r"|(^ +|[.>])set[A-Z]\w*\(|connect\(|^ +case .*: return"
                   r"|^ +[A-Z][\w:<>]*[&*]* \w+(\(.*\)|\{.*\})?;$"
                   r"|^ +[\w.\[\]'\\ ]+ \+?= [^()]+;$|[oX], [oX]")


def code_of(line):
    """The line with its comment and what is between quotes blanked out."""
    line = re.sub(r"'(\\.|[^'\\])'", lambda m: "'" + " " * (len(m[0]) - 2) + "'", line)
    line = TEXT.sub(lambda m: '"' + "~" * (len(m[0]) - 2) + '"', line)
    return re.sub(r"//.*", lambda m: " " * len(m[0]), line)


def blanked(codes):
    """The lines with what only the compiler checks blanked out: static assertions, array sizes."""
    open_brackets = 0  # of an assertion
    for i, code in enumerate(codes):
        asserts = open_brackets > 0 or code.lstrip().startswith("static_assert(")
        if asserts:
            open_brackets += code.count("(") - code.count(")")
        hidden = re.compile(".*") if asserts else ARRAY
        codes[i] = hidden.sub(lambda m: " " * len(m[0]), code)
    return codes


def replaced(line, match, text):
    return line[: match.start()] + text + line[match.end():]


def changes_of(lines, in_order):
    """All changes to a file: kind, index of the first line, the lines, their replacements.

    Lines are left out and exchanged only if `in_order`: if they are the steps of a routine or the
    rows of a rule, and not declarations.
    """
    codes = blanked([code_of(line) for line in lines])
    for i, (line, code) in enumerate(zip(lines, codes)):
        if code.lstrip().startswith(("#", "template", "friend ")):
            continue
        for kind, swaps in SWAPS.items():
            for old, new in swaps.items():
                for match in re.finditer(re.escape(old), code):
                    yield kind, i, [line], [replaced(line, match, new)]
        for match in CELL.finditer(code):
            cell = "X" if match[0] == "o" else "o"
            yield "grid cell", i, [line], [replaced(line, match, cell)]
        for match in NUMBER.finditer(code):
            step = 1 if "." not in match[0] else 0.1
            for number in (float(match[0]) + step, float(match[0]) - step):
                text = f"{number:.2f}" if "." in match[0] else f"{number:.0f}"
                yield "constant", i, [line], [replaced(line, match, text)]
        for match in TEXT.finditer(line):
            # Nothing depends on the text of an exception.
            if code[match.start()] == '"' and len(match[0]) > 2 and "throw " not in code:
                yield "text", i, [line], [replaced(line, match, match[0][:-2] + '"')]
        begins = codes[i - 1].rstrip()[-1:] in ("", ";", "{", "}", ":")
        if in_order and begins and STATEMENT.match(code):
            yield "left out", i, [line], [""]
        if in_order and i + 1 < len(lines):
            for shape in (STATEMENT, ROW):
                first, second = shape.match(code), shape.match(codes[i + 1])
                quiet = QUIET.search(code) and QUIET.search(codes[i + 1])
                if first and second and first[1] == second[1] and not quiet:
                    pair = [line, lines[i + 1]]
                    yield "exchanged", i, pair, pair[::-1]


def all_changes(src):
    """Yields all kinds of change in turn, from large files more often than from small ones, and
    from headers seldom, since everything that includes them is rebuilt."""
    kinds = {}
    for path in sorted(src.rglob("*.*")):
        if path.suffix not in (".cpp", ".h"):
            continue
        in_order = path.suffix == ".cpp" and path.stem not in ("Catalogue", "Wiring")
        for change in changes_of(path.read_text().split("\n"), in_order):
            kinds.setdefault(change[0], {}).setdefault(path.relative_to(src), []).append(change)
    for files in kinds.values():
        for changes in files.values():
            random.shuffle(changes)
    while kinds:
        for kind in sorted(kinds):
            files = kinds[kind]
            paths = sorted(files)
            weights = [len(files[each]) ** 0.5 * (each.suffix == ".cpp" or 0.1) for each in paths]
            path = random.choices(paths, weights)[0]
            yield path, files[path].pop()
            if not files[path]:
                del files[path]
            if not files:
                del kinds[kind]


RUNNING = set()  # the process group of each command: what it starts ends with it


def run(*command, limit=None, **options):
    """The exit status and output of the command. TimeoutExpired after `limit` seconds."""
    process = subprocess.Popen(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                               errors="replace", process_group=0, **options)
    RUNNING.add(process.pid)
    try:
        return process.communicate(timeout=limit)[0], process.returncode
    except subprocess.TimeoutExpired:
        os.killpg(process.pid, signal.SIGKILL)
        process.communicate()
        raise
    finally:
        RUNNING.discard(process.pid)


class Copy:
    """A copy of the project in which one change at a time is tried."""

    def __init__(self, folder):
        self.src, self.build = folder / "src", folder / "build"
        self.seconds = {}  # by tests: how long they take without a change
        shutil.copytree(PROJECT, folder, ignore=shutil.ignore_patterns("build", ".git"))
        output, status = run("cmake", "-S", folder, "-B", self.build, "-DCMAKE_BUILD_TYPE=None",
                             "-DBUILD_TESTING=ON", "-DCMAKE_CXX_FLAGS=-O0",
                             "-DCMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE=PRE_TEST")
        if status != 0:
            raise RuntimeError(output)

    def measure(self, tests):
        built, begin = self.builds(tests), time.monotonic()
        if not built or self.failure(tests):
            raise RuntimeError(f"{tests[0]} must pass before anything is changed")
        self.seconds[tests] = time.monotonic() - begin

    def builds(self, tests):
        return run("cmake", "--build", self.build, "--target", tests[0])[1] == 0

    def failure(self, tests):
        """What the tests print if they fail, otherwise an empty text."""
        known = self.seconds.get(tests)
        limit = known and max(SLOWER * known, SECONDS)
        try:
            output, status = run(*tests[1], cwd=self.build, limit=limit)
            return (output or "failed") if status != 0 else ""
        except subprocess.TimeoutExpired:
            return "[ RUN      ] time-limit"

    def noticed_by(self, all_tests):
        """The name of a test that fails; empty if none does; None if the change does not build."""
        for tests in all_tests:
            if not self.builds(tests):
                return None
            if output := self.failure(tests):
                failed = re.findall(r"\[  FAILED  \] (\S+)", output)
                begun = re.findall(r"\[ RUN +\] (\S+)", output)  # a crash ends in the last one
                return (failed[:1] or begun[-1:] or [tests[0]])[0]
        return ""

    def try_change(self, path, change):
        folder = path.parts[0] if len(path.parts) > 1 else ""
        all_tests = TESTS.get(folder, TESTS_OF_OTHER_FOLDERS)
        for tests in all_tests:
            if tests not in self.seconds:
                self.measure(tests)
        _, at, old, new = change
        file = self.src / path
        text = file.read_text()
        lines = text.split("\n")
        assert lines[at : at + len(old)] == old
        lines[at : at + len(old)] = new
        file.write_text("\n".join(lines))
        try:
            return self.noticed_by(all_tests)
        finally:
            file.write_text(text)


class Trial:
    """Tries `how_many` changes, in several copies of the project at the same time."""

    def __init__(self, how_many):
        self.how_many, self.tried, self.missed = how_many, 0, 0
        self.changes = all_changes(PROJECT / "src")
        self.lock = threading.Lock()

    def try_in(self, folder):
        try:
            copy = Copy(folder)
            while change := self.next_change():
                name = copy.try_change(*change)
                with self.lock:
                    if name is not None and self.tried < self.how_many:
                        self.report(*change, name)
        except Exception:
            self.stop()
            raise

    def stop(self):
        self.how_many = self.tried  # no further change is tried or reported
        for group in list(RUNNING):
            with suppress(ProcessLookupError):  # it has just ended
                os.killpg(group, signal.SIGKILL)

    def next_change(self):
        with self.lock:
            return next(self.changes, None) if self.tried < self.how_many else None

    def report(self, path, change, name):
        self.tried += 1
        kind, at, old, new = change
        print(f"{self.tried:4} {'noticed' if name else 'MISSED '} {kind:10} src/{path}:{at + 1}  "
              f"{name}", flush=True)
        if not name:
            self.missed += 1
            for sign, lines in (("-", old), ("+", new)):
                print("\n".join(f"     {sign} {line.strip()}" for line in lines), flush=True)


def main():
    trial = Trial(int(sys.argv[1]) if len(sys.argv) > 1 else 100)
    seed = int(sys.argv[2]) if len(sys.argv) > 2 else random.randrange(10**6)
    print(f"seed {seed}", flush=True)
    random.seed(seed)
    folder = Path(tempfile.mkdtemp(prefix="mutate"))
    folder.chmod(0o755)  # some tests run as another user
    os.environ["TMPDIR"] = str(folder)  # a walk that is killed leaves files
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    try:
        copies = [folder / str(number) for number in range(os.cpu_count() or 1)]
        with ThreadPoolExecutor(len(copies)) as pool:
            try:
                list(pool.map(trial.try_in, copies))
            except BaseException:
                trial.stop()
                raise
        print(f"{trial.tried - trial.missed} of {trial.tried} changes were noticed")
    finally:
        shutil.rmtree(folder)


if __name__ == "__main__":
    main()
