"""Applies each small change of changes.txt and drawn.txt to a copy of the sources and runs the tests: mutate.py ROOT BUILD

Each worker has a copy of the sources and a build of its own. Prints one line per change that lives, and the figures, and
writes the list to BUILD/changes.md; fails when a change lives without a reason, or in spite of one does not.
"""

import concurrent.futures
import dataclasses
import itertools
import os
import pathlib
import re
import shutil
import subprocess
import sys

ROOT, BUILD = (pathlib.Path(argument).resolve() for argument in sys.argv[1:3])
PROGRAMS = ("module_tests", "other_host_tests", "fault_tests")
TIME_LIMIT = 300
# What reaches beyond a vector ends a test that would not notice what it got.
OPTIONS = ("-DCMAKE_CXX_FLAGS=-D_GLIBCXX_ASSERTIONS",)


@dataclasses.dataclass
class Change:
    file: str
    text: str
    replacement: str = ""
    reason: str = ""  # why no behaviour changes; empty: some test has to notice
    noticed_by: str = ""

    def verdict(self):
        """What is to be told at once, of a change that is not noticed or should not have been."""
        if self.noticed_by:
            return f"noticed by {self.noticed_by}, though said to be without effect" if self.reason else ""
        return self.reason or "NOT NOTICED"

    def applied(self):
        original = (ROOT / self.file).read_text(encoding="utf-8")
        if original.count(self.text) != 1:
            raise SystemExit(f"{self.file}: {self.text!r} stands there {original.count(self.text)} times")
        return original.replace(self.text, self.replacement)


def read_changes():
    changes = []
    file = ""
    for line in itertools.chain(*((pathlib.Path(__file__).parent / name).read_text(encoding="utf-8").splitlines()
                                  for name in ("changes.txt", "drawn.txt"))):
        mark, text = line[:1], line[2:].replace("\\n", "\n")
        if mark == "-":
            changes.append(Change(file, text))
        elif mark == "+":
            changes[-1].replacement = text
        elif mark == "=":
            changes[-1].reason = text
        elif mark != "#":
            file = line
    for change in changes:
        change.applied()
    return changes


class Worker:
    def __init__(self, number):
        self.source = BUILD / str(number) / "source"
        self.build = BUILD / str(number) / "build"
        shutil.rmtree(self.source, ignore_errors=True)
        tracked = subprocess.run(["git", "ls-files"], cwd=ROOT, capture_output=True, text=True, check=True).stdout
        for name in filter(lambda name: (ROOT / name).exists(), tracked.splitlines()):
            target = self.source / name
            target.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(ROOT / name, target)  # newer than what was built of an earlier change
        subprocess.run(["cmake", "-G", "Ninja", "-S", self.source, "-B", self.build, *OPTIONS], check=True,
                       stdout=subprocess.DEVNULL)
        self.changed = None
        if noticed := self.noticed_by():
            raise SystemExit(f"the tests do not pass without a change: {noticed}")

    def compile(self, program):
        subprocess.run(["cmake", "--build", self.build, "-j1", "--target", program], check=True,
                       stdout=subprocess.DEVNULL)

    def noticed_by(self):
        """The first test that fails, or nothing. A program is built once those before it have passed."""
        for program in PROGRAMS:
            self.compile(program)
            try:
                result = subprocess.run([self.build / "bin" / program, "--gtest_fail_fast"], capture_output=True,
                                        timeout=TIME_LIMIT, check=False, errors="replace", text=True)
            except subprocess.TimeoutExpired:
                return f"{program}: no end"
            if result.returncode != 0:
                failed = re.search(r"^\[  FAILED  \] ([\w/]+\.[\w/]+)", result.stdout, re.MULTILINE)
                return failed[1] if failed else f"{program}: ended with {result.returncode}"
        return ""

    def try_out(self, change):
        if self.changed not in (None, change.file):
            shutil.copy(ROOT / self.changed, self.source / self.changed)
        self.changed = change.file
        (self.source / change.file).write_text(change.applied(), encoding="utf-8")
        change.noticed_by = self.noticed_by()
        if verdict := change.verdict():
            print(f"{change.file}: {change.text!r} -> {change.replacement!r}: {verdict}", flush=True)


def try_out_all(changes):
    """Each worker takes the next file, those with the most changes first."""
    count = os.cpu_count() or 1
    groups = sorted(([change for change in changes if change.file == file] for file in {change.file for change in changes}),
                    key=len)

    def work(number):
        worker = Worker(number)
        while groups:
            for change in groups.pop():
                worker.try_out(change)

    with concurrent.futures.ThreadPoolExecutor(count) as pool:
        list(pool.map(work, range(count)))


def cell(text):
    """A piece of code in a table."""
    code = text.strip().replace("\n", " ").replace("|", "\\|")
    return f"`{re.sub(' +', ' ', code)}`" if code else "nothing"


def write_list(changes):
    rows = ["| file | what stands there | what replaced it | noticed by |\n", "|---|---|---|---|\n"]
    for change in changes:
        told = change.noticed_by or "nothing: " + (change.reason or "no reason is known")
        rows.append(f"| {change.file.removeprefix('module/')} | {cell(change.text)} | {cell(change.replacement)} | {told} |\n")
    (BUILD / "changes.md").write_text("".join(rows), encoding="utf-8")


def main():
    changes = read_changes()
    try_out_all(changes)
    alive = [change for change in changes if not change.noticed_by]
    wrong = [change for change in changes if bool(change.noticed_by) == bool(change.reason)]
    figures = f"applied={len(changes)} noticed={len(changes) - len(alive)} without_effect={len(alive) - len(wrong)}"
    print(f"changes: {figures} unexplained={len(wrong)}")
    write_list(changes)
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
