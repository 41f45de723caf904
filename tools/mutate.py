#!/usr/bin/env python3
"""Puts single faults into the C++ source of a folder and says which tests catch each of them.

usage: mutate.py FOLDER... [--number N] [--seed N] [--limit SECONDS] [--tests REGEX] [--work DIR]

FOLDER is below the checkout (src/format), or one file; each gets N faults. Works on a copy of the
checkout in DIR (build/mutate), which is built there without Qt; the checkout itself is only read. A
fault goes to the tests of its own folder first, then to the pilot scripts, then to all others, and
no further than the first that fails; only what those tests need is built. A fault that does not
compile, or that leaves the object file as it was, is not counted and another one is drawn. The same
seed on the same source draws the same faults.
"""
import argparse
import os
import pathlib
import random
import re
import shutil
import subprocess
import sys
import time

TOP = pathlib.Path(__file__).resolve().parent.parent
SWAPS = {"==": "!=", "!=": "==", "<": "<=", ">": ">=", "<=": "<", ">=": ">", "&&": "||",
         "||": "&&", "+": "-", "-": "+", "+=": "-=", "-=": "+=", "*": "/", "/": "*"}
BINARY = re.compile(r"(?<= )(%s)(?= )" % "|".join(map(re.escape, sorted(SWAPS, key=len)[::-1])))
OPENING = re.compile(r"\b(?:if|while) \((?!const |auto |\w+\*? \w+ =)")
STATEMENT = re.compile(r"(?:[a-z_*(][\w.\[\]():*&]*(?:->[\w.()]+)*(?:\(.*\)| [-+|&]?= .*)|break"
                       r"|(?:\+\+|--)[\w.]+|[A-Z]\w*\(.*\)|[A-Z]\w*(?:\.|->|::)\w.*\(.*\));")


class Fault:
    def __init__(self, path, number, kind, line):
        self.path, self.number, self.kind, self.line = path, number, kind, line


def masked(line):
    """The line with comments and the insides of literals blanked out, of the same length."""
    blank = lambda found: found.group()[0] + " " * (len(found.group()) - 2) + found.group()[-1]
    line = re.sub(r'"(?:\\.|[^"\\])*"|\'(?:\\.|[^\'\\])*\'', blank, line)
    return re.sub(r"//.*", lambda found: " " * len(found.group()), line)


def closing(code, start):
    """Index of the parenthesis that closes the one before `start`, or -1."""
    depth = 1
    for index in range(start, len(code)):
        depth += {"(": 1, ")": -1}.get(code[index], 0)
        if depth == 0:
            return index
    return -1


def variants(line, code, before):
    """Every single fault of one line: its kind and the new line."""
    put = lambda start, end, text: line[:start] + text + line[end:]
    for found in BINARY.finditer(code):
        yield "operator", put(*found.span(), SWAPS[found.group()])
    for found in re.finditer(r"\b(?:true|false)\b", code):
        yield "boolean", put(*found.span(), "false" if found.group() == "true" else "true")
    for found in re.finditer(r"(?<![\w.'])\d+(?![\w.'])", code):
        yield "constant", put(*found.span(), str(int(found.group()) + 1))
    for found in re.finditer(r"(?<![\w\])])!(?=[\w(])", code):
        yield "negation", put(*found.span(), "")
    for found in OPENING.finditer(code):
        end = closing(code, found.end())
        if end > 0:
            yield "condition", put(found.end(), end, "!(" + line[found.end():end] + ")")
    text = code.strip()
    if STATEMENT.fullmatch(text) and before.endswith((";", "{", "}", ":", ")")):
        yield "statement", line[:len(line) - len(line.lstrip())] + ";"


def faults_of(path):
    before = "{"
    for number, line in enumerate(path.read_text(encoding="utf-8").splitlines(), 1):
        code = masked(line)
        if not code.lstrip().startswith(("#", "static_assert", "using", "namespace", "template")):
            for kind, text in variants(line, code, before):
                yield Fault(path, number, kind, text)
        before = code.strip() or before


def copy_checkout(target):
    """Brings the copy to the checkout's state; files that are the same keep their time."""
    listed = subprocess.run(["git", "ls-files", "-coz", "--exclude-standard"], cwd=TOP, check=True,
                            capture_output=True).stdout.decode().split("\0")
    wanted = {name for name in listed if name and (TOP / name).is_file()}
    for old in [file for file in target.rglob("*") if file.is_file()]:
        name = old.relative_to(target)
        if str(name) not in wanted and name.parts[0] != "build":
            old.unlink()
    for name in wanted:
        source, copy = TOP / name, target / name
        copy.parent.mkdir(parents=True, exist_ok=True)
        if not copy.exists() or copy.read_bytes() != source.read_bytes():
            shutil.copyfile(source, copy)
            shutil.copymode(source, copy)


class Bench:
    """The copy's build and its tests."""

    def __init__(self, source, tests):
        self.source, self.tests = source, tests
        self.build_folder = source / "build" / "test"
        launcher, linker = shutil.which("ccache"), shutil.which("ld.lld")  # quicker with them
        folders = os.environ["PATH"].split(os.pathsep)
        # The compiler itself: the launcher finds nothing again behind a link to itself.
        plain = dict(os.environ, PATH=os.pathsep.join(f for f in folders if not f.endswith("/ccache")))
        subprocess.run(["cmake", "-S", source, "-B", self.build_folder, "-G", "Ninja",
                        "-DLUMENOTE_QT=OFF", "-DCMAKE_BUILD_TYPE=Release",
                        *(["-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=lld"] if linker else []),
                        *([f"-DCMAKE_CXX_COMPILER_LAUNCHER={launcher}"] if launcher else [])],
                       check=True, stdout=subprocess.DEVNULL, env=plain)

    def compiles(self, target="all"):
        return subprocess.run(["ninja", "-C", self.build_folder, target],
                              capture_output=True).returncode == 0

    def object_of(self, path):
        """The bytes that the file compiles to, None when it does not; b"" for a header."""
        if path.suffix != ".cpp":
            return b"" if self.compiles("lumenote") else None
        name = str(path.relative_to(self.source / "src")) + ".o"
        if not self.compiles(f"{path}^"):
            return None
        return next(file.read_bytes() for file in self.build_folder.rglob(path.name + ".o")
                    if str(file).endswith("/" + name))

    def stages(self, folders):
        """Targets, each with what tests it, the tests of the folders first."""
        if self.tests:
            return [("all", self.ctest("-R", self.tests))]
        names = sorted(file.parent.name for file in self.source.glob("tests/*/*Test.cpp"))
        programs = {name: (f"test_{name}", [self.build_folder / "tests" / f"test_{name}",
                                            "--gtest_fail_fast", "--gtest_brief=1"])
                    for name in names if name not in ("pilot", "qt")}
        own = [programs.pop(folder) for folder in folders if folder in programs]
        scripts = "|".join(file.stem for file in self.source.glob("tests/pilot/*.pilot"))
        return [*own, ("lumenote_tool", self.ctest("-R", rf"^pilot\.({scripts})$")),
                *programs.values(), ("all", self.ctest("-R", r"^(pilot|faults)\."))]

    def ctest(self, *selection):
        return ["ctest", "--test-dir", self.build_folder, "-j2", "--timeout", "120",
                "--stop-on-failure", *selection]

    @staticmethod
    def failure(command):
        """The first test of the command that fails, "" when none does."""
        try:
            done = subprocess.run(command, capture_output=True, timeout=600)
        except subprocess.TimeoutExpired:
            return f"{command[0]} (no end)"
        out = done.stdout.decode(errors="replace")
        failed = re.search(r"^\[  FAILED  \] ([^\s,]+)|^\s*\d+ - (.+) \(", out, re.M)
        if failed:
            return failed.group(1) or failed.group(2)
        return f"{command[0]} (no success)" if done.returncode else ""

    def catcher(self, folders=()):
        """The first test that fails, "" when none does; None when some target cannot be built."""
        for target, command in self.stages(folders):
            if not self.compiles(target):
                return None
            if test := self.failure(command):
                return test
        return ""


def judge(bench, fault):
    """The test that catches it, "" when none does; None when it is no fault at all."""
    original = fault.path.read_text(encoding="utf-8")
    before = bench.object_of(fault.path)
    lines = original.split("\n")
    lines[fault.number - 1] = fault.line
    try:
        fault.path.write_text("\n".join(lines), encoding="utf-8")
        after = bench.object_of(fault.path)
        if after is None or (after and after == before):
            return None
        return bench.catcher(fault.path.relative_to(bench.source / "src").parts)
    finally:
        fault.path.write_text(original, encoding="utf-8")


def check_folder(bench, folder, options, end):
    """Puts faults into the folder until there are enough; prints each and how many were caught."""
    files = [folder] if folder.is_file() else sorted(folder.rglob("*.[ch]*"))
    drawn = [fault for file in files for fault in faults_of(file)]
    random.Random(options.seed).shuffle(drawn)
    verdicts = []
    for fault in drawn:
        if len(verdicts) == options.number or time.monotonic() > end:
            break
        caught = judge(bench, fault)
        if caught is None:
            continue
        verdicts.append(caught)
        print(f"{fault.path.relative_to(bench.source)}:{fault.number} {fault.kind}: "
              f"{fault.line.strip()}\n    {'caught by ' + caught if caught else 'SURVIVED'}",
              flush=True)
    print(f"{folder.relative_to(bench.source)}: {sum(map(bool, verdicts))} of {len(verdicts)} faults "
          f"caught ({len(drawn)} are possible)", flush=True)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("folder", nargs="+")
    parser.add_argument("--number", type=int, default=20, help="faults to put into each")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--limit", type=float, default=3600, help="seconds for all of it")
    parser.add_argument("--tests", default="", help="regular expression, as ctest -R takes it")
    parser.add_argument("--work", type=pathlib.Path, default=TOP / "build" / "mutate")
    options = parser.parse_args()
    os.nice(15)
    end = time.monotonic() + options.limit
    source = (options.work / "source").resolve()
    copy_checkout(source)
    bench = Bench(source, options.tests)
    if (failed := bench.catcher()) != "":
        sys.exit(f"the checkout itself does not build, or fails its tests: {failed}")
    for folder in options.folder:
        check_folder(bench, source / folder, options, end)


main()
