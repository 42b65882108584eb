"""The second host does what the stand-in does: other_host_test.py OTHER_HOST_RUN BLDATMAN_RUN EXAMPLES

Every example command in every language, call by call, and the tables and plots of the documents.
"""

import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

OTHER, PROGRAM = (pathlib.Path(argument).resolve() for argument in sys.argv[1:3])
EXAMPLES = pathlib.Path(sys.argv[3]).resolve()
EMULATOR = [program for program in [os.environ.get("EMULATOR")] if program]
DATA = EXAMPLES / "peakflow.csv"
LANGUAGES = ("en", "es", "fr", "it", "de", "ja", "ko", "pl", "pt_BR", "zh_CN", "zh_TW")

# A host's own affair: the common areas, the path of the language, what is copied, and what is deleted with it.
OWN = re.compile(r"pvGet|QUVOMBstrrchr_8|QUVO_Variable::~?QUVO|QuvoVarName::|(Cells?|Descendants|Dimension)::~")


def calls(trace):
    return [line for line in trace.read_text(encoding="utf-8").splitlines() if not OWN.match(line)]


def tree(node):
    """The labels and values of a header tree."""
    if "children" in node:
        return {"label": node["label"], "children": [tree(child) for child in node["children"]]}
    return node["value"]


def contents(found):
    """What the second host keeps of a table or a plot."""
    if found["type"] == "graph":
        return {key: found[key] for key in ("name", "data", "gpl")}
    kept = {key: found[key] for key in ("name", "title", "footnotes", "cells")}
    return {**kept, "rows": tree(found["rows"]), "columns": tree(found["columns"])}


class OtherHost(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))

    def run_program(self, *command):
        return subprocess.run([*EMULATOR, *command], cwd=self.folder, check=True, stdout=subprocess.PIPE,
                              encoding="utf-8").stdout

    def test_does_the_example_commands_alike(self):
        commands = sorted(EXAMPLES.glob("*.bld"))
        self.assertGreater(len(commands), 2)
        for file in commands:
            for language in LANGUAGES:
                with self.subTest(file=file.name, language=language):
                    self.run_program(PROGRAM, DATA, "-f", file, "-l", language, "-o", "x.json", "--trace", "trace")
                    documents = json.loads((self.folder / "x.json").read_text(encoding="utf-8"))["documents"]
                    expected = [[contents(found) for found in document["objects"]] for document in documents]
                    printed = self.run_program(OTHER, DATA, file, language, "other_trace").splitlines()
                    self.assertEqual([json.loads(line)["objects"] for line in printed], expected)
                    self.assertEqual(calls(self.folder / "other_trace"), calls(self.folder / "trace"))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
