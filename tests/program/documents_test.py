"""Holds the examples in the documents against what the program prints.

Called as documents_test.py PROGRAM ROOT. An example is an indented line that begins with "$ build/release/bin/bldatman-run",
goes on over lines that end in a backslash, and is followed by the indented output. With --rewrite after the arguments the
outputs in the documents are written anew, to be reviewed as a change.
"""

import os
import pathlib
import re
import shlex
import subprocess
import sys
import unittest

PROGRAM, ROOT = sys.argv[1], pathlib.Path(sys.argv[2])

EXAMPLE = re.compile(r"^    \$ build/release/bin/bldatman-run ((?:.*\\\n)*.*\n)((?:    .*\n|\n(?=    ))*)", re.MULTILINE)


def output_of(arguments):
    """What the program prints, indented as in a document."""
    program = shlex.join(filter(None, [os.environ.get("EMULATOR"), PROGRAM]))
    command = program + " " + arguments.replace("\n    ", "\n")
    output = subprocess.run(["bash", "-c", command], cwd=ROOT, capture_output=True, encoding="utf-8", check=True).stdout
    return "".join(f"    {line}\n" if line else "\n" for line in output.splitlines())


def documents():
    for path in [ROOT / "README.md", *sorted((ROOT / "docs").glob("*.md"))]:
        yield path, path.read_text(encoding="utf-8")


class Documents(unittest.TestCase):
    maxDiff = None

    def test_show_what_the_program_prints(self):
        examples = 0
        for path, text in documents():
            for arguments, output in EXAMPLE.findall(text):
                self.assertMultiLineEqual(output, output_of(arguments), path)
                examples += 1
        self.assertGreater(examples, 2)


def rewrite():
    for path, text in documents():
        path.write_text(EXAMPLE.sub(lambda match: match[0].removesuffix(match[2]) + output_of(match[1]), text),
                        encoding="utf-8")


if __name__ == "__main__":
    if sys.argv[3:] == ["--rewrite"]:
        rewrite()
    else:
        unittest.main(argv=sys.argv[:1])
