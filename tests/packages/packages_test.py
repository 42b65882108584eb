"""Makes the package of a build, unpacks it elsewhere, and uses what is in it the way a user does.

Called as packages_test.py ROOT BUILD CPACK OBJDUMP. A build for another system gives an archive, and its program runs under
the emulator.
"""

import fnmatch
import glob
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest
import zipfile

ROOT, BUILD = map(pathlib.Path, sys.argv[1:3])
CPACK, OBJDUMP = sys.argv[3:5]

EMULATOR = [program for program in [os.environ.get("EMULATOR")] if program]
FOR_WINDOWS = bool(EMULATOR)
SUFFIX = ".exe" if FOR_WINDOWS else ""
# What the emulator sets up belongs into the build, not into the installed tree.
ENVIRONMENT = {**os.environ, "EMULATOR_PREFIX": str(BUILD / "wine")}

for_windows = unittest.skipUnless(FOR_WINDOWS, "of the archive for Windows")
for_debian = unittest.skipIf(FOR_WINDOWS, "of the package for Debian")


def output_of(*command, folder=None):
    result = subprocess.run(list(map(str, command)), cwd=folder, env=ENVIRONMENT, capture_output=True, encoding="utf-8",
                            check=False)
    if result.returncode != 0:
        raise AssertionError(f"{command} ended with {result.returncode}:\n{result.stdout}{result.stderr}")
    return result.stdout


def files_below(folder):
    """The names of all files, with a star where one is to be run; what is unpacked for Windows has no such mark."""
    def mark(path):
        return "*" if path.stat().st_mode & 0o100 and not FOR_WINDOWS else ""

    return {str(path.relative_to(folder)) + mark(path) for path in folder.rglob("*") if path.is_file()}


class Package(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        work = tempfile.TemporaryDirectory(prefix="bldatman größer ")
        cls.addClassCleanup(work.cleanup)
        cls.work = pathlib.Path(work.name)
        subprocess.run([CPACK, "--config", BUILD / "CPackConfig.cmake", "-B", cls.work / "made"], check=True,
                       stdout=subprocess.DEVNULL)
        cls.package, = glob.glob(str(cls.work / "made" / ("*.zip" if FOR_WINDOWS else "*.deb")))
        cls.tree = (cls.unpack if FOR_WINDOWS else cls.install_into_empty_root)()

    @classmethod
    def unpack(cls):
        """The one folder in the archive."""
        with zipfile.ZipFile(cls.package) as archive:
            archive.extractall(cls.work / "unpacked")
        tree, = (cls.work / "unpacked").iterdir()
        return tree

    @classmethod
    def install_into_empty_root(cls):
        """Where the package manager puts the tree; in a root without packages it has to leave dependencies alone."""
        root = cls.work / "root"
        for folder in ("info", "updates"):
            (root / "var/lib/dpkg" / folder).mkdir(parents=True)
        (root / "var/lib/dpkg/status").touch()
        subprocess.run(["dpkg", f"--root={root}", "--force-not-root", "--force-depends", "--log=/dev/null", "-i",
                        cls.package], check=True, capture_output=True, env={**os.environ, "LC_ALL": "C"})
        return root / "usr"

    def program(self):
        return [*EMULATOR, self.tree / "bin" / f"bldatman-run{SUFFIX}"]

    def documents(self):
        return self.tree if FOR_WINDOWS else self.tree / "share" / "doc" / "bldatman"

    def library(self):
        name = "bin/bldatman.dll" if FOR_WINDOWS else "lib/*/bldatman/libbldatman.so"
        path, = self.tree.glob(name)
        return path

    def version(self):
        return re.search(r"project\(bldatman VERSION ([\d.]+)", (ROOT / "CMakeLists.txt").read_text(encoding="utf-8"))[1]

    def test_runs_the_demo_with_what_is_in_it_alone(self):
        examples = self.documents() / "examples"
        out = self.work / "out"
        out.mkdir()
        outputs = [argument for name in ("full.txt", "full.json", "full.html")
                   for argument in ("-o", os.path.relpath(out / name, examples))]
        output_of(*self.program(), "peakflow.csv", "-f", "full.bld", "-d", "peakflow.json", *outputs, folder=examples)
        for name in ("full.txt", "full.json"):
            self.assertEqual((out / name).read_bytes(), (ROOT / "tests" / "stored" / name).read_bytes(), name)
        self.assertTrue((out / "full.html").read_bytes().startswith(b"<!DOCTYPE html>"))

        library = self.library()
        kept = library.with_suffix(".kept")
        library.rename(kept)
        self.addCleanup(kept.rename, library)
        with self.assertRaisesRegex(AssertionError, "ended with 2:\nbldatman-run: the module cannot be loaded: "):
            output_of(*self.program(), "peakflow.csv", "-f", "full.bld", folder=examples)

    def test_is_what_an_installation_without_it_lays_out(self):
        prefix = self.work / "prefix"
        output_of("cmake", "--install", BUILD, "--prefix", prefix, "--strip")
        self.assertEqual(files_below(self.tree), files_below(prefix))

    def test_has_one_version(self):
        self.assertEqual(output_of(*self.program(), "--version"), f"bldatman-run {self.version()}\n")
        self.assertIn(self.version(), os.path.basename(self.package))
        changes = (self.documents() / "CHANGELOG.md").read_text(encoding="utf-8")
        self.assertEqual(re.search(r"^## ([\d.]+)", changes, re.MULTILINE)[1], self.version())

    def test_has_documents_whose_links_lead_somewhere(self):
        links = 0
        for document in self.documents().rglob("*.md"):
            for link in re.findall(r'\]\((?!http)([^)#]+)[^)]*\)|src="([^"]+)"', document.read_text(encoding="utf-8")):
                self.assertTrue((document.parent / (link[0] or link[1])).exists(), f"{document.name}: {link}")
                links += 1
        self.assertGreater(links, 5)

    @for_windows
    def test_holds_every_library_that_the_programs_need_but_the_system_s(self):
        present = {path.name.lower() for path in (self.tree / "bin").iterdir()}
        system = {"kernel32.dll", "msvcrt.dll", "shell32.dll", "user32.dll", "advapi32.dll"}
        for path in (self.tree / "bin").iterdir():
            needed = {name.lower() for name in re.findall("DLL Name: (.*)", output_of(OBJDUMP, "-p", path))}
            self.assertLessEqual(needed, present | system, path.name)

    @for_debian
    def test_can_be_installed_here(self):
        self.assertIn("\nInst bldatman ", output_of("apt-get", "install", "--simulate", self.package))
        fields = output_of("dpkg-deb", "--field", self.package)
        self.assertRegex(fields, r"(?m)^Depends:.* libc6 \(.* libstdc\+\+6 ")
        self.assertRegex(fields, r"(?m)^Recommends: gnuplot")
        self.assertEqual(output_of("dpkg-deb", "--info", self.package).count("#!"), 0)

    @for_debian
    def test_leads_to_its_own_libraries(self):
        for name, place in (("bin/bldatman-run", "$ORIGIN/../lib/*/bldatman"), ("lib/*/bldatman/*.so", "$ORIGIN")):
            files = list(self.tree.glob(name))
            self.assertTrue(files)
            for path in files:
                found, = re.findall(r"RUNPATH +(.*)", output_of(OBJDUMP, "-p", path))
                self.assertTrue(fnmatch.fnmatchcase(found, place), f"{path}: {found}")

    @for_debian
    def test_tells_every_option_in_the_manual_and_completes_it(self):
        options = re.findall(r"^  ((?:-\w,)?--[a-z-]+)", output_of(*self.program(), "--help"), re.MULTILINE)
        self.assertGreater(len(options), 6)
        names = {name for option in options for name in option.split(",")}
        manual = (self.tree / "share/man/man1/bldatman-run.1").read_text(encoding="utf-8").replace("\\-", "-")
        self.assertIn(f'"bldatman {self.version()}"', manual)
        told = re.findall(r'^\.BR? (-[^\\\n]*)', manual, re.MULTILINE)
        self.assertEqual({name for line in told for name in re.findall(r"-[a-z-]+", line)}, names)
        self.assertEqual(set(self.completions("-")), names)

    @for_debian
    def test_completes_what_follows_an_option(self):
        for name in ("data.csv", "commands.bld", "names.json", "sub/other.csv"):
            (self.work / "typed" / name).parent.mkdir(exist_ok=True, parents=True)
            (self.work / "typed" / name).touch()
        languages = re.search(r"unless given: (.*?)-l pt_BR", output_of(*self.program(), "--help"), re.DOTALL)[1]
        codes = re.findall(r"(?:^|, )([a-z]{2}(?:_[A-Z]{2})?) ", re.sub(r"\s+", " ", languages))
        self.assertEqual(len(codes), 11)
        for words, expected in {("-l", ""): codes, ("--language", "=", "zh"): ["zh_CN", "zh_TW"],
                                ("",): ["data.csv", "sub"], ("sub/",): ["sub/other.csv"], ("-f", "c"): ["commands.bld"],
                                ("x.csv", "-d", "n"): ["names.json"], ("-c", ""): [], ("--dic",): ["--dictionary"],
                                ("-o", "na"): ["names.json"]}.items():
            self.assertEqual(sorted(self.completions(*words)), sorted(expected), words)

    def completions(self, *words):
        script = self.tree / "share/bash-completion/completions/bldatman-run"
        folder = self.work / "typed"
        folder.mkdir(exist_ok=True)
        return output_of("bash", "-c", 'source "$0"; COMP_WORDS=(bldatman-run "$@"); COMP_CWORD=$#; _bldatman_run; '
                         'for reply in "${COMPREPLY[@]}"; do echo "$reply"; done', script, *words,
                         folder=folder).splitlines()


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
