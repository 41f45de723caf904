#!/usr/bin/env python3
"""Checks that includes point downwards only.   usage: check_includes.py SRC_FOLDER

A layer may include itself and the layers below it. The two pure headers may be included from every
layer above the forms. A system header of a toolkit or an operating system stays in backends/.
"""
import pathlib
import re
import sys

LAYERS = ["base", "document", "rtf", "platform", "surface", "forms",
          ("selection", "extapps"), ("find", "symbols", "ocr", "format"),
          "editor", "control", "pilot", "backends"]
PURE = {"control/Session.h", "editor/EditorWindow.h"}
FOREIGN = re.compile(r"^(Q[A-Z]|q[a-z]+/|sys/|X11/|unistd|fcntl|windows|dirent|spawn|pwd|grp)")
RANK = {name: rank for rank, names in enumerate(LAYERS)
        for name in ([names] if isinstance(names, str) else names)}


def complaint(source, path, quote, target):
    """What is wrong with one include, or None."""
    layer = path.parts[0]
    if quote == "<":
        return "platform header" if layer != "backends" and FOREIGN.match(target) else None
    if not (source / target).exists():
        return "no such header"
    other = target.split("/")[0]
    if target in PURE and RANK[layer] > RANK["forms"]:
        return None
    if other == "backends" and layer != "backends":
        return "backend from above"
    return "points up" if RANK[other] > RANK[layer] else None


def main():
    source = pathlib.Path(sys.argv[1])
    bad = 0
    for file in sorted(source.rglob("*.[ch]*")):
        path = file.relative_to(source)
        for number, line in enumerate(file.read_text(encoding="utf-8").splitlines(), 1):
            found = re.match(r'\s*#\s*include\s*([<"])([^>"]+)', line)
            why = found and complaint(source, path, *found.groups())
            if why:
                print(f"{path}:{number}: {why}: {found.group(2)}")
                bad += 1
    return 1 if bad else 0


sys.exit(main())
