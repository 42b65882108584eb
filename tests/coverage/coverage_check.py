"""Looks at which lines and branches of the module the tests reach: coverage_check.py ROOT GCOVR_JSON UNREACHED

Every line that is not reached as a whole must stand in the list with a reason, and no other. Branches that only an
exception takes do not count here; the faults are swept elsewhere.
"""

import json
import pathlib
import sys

ROOT, REPORT, LIST = map(pathlib.Path, sys.argv[1:4])


def is_reached(line):
    return line["count"] > 0 and all(branch["count"] > 0 for branch in line["branches"] if not branch["throw"])


def listed():
    """Pairs of a file and the beginning of a line; each stands for one line that is missed."""
    rows = LIST.read_text(encoding="utf-8").splitlines()
    return [tuple(row.split(" | ", 2)[:2]) for row in rows if not row.startswith("#")]


def main():
    known = listed()
    count = len(known)
    complaints = []
    counts = {"lines": [0, 0], "branches": [0, 0]}
    for file in json.loads(REPORT.read_text(encoding="utf-8"))["files"]:
        source = (ROOT / file["file"]).read_text(encoding="utf-8").splitlines()
        for line in file["lines"]:
            if line["gcovr/noncode"]:
                continue
            branches = [branch for branch in line["branches"] if not branch["throw"]]
            for name, reached in (("lines", [line["count"] > 0]), ("branches", [b["count"] > 0 for b in branches])):
                counts[name][0] += sum(reached)
                counts[name][1] += len(reached)
            if is_reached(line):
                continue
            text = source[line["line_number"] - 1].strip()
            row = next((row for row in known if row[0] == file["file"] and text.startswith(row[1])), None)
            if row:
                known.remove(row)
            else:
                complaints.append(f"{file['file']}:{line['line_number']}: not reached as a whole: {text}")
    complaints += [f"{file}: reached, though listed: {text}" for file, text in known]
    print("coverage: " + " ".join(f"{name}={reached}/{total}" for name, (reached, total) in counts.items()) +
          f" explained={count} unexplained={len(complaints)}")
    print("\n".join(complaints))
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())
