#!/usr/bin/env python3
"""Checks that includes point downwards only.   usage: check_includes.py SRC_FOLDER

A layer may include itself and the layers below it. The rooms of a layer include each other in one
direction only: no room comes back to itself through others. Public headers (include/lumenote, beside
SRC_FOLDER) include nothing but each other. A system header of a toolkit or an operating system stays in
backends/ and in the public header for hosts with Qt; only the sandboxes of the scripts know a backend.
"""
import collections
import pathlib
import re
import sys

LAYERS = ["base", "document", ("rtf", "html"), "platform", "surface", "view", "forms", "session",
          ("selection", "extapps"), ("find", "symbols", "ocr", "format"),
          "editor", "control", "backends", "pilot"]
APART = [{"rtf/read", "rtf/write"}, {"html/read", "html/write"}]  # know nothing of each other
FOREIGN = re.compile(r"^(Q[A-Z]|q[a-z]+/|sys/|X11/|unistd|fcntl|windows|dirent|spawn|pwd|grp)")
RANK = {name: rank for rank, names in enumerate(LAYERS)
        for name in ([names] if isinstance(names, str) else names)}


def includes(file):
    for number, line in enumerate(file.read_text(encoding="utf-8").splitlines(), 1):
        found = re.match(r'\s*#\s*include\s*([<"])([^>"]+)', line)
        if found:
            yield number, *found.groups()


def complaint(source, path, quote, target):
    """What is wrong with one include, or None."""
    layer = path.parts[0]
    if quote == "<":
        at_home = layer == "backends" or path.name == "QtCoBxRtf.h"
        return "platform header" if not at_home and FOREIGN.match(target) else None
    public = target.startswith("lumenote/")
    if not (source.parent / "include" / target if public else source / target).exists():
        return "no such header"
    if layer == "lumenote" or public:
        return None if public else "private header in a public one"
    if target.startswith("backends/") and layer == "pilot" and path.parts[1] != "sandbox":
        return "backend from above"
    return "points up" if RANK[target.split("/")[0]] > RANK[layer] else None


def way_back(rooms, start):
    """The rooms through which `start` includes itself, or None."""
    ways = collections.deque([[start]])
    seen = set()
    while ways:
        way = ways.popleft()
        for room in sorted(rooms[way[-1]]):
            if room == start:
                return way + [start]
            if room not in seen:
                seen.add(room)
                ways.append(way + [room])
    return None


def main():
    source = pathlib.Path(sys.argv[1])
    bad = []
    rooms = collections.defaultdict(set)
    public = source.parent / "include"
    for folder, file in [(folder, file) for folder in (source, public)
                         for file in sorted(folder.rglob("*.[ch]*"))]:
        path = file.relative_to(folder)
        for number, quote, target in includes(file):
            why = complaint(source, path, quote, target)
            if why:
                bad.append(f"{path}:{number}: {why}: {target}")
            room, other = str(path.parent), str(pathlib.Path(target).parent)
            if quote == '"' and room != other:
                rooms[room].add(other)
            if {room, other} in APART:
                bad.append(f"{path}:{number}: reader and writer stand apart: {target}")
            if {room.split("/")[0], other.split("/")[0]} == {"rtf", "html"}:
                bad.append(f"{path}:{number}: RTF and HTML stand apart: {target}")
    for room in sorted(rooms):
        way = way_back(rooms, room)
        if way:
            bad.append("circle of rooms: " + " -> ".join(way))
    print("\n".join(bad))
    return 1 if bad else 0


sys.exit(main())
