"""Holds what the example commands write against stored outputs that a person has reviewed.

Called as stored_outputs_test.py PROGRAM EXAMPLES STORED; with --rewrite after them it writes the stored outputs anew, to
be reviewed as a change. Every build writes the same bytes. The pictures are those of the version of gnuplot that their
folder is named after; the report for a browser is stored without pictures, as it is where gnuplot is missing.
"""

import os
import shutil
import subprocess
import sys
import tempfile
import unittest

PROGRAM, EXAMPLES, STORED = sys.argv[1:4]

EMULATOR = [program for program in [os.environ.get("EMULATOR")] if program]
GNUPLOT = "gnuplot-5.4"
OUTPUTS = {"full": ["full.txt", "full.json"], "ratios": ["ratios.txt", "ratios.json"],
           "repeatability": ["repeatability.txt", "repeatability.json"]}
REPORT = "full-without-plots.html"


def write(folder, example, outputs, environment=None):
    """Runs the command; what it could write stands in the folder afterwards."""
    def path(name):
        return os.path.join(EXAMPLES, name)

    options = [argument for name in outputs for argument in ("-o", os.path.join(folder, name))]
    subprocess.run([*EMULATOR, PROGRAM, path("peakflow.csv"), "-f", path(example + ".bld"), "-d", path("peakflow.json"),
                    *options], env=environment, check=False)


def write_outputs(folder):
    for example, outputs in OUTPUTS.items():
        write(folder, example, outputs)
    write(folder, "full", [GNUPLOT + "/"])
    write(folder, "full", [REPORT], None if EMULATOR else {"PATH": folder})


def contents(folder):
    """The texts of all files in the folder, by their names."""
    texts = {}
    for place, _, names in os.walk(folder):
        for name in names:
            path = os.path.join(place, name)
            with open(path, encoding="utf-8", newline="") as file:
                texts[os.path.relpath(path, folder)] = file.read()
    return texts


def installed_gnuplot():
    """The version that the program under test finds; under an emulator it finds none."""
    program = None if EMULATOR else shutil.which("gnuplot")
    version = subprocess.run([program, "--version"], capture_output=True, text=True, check=True).stdout if program else ""
    return "-".join(version.split()[:2])


class StoredOutputs(unittest.TestCase):
    maxDiff = None

    def compare(self, concerned):
        with tempfile.TemporaryDirectory() as folder:
            write_outputs(folder)
            written, stored = ({name: text for name, text in contents(place).items() if concerned(name)}
                               for place in (folder, STORED))
        self.assertEqual(sorted(written), sorted(stored))
        for name, text in written.items():
            self.assertMultiLineEqual(text, stored[name], name)

    def test_texts_data_and_report_are_what_the_program_writes(self):
        self.compare(lambda name: not name.startswith(GNUPLOT))

    @unittest.skipUnless(installed_gnuplot() == GNUPLOT, "the stored pictures are those of " + GNUPLOT)
    def test_pictures_are_what_the_program_draws(self):
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
