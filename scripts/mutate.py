#!/usr/bin/env python3
"""mutate.py [HOW_MANY [SEED]]: changes the core in one small place at a time and runs its tests.

Each change is one that a slip of the hand could make. The tests should notice; what they do not
notice is printed with its place and the line before and after. Works on a copy of the project.
"""

import os
import random
import re
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

PROJECT = Path(__file__).resolve().parent.parent
ROOMS = ("record", "shell", "rules", "display", "editing", "form")
SECONDS = 120  # a test run that takes longer hangs, which is noticed too

# Patterns are looked for in code alone; comments are blanked out and texts keep their quotes only.
SWAPS = {
    "comparison": {" < ": " <= ", " <= ": " < ", " > ": " >= ", " >= ": " > ", " == ": " != ",
                   " != ": " == "},
    "sign": {" + ": " - ", " - ": " + ", " += ": " -= ", "++": "--", "--": "++", "(-": "(",
             " -": " "},
    "logic": {" && ": " || ", " || ": " && ", "true": "false", "false": "true", "(!": "("},
}
CELL = re.compile(r"(?<=[{ ])([oXA-E])(?=[,}])")
NUMBER = re.compile(r"(?<![\w.\"'])\d+(\.\d+)?(?![\w.]*['x])")
TEXT = re.compile(r'"([^"\\]|\\.)*"')
STATEMENT = re.compile(r"^( +)(?!return|const |auto |using |break)[^ ].*;$")
ROW = re.compile(r"^( +)\{.*\},?$")
# Steps without effects on others of their kind: to exchange two of them changes nothing.
QUIET = re.compile(r"EnableBurstFields\(|\.Set(Enabled|Caption|Visible|ToolTipText)\("
                   r"|^ +[\w.\[\]'\\ ]+ \+?= [^()]+;$|[oX], [oX]")


def code_of(line):
    """The line with its comment and the inside of its texts and characters blanked out."""
    line = re.sub(r"'(\\.|[^'\\])'", lambda m: "'" + " " * (len(m[0]) - 2) + "'", line)
    line = TEXT.sub(lambda m: '"' + "~" * (len(m[0]) - 2) + '"', line)
    return re.sub(r"//.*", lambda m: " " * len(m[0]), line)


def replaced(line, match, text):
    return line[: match.start()] + text + line[match.end():]


def changes_of(lines, in_order):
    """All changes of a file: kind, number of the first line, the lines, what stands there then.

    Lines are left out and exchanged only where their order is that of the steps of a routine or
    of the rows of a rule, and not that of declarations.
    """
    codes = [code_of(line) for line in lines]
    for i, (line, code) in enumerate(zip(lines, codes)):
        if code.lstrip().startswith(("#", "template", "static_assert", "friend ")):
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
            # Nothing depends on the words of a failure.
            if code[match.start()] == '"' and len(match[0]) > 2 and "throw " not in code:
                yield "text", i, [line], [replaced(line, match, match[0][:-2] + '"')]
        if in_order and STATEMENT.match(code):
            yield "left out", i, [line], [""]
        if in_order and i + 1 < len(lines):
            for shape in (STATEMENT, ROW):
                first, second = shape.match(code), shape.match(codes[i + 1])
                quiet = QUIET.search(code) and QUIET.search(codes[i + 1])
                if first and second and first[1] == second[1] and not quiet:
                    pair = [line, lines[i + 1]]
                    yield "exchanged", i, pair, pair[::-1]


def all_changes(project):
    """Changes in an order that takes all kinds in turn, large files more often than small, and
    headers seldom: for them everything is built anew."""
    kinds = {}
    for room in ROOMS:
        for path in sorted((project / "src" / room).glob("*.*")):
            in_order = path.suffix == ".cpp" and path.stem not in ("Catalogue", "Wiring")
            for change in changes_of(path.read_text().split("\n"), in_order):
                kinds.setdefault(change[0], {}).setdefault(path, []).append(change)
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


def run(*command, **options):
    return subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                          **options).returncode


def noticed(build):
    """Whether the tests fail; None if the change does not even build."""
    if run("cmake", "--build", build, "--target", "core_tests", "-j", str(os.cpu_count())) != 0:
        return None
    # A short walk of the monkey: what the tests with a purpose miss is what is looked for.
    short = dict(os.environ, TEPHREX_MONKEY_ACTS="2000")
    try:
        return run(build / "tests/core_tests", "--gtest_fail_fast", env=short, timeout=SECONDS) != 0
    except subprocess.TimeoutExpired:
        return True


def try_change(build, path, change):
    _, at, old, new = change
    text = path.read_text()
    lines = text.split("\n")
    assert lines[at : at + len(old)] == old
    lines[at : at + len(old)] = new
    path.write_text("\n".join(lines))
    try:
        return noticed(build)
    finally:
        path.write_text(text)


def main():
    how_many = int(sys.argv[1]) if len(sys.argv) > 1 else 100
    random.seed(int(sys.argv[2]) if len(sys.argv) > 2 else 1)
    folder = Path(tempfile.mkdtemp(prefix="mutate"))
    try:
        project, build = folder / "project", folder / "build"
        shutil.copytree(PROJECT, project, ignore=shutil.ignore_patterns("build", ".git"))
        run("cmake", "-S", project, "-B", build, "-DCMAKE_BUILD_TYPE=None", "-DBUILD_TESTING=ON",
            "-DCMAKE_CXX_FLAGS=-O0", "-DCMAKE_DISABLE_FIND_PACKAGE_Qt6=ON",
            "-DCMAKE_GTEST_DISCOVER_TESTS_DISCOVERY_MODE=PRE_TEST", check=True)
        if noticed(build) is not False:
            sys.exit("The tests must pass before anything is changed")
        tried, missed = 0, 0
        for path, change in all_changes(project):
            if tried == how_many:
                break
            result = try_change(build, path, change)
            if result is None:
                continue
            tried += 1
            kind, at, old, new = change
            print(f"{tried:4} {'noticed' if result else 'MISSED '} {kind:10} "
                  f"{path.relative_to(project)}:{at + 1}", flush=True)
            if not result:
                missed += 1
                for sign, lines in (("-", old), ("+", new)):
                    print("\n".join(f"     {sign} {line.strip()}" for line in lines), flush=True)
        print(f"{tried - missed} of {tried} changes were noticed")
    finally:
        shutil.rmtree(folder)


if __name__ == "__main__":
    main()
