#!/usr/bin/env python3
"""Writes src/base/codepages/DoubleByteTables.cpp: the double-byte code pages, packed.

    tools/double_byte_pages.py > src/base/codepages/DoubleByteTables.cpp

The pages come from Python's own codecs. Each is the list of its characters by rising lead byte
(0x81 to 0xFE), then by rising trail byte (0x31 to 0xFE), written as differences; the C++ side of
the packing is DoubleBytePage.cpp."""

PAGES = (932, "cp932"), (936, "gbk"), (949, "cp949"), (950, "cp950"), (1361, "johab")
# Characters that users define: first and last lead byte, their trail bytes. They fill the private
# use area from U+E000 in this order. Page 932 has them in the codec.
HIGH, LOW = range(0xA1, 0xFF), [*range(0x40, 0x7F), *range(0x80, 0xA1)]
BOTH = [*range(0x40, 0x7F), *HIGH]
USERS = {
    936: [(0xAA, 0xAF, HIGH), (0xF8, 0xFE, HIGH), (0xA1, 0xA7, LOW)],
    949: [(0xC9, 0xC9, HIGH), (0xFE, 0xFE, HIGH)],
    950: [(0xFA, 0xFE, BOTH), (0x8E, 0xA0, BOTH), (0x81, 0x8D, BOTH), (0xC6, 0xC6, HIGH), (0xC7, 0xC8, BOTH)],
}
DIGITS = [chr(c) for c in range(ord("#"), 0x7F) if chr(c) not in "?\\"]
BASE = len(DIGITS)  # 90
# The first digit of an item tells its kind; the limits are those of DoubleBytePage.cpp.
PAIR, RUN, GAP, FAR = 44, 78, 79, 80
BACK = 700  # the farthest a pair goes back


def digits(value, count):
    return "".join(DIGITS[value // BASE**i % BASE] for i in reversed(range(count)))


def far_or_near(step, unit):
    if 1 <= step <= PAIR:
        return DIGITS[step - 1]
    if 0 <= step + BACK < (RUN - PAIR) * BASE:
        return digits(PAIR * BASE + step + BACK, 2)
    return digits(FAR * BASE * BASE + unit, 3)


def counted(kind, count):
    """Items of `kind` for `count` cells, each item at most BASE of them."""
    full, rest = divmod(count, BASE)
    items = [DIGITS[kind] + DIGITS[BASE - 1]] * full
    return "".join(items) + (DIGITS[kind] + DIGITS[rest - 1] if rest else "")


def of_users(page):
    pairs = ((lead, trail) for first, last, trails in USERS.get(page, []) for lead in range(first, last + 1) for trail in trails)
    return {pair: 0xE000 + i for i, pair in enumerate(pairs)}


def units(page, codec):
    users = of_users(page)
    for lead in range(0x81, 0xFF):
        for trail in range(0x31, 0xFF):
            if (lead, trail) in users:
                yield users[lead, trail]
                continue
            try:
                text = bytes([lead, trail]).decode(codec)
            except UnicodeDecodeError:
                text = ""
            yield ord(text) if len(text) == 1 else 0


def packed(cells):
    out, last, at = "", 0, 0
    while at < len(cells):
        end = at
        while end < len(cells) and cells[end] == 0:
            end += 1
        if end > at:
            out += counted(GAP, end - at)
            at = end
            continue
        while end < len(cells) and cells[end] == last + 1 + end - at:
            end += 1
        if end - at > 2:
            out += counted(RUN, end - at)
        else:
            end = at + 1
            out += far_or_near(cells[at] - last, cells[at])
        last, at = cells[end - 1], end
    return out


def main():
    print("// The double-byte code pages, packed. Made by tools/double_byte_pages.py: not to be edited.")
    print('#include "base/codepages/DoubleBytePage.h"\n\nnamespace lumenote {\n')
    print("// clang-format off")
    print("const PackedPage kDoubleBytePages[5] = {")
    for number, codec in PAGES:
        text = packed(list(units(number, codec)))
        lines = [text[at : at + 96] for at in range(0, len(text), 96)]
        print("{%d," % number)
        print("\n".join('"%s"' % line for line in lines) + "},")
    print("};\n// clang-format on\n\n}  // namespace lumenote")


main()
