#!/usr/bin/env python3
"""Writes the table of public routines in the map of every source folder (src/<folder>/README.md) from the \\brief lines of
the headers. With --check it writes nothing, names what is out of date, and fails."""
import argparse
import os
import re
import sys

from export_list import ROUTINE

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..")
OPENING = "<!-- public routines: written by tools/write_maps.py from the headers -->\n"
CLOSING = "<!-- end of public routines -->\n"


def read(*path):
    with open(os.path.join(ROOT, *path), encoding="utf-8") as file:
        return file.read()


def chapters():
    return sorted(name[:-2] for name in os.listdir(os.path.join(ROOT, "include", "kor")) if name.endswith(".h"))


def briefs(text):
    """The routines of a header in its order, each with its \\brief as one line."""
    found = []
    for prototype in ROUTINE.finditer(text):
        comment = re.search(r"((?:^///.*\n)+)\Z", text[:prototype.start()], re.M)
        lines = [line[3:].strip() for line in comment.group(1).splitlines()] if comment else []
        brief = []
        for line in lines:
            if line.startswith("\\brief "):
                brief = [line[len("\\brief "):]]
            elif brief and (not line or line.startswith("\\")):
                break
            elif brief:
                brief.append(line)
        found.append((prototype.group(1), " ".join(brief).replace("|", "\\|")))
    return found


def folder_map(folder, routines):
    """The map of a folder with its table brought up to date, or with a table where it had none."""
    table = OPENING + "| Routine | Purpose |\n| --- | --- |\n"
    table += "".join(f"| `{name}` | {brief} |\n" for name, brief in routines) + CLOSING
    path = os.path.join(ROOT, "src", folder, "README.md")
    text = read(path) if os.path.exists(path) else f"# {folder}\n\n## Public routines\n\n{OPENING}{CLOSING}"
    if OPENING not in text or CLOSING not in text:
        text = text.rstrip("\n") + f"\n\n## Public routines\n\n{OPENING}{CLOSING}"
    before, rest = text.split(OPENING, 1)
    return before + table + rest.split(CLOSING, 1)[1]


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--check", action="store_true", help="write nothing; fail if something is out of date")
    check = parser.parse_args().check

    folders = sorted(name for name in os.listdir(os.path.join(ROOT, "src")) if os.path.isdir(os.path.join(ROOT, "src", name)))
    home = {}
    for folder in folders:
        for source in os.listdir(os.path.join(ROOT, "src", folder)):
            home.setdefault(os.path.splitext(source)[0], folder)

    faults = []
    rows = {folder: [] for folder in folders}
    for chapter in chapters():
        text = read("include", "kor", chapter + ".h")
        if "TODO" in text:
            faults.append(f"include/kor/{chapter}.h: something is still to be filled in")
        for name, brief in briefs(text):
            if not brief:
                faults.append(f"include/kor/{chapter}.h: {name} has no \\brief")
            if name in home:
                rows[home[name]].append((name, brief))
            else:
                faults.append(f"include/kor/{chapter}.h: {name} has no source file of its name in src/")

    for folder in folders:
        if not rows[folder]:
            continue
        path, text = os.path.join("src", folder, "README.md"), folder_map(folder, rows[folder])
        if os.path.exists(os.path.join(ROOT, path)) and read(path) == text:
            continue
        if check:
            faults.append(f"{path} is out of date: run tools/write_maps.py")
        else:
            with open(os.path.join(ROOT, path), "w", encoding="utf-8") as file:
                file.write(text)
            print(f"wrote {path}")

    print("\n".join(faults) if faults else "the maps are true")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
