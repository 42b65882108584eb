"""Runs bldatman-run as on a terminal: terminal_test.py PROGRAM"""

import fcntl
import os
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
        self.folder = folder.name
        with open(os.path.join(self.folder, "d.csv"), "w", encoding="utf-8") as file:
            file.write(DATA)

    def start(self, output, *arguments, errors=subprocess.DEVNULL, **variables):
        environment = {**os.environ, "TERM": "xterm", "NO_COLOR": "", **variables}
        return subprocess.Popen([PROGRAM, *arguments], cwd=self.folder, env=environment, stdout=output, stderr=errors,
                                encoding="utf-8")



class StandardOutput(OnTerminal):
    def on_terminal(self, columns, **variables):
        screen, terminal = pty.openpty()
        self.addCleanup(os.close, screen)
        fcntl.ioctl(terminal, termios.TIOCSWINSZ, struct.pack("HHHH", 24, columns, 0, 0))
        with self.start(terminal, *ARGUMENTS, **variables):
            os.close(terminal)
            return shown_on(screen)

    def in_pipe(self, *arguments):
        with self.start(subprocess.PIPE, *ARGUMENTS, *arguments) as process:
            return process.communicate(timeout=60)[0]

    def test_has_colours_on_a_terminal_that_wants_them(self):
        plain = self.in_pipe()
        coloured = self.on_terminal(80)
        self.assertIn("\x1b[1mBland-Altman Analysis\x1b[0m\n=====", coloured)
        self.assertEqual(COLOUR.sub("", coloured), plain)
        for variables in ({"NO_COLOR": "1"}, {"TERM": "dumb"}):
            self.assertEqual(self.on_terminal(80, **variables), plain)

    def test_is_as_wide_as_the_terminal_within_reason(self):
        for columns, at_least, at_most in ((60, 50, 60), (200, 120, 200), (10, 30, 40), (0, 70, 80)):
            widest = max(map(len, COLOUR.sub("", self.on_terminal(columns)).splitlines()))
            self.assertTrue(at_least <= widest <= at_most, f"{widest} of {columns} columns")

    def test_is_as_plain_in_a_pipe_as_in_a_file(self):
        plain = self.in_pipe()
        self.assertEqual(self.in_pipe("-o", "x.txt"), "")
        with open(os.path.join(self.folder, "x.txt"), encoding="utf-8") as file:
            self.assertEqual(file.read(), plain)
        self.assertNotIn("\x1b", plain)
        self.assertIn("\ufffd[31ma b - b", plain)


LONG = 1.1  # seconds: from one on it is told how far the work is


class StandardError(OnTerminal):
    def errors_of(self, *arguments, meanwhile=lambda: None, **variables):
        """What a terminal on standard error gets."""
        screen, terminal = pty.openpty()
        self.addCleanup(os.close, screen)
        with self.start(subprocess.DEVNULL, *arguments, errors=terminal, **variables):
            os.close(terminal)
            meanwhile()
            return shown_on(screen)

    def assert_counts(self, shown, what, total, unit=""):
        """A line that is written over with higher and higher counts, and cleared in the end."""
        counts = [float(count) for count in re.findall(rf"{what}: ([\d.]+) of {total}{unit}\r", shown)]
        self.assertTrue(counts and counts == sorted(set(counts)) and counts[-1] < total, shown)
        self.assertRegex(shown, r"\r +\r$")

    def write_many(self, names):
        rows = [",".join(str(i * j % 7) for j in range(names)) for i in range(1, 6)]
        with open(os.path.join(self.folder, "many.csv"), "w", encoding="utf-8") as file:
            file.write("\n".join([",".join(f"v{i}" for i in range(names)), *rows]))
        return ["many.csv", "-c", f"VARIABLE=v0:v{names - 1}", "-o", "x.html"]

    def gnuplot_that_takes_its_time(self):
        """A search path with it in front."""
        script = os.path.join(self.folder, "gnuplot")
        with open(script, "w", encoding="ascii") as file:
            file.write(f'#!/bin/sh\nsleep {LONG}\nexec {shutil.which("gnuplot")} "$@"\n')
        os.chmod(script, 0o755)
        return self.folder + os.pathsep + os.environ["PATH"]

    def test_shows_how_far_the_drawing_of_many_plots_has_come(self):
        shown = self.errors_of(*self.write_many(10), PATH=self.gnuplot_that_takes_its_time())
        self.assert_counts(shown, "Drawing plots", 90)

    def test_shows_how_far_the_reading_of_a_file_has_come(self):
        """The file comes through a pipe that takes its time."""
        pipe = os.path.join(self.folder, "slow.csv")
        os.mkfifo(pipe)

        def feed():
            with open(pipe, "w", encoding="ascii") as file:
                file.write("a,b\n")
                time.sleep(LONG)
                file.write("400.25,399.75\n" * 500000)

        shown = self.errors_of("slow.csv", "-c", "VARIABLE=a WITH=b", "-o", "x.json", meanwhile=feed)
        self.assertRegex(shown, r"^Loading slow\.csv: \d\.\d MB\r")
        self.assert_counts(shown, "Reading slow.csv", 7.0, " MB")

    def test_shows_nothing_for_what_is_quickly_done(self):
        begin = time.monotonic()
        shown = self.errors_of(*self.write_many(3))
        if time.monotonic() - begin < 1:  # else the machine was too busy for this to be quick
            self.assertEqual(shown, "")


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
