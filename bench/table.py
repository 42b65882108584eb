"""Runs the benchmarks and prints what they came to: table.py BENCH RUNNER PASSES

Times are medians over the passes; a ratio is taken within each pass, between rows that ran shortly after one another,
and its median printed. With 0 passes every row runs at its smallest size only, to see that it works.
"""

import json
import os
import re
import statistics
import subprocess
import sys
import tempfile
import time

BENCH, RUNNER = map(os.path.abspath, sys.argv[1:3])
PASSES = int(sys.argv[3])

SIZES = ["1000", "10000", "100000", "1000000"]
# What is held against what at a million cases, and the most that it may be.
RATIOS = [("PairStatistics", "FreshCopies", 2.0), ("Listwise", "ListwiseCopies", 3.0),
          ("DetailSort", "SortedPositions", 1.3)]
# The same in memory that is used again; for information.
KEPT_RATIOS = [("KeptPairStatistics", "KeptCopies"), ("KeptListwise", "KeptListwiseCopies"),
               ("KeptDetailSort", "KeptSortedPositions")]
LINEAR = ["PairStatistics", "Listwise", "ReadColumns", "ReadCsv", "WholeCommand"]
PAIRS = ["2", "5", "10", "20"]


def one_pass(*options):
    """The rows by name and size."""
    text = subprocess.run([BENCH, "--benchmark_format=json", *options], stdout=subprocess.PIPE, text=True,
                          check=True).stdout
    rows = {}
    for row in json.loads(text)["benchmarks"]:
        if row.get("error_occurred"):
            raise SystemExit(f"{row['name']}: {row['error_message']}")
        name, size = row["name"].split("/")[:2]
        rows[name, size] = row
    return rows


def median(passes, value):
    return statistics.median(value(rows) for rows in passes)


def microseconds(rows, name, size):
    return rows[name, size]["real_time"]


def print_times(passes):
    print(f"{'microseconds':20}" + "".join(f"{size:>14}" for size in SIZES))
    for name in [name for name, size in passes[0] if size == SIZES[0]]:
        times = [median(passes, lambda rows, size=size: microseconds(rows, name, size)) for size in SIZES]
        print(f"{name:20}" + "".join(f"{time:14.1f}" for time in times))
    print()
    print(f"{'pairs of n variables':20}" + "".join(f"{'n = ' + size:>14}" for size in PAIRS))
    for label, per in (("ManyPairs", lambda n: 1), ("  per pair", lambda n: n * (n - 1))):
        times = [median(passes, lambda rows, size=size: microseconds(rows, "ManyPairs", size)) / per(int(size))
                 for size in PAIRS]
        print(f"{label:20}" + "".join(f"{time:14.1f}" for time in times))
    print()


def ratio_of(passes, name, yardstick):
    return median(passes, lambda rows: microseconds(rows, name, SIZES[-1]) / microseconds(rows, yardstick, SIZES[-1]))


def print_ratios(passes):
    for name, yardstick, most in RATIOS:
        print(f"{name} / {yardstick} at 1000000: {ratio_of(passes, name, yardstick):.2f} (at most {most})")
    for name, yardstick in KEPT_RATIOS:
        time = median(passes, lambda rows: microseconds(rows, name, SIZES[-1]))
        print(f"{name} / {yardstick} at 1000000: {ratio_of(passes, name, yardstick):.2f} ({time:.1f} microseconds)")
    for name in LINEAR:
        growth = median(passes, lambda rows: microseconds(rows, name, SIZES[-1]) / microseconds(rows, name, SIZES[-2]))
        print(f"{name}, 1000000 to 100000 cases: {growth:.1f} times")
    rate = median(passes, lambda rows: rows["ReadCsv", SIZES[-1]]["bytes_per_second"]) / 1e6
    print(f"ReadCsv at 1000000: {rate:.0f} MB/s")
    parts = {part: median(passes, lambda rows: rows["WholeCommand", SIZES[-1]][part]) for part in
             ("reading_s", "module_s", "writing_s")}
    print("WholeCommand at 1000000, seconds: " + ", ".join(f"{part[:-2]} {time:.3f}" for part, time in parts.items()))


def write_data(folder, cases):
    """With three decimals: numbers that take their room in the document."""
    path = os.path.join(folder, f"{cases}.csv")
    with open(path, "w", encoding="ascii") as file:
        file.write("a,b\n")
        file.writelines(f"{400 + i * 7919 % 100003 / 1000},{405 + i * 104729 % 100003 / 1000}\n" for i in range(cases))
    return path


def run_measured(folder, cases, *arguments):
    """Peak resident bytes and seconds of a run of the program over so many cases."""
    path = write_data(folder, cases)
    result = subprocess.run(["/usr/bin/time", "-v", RUNNER, path, *arguments], cwd=folder, capture_output=True, text=True,
                            check=True)
    peak = int(re.search(r"Maximum resident set size \(kbytes\): (\d+)", result.stderr)[1]) * 1024
    minutes, seconds = re.search(r"Elapsed .*: (?:\d+:)?(\d+):([\d.]+)", result.stderr).groups()
    return peak, int(minutes) * 60 + float(seconds)


def seconds_of_start(folder, *arguments):
    """The median of many runs over 17 cases."""
    path = write_data(folder, 17)
    times = []
    for _ in range(20):
        begin = time.perf_counter()
        subprocess.run([RUNNER, path, *arguments], cwd=folder, check=True)
        times.append(time.perf_counter() - begin)
    return statistics.median(times)


def print_program():
    with tempfile.TemporaryDirectory() as folder:
        command = ["-c", "VARIABLE=a WITH=b PLOT(RATIO)", "-o", "x.json"]
        print(f"The program over 17 cases to JSON: {1000 * seconds_of_start(folder, *command):.1f} ms")
        for cases in (100000, 1000000):
            peak, seconds = run_measured(folder, cases, *command)
            print(f"The program over {cases} cases: {seconds:.2f} s, peak memory {peak / 1e6:.0f} MB, "
                  f"{peak / (16 * cases):.1f} times the raw columns")


def try_smallest():
    """Every row at its smallest size; none may be missing."""
    rows = one_pass("--benchmark_filter=^Kept|/(1000|2)$", "--benchmark_min_time=0.01")
    wanted = {name for row in (*RATIOS, *KEPT_RATIOS) for name in row[:2]} | {*LINEAR, "PairStatisticsLog", "ManyPairs"}
    if missing := wanted - {name for name, size in rows}:
        raise SystemExit(f"benchmarks that did not run: {', '.join(sorted(missing))}")
    print(f"benchmarks: {len(rows)} ran")


def main():
    if PASSES == 0:
        try_smallest()
        return
    passes = [one_pass() for _ in range(PASSES)]
    print_times(passes)
    print_ratios(passes)
    print_program()


if __name__ == "__main__":
    main()
