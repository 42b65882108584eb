"""Looks at what no compiler checks: which folder may include which, and what the built library exports.

Called as architecture_test.py SOURCE_FOLDER LIBRARY OBJDUMP.
"""

import pathlib
import re
import subprocess
import sys
import unittest

ROOT = pathlib.Path(sys.argv[1])
LIBRARY, OBJDUMP = sys.argv[2:4]

# What each folder may include besides itself and host/. `analysis` sees the settings' records; the plots are an
# operation of the output object, defined in charts/, so charts include output and never the other way round.
MAY_INCLUDE = {
    "module/texts": set(),
    "module/data": {"module"},
    "module/syntax": {"module"},
    "module/settings": {"module", "module/data"},
    "module/analysis": {"module", "module/settings"},
    "module/output": {"module", "module/analysis", "module/settings", "module/texts"},
    "module/charts": {"module", "module/output", "module/analysis", "module/settings", "module/texts"},
    "module/entry": {"module", "module/syntax", "module/settings", "module/analysis", "module/output"},
}


def includes_of(folder):
    """Pairs of a file and a path that it includes with quotes."""
    for path in sorted(folder.rglob("*")):
        if path.suffix in {".h", ".cpp"}:
            for included in re.findall(r'^#include "(.+)"', path.read_text(encoding="utf-8"), re.MULTILINE):
                yield path.relative_to(ROOT), included


def room_of(included):
    parts = pathlib.PurePosixPath(included).parts[:-1]
    return "/".join(parts[:2])


class Architecture(unittest.TestCase):
    def test_the_pieces_meet_in_the_contract_alone(self):
        for piece, allowed in (("host", {"host"}), ("module", {"module", "host"}), ("standin", {"standin", "host"})):
            pairs = list(includes_of(ROOT / piece))
            self.assertGreater(len(pairs), 3)
            for path, included in pairs:
                self.assertIn(included.split("/")[0], allowed, f"{path} includes {included}")

    def test_the_arrows_inside_the_module_run_one_way(self):
        folders = {f"module/{path.name}" for path in (ROOT / "module").iterdir() if path.is_dir()}
        self.assertEqual(folders, set(MAY_INCLUDE))
        for folder, allowed in MAY_INCLUDE.items():
            for path, included in includes_of(ROOT / folder):
                if included.startswith("module/"):
                    self.assertIn(room_of(included), allowed | {folder}, f"{path} includes {included}")

    def test_the_renderers_do_not_know_each_other(self):
        for path, included in includes_of(ROOT / "standin" / "render"):
            if path.stem.startswith("render_") and "/render_" in included:
                self.assertEqual(path.stem, pathlib.PurePosixPath(included).stem, f"{path} includes {included}")

    def test_the_platform_shows_in_whole_files_only(self):
        for piece in ("host", "module", "standin", "tests"):
            for path in (ROOT / piece).rglob("*.[ch]*"):
                self.assertNotRegex(path.read_text(encoding="utf-8"), "#if.*(_WIN|MINGW|_MSC|linux|unix|APPLE)", path)

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
