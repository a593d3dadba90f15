#!/usr/bin/env python3
"""Makes the site and the manual pages.

Doxygen reads the headers twice: first as XML, from which come one manual page a routine and the indices by chapter, by task
and by error key; then, with the guides and these indices, as HTML. What Doxygen finds undocumented or half documented
fails the build, and so does a parameter without its direction, a routine without its sections, and an unknown error key."""
import argparse
import os
import re
import shutil
import subprocess
import sys
import textwrap
import xml.etree.ElementTree as ET

ROOT = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..")
ERROR = re.compile(r"^KOR_ERROR\(\s*(\w+),\s*((?:\"(?:[^\"\\]|\\.)*\"\s*)+)\)", re.M)
ERROR_KEY = re.compile(r"\bN[EW]_[A-Z0-9_]+\b")
ROUTINE_NAME = re.compile(r"\b[a-z]\d\d[a-z]{2}c\b")
BLOCKS = {"para", "simplesect", "parameterlist", "itemizedlist", "orderedlist", "programlisting", "verbatim", "preformatted",
          "table", "sect1", "sect2"}
MOST_SIBLINGS = 12  # of a routine's chapter that its manual page names
# Words that name no task.
COMMON_WORDS = set("""about above after again against also among another around because been before being below between both cannot
each either every from given gives have into itself less like made make makes many more most much must need needs only other
others over same several some such than that their them then there these they this those through under until upon used
uses using very what when where whether which while whose will with within without zero's one's all and are can first for
has how its new not out second the two was who why yet""".split())


# ---- What the headers say

class Routine:
    def __init__(self, member, header, chapter):
        self.name = member.findtext("name")
        self.header, self.chapter = header, chapter
        self.result = "".join(member.find("type").itertext())
        self.parameters = [p for p in map(prototype_of, member.findall("param")) if p != "void"]
        self.brief = inline(member.find("briefdescription"), plain).strip()
        self.description = member.find("detaileddescription")

    def sections(self):
        """The titles of the sections that the description has."""
        return {section_title(node) for node in self.description.iter("simplesect")}

    def errors(self):
        """The error keys of the routine, each with its cause, and the routines whose errors it shares."""
        causes, shared = {}, []
        for section in self.description.iter("simplesect"):
            if section_title(section) != "Errors":
                continue
            for item in section.iter("listitem"):
                text = " ".join(inline(item, plain).split())
                keys, _, cause = text.partition(":")
                for key in ERROR_KEY.findall(keys):
                    causes[key] = cause.strip()
            for paragraph in section.findall("para"):
                if paragraph.find("itemizedlist") is None:
                    shared += ROUTINE_NAME.findall(inline(paragraph, plain))
        return causes, shared


class Chapter:
    def __init__(self, name, title, routines):
        self.name, self.title, self.routines = name, title, routines


def prototype_of(param):
    kind = "".join(param.find("type").itertext())
    name = param.findtext("declname") or ""
    rest = param.findtext("array") or ""
    if "(*" in kind:                   # a function: its name stands in the midst of its type
        kind = re.sub(r"\s*\(\*", " (*", kind, count=1)
        return kind if re.search(r"\(\*\s*\w", kind) else kind.replace("(*", "(*" + name, 1) + rest
    return f"{kind}{'' if kind.endswith('*') or not name else ' '}{name}{rest}"


def section_title(node):
    fixed = {"return": "Return value", "see": "See also", "note": "Note", "warning": "Warning", "author": "Author"}
    return fixed.get(node.get("kind"), node.findtext("title") or "").strip()


def plain(text, _style):
    return text


def inline(node, style_of):
    """The running text of a node, blocks within it included, each piece passed through style_of(text, style)."""
    if node is None:
        return ""
    styles = {"computeroutput": "code", "emphasis": "emphasis", "bold": "bold", "ref": "ref"}
    signs = {"le": "<=", "ge": ">=", "ndash": "-", "mdash": "-", "nonbreakablespace": " ", "sp": " ", "linebreak": "\n",
             "times": "x", "plusmn": "+-", "minus": "-"}

    def walk(element, style):
        yield style_of(element.text or "", style)
        for child in element:
            if child.tag in signs:
                yield style_of(signs[child.tag], style)
            else:
                yield from walk(child, styles.get(child.tag, style))
            yield style_of(child.tail or "", style)

    return "".join(walk(node, None))


def read_headers(xml_dir):
    chapters = []
    for compound in ET.parse(os.path.join(xml_dir, "index.xml")).findall("compound[@kind='file']"):
        file = ET.parse(os.path.join(xml_dir, compound.get("refid") + ".xml")).find("compounddef")
        name, extension = os.path.splitext(file.findtext("compoundname"))
        if extension != ".h" or not re.fullmatch(r"[a-z]\d\d", name):
            continue
        summary = " ".join((inline(file.find("briefdescription"), plain) or inline(file.find("detaileddescription"), plain)).split())
        title = re.sub(rf"^Chapter {name}: ", "", summary).rstrip(".").split(". ")[0]
        routines = [Routine(member, f"kor/{name}.h", name) for member in file.iter("memberdef") if member.get("kind") == "function"]
        chapters.append(Chapter(name, title, routines))
    return sorted(chapters, key=lambda chapter: chapter.name)


def read_catalogue():
    with open(os.path.join(ROOT, "include", "kor", "errors.def"), encoding="utf-8") as file:
        entries = ERROR.findall(file.read())
    def unquoted(literals):
        text = "".join(re.findall(r'"((?:[^"\\]|\\.)*)"', literals))
        return text.replace("\\n", "\n").replace('\\"', '"').replace("\\\\", "\\")
    return {key: (code, unquoted(literals)) for code, (key, literals) in enumerate(entries)}


def faults_of(routine, catalogue):
    for parameter in routine.description.iter("parametername"):
        if not parameter.get("direction"):
            yield f"parameter {parameter.text} has no direction: \\param[in], [out] or [in,out]"
    if not routine.brief:
        yield "has no \\brief"
    sections = routine.sections()
    for wanted in ("Thread safety", "Example"):
        if routine.parameters and wanted not in sections:
            yield f"has no section \\par {wanted}"
    if any(parameter.startswith("KorError") for parameter in routine.parameters) and "Errors" not in sections:
        yield "has no section \\par Errors"
    for key in routine.errors()[0]:
        if key not in catalogue:
            yield f"names {key}, which the catalogue does not have"


# ---- Manual pages

def roff(text, style=None):
    text = text.replace("\\", "\\e").replace("-", "\\-")
    text = re.sub(r"^([.'])", r"\\&\1", text, flags=re.M)
    if style and text.strip():
        return {"code": f"\\fB{text}\\fP", "bold": f"\\fB{text}\\fP", "emphasis": f"\\fI{text}\\fP",
                "ref": f"\\fB{text}\\fP"}[style]
    return text


def man_text(text):
    """Running text on lines of its own, none of which may look like a request."""
    return re.sub(r"^([.'])", r"\\&\1", " ".join(text.split()), flags=re.M) + "\n"


def man_code(text):
    return ".PP\n.in +4n\n.EX\n" + roff(text.strip("\n")) + "\n.EE\n.in\n"


def man_blocks(node):
    """The content of a node: running text broken by blocks."""
    out, text = [], [roff(node.text or "")]

    def flush():
        if "".join(text).strip():
            out.append(man_text("".join(text)))
        text.clear()

    for child in node:
        if child.tag not in BLOCKS:
            holder = ET.Element("para")
            holder.append(child)
            tail, child.tail = child.tail, ""
            text.append(inline(holder, roff))
            child.tail = tail
        else:
            flush()
            out.append(man_block(child))
        text.append(roff(child.tail or ""))
    flush()
    return "".join(out)


def man_block(node):
    if node.tag == "para":
        return ".PP\n" + man_blocks(node)
    if node.tag == "simplesect":
        body = "".join(man_blocks(child) if i == 0 else ".PP\n" + man_blocks(child) for i, child in enumerate(node.findall("para")))
        return f".SH {roff(section_title(node)).upper()}\n{body}"
    if node.tag == "parameterlist":
        out = [".SH ARGUMENTS\n"]
        for item in node.findall("parameteritem"):
            names = item.findall("parameternamelist/parametername")
            shown = ", ".join(f"\\fB{roff(name.text)}\\fP" for name in names)
            direction = (names[0].get("direction") or "").replace("inout", "in, out")
            body = "".join(man_blocks(child) if i == 0 else ".IP\n" + man_blocks(child)
                           for i, child in enumerate(item.findall("parameterdescription/para")))
            out.append(f".TP\n{shown} ({direction})\n{body}")
        return "".join(out)
    if node.tag in ("itemizedlist", "orderedlist"):
        out = []
        for number, item in enumerate(node.findall("listitem"), 1):
            mark = "\\(bu 2" if node.tag == "itemizedlist" else f"{number}. 4"
            body = "".join(man_blocks(child) if i == 0 else ".IP\n" + man_blocks(child) for i, child in enumerate(item))
            out.append(f".IP {mark}\n{body}")
        return "".join(out) + ".PP\n"
    if node.tag == "programlisting":
        return man_code("\n".join(inline(line, plain) for line in node.findall("codeline")))
    if node.tag in ("verbatim", "preformatted"):
        return man_code(inline(node, plain))
    if node.tag == "table":
        rows = [[" ".join(inline(entry, plain).split()) for entry in row.findall("entry")] for row in node.findall("row")]
        widths = [max(len(row[i]) for row in rows if i < len(row)) for i in range(len(rows[0]))]
        return man_code("\n".join("  ".join(cell.ljust(width) for cell, width in zip(row, widths)).rstrip() for row in rows))
    return man_blocks(node)


def man_page(routine, chapter, version):
    head = f"{routine.result}{'' if routine.result.endswith('*') else ' '}{routine.name}("
    prototype = textwrap.fill(head + ", ".join(p.replace(" ", "\0") for p in routine.parameters) + ");", 76,
                              subsequent_indent=" " * min(len(head), 12), break_long_words=False, break_on_hyphens=False)
    prototype = prototype.replace("\0", " ") if routine.parameters else head + "void);"
    brief = routine.brief[0].lower() + routine.brief[1:].rstrip(".")
    # What Doxygen has as one flow goes under headings; the references come last.
    blocks = [block for paragraph in routine.description for block in split_paragraph(paragraph)]
    references = [block for block in blocks if block.tag == "simplesect" and section_title(block) == "See also"]
    body = "".join(man_block(block) for block in blocks if block not in references)
    see = ".SH SEE ALSO\n" + "".join(man_blocks(child) + ".PP\n" for block in references for child in block.findall("para"))
    siblings = ", ".join(f"\\fB{other.name}\\fP(3)" for other in chapter.routines if other is not routine)
    if siblings and len(chapter.routines) <= MOST_SIBLINGS:
        see += f"Of the same chapter: {siblings}.\n"
    return (f'.TH {routine.name} 3 "" "KOR {version}" "KOR"\n'
            f".SH NAME\n{routine.name} \\- {roff(brief)}\n"
            f".SH SYNOPSIS\n.nf\n.B #include <{routine.header}>\n.PP\n"
            + "".join(f"\\fB{roff(line)}\\fP\n" for line in prototype.splitlines())
            + ".fi\n.PP\nLink with \\fB\\-lkorc\\fP.\n.SH DESCRIPTION\n" + man_text(roff(routine.brief)) + body
            + see + "\\fBkor\\fP(3) lists all routines.\n")


def split_paragraph(paragraph):
    """The sections of a paragraph one by one, and what stands before, between and behind them as paragraphs."""
    rest = ET.Element("para")
    rest.text = paragraph.text
    for child in paragraph:
        if child.tag in ("simplesect", "parameterlist"):
            if len(rest) or (rest.text or "").strip():
                yield rest
            yield child
            rest = ET.Element("para")
            rest.text = child.tail
        else:
            rest.append(child)
    if len(rest) or (rest.text or "").strip():
        yield rest


def man_overview(chapters, version):
    out = [f'.TH kor 3 "" "KOR {version}" "KOR"\n.SH NAME\nkor \\- a numerical subroutine library\n'
           ".SH SYNOPSIS\n.nf\n.B #include <kor/all.h>\n.fi\n.PP\n\\fBcc program.c $(pkg\\-config \\-\\-cflags \\-\\-libs korc)\\fP\n"
           ".SH DESCRIPTION\nEach routine has a manual page of its own. The last argument of nearly every routine is an error\n"
           "record, \\fBKorError *fail\\fP: clear it once (\\fBKorError fail = {0};\\fP); after each call \\fBfail.code\\fP is 0 or the\n"
           "code of an error, and \\fBfail.message\\fP its text. With a null pointer in its place an error is printed and ends the\n"
           "process with status 1.\n"]
    for chapter in chapters:
        out.append(f'.SH "{chapter.name.upper()}: {roff(chapter.title).upper()}"\n')
        out += [f".TP 10\n\\fB{r.name}\\fP\n{man_text(roff(r.brief))}" for r in chapter.routines]
    return "".join(out)


# ---- Pages of the site

def cell(text):
    """Text that neither Markdown nor Doxygen takes for anything else."""
    return re.sub(r"([\\`*_{}\[\]<>#|@$&%])", lambda m: f"&#{ord(m.group(1))};", text)


def chapter_index(chapters, guides):
    """Each chapter with its routines and with the guides that speak of them; guides: texts by name."""
    out = ["# Routines by chapter {#index_chapters}\n\n"]
    for chapter in chapters:
        names = {r.name for r in chapter.routines}
        out.append(f"## {chapter.name}: {cell(chapter.title)} {{#chapter_{chapter.name}}}\n\n")
        own = [chapter.name] if chapter.name in guides else [name for name in guides if names & set(ROUTINE_NAME.findall(guides[name]))]
        out += [f"Guide: \\ref guide_{name}\n\n" for name in own]
        out.append("| Routine | Purpose |\n| --- | --- |\n")
        out += [f"| \\ref {r.name} | {cell(r.brief)} |\n" for r in chapter.routines] + ["\n"]
    return "".join(out)


def task_index(chapters):
    by_word = {}
    for chapter in chapters:
        for routine in chapter.routines:
            for word in set(re.findall(r"[A-Za-z][a-z]{3,}(?:-[a-z]+)*", routine.brief)):
                if word.lower() not in COMMON_WORDS and not ROUTINE_NAME.fullmatch(word):
                    by_word.setdefault(word.lower(), []).append(routine)
    out = ["# Routines by task {#index_tasks}\n\nThe words of what each routine is for.\n\n"]
    for word in sorted(by_word):
        out.append(f"**{cell(word)}**\n")
        out += [f"- \\ref {r.name} &nbsp; {cell(r.brief)}\n" for r in by_word[word]] + ["\n"]
    return "".join(out)


def error_index(chapters, catalogue):
    routines = {r.name: r for chapter in chapters for r in chapter.routines}

    def causes(routine, seen):
        """A routine's own errors, and those of the routines that it refers to."""
        own, shared = routine.errors()
        found = dict(own)
        for name in shared:
            if name in routines and name not in seen:
                for key, cause in causes(routines[name], seen | {name}).items():
                    found.setdefault(key, cause)
        return found

    reports = {}
    for routine in routines.values():
        for key, cause in causes(routine, {routine.name}).items():
            reports.setdefault(key, []).append((routine, cause))
    out = ["# Errors by key {#index_errors}\n\nNE_ keys are errors, NW_ keys are warnings. \\ref guide_frame tells how a program "
           "receives them.\n\n"]
    for key in sorted(catalogue):
        code, text = catalogue[key]
        out.append(f"## {key} {{#error_{key}}}\n\nCode {code}.\n\n\\verbatim\n{text}\n\\endverbatim\n\n")
        out += [f"- \\ref {routine.name} &nbsp; {cell(cause)}\n" for routine, cause in reports.get(key, [])] + ["\n"]
    return "".join(out)


def guide_page(name, text, known):
    """A guide with an anchor, and with the routines that it names as links."""
    if "{#" not in text.split("\n", 1)[0]:
        text = re.sub(r"\A(# .*)$", rf"\1 {{#guide_{name}}}", text, count=1, flags=re.M)
    return re.sub(r"`([a-z]\d\d[a-z]{2}c)(?:\(\))?`", lambda m: f"\\link {m.group(1)} {m.group(1)}\\endlink" if m.group(1) in known else m.group(0), text)


# ---- All of it

def run_doxygen(doxygen, doxyfile, settings):
    with open(doxyfile, encoding="utf-8") as file:
        configuration = file.read()
    run = subprocess.run([doxygen, "-"], input=configuration + "".join(f"{key}={value}\n" for key, value in settings.items()),
                         text=True, check=False)
    return run.returncode


def write(path, text):
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, "w", encoding="utf-8") as file:
        file.write(text)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    for name in ("doxygen", "doxyfile", "output", "version"):
        parser.add_argument("--" + name, required=True)
    a = parser.parse_args()
    pages, man, xml = (os.path.join(a.output, name) for name in ("pages", "man", "xml"))
    for directory in (pages, man, xml, os.path.join(a.output, "html")):
        shutil.rmtree(directory, ignore_errors=True)

    # The warnings come with the second reading, when all pages are there.
    run_doxygen(a.doxygen, a.doxyfile, {"GENERATE_XML": "YES", "GENERATE_HTML": "NO", "WARNINGS": "NO", "WARN_AS_ERROR": "NO",
                                        "WARN_IF_DOC_ERROR": "NO", "WARN_NO_PARAMDOC": "NO", "INPUT": f'"{ROOT}/include"'})
    chapters, catalogue = read_headers(xml), read_catalogue()
    faults = [f"{r.name} {fault}" for chapter in chapters for r in chapter.routines for fault in faults_of(r, catalogue)]
    if not chapters:
        faults.append("Doxygen found no chapter in include/kor")
    if faults:
        print("\n".join(faults))
        return 1

    for chapter in chapters:
        for routine in chapter.routines:
            write(os.path.join(man, "man3", routine.name + ".3"), man_page(routine, chapter, a.version))
    write(os.path.join(man, "man3", "kor.3"), man_overview(chapters, a.version))

    known = {r.name for chapter in chapters for r in chapter.routines}
    guides = {}
    for name in sorted(os.listdir(os.path.join(ROOT, "docs", "guide"))):
        with open(os.path.join(ROOT, "docs", "guide", name), encoding="utf-8") as file:
            guides[name.removesuffix(".md")] = file.read()
    for name, text in guides.items():
        write(os.path.join(pages, f"guide_{name}.md"), guide_page(name, text, known))
    write(os.path.join(pages, "index_chapters.md"), chapter_index(chapters, guides))
    write(os.path.join(pages, "index_tasks.md"), task_index(chapters))
    write(os.path.join(pages, "index_errors.md"), error_index(chapters, catalogue))
    if run_doxygen(a.doxygen, a.doxyfile, {}) != 0:
        return 1
    print(f"{len(known)} routines in {len(chapters)} chapters, {len(guides)} guides: {a.output}/html/index.html")
    return 0


if __name__ == "__main__":
    sys.exit(main())
