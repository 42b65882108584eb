"""Holds what the example commands write against stored outputs that a person has reviewed.

Called as stored_outputs_test.py PROGRAM EXAMPLES STORED; with --rewrite after them it writes the stored outputs anew, to
be reviewed as a change. Every build writes the same bytes. The plots are those of the version of gnuplot that their
folder is named after; the report for a browser is stored without plots, as it is where gnuplot is missing.
"""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

PROGRAM = sys.argv[1]
EXAMPLES, STORED = map(pathlib.Path, sys.argv[2:4])

EMULATOR = [program for program in [os.environ.get("EMULATOR")] if program]
GNUPLOT = "gnuplot-5.4"


def write(folder, example, *outputs, environment=None):
    """Runs the command; what it could write stands in the folder afterwards."""
    options = [argument for name in outputs for argument in ("-o", os.path.join(folder, name))]
    subprocess.run([*EMULATOR, PROGRAM, EXAMPLES / "peakflow.csv", "-f", EXAMPLES / f"{example}.bld",
                    "-d", EXAMPLES / "peakflow.json", *options], env=environment, check=False)


def write_outputs(folder):
    for example in ("full", "ratios", "repeatability"):
        write(folder, example, f"{example}.txt", f"{example}.json")
    write(folder, "full", GNUPLOT + "/")
    write(folder, "full", "full-without-plots.html", environment=None if EMULATOR else {"PATH": folder})


def contents(folder):
    """The texts of all files in the folder, by their paths."""
    return {str(path.relative_to(folder)): path.read_bytes().decode() for path in folder.rglob("*") if path.is_file()}


def installed_gnuplot():
    """The version that the program under test finds; under an emulator it finds none."""
    if EMULATOR or not shutil.which("gnuplot"):
        return ""
    return "-".join(subprocess.check_output(["gnuplot", "--version"], text=True).split()[:2])


class StoredOutputs(unittest.TestCase):
    maxDiff = None

    def compare(self, concerned):
        with tempfile.TemporaryDirectory() as folder:
            write_outputs(folder)
            written, stored = ({name: text for name, text in contents(place).items() if concerned(name)}
                               for place in (pathlib.Path(folder), STORED))
        self.assertEqual(sorted(written), sorted(stored))
        for name, text in written.items():
            self.assertMultiLineEqual(text, stored[name], name)

    def test_texts_data_and_report_are_what_the_program_writes(self):
        self.compare(lambda name: not name.startswith(GNUPLOT))

    @unittest.skipUnless(installed_gnuplot() == GNUPLOT, "the stored plots are those of " + GNUPLOT)
    def test_plots_are_what_the_program_draws(self):
        self.compare(lambda name: name.startswith(GNUPLOT))


def rewrite():
    with tempfile.TemporaryDirectory() as folder:
        write_outputs(folder)
        shutil.rmtree(STORED, ignore_errors=True)
        shutil.copytree(folder, STORED)


if __name__ == "__main__":
    if sys.argv[4:] == ["--rewrite"]:
        rewrite()
    else:
        unittest.main(argv=sys.argv[:1])
