"""Holds what one full command writes, in every form, against stored outputs that a person has reviewed.

Called as stored_outputs_test.py PROGRAM MODULE EXAMPLES STORED; with --rewrite after them it writes the stored outputs
anew, to be reviewed as a change.
"""

import os
import shutil
import subprocess
import sys
import tempfile
import unittest

PROGRAM, MODULE, EXAMPLES, STORED = sys.argv[1:5]


def write_outputs(folder):
    """Runs the command; its outputs stand in the folder afterwards, the plots with their own names."""
    def example(name):
        return os.path.join(EXAMPLES, name)

    subprocess.run([PROGRAM, example("peakflow.csv"), "-f", example("full.bld"), "-d", example("peakflow.json"),
                    "--module", MODULE, "-o", os.path.join(folder, "report.txt"), "-o",
                    os.path.join(folder, "report.json"), "-o", folder + "/"], check=True)


def contents(folder):
    texts = {}
    for name in sorted(os.listdir(folder)):
        with open(os.path.join(folder, name), encoding="utf-8", newline="") as file:
            texts[name] = file.read()
    return texts


class StoredOutputs(unittest.TestCase):
    maxDiff = None

    def test_are_what_the_program_writes(self):
        with tempfile.TemporaryDirectory() as folder:
            write_outputs(folder)
            written, stored = contents(folder), contents(STORED)
        self.assertEqual(list(written), list(stored))
        for name, text in written.items():
            self.assertMultiLineEqual(text, stored[name], name)


if __name__ == "__main__":
    if sys.argv[5:] == ["--rewrite"]:
        shutil.rmtree(STORED, ignore_errors=True)
        os.makedirs(STORED)
        write_outputs(STORED)
    else:
        unittest.main(argv=sys.argv[:1])
