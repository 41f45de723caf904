#!/usr/bin/env python3
"""Checks that quoted programs are the ones that are tested.   usage: check_docs.py SOURCE_FOLDER

A code block of docs/ whose first line names a file (```c hosts/examples/c/main.c) holds that file.
"""
import pathlib
import re
import sys

top = pathlib.Path(sys.argv[1])
bad = []
quoted = 0
for page in sorted((top / "docs").glob("*.md")):
    blocks = re.findall(r"^```\w+ (\S+)\n(.*?)^```$", page.read_text(encoding="utf-8"), re.M | re.S)
    quoted += len(blocks)
    bad += [f"{page.name}: not what {name} says" for name, block in blocks
            if block != (top / name).read_text(encoding="utf-8")]
if quoted == 0:
    bad.append("nothing is quoted")
print("\n".join(bad))
sys.exit(bool(bad))
