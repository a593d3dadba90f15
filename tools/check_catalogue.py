#!/usr/bin/env python3
"""Checks the structure of the catalogue lists: counts, unique names, allowed conversions, lengths.

Run from anywhere: python3 tools/check_catalogue.py. Prints every fault and ends with a non-zero status if there is one.
"""
import re
import sys
from collections import Counter
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
ERRORS, WARNINGS, ENUMERATORS = 663, 38, 519
CHAPTER_ENTRIES = {"e04": 426, "g02": 21, "g03": 9, "g12": 4, "g13": 38, "h02": 91}
MESSAGE_BYTES = 512                            # of a report, terminator included
WIDEST = {"s": 40, "ld": 11, "g": 13}          # what an argument may take: a name, an Integer, a double

ENTRY = re.compile(r'^(KOR_[A-Z_]+)\(\s*(\w+)\s*(?:,\s*((?:"(?:[^"\\\n]|\\.)*"\s*)+))?\)[ \t]*$', re.M)
CONVERSION = re.compile(r"%[-+ #0]*\d*(?:\.\d+)?(?:hh|h|ll|l|L)?.?")
REPORT_CONVERSION = re.compile(r"%[12]?(ld)|%([sg])")
PRINT_CONVERSION = re.compile(r"%\d*(?:\.\d+)?(?:ld|[sefg])")

faults = []


def fault(text):
    faults.append(text)


def read(path):
    """The entries of a list as (macro, name, text), comments and directives apart; the text is unescaped."""
    source = re.sub(r"/\*.*?\*/", "", (ROOT / path).read_text(), flags=re.S)
    source = "\n".join(line for line in source.splitlines() if not line.startswith("#"))
    entries = []
    for macro, name, literals in ENTRY.findall(source):
        text = "".join(re.findall(r'"((?:[^"\\]|\\.)*)"', literals))
        if re.search(r'\\[^n"\\]', text) or not text.isascii():
            fault(f"{path}: {name}: an escape or a character that is not plain")
        entries.append((macro, name, text.replace("\\n", "\n").replace('\\"', '"').replace("\\\\", "\\")))
    if ENTRY.sub("", source).strip():
        fault(f"{path}: not an entry: {ENTRY.sub('', source).strip().splitlines()[0]}")
    return entries


def check_names(path, entries, macros, count):
    for macro in {e[0] for e in entries} - set(macros):
        fault(f"{path}: unknown macro {macro}")
    for name, times in Counter(e[1] for e in entries).items():
        if times > 1:
            fault(f"{path}: {name} stands {times} times")
    if len(entries) != count:
        fault(f"{path}: {len(entries)} entries, {count} wanted")


def check_errors(path="include/kor/errors.def"):
    entries = read(path)
    check_names(path, entries, ["KOR_ERROR"], ERRORS + WARNINGS)
    kinds = Counter(name[:3] for _, name, _ in entries)
    if kinds != {"NE_": ERRORS, "NW_": WARNINGS}:
        fault(f"{path}: kinds of keys {dict(kinds)}")
    for _, name, text in entries:
        longest = len(f"{name}:\n  {text}") + 1
        for conversion in CONVERSION.findall(text):
            match = REPORT_CONVERSION.fullmatch(conversion)
            if match:
                longest += WIDEST[match[1] or match[2]] - len(conversion)
            else:
                fault(f"{path}: {name}: conversion {conversion!r}")
        if not text.endswith((".", "%s")):
            fault(f"{path}: {name}: the text does not end in a full stop or an argument")
        if longest > MESSAGE_BYTES:
            fault(f"{path}: {name}: may grow to {longest} bytes")


def check_enumerators(path="include/kor/enumerators.def"):
    check_names(path, read(path), ["KOR_ENUMERATOR"], ENUMERATORS)


def check_messages():
    seen = {}
    for chapter, count in CHAPTER_ENTRIES.items():
        path = f"src/frame/messages/{chapter}.def"
        entries = read(path)
        check_names(path, entries, ["KOR_MESSAGE", "KOR_MESSAGE_WHOLE"], count)
        for index, (macro, name, text) in enumerate(entries):
            other = seen.setdefault(name, chapter)
            if other != chapter:
                fault(f"{path}: {name} stands in {other} too")
            if not name.startswith("NM_"):
                fault(f"{path}: {name} is not an NM_ key")
            if (macro == "KOR_MESSAGE_WHOLE") != (index == 0 and chapter != "g02"):
                fault(f"{path}: {name}: the first entry, and only it, stands as a whole")
            for conversion in CONVERSION.findall(text):
                if not PRINT_CONVERSION.fullmatch(conversion):
                    fault(f"{path}: {name}: conversion {conversion!r}")
            if len(text) > MESSAGE_BYTES // 2:
                fault(f"{path}: {name}: {len(text)} characters")


if __name__ == "__main__":
    check_errors()
    check_enumerators()
    check_messages()
    print("\n".join(faults) or "the catalogues are in order")
    sys.exit(bool(faults))
