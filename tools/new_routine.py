#!/usr/bin/env python3
"""Writes the stub files of a new public routine: its prototype with the documentation to fill in, its source, a test and
its specimen for the sweeps. Files that are there are added to; nothing is overwritten.

    tools/new_routine.py special "double s14aac(double x, KorError *fail)" "Gamma function."
"""
import argparse
import os
import re
import sys

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..")
TODO = "TODO"  # what has to be filled in; tools/write_maps.py --check does not let it pass


class Parameter:
    def __init__(self, text):
        function = re.fullmatch(r".*?\(\*(\w+)\)\(.*\)", text)
        self.name = function.group(1) if function else re.search(r"(\w+)(?:\[[^\]]*\])*$", text).group(1)
        self.is_function = function is not None
        self.is_pointer = not function and ("*" in text or "[" in text)
        written = self.is_pointer and "const" not in text and self.name != "comm"
        self.direction = "in,out" if self.name == "fail" else "out" if written else "in"
        self.is_array = "[" in text
        self.type = "" if function else re.sub(r"\bconst\b|\*", "", re.sub(r"\w+(\[[^\]]*\])*$", "", text)).strip()

    def description(self):
        if self.name == "fail":
            return "the error record; may be null, and then a failure ends the process"
        return TODO


def parse(prototype):
    """Result type, name, and parameters of a prototype; commas within a function's own parameters do not separate."""
    result, name, inside = re.fullmatch(r"([\w ]+?[ *]+)([a-z]\d\d[a-z]{2}c)\((.*)\);?", prototype.strip()).groups()
    parts, depth = [""], 0
    for character in inside:
        depth += (character == "(") - (character == ")")
        if character == "," and depth == 0:
            parts.append("")
        else:
            parts[-1] += character
    parameters = [Parameter(part.strip()) for part in parts if part.strip() not in ("", "void")]
    return result.strip(), name, parameters


def add(path, text, head="", before=None):
    """Adds text to a file, in front of its last line that begins with `before`, or at its end."""
    full = os.path.join(ROOT, path)
    os.makedirs(os.path.dirname(full), exist_ok=True)
    old = head
    if os.path.exists(full):
        with open(full, encoding="utf-8") as file:
            old = file.read()
    place = old.rindex(before) if before else len(old)
    with open(full, "w", encoding="utf-8") as file:
        file.write(old[:place] + text + old[place:])
    print(path)


def documentation(prototype, brief, result, parameters):
    lines = [f"\\brief {brief}", "", TODO, ""]
    for p in parameters:
        lines.append(f"\\param[{p.direction}] {p.name} {p.description()}")
    if result != "void":
        lines.append(f"\\return {TODO}")
    lines += ["", "\\par Errors", f"- NE_{TODO}: {TODO}", "", "\\par Accuracy", TODO, "\\par Method", TODO,
              "\\par Thread safety", "Safe.", "\\par Example", "\\code{.c}", TODO, "\\endcode"]
    return "".join(f"/// {line}".rstrip() + "\n" for line in lines) + prototype.strip().rstrip(";") + ";\n\n"


def specimen(name, result, parameters):
    record = any(p.name == "fail" for p in parameters)
    lines = [f"\n{'KOR_SPECIMEN' if record else 'KOR_SPECIMEN_WITHOUT_RECORD'}({name})", "{"]
    outputs = ["result"] if result != "void" else []
    if result != "void":
        lines.append(f"    {result} result{{}};")
    arguments = []
    for p in parameters:
        if p.name == "fail":
            arguments.append("fail")
        elif p.is_function or p.name == "comm":
            arguments.append("nullptr")
        elif p.is_array:
            lines.append(f"    {p.type} {p.name}[1] = {{}}; // {TODO}")
            arguments.append(p.name)
        else:
            lines.append(f"    {p.type} {p.name}{{}}; // {TODO}")
            arguments.append(f"&{p.name}" if p.is_pointer else p.name)
        if p.direction == "out":
            outputs.append(p.name)
    call = f"{'result = ' if result != 'void' else ''}{name}({', '.join(arguments)});"
    lines.append(f"    call([&](KorError *{'fail' if record else ''}) {{ {call} }});")
    lines += [f"    outputs({', '.join(outputs)});", "}"]
    return "\n".join(lines) + "\n"


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("folder", help="the folder of src/ that it goes to")
    parser.add_argument("prototype", help="as it will stand in the header")
    parser.add_argument("brief", help="what it does, in one line of plain words")
    arguments = parser.parse_args()
    folder, prototype, brief = arguments.folder, arguments.prototype, arguments.brief
    if not os.path.isdir(os.path.join(ROOT, "src", folder)):
        parser.error(f"there is no folder src/{folder}")
    try:
        result, name, parameters = parse(prototype)
    except AttributeError:
        parser.error("a prototype reads like: void c05adc(double a, double *x, KorError *fail)")
    source = f"src/{folder}/{name}.cpp"
    if os.path.exists(os.path.join(ROOT, source)):
        parser.error(f"{source} is there already")

    chapter = name[:3]
    guard = f"KOR_{chapter.upper()}_H"
    add(f"include/kor/{chapter}.h", documentation(prototype, brief, result, parameters), before="KOR_END_DECLS",
        head=f"/// \\file {chapter}.h\n/// Chapter {chapter}: {TODO}.\n#ifndef {guard}\n#define {guard}\n\n#include <kor.h>\n\n"
             "KOR_BEGIN_DECLS\n\nKOR_END_DECLS\n\n#endif\n")
    add(source, f"// {name}: {brief[0].lower()}{brief[1:]}\n//\n// Method: {TODO}\n#include <kor/{chapter}.h>\n\n"
                f"#include \"frame/report.hpp\"\n\n{prototype.strip().rstrip(';')}\n{{\n"
                f"    kor::Report report{{\"{name}\", fail}};\n    report.success();\n}}\n")
    add(f"tests/{folder}/test_{name}.cpp",
        f"// {name}: {TODO}\n#include <gtest/gtest.h>\n\n#include <kor/{chapter}.h>\n\n#include \"support/expect_report.hpp\"\n\n"
        f"namespace kor::testing {{\nnamespace {{\n\nTEST({name.capitalize()}, {TODO})\n{{\n    FAIL() << \"to be written\";\n}}\n\n"
        "} // namespace\n} // namespace kor::testing\n")
    specimens = f"tests/{folder}/specimens.cpp"
    header = f"#include <kor/{chapter}.h>"
    add(specimens, specimen(name, result, parameters), head=f"{header}\n\n#include \"support/specimen.hpp\"\n")
    with open(os.path.join(ROOT, specimens), encoding="utf-8") as file:
        if header not in file.read():
            print(f"  which needs {header}")
    return 0


if __name__ == "__main__":
    sys.exit(main())
