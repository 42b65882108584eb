"""Runs bldatman-run the way a user does: runner_test.py PROGRAM MODULE BAD_MODULE

A program for another system runs under the emulator; there gnuplot is missing, and no links or permissions of this
system's kind are kept.
"""

import errno
import glob
import json
import os
import re
import resource
import signal
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree

PROGRAM, MODULE, BAD_MODULE = sys.argv[1:4]
EMULATOR = [program for program in [os.environ.get("EMULATOR")] if program]

natively = unittest.skipIf(EMULATOR, "of this system's own kind")
with_gnuplot = unittest.skipIf(EMULATOR, "needs gnuplot")

DATA = "a,b,t\n1,2,x\n3,5,y\n4,4,x\n2,3,\n7,6,x\n"
GOOD = "VARIABLE=a WITH=b PRINT(MEANDIFF)"
GETTERS = ("CmnBpr CmaDic CmaGlb CmaMch CmaObv CmaSym CmaSys CmnDic CmnDmo CmnGlb CmnInc CmnIo CmnLoc CmnMch CmnMcs "
           "CmnObv CmnStk CmnSym CmnSys CmnWrk CmnDtm CmnBox").split()
REFUSED_SETTINGS = ["Error: get_Subcommand_Global sub-command : ",
                    "BldatmanInputSetting::start: Standard exception: Error encountered while syntax parsing.",
                    "bldatman_entry: Step3 Unknown error occurred."]
SVG = "{http://www.w3.org/2000/svg}"


def ended(which="the command", cases=5):
    read = "1 case was read" if cases == 1 else f"{cases} cases were read"
    return f"bldatman-run: {which} ended without a document; {read}"


class Runner(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        self.environment = None
        self.write("d.csv", DATA)

    def write(self, name, text):
        with open(os.path.join(self.folder, name), "w", encoding="utf-8", newline="") as file:
            file.write(text)

    def read(self, name):
        with open(os.path.join(self.folder, name), encoding="utf-8", newline="") as file:
            return file.read()

    def files(self):
        return sorted(os.listdir(self.folder))

    def run_program(self, *arguments, output=subprocess.PIPE):
        return subprocess.run([*EMULATOR, PROGRAM, *arguments], cwd=self.folder, stdout=output, stderr=subprocess.PIPE,
                              env=self.environment, encoding="utf-8", timeout=60, check=False)

    def expect(self, status, errors, *arguments):
        """The program ends with this status after exactly these lines on standard error; returns its output."""
        result = self.run_program(*arguments)
        self.assertEqual(result.stderr.splitlines(), errors)
        self.assertEqual(result.returncode, status)
        return result.stdout

    def expect_nothing_run(self, message, *arguments):
        before = self.files()
        result = self.run_program(*arguments, "--trace", "trace.txt")
        self.assertEqual(result.returncode, 2, result.stderr)
        self.assertTrue(result.stderr.startswith("bldatman-run: " + message), result.stderr)
        self.assertNotIn("Step", result.stderr)
        self.assertEqual(result.stdout, "")
        self.assertEqual(self.files(), before)


class Delivery(Runner):
    def test_writes_text_unless_told_otherwise(self):
        text = self.expect(0, [], "d.csv", "-c", "BLDATMAN " + GOOD + ";")
        self.assertTrue(text.startswith("Bland-Altman Analysis\n====="), text)
        self.assertIn("Confidence Intervals of Mean Differences (a and b)\n", text)

    def test_writes_every_output(self):
        printed = self.expect(0, [], "d.csv", "-c", GOOD)
        self.write("old.json", "replaced")
        silent = self.expect(0, [], "-o", "x.txt", "d.csv", "-o", "old.json", "-c", GOOD, "-o", "y.json")
        self.assertEqual(silent, "")
        self.assertEqual(self.files(), ["d.csv", "old.json", "x.txt", "y.json"])
        self.assertEqual(self.read("x.txt"), printed)
        self.assertEqual(self.read("old.json"), self.read("y.json"))
        documents = json.loads(self.read("y.json"))["documents"]
        self.assertEqual([list(document) for document in documents], [["title", "objects"]])

    def test_runs_the_commands_of_a_file_to_the_end(self):
        self.write("c.bld", f"# 3\nBLDATMAN {GOOD};\r\n\r\nBLDATMAN VARIABLE=c\n WITH=b;\nBLDATMAN VARIABLE=b WITH=a;")
        self.expect(1, ['bldatman-run: variable "c" in VARIABLE does not exist',
                        "get_Subcommand_Global: Error during ValidateVariables.", *REFUSED_SETTINGS,
                        ended("command 2 of 3 (c.bld, line 4)")], "d.csv", "-f", "c.bld", "-o", "x.json")
        names = [[entry["name"] for entry in document["objects"]] for document in
                 json.loads(self.read("x.json"))["documents"]]
        self.assertEqual([len(objects) for objects in names], [2, 1])
        self.assertIn("(b-a)", names[1][0])

    def test_speaks_the_language_asked_for(self):
        texts = [self.expect(0, [], "d.csv", "-c", GOOD, "-l", code) for code in ("en", "zh-CN", "zh_CN", "xx-YY")]
        self.assertEqual(texts[1], texts[2])
        self.assertNotEqual(texts[0], texts[1])
        self.assertIn("Bland-Altman_Plot_of_Differences (^1-^2)", texts[3])

    def test_reads_the_dictionary(self):
        self.write("v.json", '{"variables": {"a": {"missing": [7]}}}')
        self.assertIn(", 4 points\n", self.expect(0, [], "d.csv", "-c", GOOD, "-d", "v.json"))

    def test_traces_every_host_call_from_the_load_on(self):
        self.expect(1, ["bldatman_entry: Step5 Unknown error occurred.", ended()], "d.csv", "-c", "VARIABLE=a",
                    "--trace", "t.txt")
        lines = self.read("t.txt").splitlines()
        self.assertEqual(lines[:23], [f"pvGet{getter}\t[]" for getter in GETTERS] +
                         ['BpProcedure::BpProcedure\t["BLDATMAN",10]'])
        self.assertEqual(lines[-1], "BpProcedure::~BpProcedure\t[]")

    def test_takes_names_in_every_alphabet_and_either_line_end(self):
        self.write("Größe und 測定.csv", "é̈,测定 1\r\n1,2\r\n3,5\r\n4,4\r\n")
        self.write("命令.bld", 'BLDATMAN VARIABLE=é̈ # Anmerkung\r\n  WITH="测定 1"\r\n  PRINT(MEANDIFF);\r\n')
        self.expect(0, [], "Größe und 測定.csv", "-f", "命令.bld", "-o", "отчёт.json", "--trace", "след.txt")
        self.expect(0, [], "Größe und 測定.csv", "-c", 'VARIABLE=é̈ WITH="测定 1" PRINT(MEANDIFF)', "-o", "второй.json")
        self.assertEqual(self.read("отчёт.json"), self.read("второй.json"))
        self.assertIn('"Confidence Intervals of Mean Differences (é̈ and 测定 1)"', self.read("отчёт.json"))
        self.assertNotIn("\r", self.read("след.txt"))
        self.expect_nothing_run("ничего.csv: cannot be read: ", "ничего.csv", "-c", GOOD)

    def test_tells_its_version_and_its_options(self):
        self.assertRegex(self.expect(0, [], "--version"), r"^bldatman-run \d+\.\d+\.\d+\n$")
        self.assertIn("--command-file", self.expect(0, [], "--help"))


class Plots(Runner):
    NAMES = ["1-Bland-Altman-Plot-of-Differences-a-b.svg", "2-Bland-Altman-Plot-of-Ratios-a-b.svg"]

    @with_gnuplot
    def test_are_in_the_report(self):
        self.expect(0, [], "d.csv", "-c", GOOD + " PLOT(RATIO)", "-l", "de", "-o", "x.html")
        report = self.read("x.html")
        self.assertTrue(report.startswith('<!DOCTYPE html>\n<html lang="de">'))
        self.assertEqual((report.count("<svg "), report.count("<circle "), report.count("<table>")), (2, 10, 1))

    @with_gnuplot
    def test_show_what_the_document_says(self):
        self.expect(0, [], "d.csv", "-c", "VARIABLE=a WITH=b PLOT(RATIO REFLINE AGREEMENT_LIMITS=CI CI_MEANDIFF)",
                    "-o", "x.json", "-o", "./")
        for name, graph in zip(self.NAMES, json.loads(self.read("x.json"))["documents"][0]["objects"]):
            picture, data = self.read(name), graph["data"]
            circles = [(float(cx), -float(cy))
                       for cx, cy in re.findall(r'<circle cx="([\d.]+)" cy="([\d.]+)"', picture)]
            # Lines end at the right edge of the plot, those of the legend at its left.
            lines = self.lines_of(picture)
            legend = [line for line in lines if line[3] < 100]
            drawn = [line for line in lines if line[3] > 100]
            order = "y0 y2 y1 y3 y5 y4 y6 y8 y7 y9".split()
            levels = [data[level][0] for level in order]
            self.expect_one_scale([-cy for _, cy in sorted(circles)] + [line[2] for line in drawn],
                                  [y for _, y in sorted(zip(data["xdata"], data["ydata"]))] + levels)
            # The colour tells the legend's text, a dash the bounds of an interval.
            texts = ["cref", "calimits", "crefALimitsCI", "cmean", "cMeanDiffCI"]
            self.assertEqual([line[0] for line in legend], [drawn[i][0] for i in (0, 1, 2, 7, 8)])
            self.assertEqual(len({line[0] for line in legend}), 5)
            self.assertEqual([bool(line[1]) for line in drawn], [level in "y1 y3 y4 y6 y7 y9" for level in order])
            shown = re.findall(r"<text>([^<]*)</text>", picture)
            self.assertEqual([text for text in shown if text in [data[column][0] for column in texts]],
                             [data[column][0] for column in texts])
            self.assertIn(graph["name"], shown)

    @staticmethod
    def lines_of(picture):
        """Colour, dash, height and right end of each line of the plot and of the legend, which are thicker than the frame."""
        lines = []
        for group in xml.etree.ElementTree.fromstring(picture).iter(SVG + "g"):
            for path in group.findall(SVG + "path") if group.get("stroke-width") == "2.00" else []:
                height, end = re.match(r"M[\d.]+,([\d.]+) L([\d.]+),", path.get("d")).groups()
                lines.append((path.get("stroke"), path.get("stroke-dasharray"), float(height), float(end)))
        return lines

    def expect_one_scale(self, heights, values):
        """Heights grow downwards, by the same for each unit of the values; they have two decimals."""
        self.assertEqual(len(heights), len(values))
        (least, bottom), (largest, top) = min(zip(values, heights)), max(zip(values, heights))
        unit = (bottom - top) / (largest - least)
        for height, value in zip(heights, values):
            self.assertAlmostEqual(height, bottom - unit * (value - least), delta=0.021)

    @with_gnuplot
    def test_that_overlap_stand_side_by_side(self):
        self.write("d.csv", "a,b\n" + 3 * "1,2\n" + "3,5\n")
        self.expect(0, [], "d.csv", "-c", "VARIABLE=a WITH=b", "-o", "./")
        circles = re.findall(r'<circle cx="([\d.]+)" cy="([\d.]+)"', self.read(self.NAMES[0]))
        left, middle, right = sorted(float(cx) for cx, cy in circles if cy == circles[0][1])
        self.assertAlmostEqual(middle - left, right - middle, delta=0.021)
        self.assertGreater(right - middle, 5)

    @with_gnuplot
    def test_are_files_of_their_own_in_a_folder(self):
        self.write("kept.svg", "as it was")
        for _ in range(2):
            self.expect(0, [], "d.csv", "-c", GOOD + " PLOT(RATIO)", "-o", "new/plots/", "-o", "./")
            self.assertEqual(sorted(os.listdir(os.path.join(self.folder, "new", "plots"))), self.NAMES)
        self.assertEqual(self.files(), [*self.NAMES, "d.csv", "kept.svg", "new"])
        self.assertEqual(self.read("kept.svg"), "as it was")
        for name in self.NAMES:
            self.assertEqual(xml.etree.ElementTree.parse(os.path.join(self.folder, name)).getroot().tag,
                             SVG + "svg")

    @with_gnuplot
    def test_have_names_that_every_system_takes(self):
        self.write("odd.csv", '../x/\\:*?,"<a>|\n",' + 300 * "é" + "\n1,2,3\n3,5,4\n4,4,4\n")
        self.expect(0, [], "odd.csv", "-c", f'VARIABLE="../x/\\:*?" WITH="<a>|\n" {300 * "é"}', "-o", "plots/")
        first, second = sorted(os.listdir(os.path.join(self.folder, "plots")))
        self.assertEqual(first, "1-Bland-Altman-Plot-of-Differences-x-a.svg")
        self.assertTrue(second.startswith("2-Bland-Altman-Plot-of-Differences-x-éé") and len(second.encode()) < 200)

    def test_that_cannot_be_drawn_leave_the_report_whole(self):
        before = self.expect(0, [], "d.csv", "-c", GOOD)
        self.environment = None if EMULATOR else {"PATH": self.folder}
        self.assertEqual(self.expect(0, [], "d.csv", "-c", GOOD, "-o", "x.html", "-o", "x.txt"), "")
        self.assertEqual(self.read("x.txt"), before)
        self.assertIn("This plot cannot be drawn: gnuplot is not installed.", self.read("x.html"))
        self.expect(3, [f"bldatman-run: plots/{self.NAMES[0]}: cannot be drawn: gnuplot is not installed"], "d.csv", "-c", GOOD, "-o", "plots/")
        self.expect(1, ["bldatman_entry: Step5 Unknown error occurred.", ended()], "d.csv", "-c", "VARIABLE=a",
                    "-o", "none.html", "-o", "none/")
        self.assertEqual(self.files(), ["d.csv", "x.html", "x.txt"])

    @with_gnuplot
    def test_that_gnuplot_does_not_draw_say_what_it_said(self):
        for program, reason in (("echo 'line 3: out of ink' >&2", "gnuplot says: out of ink"),
                                ("kill -9 $$", "gnuplot drew nothing"), ("echo '<svg'", "gnuplot drew nothing")):
            self.write("gnuplot", f"#!/bin/sh\n{program}\n")
            os.chmod(os.path.join(self.folder, "gnuplot"), 0o755)
            self.environment = {"PATH": self.folder + ":/usr/bin:/bin"}
            self.expect(0, [], "d.csv", "-c", GOOD + " PLOT(RATIO)", "-o", "x.html")
            self.assertIn(f"This plot cannot be drawn: {reason}.", self.read("x.html"))
            self.assertEqual(self.read("x.html").count("This plot cannot be drawn: "), 2)

    @with_gnuplot
    def test_keep_their_colours_whatever_else_is_drawn(self):
        def colour_of_mean(*keywords):
            self.expect(0, [], "d.csv", "-c", f"VARIABLE=a WITH=b PLOT({' '.join(keywords)})", "-o", "./")
            return self.lines_of(self.read(self.NAMES[0]))[-1][0]

        self.assertEqual(colour_of_mean(), colour_of_mean("REFLINE", "AGREEMENT_LIMITS"))

    @with_gnuplot
    def test_folder_that_cannot_be_made_is_an_output_that_cannot_be_written(self):
        self.write("file", "as it was")
        self.expect(3, [f"bldatman-run: file/: cannot be made: {os.strerror(errno.EEXIST)}"], "d.csv", "-c", GOOD,
                    "-o", "file/", "-o", "x.txt")
        self.assertEqual(self.read("file"), "as it was")
        self.assertIn("x.txt", self.files())


class Refusal(Runner):
    def expect_refused(self, errors, command, data="d.csv", cases=5):
        self.write("kept.json", "as it was")
        self.assertEqual(self.expect(1, [*errors, ended(cases=cases)], data, "-c", command, "-o", "kept.json"), "")
        self.assertEqual(self.read("kept.json"), "as it was")

    def test_of_an_unknown_variable(self):
        self.expect_refused(['bldatman-run: variable "A" in VARIABLE does not exist; did you mean "a"?',
                             "get_Subcommand_Global: Error during ValidateVariables.", *REFUSED_SETTINGS],
                            "VARIABLE=A WITH=b")

    def test_of_a_variable_that_is_not_scale(self):
        reason = ('is not numeric: line 2 of the data holds "x"; correct it, or leave the cell empty where a value is '
                  "missing")
        self.expect_refused([f'bldatman-run: variable "t" in VARIABLE {reason}',
                             "get_Subcommand_Global: variable.GetMeasurementLevel(). 1", *REFUSED_SETTINGS],
                            "VARIABLE=a t")
        self.expect_refused([f'bldatman-run: variable "t" in WITH {reason}', *REFUSED_SETTINGS], "VARIABLE=a WITH=t")

    def test_by_the_parser(self):
        self.expect_refused(['bldatman-run: line 2, column 2: found "PRNIT", expected one of PRINT, '
                             "PAIRED, CRITERIA, PLOT", "     PRNIT(MEANDIFF)", "     ^",
                             "bldatman_entry: Step2 Unknown error occurred."], "VARIABLE=a WITH=b\n PRNIT(MEANDIFF)")

    def test_of_too_few_cases(self):
        self.write("one.csv", "a,b\n1,2\n")
        self.expect_refused(["BLDATMAN: Standard exception: Error in function "
                             "boost::math::students_t_distribution<double>::students_t_distribution: Degrees of freedom "
                             "argument is 0, but must be > 0 !"], "VARIABLE=a WITH=b PRINT(MEANDIFF)", "one.csv", 1)

    def test_where_there_is_nothing_to_compare(self):
        nothing = ["bldatman_entry: Step5 Unknown error occurred."]
        self.write("empty.csv", "a,b\n")
        self.expect_refused(nothing, GOOD, "empty.csv", 0)
        self.expect_refused(nothing, "VARIABLE=a b PAIRED=YES")


class BadInput(Runner):
    def test_on_the_command_line(self):
        for message, arguments in {
                "there is no command": ["d.csv"],
                "DATA.csv is required": ["-c", GOOD],
                "--command excludes --command-file": ["d.csv", "-c", GOOD, "-f", "c.bld"],
                "The following argument was not expected: --page": ["d.csv", "-c", GOOD, "--page"],
                "x.png: the name of an output must end in .html, .json, .txt or / (a folder for the plots)": ["d.csv", "-c", GOOD, "-o", "x.png"]}.items():
            self.expect_nothing_run(message, *arguments)

    def test_in_a_file(self):
        self.write("ragged.csv", "a,b\n1,2\n1\n")
        self.write("open.bld", f"BLDATMAN {GOOD};\nBLDATMAN VARIABLE=a")
        self.write("unknown.json", '{"variables": {"z": {}}}')
        missing = os.strerror(errno.ENOENT)
        for message, arguments in {
                f"none.csv: cannot be read: {missing}": ["none.csv", "-c", GOOD],
                f"none.bld: cannot be read: {missing}": ["d.csv", "-f", "none.bld"],
                f"none.json: cannot be read: {missing}": ["d.csv", "-c", GOOD, "-d", "none.json"],
                ".: cannot be read: it is a folder": [".", "-c", GOOD],
                "ragged.csv:3: this row has 1 cell": ["ragged.csv", "-c", GOOD],
                "open.bld:2: the command that begins here is not closed": ["d.csv", "-f", "open.bld"],
                "unknown.json": ["d.csv", "-c", GOOD, "-d", "unknown.json"]}.items():
            self.expect_nothing_run(message, *arguments)

    def test_in_place_of_the_library(self):
        folder, name = os.path.split(MODULE)
        without_entry_point = os.path.join(folder, name.replace("bldatman", "standin"))
        for message, library in [
                ("the module cannot be loaded: ", "none.so"), ("the module cannot be loaded: ", "d.csv"),
                (f"the module cannot be used: {without_entry_point} does not export BLDATMAN", without_entry_point)]:
            self.expect_nothing_run(message, "d.csv", "-c", GOOD, "--module", library)
        self.expect(0, [], "d.csv", "-c", GOOD, "--module", MODULE)


class BrokenContract(Runner):
    def run_bad_guest(self, breach):
        self.environment = {**os.environ, "BLDATMAN_BREACH": breach}
        return self.run_program("two.csv", "-c", GOOD, "--module", BAD_MODULE)

    def test_of_whatever_rule_ends_the_run_and_names_the_operation(self):
        self.write("two.csv", "a,b\n1,2\n3,4\n")
        rules = [line.split("\t") for line in self.run_bad_guest("?").stdout.splitlines()]
        self.assertGreater(len(rules), 30)
        for name, error in rules:
            result = self.run_bad_guest(name)
            self.assertEqual(result.stderr.splitlines()[-1], f"bldatman-run: the module broke the host's contract: {error}")
            self.assertEqual((result.returncode, result.stdout), (4, ""), name)

    def test_ends_the_run_and_writes_nothing(self):
        self.write("c.bld", f"BLDATMAN {GOOD};\nBLDATMAN {GOOD};")
        self.expect(4, [ended("command 1 of 2 (c.bld, line 1)"),
                        "bldatman-run: the module broke the host's contract: OLang: a host object is still alive after "
                        "the command"], "d.csv", "-f", "c.bld", "--module", BAD_MODULE, "-o", "x.txt")
        self.assertNotIn("x.txt", self.files())


class HostileSurroundings(Runner):
    def test_bad_row_at_the_end_of_a_million(self):
        self.write("long.csv", "a,b\n" + 1000000 * "1.5,2.25\n" + "1\n")
        self.expect_nothing_run("long.csv:1000002: this row has 1 cell", "long.csv", "-c", GOOD, "-o", "x.json")

    @natively
    def test_data_that_shrink_while_they_are_read(self):
        path = os.path.join(self.folder, "large.csv")
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
        for name in glob.glob(f"/proc/{process.pid}/fd/*"):
            try:
                if os.readlink(name) == path:
                    with open(name.replace("/fd/", "/fdinfo/"), encoding="ascii") as info:
                        return int(info.readline().split()[1]) > 0
            except FileNotFoundError:
                pass
        return False

    @natively
    def test_disk_that_is_full(self):
        def fill_the_disk():
            """As good as full: no file may grow beyond so many bytes."""
            signal.signal(signal.SIGXFSZ, signal.SIG_IGN)
            resource.setrlimit(resource.RLIMIT_FSIZE, (100, 100))

        for output in ("x.json", "x.txt", "x.html", "plots/"):
            result = subprocess.run([PROGRAM, "d.csv", "-c", GOOD, "-o", output], cwd=self.folder,
                                    preexec_fn=fill_the_disk, restore_signals=False, capture_output=True,
                                    encoding="utf-8", check=False)
            self.assertRegex(result.stderr, "^bldatman-run: .*: cannot be (written|drawn): ")
            self.assertEqual(result.returncode, 3, output)
            self.assertEqual([name for _, _, names in os.walk(self.folder) for name in names], ["d.csv"])

    @natively
    def test_folder_that_cannot_be_written_to(self):
        closed = "/proc" if os.geteuid() == 0 else os.path.join(self.folder, "closed")
        if closed != "/proc":
            os.mkdir(closed, 0o500)
        for name in ("x.txt", "plots/"):
            result = self.run_program("d.csv", "-c", GOOD, "-o", os.path.join(closed, name))
            self.assertRegex(result.stderr, f"^bldatman-run: {closed}/{name}: cannot be (written|made): .+\n$")
            self.assertEqual(result.returncode, 3)

    @natively
    def test_locale_with_a_decimal_comma(self):
        outputs = [argument for name in ("x.json", "x.txt", "x.html", "./") for argument in ("-o", name)]
        written = []
        for environment in ({}, {"LC_ALL": "de_DE.UTF-8"}):
            self.environment = {**os.environ, **environment}
            subprocess.run([sys.executable, "-c", "import locale; locale.setlocale(locale.LC_ALL, '')"],
                           env=self.environment, check=True)  # there is such a locale
            self.expect(0, [], "d.csv", "-c", GOOD + " PLOT(RATIO AGREEMENT_LIMITS)", *outputs)
            written.append({name: self.read(name) for name in self.files()})
        self.assertEqual(written[0], written[1])


class UnwritableOutput(Runner):
    def test_leaves_the_other_outputs_and_no_partial_file(self):
        os.mkdir(os.path.join(self.folder, "folder.json"))
        self.expect(3, [f"bldatman-run: none/x.json: cannot be written: {os.strerror(errno.ENOENT)}",
                        "bldatman-run: folder.json: cannot be written: it is not a file"],
                    "d.csv", "-c", GOOD, "-o", "none/x.json", "-o", "folder.json", "-o", "x.txt")
        self.assertEqual(self.files(), ["d.csv", "folder.json", "x.txt"])
        self.assertEqual(os.listdir(os.path.join(self.folder, "folder.json")), [])

    @natively
    def test_may_be_one_that_cannot_even_be_looked_at(self):
        name = 300 * "x" + ".json"
        self.expect(3, [f"bldatman-run: {name}: cannot be written: {os.strerror(errno.ENAMETOOLONG)}"],
                    "d.csv", "-c", GOOD, "-o", name, "--trace", "t.txt")
        self.assertEqual(self.files(), ["d.csv", "t.txt"])

    def test_would_be_an_input_or_another_output(self):
        self.write("c.txt", f"BLDATMAN {GOOD};")
        self.write("m.json", "{}")
        before = self.files()
        for arguments in [["-f", "c.txt", "-o", "./c.txt"], ["-c", GOOD, "-d", "m.json", "-o", "m.json"],
                          ["-c", GOOD, "--trace", "d.csv"], ["-c", GOOD, "-o", "x.txt", "--trace", "./x.txt"]]:
            result = self.run_program("d.csv", *arguments)
            self.assertTrue(result.stderr.startswith(f"bldatman-run: {arguments[-1]}: would be written over "))
            self.assertEqual((result.returncode, self.files(), self.read("d.csv")), (2, before, DATA))

    @unittest.skipUnless(EMULATOR, "letter case tells files apart here")
    def test_would_be_the_same_in_other_letters(self):
        result = self.run_program("d.csv", "-c", GOOD, "-o", "report.txt", "--trace", "REPORT.TXT")
        self.assertTrue(result.stderr.startswith("bldatman-run: REPORT.TXT: would be written over report.txt"))
        self.assertEqual((result.returncode, self.files()), (2, ["d.csv"]))

    @natively
    def test_keeps_the_permissions_of_the_file_that_it_replaces(self):
        self.write("x.json", "old")
        os.chmod(os.path.join(self.folder, "x.json"), 0o600)
        self.expect(0, [], "d.csv", "-c", GOOD, "-o", "x.json")
        self.assertEqual(os.stat(os.path.join(self.folder, "x.json")).st_mode & 0o777, 0o600)

    def test_on_a_closed_stream_does_not_end_up_in_another_file(self):
        whole = ["d.csv", "-c", GOOD, "--trace", "whole.txt", "-o", "x.txt"]
        self.expect(0, [], *whole)
        for close, status in ((">&-", 3), ("2>&-", 0)):
            result = subprocess.run(["sh", "-c", f'"$@" {close}', "sh", *EMULATOR, PROGRAM, "d.csv", "-c", GOOD,
                                     "--trace", "t.txt"], cwd=self.folder, capture_output=True, check=False)
            self.assertEqual(result.returncode, status)
            self.assertEqual(self.read("t.txt"), self.read("whole.txt"))

    @natively
    def test_keeps_a_link_a_link(self):
        os.symlink("target.json", os.path.join(self.folder, "link.json"))
        for _ in range(2):
            self.expect(0, [], "d.csv", "-c", GOOD, "-o", "link.json")
            self.assertEqual(self.files(), ["d.csv", "link.json", "target.json"])
            self.assertTrue(os.path.islink(os.path.join(self.folder, "link.json")))

    def test_counts_for_more_than_a_command_without_a_document(self):
        self.expect(3, [f"bldatman-run: none/t.txt: cannot be written: {os.strerror(errno.ENOENT)}",
                        "bldatman_entry: Step5 Unknown error occurred.", ended()],
                    "d.csv", "-c", "VARIABLE=a", "--trace", "none/t.txt")

    @unittest.skipUnless(os.path.exists("/dev/full"), "no device that is always full")
    def test_may_be_the_standard_one(self):
        with open("/dev/full", "w", encoding="utf-8") as full:
            result = self.run_program("d.csv", "-c", GOOD, output=full)
            told = self.run_program("--help", output=full)
        for ended_with in (result, told):
            self.assertEqual(ended_with.stderr, "bldatman-run: the standard output cannot be written\n")
            self.assertEqual(ended_with.returncode, 3)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
