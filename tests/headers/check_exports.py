#!/usr/bin/env python3
"""Compares the names that the shared library exports with those that the public headers declare."""
import argparse
import os
import re
import subprocess
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "tools"))
from export_list import public_names

# Anything that looks like a prototype, under whatever name.
PROTOTYPE = re.compile(r"^(?!typedef|return|else)[A-Za-z][\w ]*?[ *]+(\w+)\(", re.M)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--nm", default="nm")
    parser.add_argument("--library", required=True)
    parser.add_argument("headers", nargs="+")
    arguments = parser.parse_args()

    routines, others = public_names(arguments.headers)
    declared = routines | others
    listing = subprocess.run([arguments.nm, "--dynamic", "--defined-only", "--format=posix", arguments.library],
                             check=True, capture_output=True, text=True).stdout
    exported = {line.split()[0].split("@")[0] for line in listing.splitlines()}

    unlisted = set()
    for header in arguments.headers:
        with open(header, encoding="utf-8") as file:
            unlisted.update(set(PROTOTYPE.findall(file.read())) - declared)
    for name in sorted(unlisted):
        print(f"{name} is declared in a public header, but tools/export_list.py does not take it for a public name")
    for name in sorted(declared - exported):
        print(f"{name} is declared in a public header, but the library does not export it")
    for name in sorted(exported - declared):
        print(f"{name} is exported, but no public header declares it")
    print(f"{len(routines)} routines and {len(others)} other names are declared")
    return 0 if declared == exported and not unlisted else 1


if __name__ == "__main__":
    sys.exit(main())
