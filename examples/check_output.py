#!/usr/bin/env python3
"""Runs an example program and compares what it prints with what it should: words exactly, numbers to one unit in their
last printed place. Numbers below 1e-12 on both sides are rounding noise and agree."""
import os
import re
import subprocess
import sys
from decimal import Decimal

NUMBER = re.compile(r"[-+]?(?:\d+\.?\d*|\.\d+)(?:[eE][-+]?\d+)?")
NOISE = Decimal("1e-12")


def agree(expected, printed):
    if NUMBER.sub("#", expected).split() != NUMBER.sub("#", printed).split():
        return False
    for wanted, got in zip(NUMBER.findall(expected), NUMBER.findall(printed), strict=True):
        wanted, got = Decimal(wanted), Decimal(got)
        # A number with a point or an exponent is real; a plain one is a count and must be the same.
        unit = Decimal(1).scaleb(wanted.as_tuple().exponent) if wanted.as_tuple().exponent else 0
        if abs(wanted - got) > unit and max(abs(wanted), abs(got)) > NOISE:
            return False
    return True


def main():
    expected_file, program = sys.argv[1:3]
    run = subprocess.run([program], capture_output=True, text=True, check=False)
    sys.stdout.write(run.stdout)
    sys.stderr.write(run.stderr)
    if run.returncode != 0:
        print(f"-- ended with status {run.returncode}")
        return 1
    if not os.path.exists(expected_file):
        return 0
    with open(expected_file, encoding="utf-8") as file:
        expected = file.read().splitlines()
    printed = run.stdout.splitlines()
    for number, (wanted, got) in enumerate(zip(expected, printed), 1):
        if not agree(wanted, got):
            print(f"-- line {number} should read\n{wanted}\n-- but reads\n{got}")
            return 1
    if len(expected) != len(printed):
        print(f"-- printed {len(printed)} lines in place of {len(expected)}")
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
