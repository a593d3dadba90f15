#!/usr/bin/env python3
"""Prints a header as Doxygen shall see it:

- the lists of kor.h written out, every error code and every enumerator with its value;
- macros that only serve the headers left out;
- formulas as plain text, which reads the same on the site and in a terminal;
- error keys as links into their index;
- code spans that run over the end of a line on one line, so that a star in them opens no list."""
import os
import re
import sys

INCLUDE = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "include", "kor")
LIST = re.compile(r"^#define (KOR_ERROR|KOR_ENUMERATOR)\(.*\n#include <kor/(\w+\.def)>\n#undef .*\n", re.M)
PRIVATE_MACRO = re.compile(r"^#define KOR_(?:BEGIN|END)_DECLS.*$", re.M)
FORMULA = re.compile(r"\\f(?:\$(.*?)\\f\$|\[(.*?)\\f\])", re.S)


def subscript(text):
    return "_" + text if re.fullmatch(r"\w+", text) else f"_({text})"


# From LaTeX to plain text, in this order.
PLAIN = [
    (r"\n///\s*", " "),
    (r"\\begin\{[bp]?matrix\}(.*?)\\end\{[bp]?matrix\}", lambda m: "[" + re.sub(r"\s*\\\\\s*", "; ", m.group(1).replace("&", "")) + "]"),
    (r"\\(?:mathrm|mathit|mathtt|mathbf|operatorname|text)\s*\{([^{}]*)\}", r"\1"),
    (r"\\(?:left|right|displaystyle|quad|big)\b", " "),
    (r"\\[,;!: ]", " "),
    (r"\\(?:bar|overline)\s*(?:\{([^{}]*)\}|(\\?\w+))", r"conj(\1\2)"),
    (r"\\[dt]?frac\s*\{([^{}]*)\}\s*\{([^{}]*)\}", r"(\1)/(\2)"),
    (r"\\sqrt\s*\{([^{}]*)\}", r"sqrt(\1)"),
    (r"\\sqrt\s*(\\?\w+)", r"sqrt(\1)"),
    (r"\\(?:le|leq)\b", "<="), (r"\\(?:ge|geq)\b", ">="), (r"\\ne\b", "!="), (r"\\approx\b", "~"), (r"\\pm\b", "+-"),
    (r"\\leftrightarrow\b", "<->"), (r"\\(?:to|rightarrow)\b", "->"), (r"\\[cl]?dots\b", "..."),
    (r"\\(?:cdot|times)\b", " "), (r"\\infty\b", "infinity"), (r"\\in\b", "in"), (r"\\[lr]Vert\b|\\\|", "||"), (r"\\[lr]vert\b", "|"),
    (r"\^\{([^{},]*)\}", lambda m: "^" + m.group(1) if re.fullmatch(r"-?\w+", m.group(1)) else f"^({m.group(1)})"),
    (r"_\{([^{}]*)\}", lambda m: subscript(m.group(1).replace("_", ""))),
    (r"\\(?=[A-Za-z]+)", ""),   # Greek letters and functions by their names
    (r"[{}]", ""),
    (r"\s+", " "),
]


def names(macro, list_name):
    with open(os.path.join(INCLUDE, list_name), encoding="utf-8") as file:
        return re.findall(rf"^{macro}\(\s*(\w+)", file.read(), re.M)


def expanded(match):
    macro, list_name = match.groups()
    if macro == "KOR_ERROR":
        return "".join(f"    {key}, ///< \\ref error_{key} \"code {i}\"\n" for i, key in enumerate(names(macro, list_name)))
    return "".join(f"    {name}, ///< value {i}\n" for i, name in enumerate(names(macro, list_name), 1))


def plain_formula(match):
    text = match.group(1) or match.group(2)
    for pattern, replacement in PLAIN:
        text = re.sub(pattern, replacement, text)
    text = text.replace("&", "&amp;").replace("<", "&lt;").replace(">", "&gt;")
    return f"<tt>{text.strip()}</tt>"


def linked_keys(text):
    """The keys in front of the causes in the lists of errors."""
    def linked(item):
        return re.sub(r"\bN[EW]_[A-Z0-9_]+\b", lambda key: f'\\ref error_{key.group()} "{key.group()}"', item.group())
    return re.sub(r"^/// - N[EW]_[^:\n]*:", linked, text, flags=re.M)


def whole_code_spans(text):
    lines = []
    for line in text.split("\n"):
        if lines and lines[-1].startswith("///") and line.startswith("///") and lines[-1].count("`") % 2 == 1:
            lines[-1] += " " + line[3:].strip()
        else:
            lines.append(line)
    return "\n".join(lines)


def main():
    with open(sys.argv[1], encoding="utf-8") as file:
        text = file.read()
    for step in (lambda t: LIST.sub(expanded, t), lambda t: PRIVATE_MACRO.sub("", t), lambda t: FORMULA.sub(plain_formula, t),
                 linked_keys, whole_code_spans):
        text = step(text)
    sys.stdout.write(text)


if __name__ == "__main__":
    main()
