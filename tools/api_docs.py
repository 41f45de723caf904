#!/usr/bin/env python3
"""Writes docs/api.md from the public headers.   usage: api_docs.py [--check]

Doxygen reads the headers; whatever it misses is an error. With --check the page is only compared.
"""
import itertools
import pathlib
import re
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

TOP = pathlib.Path(__file__).resolve().parent.parent
HEADERS = TOP / "include/lumenote"
PAGE = TOP / "docs/api.md"
ORDER = ["CoBxRtf.h", "QtCoBxRtf.h", "QtPlatform.h", "Win32Platform.h", "Platform.h", "Note.h",
         "NativePaths.h", "Utf8.h", "RuntimeError.h", "lumenote.h"]
SETTINGS = """
INPUT = {headers}
STRIP_FROM_PATH = {headers}
OUTPUT_DIRECTORY = {output}
GENERATE_HTML = NO
GENERATE_LATEX = NO
GENERATE_XML = YES
QUIET = YES
DISTRIBUTE_GROUP_DOC = YES
WARN_AS_ERROR = FAIL_ON_WARNINGS
"""
INTRODUCTION = """# The public interface

Made from the headers by `tools/api_docs.py`. How hosts use it is in [embedding.md](embedding.md).
"""


def text_of(node):
    """The Markdown of a description's paragraph and what is in it."""
    text = re.sub(r"\s+", " ", node.text or "")
    for child in node:
        inner = text_of(child)
        if child.tag == "computeroutput":
            inner = f"`{inner}`"
        elif child.tag == "listitem":
            inner = f"\n- {inner.strip()}"
        elif child.tag == "itemizedlist":
            text, inner = text.rstrip(), f"\n{inner.rstrip()}\n\n"
        text += inner + re.sub(r"\s+", " ", child.tail or "")
    return text


def description(node):
    paragraphs = [text_of(part).strip() for kind in ("briefdescription", "detaileddescription")
                  for part in node.findall(kind + "/para")]
    return "\n\n".join(paragraph for paragraph in paragraphs if paragraph)


def signature(member):
    """As the header has it, without what only the compiler needs."""
    if member.get("kind") == "enum":
        values = [value.findtext("name") + (" " + value.findtext("initializer", "")).rstrip()
                  for value in member.findall("enumvalue")]
        return f"enum class {member.findtext('name')} {{ {', '.join(values)} }}"
    words = ["static"] if member.get("static") == "yes" else []
    words += text_of(member.find("type")).split() + [member.findtext("name")]
    arguments = re.sub(r"(=0|\boverride|\bnoexcept)$", "", member.findtext("argsstring", "")).strip()
    line = re.sub(r"\s*([*&]+)\s*", r"\1 ", " ".join(words) + arguments)
    return re.sub(r"< | >|(?<=[&*]) (?=\))", lambda found: found.group().strip(), line)


def members(compound, header):
    """Those of a class or namespace that the header declares, in its order; what overrides is told
    where it is first declared."""
    def is_told_here(member):
        own_name = member.findtext("qualifiedname", "")  # unless a using-declaration brings it
        return (member.get("prot") == "public" and member.get("kind") != "typedef"
                and member.find("reimplements") is None
                and member.find("location").get("file") == header
                and own_name in member.findtext("definition", own_name)
                and not member.findtext("name").startswith("~") and description(member))

    found = [member for section in compound.findall("sectiondef") for member in section
             if is_told_here(member)]
    found.sort(key=lambda member: int(member.find("location").get("line")))
    return ["\n".join(f"`{signature(member)}`  " for member in alike).rstrip() + f"\n\n{text}\n"
            for text, alike in itertools.groupby(found, description)]


def header_part(name, folder):
    """A header's section: what it is for, its classes, its functions."""
    def read(compound_id):
        return ElementTree.parse(folder / (compound_id + ".xml")).find("compounddef")

    index = ElementTree.parse(folder / "index.xml")
    file_id = next(compound.get("refid") for compound in index.iter("compound")
                   if compound.get("kind") == "file" and compound.findtext("name") == name)
    header = read(file_id)
    first = (HEADERS / name).read_text(encoding="utf-8").splitlines()[0]
    purpose = first[3:] if first.startswith("// ") else description(header)
    parts = [f"## `<lumenote/{name}>`\n", purpose + "\n"]
    for inner in header.findall("innerclass"):
        compound = read(inner.get("refid"))
        if compound.get("prot", "public") != "public" or not description(compound):
            continue
        kind = compound.get("kind")
        title = compound.findtext("compoundname").removeprefix("lumenote::")
        parts += [f"### {kind} `{title}`\n", description(compound) + "\n", *members(compound, name)]
    spaces = [read(space.get("refid")) for space in header.findall("innernamespace")
              if space.text == "lumenote"]
    return parts + [entry for compound in [header, *spaces] for entry in members(compound, name)]


def make_page():
    with tempfile.TemporaryDirectory() as output:
        settings = SETTINGS.format(headers=HEADERS, output=output)
        subprocess.run(["doxygen", "-"], input=settings.encode(), check=True)
        folder = pathlib.Path(output, "xml")
        parts = [part for name in ORDER for part in header_part(name, folder)]
    return INTRODUCTION + "\n" + "\n".join(parts)


def main():
    if {path.name for path in HEADERS.glob("*.h")} != set(ORDER):
        sys.exit("api_docs.py: the headers have changed")
    page = make_page()
    if sys.argv[1:] != ["--check"]:
        PAGE.write_text(page, encoding="utf-8")
    elif PAGE.read_text(encoding="utf-8") != page:
        sys.exit("docs/api.md is not what the headers say: run tools/api_docs.py")


main()
