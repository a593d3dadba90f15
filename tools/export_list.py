#!/usr/bin/env python3
"""Writes the linker's export list, and the list of public routines for the tests, from the public headers."""
import argparse
import re
import sys

# A prototype opens a line: a type, perhaps a star, a name of a chapter, a parenthesis. Data is declared extern.
ROUTINE = re.compile(r"^[A-Za-z][\w ]*?[ *]+([a-z][0-9]{2}[a-z]{2}c)\(", re.M)
DATA = re.compile(r"^extern [^;]*?(\w+)(?:\[[^;]*\])*;", re.M)
SERVICE = re.compile(r"^[A-Za-z][\w ]*?[ *]+(get_\w+)\(", re.M)


def public_names(headers):
    """The routines that the headers declare, and the other names: data and services."""
    routines, others = set(), set()
    for header in headers:
        with open(header, encoding="utf-8") as file:
            text = file.read()
        routines.update(ROUTINE.findall(text))
        others.update(DATA.findall(text) + SERVICE.findall(text))
    return routines, others


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--map", help="version script for the linker")
    parser.add_argument("--list", help="C++ list of the routines, one KOR_ROUTINE(name) a line")
    parser.add_argument("headers", nargs="+")
    arguments = parser.parse_args()

    routines, others = public_names(arguments.headers)

    if arguments.map:
        with open(arguments.map, "w", encoding="utf-8") as file:
            names = "".join(f"        {name};\n" for name in sorted(routines | others))
            file.write("{\n    global:\n" + names + "    local: *;\n};\n")
    if arguments.list:
        with open(arguments.list, "w", encoding="utf-8") as file:
            file.writelines(f"KOR_ROUTINE({name})\n" for name in sorted(routines))
    if not arguments.map and not arguments.list:
        sys.stdout.writelines(f"{name}\n" for name in sorted(routines))


if __name__ == "__main__":
    main()
