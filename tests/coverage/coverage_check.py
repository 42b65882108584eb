"""Looks at which lines and branches of the module the tests reach: coverage_check.py ROOT UNREACHED GCOVR_JSON...

Each report counts the module as it was compiled against one host; a line or a branch is reached where it is in either.
Every line that is not reached as a whole must stand in the list with a reason, and no other. Branches that only an
exception takes do not count here; the faults are swept elsewhere.
"""

import json
import pathlib
import sys

ROOT, LIST, *REPORTS = map(pathlib.Path, sys.argv[1:])


def lines_in(report):
    """By file and line number, whether the line runs, and which of its branches are taken."""
    return {(file["file"], line["line_number"]): [line["count"] > 0] +
            [branch["count"] > 0 for branch in line["branches"] if not branch["throw"]]
            for file in json.loads(report.read_text(encoding="utf-8"))["files"] for line in file["lines"]
            if not line["gcovr/noncode"]}


def reached_in_either(tellings):
    """Branches that are alike are put together; of those that differ the one that is reached best counts."""
    if len({len(telling) for telling in tellings}) == 1:
        return [any(branch) for branch in zip(*tellings)]
    return max(tellings, key=lambda telling: sum(telling) / len(telling))


def listed():
    """Pairs of a file and the beginning of a line; each stands for one line that is missed."""
    rows = LIST.read_text(encoding="utf-8").splitlines()
    return [tuple(row.split(" | ", 2)[:2]) for row in rows if not row.startswith("#")]


def main():
    reports = [lines_in(report) for report in REPORTS]
    lines = {place: reached_in_either([report[place] for report in reports if place in report])
             for place in sorted(set().union(*reports))}
    known = listed()
    count = len(known)
    complaints = []
    for (file, number), reached in lines.items():
        if all(reached):
            continue
        text = (ROOT / file).read_text(encoding="utf-8").splitlines()[number - 1].strip()
        row = next((row for row in known if row[0] == file and text.startswith(row[1])), None)
        if row:
            known.remove(row)
        else:
            complaints.append(f"{file}:{number}: not reached as a whole: {text}")
    complaints += [f"{file}: reached, though listed: {text}" for file, text in known]
    branches = [branch for reached in lines.values() for branch in reached[1:]]
    print(f"coverage: lines={sum(reached[0] for reached in lines.values())}/{len(lines)} branches={sum(branches)}/"
          f"{len(branches)} explained={count} unexplained={len(complaints)}")
    print("\n".join(complaints))
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())
