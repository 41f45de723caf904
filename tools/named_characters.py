#!/usr/bin/env python3
"""Writes src/html/source/NamedCharacters.cpp: the named character references of HTML.

    tools/named_characters.py > src/html/source/NamedCharacters.cpp

Python's own table is that of the standard.
"""
import html.entities
import textwrap

HEAD = """\
// The named character references. Made by tools/named_characters.py: not to be edited.
#include "html/source/NamedCharacters.h"

namespace lumenote {

// clang-format off
const std::string_view kNamedCharacters ="""
TAIL = """\
// clang-format on

}  // namespace lumenote"""


def rows():
    for bare in sorted({name.rstrip(";") for name in html.entities.html5}):
        sign = "~" if bare in html.entities.html5 else "="
        units = html.entities.html5[bare + ";"].encode("utf-16-be")
        yield bare + sign + "+".join(f"{units[i] << 8 | units[i + 1]:X}"
                                     for i in range(0, len(units), 2))


print(HEAD)
lines = textwrap.wrap(" ".join(rows()), 94, break_long_words=False, break_on_hyphens=False)
print("\n".join(f'    "{line} "' for line in lines) + ";")
print(TAIL)
