"""Draws small changes to the module at random: draw.py ROOT BUILD COUNT SEED [FILES]

Of all files, or of those that match FILES, such as "pivot_table.*" where that was rewritten. Prints the changes as
mutate.py reads them. Each compiles, by the compile commands of BUILD, and no place is changed twice. The
texts of the languages are left out: digests hold them to the byte.
"""

import json
import pathlib
import random
import re
import subprocess
import sys
import tempfile

ROOT, BUILD = (pathlib.Path(argument).resolve() for argument in sys.argv[1:3])
COUNT, SEED = map(int, sys.argv[3:5])
FILES = sys.argv[5] if len(sys.argv) > 5 else "*.[ch]*"

# What stands in a line, and what may take its place.
SWAPS = [
    (r" == ", [" != "]), (r" != ", [" == "]), (r" <= ", [" < ", " > "]), (r" >= ", [" > ", " < "]),
    (r" < ", [" <= ", " > "]), (r" > ", [" >= ", " < "]),
    (r" \+ ", [" - "]), (r" - ", [" + "]), (r" \* ", [" / "]), (r" / ", [" * "]), (r" && ", [" || "]), (r" \|\| ", [" && "]),
    (r"\btrue\b", ["false"]), (r"\bfalse\b", ["true"]), (r"!(?=[a-z(])", [""]), (r"\+\+", ["--"]), (r"\bif \((?=\w)", ["if (!"]),
    (r"\b\d+\.\d+\b", ["0.25", "7.0"]), (r"(?<![\w.\"^])\d+(?![\w.\"])", ["0", "1", "2", "5"]),
    (r"(?<=\")[^\"\\]{2,}(?=\")", ["x", ""]), (r"(?<=[a-z(])first(?=[A-Z_.,)\[])", ["second"]), (r"Lower\b", ["Upper"]),
    (r"Upper\b", ["Lower"]), (r"\bmin\b", ["max"]), (r"\bmax\b", ["min"]),
    (r"\((\w+), (\w+)\)", [r"(\2, \1)"]), (r"\b(\w+)\[i\]", [r"\1[0]"]),
]
STATEMENT = re.compile(r" +(?!return|using|throw|auto|const|std::|\w+ \w+[;=({])[\w*+(].*;")


def candidates(lines):
    """First line, number of lines, and what replaces them, for every change that could be made."""
    for i, line in enumerate(lines):
        if line.lstrip().startswith(("//", "#", "*", "static_assert")) or r"\n" in line:  # stands for a line end there
            continue
        code = line.split("  //")[0].rstrip()
        for pattern, replacements in SWAPS:
            for match in re.finditer(pattern, code):
                for replacement in replacements:
                    changed = code[:match.start()] + match.expand(replacement) + code[match.end():]
                    if changed != code:
                        yield i, 1, [changed + line[len(code):]]
        if STATEMENT.fullmatch(code):
            yield i, 1, []
            if i + 1 < len(lines) and STATEMENT.fullmatch(lines[i + 1]):
                yield i, 2, [lines[i + 1], line]


def unique_piece(lines, first, count):
    """The fewest lines around the given ones that stand in the file once: where they begin and end."""
    text = "\n".join(lines)
    begin, end = first, first + count
    while text.count("\n".join(lines[begin:end])) > 1:
        begin, end = max(begin - 1, 0), min(end + 1, len(lines))
    return begin, end


def compile_commands():
    """By each file of the module the commands of the objects that are made of it: folder and command."""
    entries = json.loads((BUILD / "compile_commands.json").read_text(encoding="utf-8"))
    commands = {re.search(r" -o (\S+)", entry["command"])[1]: (entry["directory"], entry["command"], entry["file"])
                for entry in entries if entry["file"].startswith(f"{ROOT}/module/")}
    by_file = {}
    dependencies = subprocess.run(["ninja", "-t", "deps"], cwd=BUILD, capture_output=True, text=True, check=True).stdout
    for block in dependencies.strip().split("\n\n"):
        made, *files = block.splitlines()
        for file in files:
            if command := commands.get(made.split(":")[0]):
                by_file.setdefault((BUILD / file.strip()).resolve(), []).append(command)
    return by_file


def compiles(path, text, commands):
    """The changed file is put in the way of the original."""
    with tempfile.TemporaryDirectory() as overlay:
        changed = pathlib.Path(overlay) / path.relative_to(ROOT)
        changed.parent.mkdir(parents=True)
        changed.write_text(text, encoding="utf-8")
        for folder, command, source in commands:
            words = re.sub(r" -o \S+", " -fsyntax-only -w", command).replace(" -I", f" -I{overlay} -I", 1)
            if source == str(path):
                words = words.replace(f" -c {source}", f" -c {changed}")
            if subprocess.run(words, shell=True, cwd=folder, capture_output=True, check=False).returncode != 0:
                return False
        return bool(commands)


def main():
    source = {path: path.read_text(encoding="utf-8").split("\n") for path in sorted((ROOT / "module").rglob(FILES))
              if "languages" not in path.parts and path.suffix in {".h", ".cpp"}}
    pool = [(path, *change) for path, lines in source.items() for change in candidates(lines)]
    random.Random(SEED).shuffle(pool)
    commands = compile_commands()
    drawn, changed_places = {}, set()
    for path, first, count, replacement in pool:
        if sum(map(len, drawn.values())) == COUNT:
            break
        lines = source[path]
        changed = lines[:first] + replacement + lines[first + count:]
        if (path, first) not in changed_places and compiles(path, "\n".join(changed), commands.get(path, [])):
            changed_places.add((path, first))
            begin, end = unique_piece(lines, first, count)
            new = lines[begin:first] + replacement + lines[first + count:end]
            drawn.setdefault(path, []).append(("\\n".join(lines[begin:end]), "\\n".join(new)))
    for path in sorted(drawn):
        print(path.relative_to(ROOT).as_posix(), *(f"- {old}\n+ {new}" for old, new in drawn[path]), sep="\n", end="\n\n")


if __name__ == "__main__":
    main()
