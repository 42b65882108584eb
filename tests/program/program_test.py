"""Runs bldatman-run the way a user does: program_test.py PROGRAM MODULE BAD_MODULE

A program for another system runs under the emulator; there gnuplot is missing, and no links or permissions of this
system's kind are kept.
"""

import errno
import json
import os
import pathlib
import re
import resource
import signal
import subprocess
import sys
import tempfile
import unittest

PROGRAM, MODULE, BAD_MODULE = sys.argv[1:4]
EMULATOR = [program for program in [os.environ.get("EMULATOR")] if program]

natively = unittest.skipIf(EMULATOR, "of this system's own kind")
with_gnuplot = unittest.skipIf(EMULATOR, "needs gnuplot")

DATA = "a,b,t\n1,2,x\n3,5,y\n4,4,x\n2,3,\n7,6,x\n"
GOOD = "VARIABLE=a WITH=b PRINT(MEANDIFF)"
REFUSED_SETTINGS = ["Error: get_Subcommand_Global sub-command : ",
                    "BldatmanInputSetting::start: Standard exception: Error encountered while syntax parsing.",
                    "bldatman_entry: Step3 Unknown error occurred."]
NOTHING = "bldatman_entry: Step5 Unknown error occurred."
NO_FILE = os.strerror(errno.ENOENT)


def ended(which="the command", cases="5 cases were"):
    return f"bldatman-run: {which} ended without a document; {cases} read"


class Runner(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.environment = None
        self.write("d.csv", DATA)

    def write(self, name, text):
        (self.folder / name).write_bytes(text.encode())

    def read(self, name):
        return (self.folder / name).read_bytes().decode()

    def files(self, folder="."):
        return sorted(os.listdir(self.folder / folder))

    def run_program(self, *arguments, output=subprocess.PIPE, **options):
        return subprocess.run([*EMULATOR, PROGRAM, *arguments], cwd=self.folder, stdout=output, stderr=subprocess.PIPE,
                              env=self.environment, encoding="utf-8", timeout=60, check=False, **options)

    def expect(self, status, errors, *arguments):
        """The program ends with this status after exactly these lines on standard error; returns its output."""
        result = self.run_program(*arguments)
        self.assertEqual((result.returncode, result.stderr.splitlines()), (status, errors))
        return result.stdout

    def expect_outputs(self, *outputs, command=GOOD, status=0, errors=()):
        """The same of a command over the data whose outputs, traces among them, are files or folders."""
        arguments = [argument for name in outputs for argument in ("--trace" if name.endswith("trace") else "-o", name)]
        self.assertEqual(self.expect(status, list(errors), "d.csv", "-c", command, *arguments), "")

    def expect_nothing_run(self, message, *arguments):
        """The program ends before it runs anything, and writes nothing but a message that begins like this."""
        before = self.files()
        result = self.run_program(*arguments, "--trace", "trace.txt")
        self.assertRegex(result.stderr, "^" + re.escape("bldatman-run: " + message))
        self.assertNotIn("Step", result.stderr)
        self.assertEqual((result.returncode, result.stdout, self.files()), (2, "", before))


class Delivery(Runner):
    def test_writes_every_output_or_prints_a_text(self):
        printed = self.expect(0, [], "d.csv", "-c", f"BLDATMAN {GOOD};")
        self.assertTrue(printed.startswith("Bland-Altman Analysis\n====="), printed)
        self.write("old.json", "replaced")
        self.expect_outputs("x.txt", "old.json", "y.json")
        self.assertEqual(self.files(), ["d.csv", "old.json", "x.txt", "y.json"])
        self.assertEqual(self.read("x.txt"), printed)
        self.assertEqual(self.read("old.json"), self.read("y.json"))

    def test_runs_the_commands_of_a_file_to_the_end(self):
        self.write("c.bld", f"# 3\nBLDATMAN {GOOD};\r\n\r\nBLDATMAN VARIABLE=c\n WITH=b;\nBLDATMAN VARIABLE=b WITH=a;")
        self.expect(1, ['bldatman-run: variable "c" in VARIABLE does not exist',
                        "get_Subcommand_Global: Error during ValidateVariables.", *REFUSED_SETTINGS,
                        ended("command 2 of 3 (c.bld, line 4)")], "d.csv", "-f", "c.bld", "-o", "x.json")
        first, second = [document["objects"] for document in json.loads(self.read("x.json"))["documents"]]
        self.assertEqual((len(first), len(second)), (2, 1))
        self.assertIn("(b-a)", second[0]["name"])

    def test_speaks_the_language_asked_for(self):
        texts = [self.expect(0, [], "d.csv", "-c", GOOD, "-l", code) for code in ("en", "zh-CN", "zh_CN", "xx-YY")]
        self.assertEqual(texts[1], texts[2])
        self.assertNotEqual(texts[0], texts[1])
        self.assertIn("Bland-Altman_Plot_of_Differences (^1-^2)", texts[3])

    def test_reads_the_dictionary(self):
        self.write("v.json", '{"variables": {"a": {"missing": [7]}}}')
        self.assertIn(", 4 points\n", self.expect(0, [], "d.csv", "-c", GOOD, "-d", "v.json"))

    def test_traces_every_host_call_from_the_load_on(self):
        self.expect_outputs("trace", command="VARIABLE=a", status=1, errors=[NOTHING, ended()])
        calls = self.read("trace").splitlines()
        self.assertEqual({call[:5] for call in calls[:22]}, {"pvGet"})
        self.assertEqual(calls[22], 'BpProcedure::BpProcedure\t["BLDATMAN",10]')
        self.assertEqual(calls[-1], "BpProcedure::~BpProcedure\t[]")

    def test_takes_names_in_every_alphabet_and_either_line_end(self):
        self.write("Größe und 測定.csv", "é̈,测定 1\r\n1,2\r\n3,5\r\n4,4\r\n")
        self.write("命令.bld", 'BLDATMAN VARIABLE=é̈ # Anmerkung\r\n  WITH="测定 1"\r\n  PRINT(MEANDIFF);\r\n')
        self.expect(0, [], "Größe und 測定.csv", "-f", "命令.bld", "-o", "отчёт.json", "--trace", "след.txt")
        self.expect(0, [], "Größe und 測定.csv", "-c", 'VARIABLE=é̈ WITH="测定 1" PRINT(MEANDIFF)', "-o", "второй.json")
        self.assertEqual(self.read("отчёт.json"), self.read("второй.json"))
        self.assertIn('"Confidence Intervals of Mean Differences (é̈ and 测定 1)"', self.read("отчёт.json"))
        self.assertNotIn("\r", self.read("след.txt"))
        self.expect_nothing_run("ничего.csv: cannot be read: ", "ничего.csv", "-c", GOOD)


class Plots(Runner):
    NAMES = ["1-Bland-Altman-Plot-of-Differences-a-b.svg", "2-Bland-Altman-Plot-of-Ratios-a-b.svg"]

    @with_gnuplot
    def test_are_in_the_report(self):
        self.expect(0, [], "d.csv", "-c", GOOD + " PLOT(RATIO)", "-l", "de", "-o", "x.html")
        report = self.read("x.html")
        self.assertTrue(report.startswith('<!DOCTYPE html>\n<html lang="de">'))
        self.assertEqual((report.count("<svg "), report.count("<circle "), report.count("<table>")), (2, 10, 1))

    @staticmethod
    def points_of(drawing):
        """Where the points are, from left to right and from the bottom up."""
        return sorted((float(x), -float(y)) for x, y in re.findall(r'<circle cx="([\d.]+)" cy="([\d.]+)"', drawing))

    @staticmethod
    def lines_of(drawing):
        """Colour and height of each line across the plot, which ends further right than those of legend and axes."""
        lines = re.findall(r'<path stroke="([^"]+)"[^>]* d="M[\d.]+,([\d.]+) L4\d\d\.\d+,\2 ', drawing)
        return [(colour, -float(y)) for colour, y in lines]

    @with_gnuplot
    def test_show_what_the_document_says(self):
        self.expect_outputs("x.json", "./", command="VARIABLE=a WITH=b PLOT(RATIO AGREEMENT_LIMITS=CI CI_MEANDIFF)")
        for name, graph in zip(self.NAMES, json.loads(self.read("x.json"))["documents"][0]["objects"]):
            drawing, data = self.read(name), graph["data"]
            levels = [data[level][0] for level in "y2 y1 y3 y5 y4 y6 y8 y7 y9".split()]
            values = [y for _, y in sorted(zip(data["xdata"], data["ydata"]))] + levels
            heights = [height for _, height in self.points_of(drawing) + self.lines_of(drawing)]
            # They lie on one scale, and have two decimals.
            self.assertEqual(len(heights), len(values))
            (least, bottom), (largest, top) = min(zip(values, heights)), max(zip(values, heights))
            unit = (top - bottom) / (largest - least)
            for value, height in zip(values, heights):
                self.assertAlmostEqual(height, bottom + unit * (value - least), delta=0.021)

    @with_gnuplot
    def test_that_overlap_stand_side_by_side(self):
        self.write("d.csv", "a,b\n" + 3 * "1,2\n" + "3,5\n")
        self.expect_outputs("./", command="VARIABLE=a WITH=b")
        (left, _), (middle, _), (right, _) = self.points_of(self.read(self.NAMES[0]))[:3]
        self.assertAlmostEqual(middle - left, right - middle, delta=0.021)
        self.assertGreater(right - middle, 5)

    @with_gnuplot
    def test_are_files_of_their_own_in_a_folder(self):
        self.write("kept.svg", "as it was")
        for _ in range(2):
            self.expect_outputs("new/plots/", "./", command=GOOD + " PLOT(RATIO)")
            self.assertEqual(self.files("new/plots"), self.NAMES)
        self.assertEqual(self.files(), [*self.NAMES, "d.csv", "kept.svg", "new"])
        self.assertEqual(self.read("kept.svg"), "as it was")

    @with_gnuplot
    def test_have_names_that_every_system_takes(self):
        self.write("d.csv", '../x/\\:*?,"<a>|\n",' + 300 * "é" + "\n1,2,3\n3,5,4\n4,4,4\n")
        self.expect_outputs("plots/", command=f'VARIABLE="../x/\\:*?" WITH="<a>|\n" {300 * "é"}')
        first, second = self.files("plots")
        self.assertEqual(first, "1-Bland-Altman-Plot-of-Differences-x-a.svg")
        self.assertTrue(second.startswith("2-Bland-Altman-Plot-of-Differences-x-éé") and len(second.encode()) < 200)

    def test_that_cannot_be_drawn_leave_the_report_whole(self):
        before = self.expect(0, [], "d.csv", "-c", GOOD)
        self.environment = None if EMULATOR else {"PATH": str(self.folder)}
        self.expect_outputs("x.html", "x.txt")
        self.assertEqual(self.read("x.txt"), before)
        self.assertIn("This plot cannot be drawn: gnuplot is not installed.", self.read("x.html"))
        self.expect_outputs("plots/", status=3, errors=[
            f"bldatman-run: plots/{self.NAMES[0]}: cannot be drawn: gnuplot is not installed"])
        self.expect_outputs("none.html", "none/", command="VARIABLE=a", status=1, errors=[NOTHING, ended()])
        self.assertEqual(self.files(), ["d.csv", "x.html", "x.txt"])

    @with_gnuplot
    def test_that_gnuplot_does_not_draw_say_what_it_said(self):
        self.environment = {"PATH": f"{self.folder}:/usr/bin:/bin"}
        for program, reason in (("echo 'line 3: out of ink' >&2", "gnuplot says: out of ink"),
                                ("kill -9 $$", "gnuplot drew nothing"), ("echo '<svg'", "gnuplot drew nothing")):
            self.write("gnuplot", f"#!/bin/sh\n{program}\n")
            (self.folder / "gnuplot").chmod(0o755)
            self.expect_outputs("x.html", command=GOOD + " PLOT(RATIO)")
            self.assertEqual(re.findall("This plot cannot be drawn: (.*?)[.]", self.read("x.html")),
                             [reason, "gnuplot drew nothing"])

    @with_gnuplot
    def test_keep_their_colours_whatever_else_is_drawn(self):
        colours = set()
        for keywords in ("", "REFLINE AGREEMENT_LIMITS"):
            self.expect_outputs("./", command=f"VARIABLE=a WITH=b PLOT({keywords})")
            colours.add(self.lines_of(self.read(self.NAMES[0]))[-1][0])
        self.assertEqual(len(colours), 1)


class Refusal(Runner):
    def test_of_a_command_tells_why_and_writes_nothing(self):
        reason = ('is not numeric: line 2 of the data holds "x"; correct it, or leave the cell empty where a value is '
                  "missing")
        self.write("kept.json", "as it was")
        for command, errors in {
                "VARIABLE=A WITH=b": [
                    'bldatman-run: variable "A" in VARIABLE does not exist; did you mean "a"?',
                    "get_Subcommand_Global: Error during ValidateVariables.", *REFUSED_SETTINGS],
                "VARIABLE=a t": [f'bldatman-run: variable "t" in VARIABLE {reason}',
                                 "get_Subcommand_Global: variable.GetMeasurementLevel(). 1", *REFUSED_SETTINGS],
                "VARIABLE=a WITH=t": [f'bldatman-run: variable "t" in WITH {reason}', *REFUSED_SETTINGS],
                "VARIABLE=a WITH=b\n PRNIT(MEANDIFF)": [
                    'bldatman-run: line 2, column 2: found "PRNIT", expected one of PRINT, PAIRED, CRITERIA, PLOT',
                    "     PRNIT(MEANDIFF)", "     ^", "bldatman_entry: Step2 Unknown error occurred."],
                "VARIABLE=a b PAIRED=YES": [NOTHING]}.items():
            self.expect_outputs("kept.json", command=command, status=1, errors=[*errors, ended()])
            self.assertEqual(self.read("kept.json"), "as it was")

    def test_of_too_few_cases(self):
        self.write("d.csv", "a,b\n1,2\n")
        self.expect_outputs("x.txt", status=1, errors=[
            "BLDATMAN: Standard exception: Error in function boost::math::students_t_distribution<double>::"
            "students_t_distribution: Degrees of freedom argument is 0, but must be > 0 !", ended(cases="1 case was")])
        self.write("d.csv", "a,b\n")
        self.expect_outputs("x.txt", status=1, errors=[NOTHING, ended(cases="0 cases were")])


class BadInput(Runner):
    def test_is_refused_before_anything_runs(self):
        self.write("ragged.csv", "a,b\n1,2\n1\n")
        self.write("open.bld", f"BLDATMAN {GOOD};\nBLDATMAN VARIABLE=a")
        self.write("unknown.json", '{"variables": {"z": {}}}')
        good = ["d.csv", "-c", GOOD]
        folder, name = os.path.split(MODULE)
        host = os.path.join(folder, name.replace("bldatman", "standin"))
        for message, arguments in [
                ("there is no command", ["d.csv"]),
                ("DATA.csv is required", ["-c", GOOD]),
                ("--command excludes --command-file", [*good, "-f", "c.bld"]),
                ("The following argument was not expected: --page", [*good, "--page"]),
                ("x.png: the name of an output must end in .html, .json, .txt or / (a folder for the plots)",
                 [*good, "-o", "x.png"]),
                (f"none.csv: cannot be read: {NO_FILE}", ["none.csv", "-c", GOOD]),
                (f"none.bld: cannot be read: {NO_FILE}", ["d.csv", "-f", "none.bld"]),
                (f"none.json: cannot be read: {NO_FILE}", [*good, "-d", "none.json"]),
                (".: cannot be read: it is a folder", [".", "-c", GOOD]),
                ("ragged.csv:3: this row has 1 cell", ["ragged.csv", "-c", GOOD]),
                ("open.bld:2: the command that begins here is not closed", ["d.csv", "-f", "open.bld"]),
                ("unknown.json", [*good, "-d", "unknown.json"]),
                ("the module cannot be loaded: ", [*good, "--module", "none.so"]),
                ("the module cannot be loaded: ", [*good, "--module", "d.csv"]),
                (f"the module cannot be used: {host} does not export BLDATMAN", [*good, "--module", host])]:
            self.expect_nothing_run(message, *arguments)
        self.expect(0, [], *good, "--module", MODULE)

    @natively
    def test_may_be_data_that_shrink_while_they_are_read(self):
        path = self.folder / "large.csv"
        with open(path, "wb") as file:
            file.truncate(1 << 28)
        with subprocess.Popen([PROGRAM, "large.csv", "-c", GOOD, "-o", "x.txt"], cwd=self.folder, encoding="utf-8",
                              stderr=subprocess.PIPE) as process:
            while not self.is_reading(process, path):
                self.assertIsNone(process.poll())
            process.send_signal(signal.SIGSTOP)
            os.truncate(path, 1000)
            process.send_signal(signal.SIGCONT)
            self.assertEqual(process.communicate(timeout=60)[1],
                             "bldatman-run: large.csv: was changed while it was read\n")
        self.assertEqual((process.returncode, self.files()), (2, ["d.csv", "large.csv"]))

    @staticmethod
    def is_reading(process, path):
        """True once some of the file has been read."""
        for link in pathlib.Path(f"/proc/{process.pid}/fd").iterdir():
            try:
                if link.readlink() == path:
                    return int(pathlib.Path(str(link).replace("/fd/", "/fdinfo/")).read_text("ascii").split()[1]) > 0
            except FileNotFoundError:
                pass
        return False


class BrokenContract(Runner):
    def test_of_whatever_rule_ends_the_run_and_names_the_operation(self):
        self.write("two.csv", "a,b\n1,2\n3,4\n")
        breaking = ("two.csv", "-c", GOOD, "--module", BAD_MODULE)
        self.environment = {**os.environ, "BLDATMAN_BREACH": "?"}
        rules = [line.split("\t") for line in self.run_program(*breaking).stdout.splitlines()]
        self.assertGreater(len(rules), 30)
        for self.environment["BLDATMAN_BREACH"], error in rules:
            result = self.run_program(*breaking)
            self.assertEqual(result.stderr.splitlines()[-1], f"bldatman-run: the module broke the host's contract: {error}")
            self.assertEqual((result.returncode, result.stdout), (4, ""), error)

    def test_ends_the_run_and_writes_nothing(self):
        self.write("c.bld", f"BLDATMAN {GOOD};\nBLDATMAN {GOOD};")
        self.expect(4, [ended("command 1 of 2 (c.bld, line 1)"),
                        "bldatman-run: the module broke the host's contract: OLang: a host object is still alive after "
                        "the command"], "d.csv", "-f", "c.bld", "--module", BAD_MODULE, "-o", "x.txt")
        self.assertEqual(self.files(), ["c.bld", "d.csv"])


class Locale(Runner):
    @natively
    def test_with_a_decimal_comma_changes_nothing(self):
        written = []
        for environment in ({}, {"LC_ALL": "de_DE.UTF-8"}):
            self.environment = {**os.environ, **environment}
            subprocess.run([sys.executable, "-c", "import locale; locale.setlocale(locale.LC_ALL, '')"],
                           env=self.environment, check=True)  # there is such a locale
            self.expect_outputs("x.json", "x.txt", "x.html", "./", command=GOOD + " PLOT(RATIO AGREEMENT_LIMITS)")
            written.append({name: self.read(name) for name in self.files()})
        self.assertEqual(written[0], written[1])


class Output(Runner):
    def test_that_cannot_be_written_leaves_the_others_and_no_partial_file(self):
        (self.folder / "folder.json").mkdir()
        self.expect_outputs("none/x.json", "folder.json", "x.txt", "none/trace", status=3, errors=[
            f"bldatman-run: none/trace: cannot be written: {NO_FILE}",
            f"bldatman-run: none/x.json: cannot be written: {NO_FILE}",
            "bldatman-run: folder.json: cannot be written: it is not a file"])
        self.assertEqual((self.files(), self.files("folder.json")), (["d.csv", "folder.json", "x.txt"], []))

    def test_that_cannot_be_written_counts_for_more_than_a_command_without_a_document(self):
        self.expect_outputs("none/trace", command="VARIABLE=a", status=3, errors=[
            f"bldatman-run: none/trace: cannot be written: {NO_FILE}", NOTHING, ended()])

    @natively
    def test_may_have_a_name_that_cannot_even_be_looked_at(self):
        name = 300 * "x" + ".json"
        self.expect_outputs(name, "d.csv/", "trace", status=3, errors=[
            f"bldatman-run: {name}: cannot be written: {os.strerror(errno.ENAMETOOLONG)}",
            f"bldatman-run: d.csv/: cannot be made: {os.strerror(errno.EEXIST)}"])
        self.assertEqual(self.files(), ["d.csv", "trace"])

    @natively
    def test_cannot_go_where_there_is_no_room_or_no_entry(self):
        def fill_the_disk():
            """As good as full: no file may grow beyond so many bytes."""
            signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
            resource.setrlimit(resource.RLIMIT_FSIZE, (100, 100))

        closed = pathlib.Path("/proc") if os.geteuid() == 0 else self.folder / "closed"
        closed.mkdir(0o500, exist_ok=True)
        for output, prepare in [("x.json", fill_the_disk), ("x.txt", fill_the_disk), ("x.html", fill_the_disk),
                                ("plots/", fill_the_disk), (f"{closed}/x.txt", None), (f"{closed}/plots/", None)]:
            result = self.run_program("d.csv", "-c", GOOD, "-o", output, preexec_fn=prepare, restore_signals=False)
            self.assertRegex(result.stderr, f"^bldatman-run: {output}.*: cannot be (written|drawn|made): .+\n$")
            self.assertEqual(result.returncode, 3, output)
            self.assertEqual([name for _, _, names in os.walk(self.folder) for name in names], ["d.csv"])

    def test_would_be_an_input_or_another_output(self):
        self.write("c.txt", f"BLDATMAN {GOOD};")
        self.write("m.json", "{}")
        before = self.files()
        for arguments in [["-f", "c.txt", "-o", "./c.txt"], ["-c", GOOD, "-d", "m.json", "-o", "m.json"],
                          ["-c", GOOD, "--trace", "d.csv"], ["-c", GOOD, "-o", "x.txt", "--trace", "./x.txt"],
                          *([["-c", GOOD, "-o", "x.txt", "--trace", "X.TXT"]] if EMULATOR else [])]:
            result = self.run_program("d.csv", *arguments)
            self.assertTrue(result.stderr.startswith(f"bldatman-run: {arguments[-1]}: would be written over "))
            self.assertEqual((result.returncode, self.files(), self.read("d.csv")), (2, before, DATA))

    @natively
    def test_keeps_a_link_a_link_and_the_permissions_of_the_file_that_it_replaces(self):
        link, target = self.folder / "link.json", self.folder / "target.json"
        link.symlink_to("target.json")
        self.expect_outputs("link.json")
        target.chmod(0o600)
        self.expect_outputs("link.json")
        self.assertEqual(self.files(), ["d.csv", "link.json", "target.json"])
        self.assertEqual((link.is_symlink(), target.stat().st_mode & 0o777), (True, 0o600))

    def test_on_a_closed_stream_does_not_end_up_in_another_file(self):
        self.expect_outputs("whole.trace", "x.txt")
        for close, status in ((">&-", 3), ("2>&-", 0)):
            result = subprocess.run(["sh", "-c", f'"$@" {close}', "sh", *EMULATOR, PROGRAM, "d.csv", "-c", GOOD,
                                     "--trace", "t.txt"], cwd=self.folder, capture_output=True, check=False)
            self.assertEqual(result.returncode, status)
            self.assertEqual(self.read("t.txt"), self.read("whole.trace"))

    @unittest.skipUnless(os.path.exists("/dev/full"), "no device that is always full")
    def test_may_be_the_standard_one(self):
        with open("/dev/full", "w", encoding="utf-8") as full:
            for arguments in (["d.csv", "-c", GOOD], ["--help"]):
                result = self.run_program(*arguments, output=full)
                self.assertEqual((result.returncode, result.stderr),
                                 (3, "bldatman-run: the standard output cannot be written\n"))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
