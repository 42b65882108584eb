"""Looks at what no compiler checks: who may know whom, how large a room may grow, and what the built library exports.

Called as architecture_test.py SOURCE_FOLDER LIBRARY OBJDUMP.
"""

import pathlib
import re
import subprocess
import sys
import unittest

ROOT = pathlib.Path(sys.argv[1])
LIBRARY, OBJDUMP = sys.argv[2:4]

# What each folder may include, and its target link with, besides itself.
ARROWS = {
    "host": set(),
    "text": set(),
    "module": {"host"},
    "standin": {"host", "text"},
    "report": {"text"},
    "runner": {"report", "standin", "text"},
    "module/texts": set(),
    "module/data": {"module"},
    "module/syntax": {"module"},
    "module/settings": {"module", "module/data"},
    "module/analysis": {"module", "module/settings"},
    "module/charts": {"module", "module/analysis", "module/settings", "module/texts"},
    "module/output": {"module", "module/analysis", "module/charts", "module/settings", "module/texts"},
    "module/entry": {"module", "module/syntax", "module/settings", "module/analysis", "module/output"},
}
PIECES = [folder for folder in ARROWS if "/" not in folder]
TARGETS = {"host_contract": "host", "module_objects": "module", "bldatman": "module", "text": "text", "standin": "standin",
           "report": "report", "runner": "runner", "bldatman-run": "runner"}
MOST_SOURCES = 15
SECOND_HOST = "examples/other_host/"


def project():
    """Every source and build file of the pieces, of their tests and of the second host, by its path."""
    found = (path for piece in [*PIECES, "tests", SECOND_HOST] for path in (ROOT / piece).rglob("*"))
    return {path.relative_to(ROOT).as_posix(): path.read_text(encoding="utf-8") for path in found
            if path.suffix in {".h", ".cpp"} or path.name == "CMakeLists.txt"}


def folder_of(path):
    return path.rpartition("/")[0]


def room_of(path):
    """The folder that an arrow is drawn for: of the module its rooms, of the others the piece."""
    parts = folder_of(path).split("/")
    return "/".join(parts[:2]) if parts[0] == "module" else parts[0]


def includes(files):
    """Pairs of a file of a piece and what it includes of the project."""
    return [(path, included) for path, text in files.items() if path.split("/")[0] in PIECES
            for included in re.findall(r'^#include "(.+)"', text, re.MULTILINE)]


def wrong_includes(files):
    for path, included in includes(files):
        here, there = room_of(path), room_of(included)
        if here != there and there not in ARROWS.get(here, set()) | ARROWS[path.split("/")[0]]:
            yield f"{path} includes {included}"


def wrong_targets(files):
    for path, text in files.items():
        for target, links in re.findall(r"target_link_libraries\((\S+)([^)]*)\)", text):
            here = TARGETS.get(target)
            for there in {TARGETS.get(name) for name in links.split()} - {here, None} if here else ():
                # The library stands in for one that is linked with the host's own.
                if there not in ARROWS[here] and (target, there) != ("bldatman", "standin"):
                    yield f"{path}: {target} is linked with {there}"
    for piece in PIECES:
        if piece not in {TARGETS.get(name) for name in
                         re.findall(r"add_(?:library|executable)\((\S+)", files.get(f"{piece}/CMakeLists.txt", ""))}:
            yield f"{piece} has no target of its own"


def circles(files):
    """Arrows that lead back, between files (a header and its source are one) and between folders."""
    pairs = includes(files)
    for name in (lambda path: path.rpartition(".")[0], folder_of):
        arrows = {}
        for path, included in pairs:
            if name(path) != name(included):
                arrows.setdefault(name(path), set()).add(name(included))
        while ends := {node for node, to in arrows.items() if not to & arrows.keys()}:
            arrows = {node: to for node, to in arrows.items() if node not in ends}
        if arrows:
            yield "a circle through " + ", ".join(sorted(arrows))


def crowded_folders(files):
    sources = [folder_of(path) for path in files if not path.endswith("CMakeLists.txt")]
    for folder in sorted(set(sources)):
        if sources.count(folder) > MOST_SOURCES:
            yield f"{folder} holds {sources.count(folder)} sources"


def foreign_definitions(files):
    """Members that are defined in another folder than their class; the contract alone is meant to be."""
    homes = {name: folder_of(path) for path, text in files.items() if path.endswith(".h") and path.split("/")[0] not in {"host", "examples"}
             for name in re.findall(r"^(?:class|struct) (\w+)(?: final)?(?: :[^;{]*)?\s*\{", text, re.MULTILINE)}
    for path, text in files.items():
        if path.endswith(".cpp") and path.split("/")[0] in PIECES:
            for name in re.findall(r"^(?:[^\s#/(}][^(=;]*[\s&*])?(\w+)::~?\w+\(", text, re.MULTILINE):
                if homes.get(name, folder_of(path)) != folder_of(path):
                    yield f"{path} defines a member of {name}, which {homes[name]} declares"


def acquainted_hosts(files):
    """The second host shares nothing with the first."""
    for path, text in files.items():
        for included in re.findall(r'^#include "(.+)"', text, re.MULTILINE) if path.startswith(SECOND_HOST) else ():
            if SECOND_HOST + included not in files:
                yield f"{path} includes {included}"


def acquainted_renderers(files):
    for path, included in includes(files):
        names = [re.search(r"/formats/(render_\w+)", name) for name in (path, included)]
        if all(names) and names[0][1] != names[1][1]:
            yield f"{path} includes {included}"


def platforms_in_passing(files):
    """A platform shows in whole files."""
    for path, text in files.items():
        if re.search(r"#if.*(_WIN|MINGW|_MSC|linux|unix|APPLE)", text):
            yield f"{path} asks for the platform"


RULES = [wrong_includes, wrong_targets, circles, crowded_folders, foreign_definitions, acquainted_hosts,
         acquainted_renderers, platforms_in_passing]

# What each rule has to find once it is broken.
BREACHES = [
    (wrong_includes, "module/texts/x.cpp", '#include "module/settings/setting_records.h"'),
    (wrong_includes, "report/x.cpp", '#include "standin/session/session.h"'),
    (wrong_includes, "module/output/x.cpp", '#include "standin/session/session.h"'),
    (wrong_targets, "standin/CMakeLists.txt", "add_library(standin SHARED)\ntarget_link_libraries(standin PRIVATE report)"),
    (wrong_targets, "text/CMakeLists.txt", "add_library(standin SHARED)"),
    (circles, "text/utf8.h", '#include "text/unicode.h"'),
    (circles, "standin/data/data_set.h", '#include "standin/session/session.h"'),
    (crowded_folders, "module/entry/x{}.cpp", ""),
    (foreign_definitions, "module/charts/x.cpp", "int BldatmanOutput::generate()\n{\n}\n"),
    (acquainted_hosts, "examples/other_host/x.h", '#include "text/json_writer.h"'),
    (acquainted_renderers, "report/formats/render_text.cpp", '#include "report/formats/render_html.h"'),
    (platforms_in_passing, "text/x.h", "#ifdef _WIN32"),
]


class Architecture(unittest.TestCase):
    def test_the_project_keeps_every_rule(self):
        files = project()
        self.assertGreater(len(includes(files)), 300)
        for rule in RULES:
            with self.subTest(rule.__name__):
                self.assertEqual(list(rule(files)), [])

    def test_every_rule_notices_when_it_is_broken(self):
        for rule, path, text in BREACHES:
            planted = {path.format(i): text for i in range(MOST_SOURCES + 1)}
            self.assertNotEqual(list(rule(project() | planted)), [], f"{rule.__name__}: {path}")

    def dump(self, option):
        return subprocess.run([OBJDUMP, option, LIBRARY], capture_output=True, text=True, check=True).stdout

    def test_the_library_exports_its_entry_point_and_nothing_else(self):
        if LIBRARY.endswith(".dll"):
            table = self.dump("-p").split("[Ordinal/Name Pointer] Table")[1]
            symbols = re.findall(r"^\t\[ *\d+\] (\w+)$", table, re.MULTILINE)
        else:
            symbols = [line.split()[-1] for line in self.dump("-T").splitlines()
                       if re.match(r"[0-9a-f]+ g.{6} \.", line)]
        self.assertEqual(symbols, ["BLDATMAN"])

    @unittest.skipUnless(LIBRARY.endswith(".dll"), "what another system's library needs is looked at there")
    def test_the_library_needs_the_host_the_run_time_and_the_system_alone(self):
        self.assertEqual(set(re.findall(r"DLL Name: (.*)", self.dump("-p"))),
                         {"standin.dll", "libstdc++-6.dll", "libgcc_s_seh-1.dll", "KERNEL32.dll", "msvcrt.dll"})


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
