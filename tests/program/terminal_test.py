"""Runs bldatman-run as on a terminal: terminal_test.py PROGRAM"""

import fcntl
import os
import pathlib
import pty
import re
import shutil
import struct
import subprocess
import sys
import tempfile
import termios
import time
import unittest

PROGRAM = sys.argv[1]

HOSTILE = "\x1b[31ma\tb"
DATA = f'"{HOSTILE}",b\n1,2\n3,5\n4,4\n2,3\n7,6\n'
ARGUMENTS = ["d.csv", "-c", f'VARIABLE="{HOSTILE}" WITH=b PRINT(DETAILS MEANDIFF AGREEMENT)']
COLOUR = re.compile(r"\x1b\[[012]m")
LONG = 1.1  # seconds: from one on it is told how far the work is


def shown_on(terminal):
    """What arrives at a terminal whose other side is closed."""
    received = b""
    while True:
        try:
            part = os.read(terminal, 4096)
        except OSError:  # how Linux says that there is no more
            part = b""
        if not part:
            return received.decode("utf-8").replace("\r\n", "\n")
        received += part


class OnTerminal(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        (self.folder / "d.csv").write_text(DATA, encoding="utf-8")

    def start(self, *arguments, output=subprocess.DEVNULL, errors=subprocess.DEVNULL, **variables):
        environment = {**os.environ, "TERM": "xterm", "NO_COLOR": "", **variables}
        return subprocess.Popen([PROGRAM, *arguments], cwd=self.folder, env=environment, stdout=output, stderr=errors)

    def shown(self, stream, *arguments, columns=80, meanwhile=lambda: None, **variables):
        """What a terminal gets that one of the streams, output or errors, is shown on."""
        screen, terminal = pty.openpty()
        self.addCleanup(os.close, screen)
        fcntl.ioctl(terminal, termios.TIOCSWINSZ, struct.pack("HHHH", 24, columns, 0, 0))
        with self.start(*arguments, **{stream: terminal}, **variables):
            os.close(terminal)
            meanwhile()
            return shown_on(screen)

    def test_has_colours_on_a_terminal_that_wants_them(self):
        with self.start(*ARGUMENTS, output=subprocess.PIPE) as process:
            plain = process.communicate(timeout=60)[0].decode("utf-8")
        self.assertIn("\ufffd[31ma b - b", plain)
        coloured = self.shown("output", *ARGUMENTS)
        self.assertIn("\x1b[1mBland-Altman Analysis\x1b[0m\n=====", coloured)
        self.assertEqual(COLOUR.sub("", coloured), plain)
        for variables in ({"NO_COLOR": "1"}, {"TERM": "dumb"}):
            self.assertEqual(self.shown("output", *ARGUMENTS, **variables), plain)

    def test_is_as_wide_as_the_terminal_within_reason(self):
        for columns, at_least, at_most in ((60, 50, 60), (200, 120, 200), (10, 30, 40), (0, 70, 80)):
            shown = COLOUR.sub("", self.shown("output", *ARGUMENTS, columns=columns))
            widest = max(map(len, shown.splitlines()))
            self.assertTrue(at_least <= widest <= at_most, f"{widest} of {columns} columns")

    def assert_counts(self, shown, what, total, unit=""):
        """A line that is written over with higher and higher counts, and cleared in the end."""
        counts = [float(count) for count in re.findall(rf"{what}: ([\d.]+) of {total}{unit}\r", shown)]
        self.assertTrue(counts and counts == sorted(set(counts)) and counts[-1] < total, shown)
        self.assertRegex(shown, r"\r +\r$")

    def write_many(self, names):
        rows = [",".join(str(i * j % 7) for j in range(names)) for i in range(1, 6)]
        (self.folder / "many.csv").write_text("\n".join([",".join(f"v{i}" for i in range(names)), *rows]))
        return ["many.csv", "-c", f"VARIABLE=v0:v{names - 1}", "-o", "x.html"]

    def test_shows_how_far_the_drawing_of_many_plots_has_come(self):
        slow = self.folder / "gnuplot"
        slow.write_text(f'#!/bin/sh\nsleep {LONG}\nexec {shutil.which("gnuplot")} "$@"\n')
        slow.chmod(0o755)
        shown = self.shown("errors", *self.write_many(10), PATH=f"{self.folder}:{os.environ['PATH']}")
        self.assert_counts(shown, "Drawing plots", 90)

    def test_shows_how_far_the_reading_of_a_file_has_come(self):
        """The file comes through a pipe that takes its time."""
        pipe = self.folder / "slow.csv"
        os.mkfifo(pipe)

        def feed():
            with open(pipe, "w", encoding="ascii") as file:
                file.write("a,b\n")
                time.sleep(LONG)
                file.write("400.25,399.75\n" * 500000)

        shown = self.shown("errors", "slow.csv", "-c", "VARIABLE=a WITH=b", "-o", "x.json", meanwhile=feed)
        self.assertRegex(shown, r"^Loading slow\.csv: \d\.\d MB\r")
        self.assert_counts(shown, "Reading slow.csv", 7.0, " MB")

    def test_shows_nothing_for_what_is_quickly_done(self):
        begin = time.monotonic()
        shown = self.shown("errors", *self.write_many(3))
        if time.monotonic() - begin < 1:  # else the machine was too busy for this to be quick
            self.assertEqual(shown, "")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
