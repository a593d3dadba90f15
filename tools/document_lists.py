#!/usr/bin/env python3
"""Prints kor.h for the documentation: with its two lists written out, every error code and every enumerator with its value,
and without the macros that only serve the headers themselves."""
import os
import re
import sys

INCLUDE = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "include", "kor")
LIST = re.compile(r"^#define (KOR_ERROR|KOR_ENUMERATOR)\(.*\n#include <kor/(\w+\.def)>\n#undef .*\n", re.M)

PRIVATE_MACRO = re.compile(r"^#define KOR_(?:BEGIN|END)_DECLS.*$", re.M)


def names(macro, list_name):
    with open(os.path.join(INCLUDE, list_name), encoding="utf-8") as file:
        return re.findall(rf"^{macro}\((\w+)", file.read(), re.M)


def expanded(match):
    macro, list_name = match.groups()
    if macro == "KOR_ERROR":
        return "".join(f"    {key}, ///< \\ref error_{key} \"code {i}\"\n" for i, key in enumerate(names(macro, list_name)))
    return "".join(f"    {name}, ///< value {i}\n" for i, name in enumerate(names(macro, list_name), 1))


def main():
    with open(sys.argv[1], encoding="utf-8") as file:
        sys.stdout.write(PRIVATE_MACRO.sub("", LIST.sub(expanded, file.read())))


if __name__ == "__main__":
    main()
