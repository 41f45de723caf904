// Tables of letters and their other case.
#include "base/Characters.h"

#include <algorithm>
#include <iterator>

#include "base/LetterRanges.h"

namespace lumenote {
namespace {

/// Capitals `first`, `first + stride`, ..., `last`; each small letter is `toSmall` further on.
struct CasePairs {
  char16_t first;
  char16_t last;
  int stride;
  int toSmall;
};

constexpr CasePairs kCasePairs[] = {
    {0x0041, 0x005A, 1, 32},   {0x00C0, 0x00D6, 1, 32},   {0x00D8, 0x00DE, 1, 32},
    {0x0100, 0x012E, 2, 1},    {0x0132, 0x0136, 2, 1},    {0x0139, 0x0147, 2, 1},
    {0x014A, 0x0176, 2, 1},    {0x0178, 0x0178, 1, -121}, {0x0179, 0x017D, 2, 1},
    {0x0181, 0x0181, 1, 210},  {0x0182, 0x0184, 2, 1},    {0x0186, 0x0186, 1, 206},
    {0x0187, 0x0187, 1, 1},    {0x0189, 0x018A, 1, 205},  {0x018B, 0x018B, 1, 1},
    {0x018E, 0x018E, 1, 79},   {0x018F, 0x018F, 1, 202},  {0x0190, 0x0190, 1, 203},
    {0x0191, 0x0191, 1, 1},    {0x0193, 0x0193, 1, 205},  {0x0194, 0x0194, 1, 207},
    {0x0196, 0x0196, 1, 211},  {0x0197, 0x0197, 1, 209},  {0x0198, 0x0198, 1, 1},
    {0x019C, 0x019C, 1, 211},  {0x019D, 0x019D, 1, 213},  {0x019F, 0x019F, 1, 214},
    {0x01A0, 0x01A4, 2, 1},    {0x01A6, 0x01A6, 1, 218},  {0x01A7, 0x01A7, 1, 1},
    {0x01A9, 0x01A9, 1, 218},  {0x01AC, 0x01AC, 1, 1},    {0x01AE, 0x01AE, 1, 218},
    {0x01AF, 0x01AF, 1, 1},    {0x01B1, 0x01B2, 1, 217},  {0x01B3, 0x01B5, 2, 1},
    {0x01B7, 0x01B7, 1, 219},  {0x01B8, 0x01B8, 1, 1},    {0x01BC, 0x01BC, 1, 1},
    {0x01C4, 0x01C4, 1, 2},    {0x01C7, 0x01C7, 1, 2},    {0x01CA, 0x01CA, 1, 2},
    {0x01CD, 0x01DB, 2, 1},    {0x01DE, 0x01EE, 2, 1},    {0x01F1, 0x01F1, 1, 2},
    {0x01F4, 0x01F4, 1, 1},    {0x01F6, 0x01F6, 1, -97},  {0x01F7, 0x01F7, 1, -56},
    {0x01F8, 0x021E, 2, 1},    {0x0220, 0x0220, 1, -130}, {0x0222, 0x0232, 2, 1},
    {0x023B, 0x023B, 1, 1},    {0x023D, 0x023D, 1, -163}, {0x0241, 0x0241, 1, 1},
    {0x0243, 0x0243, 1, -195}, {0x0244, 0x0244, 1, 69},   {0x0245, 0x0245, 1, 71},
    {0x0246, 0x024E, 2, 1},    {0x0370, 0x0372, 2, 1},    {0x0376, 0x0376, 1, 1},
    {0x037F, 0x037F, 1, 116},  {0x0386, 0x0386, 1, 38},   {0x0388, 0x038A, 1, 37},
    {0x038C, 0x038C, 1, 64},   {0x038E, 0x038F, 1, 63},   {0x0391, 0x03A1, 1, 32},
    {0x03A3, 0x03AB, 1, 32},   {0x03CF, 0x03CF, 1, 8},    {0x03D8, 0x03EE, 2, 1},
    {0x03F7, 0x03F7, 1, 1},    {0x03F9, 0x03F9, 1, -7},   {0x03FA, 0x03FA, 1, 1},
    {0x03FD, 0x03FF, 1, -130}, {0x0400, 0x040F, 1, 80},   {0x0410, 0x042F, 1, 32},
    {0x0460, 0x0480, 2, 1},    {0x048A, 0x04BE, 2, 1},    {0x04C0, 0x04C0, 1, 15},
    {0x04C1, 0x04CD, 2, 1},    {0x04D0, 0x052E, 2, 1},    {0x1E00, 0x1E94, 2, 1},
    {0x1EA0, 0x1EFE, 2, 1},    {0x1F08, 0x1F0F, 1, -8},   {0x1F18, 0x1F1D, 1, -8},
    {0x1F28, 0x1F2F, 1, -8},   {0x1F38, 0x1F3F, 1, -8},   {0x1F48, 0x1F4D, 1, -8},
    {0x1F59, 0x1F5F, 2, -8},   {0x1F68, 0x1F6F, 1, -8},   {0x1F88, 0x1F8F, 1, -8},
    {0x1F98, 0x1F9F, 1, -8},   {0x1FA8, 0x1FAF, 1, -8},   {0x1FB8, 0x1FB9, 1, -8},
    {0x1FBA, 0x1FBB, 1, -74},  {0x1FBC, 0x1FBC, 1, -9},   {0x1FC8, 0x1FCB, 1, -86},
    {0x1FCC, 0x1FCC, 1, -9},   {0x1FD8, 0x1FD9, 1, -8},   {0x1FDA, 0x1FDB, 1, -100},
    {0x1FE8, 0x1FE9, 1, -8},   {0x1FEA, 0x1FEB, 1, -112}, {0x1FEC, 0x1FEC, 1, -7},
    {0x1FF8, 0x1FF9, 1, -128}, {0x1FFA, 0x1FFB, 1, -126}, {0x1FFC, 0x1FFC, 1, -9}};

/// One-way mappings: variants of a letter whose other case maps to another partner.
struct OneWay {
  char16_t from;
  char16_t to;
};

constexpr OneWay kOnlyToSmall[] = {
    {u'İ', u'i'}, {u'ǅ', u'ǆ'}, {u'ǈ', u'ǉ'}, {u'ǋ', u'ǌ'},
    {u'ǲ', u'ǳ'}, {u'ϴ', u'θ'}, {u'ẞ', u'ß'},
};

// The micro sign keeps its form: its Greek capital would change the unit of measure, and is in no
// Latin code page.
constexpr OneWay kOnlyToCapital[] = {
    {u'ı', u'I'}, {u'ſ', u'S'}, {u'ǅ', u'Ǆ'}, {u'ǈ', u'Ǉ'}, {u'ǋ', u'Ǌ'},
    {u'ǲ', u'Ǳ'}, {u'ς', u'Σ'}, {u'ϐ', u'Β'}, {u'ϑ', u'Θ'}, {u'ϕ', u'Φ'},
    {u'ϖ', u'Π'}, {u'ϰ', u'Κ'}, {u'ϱ', u'Ρ'}, {u'ϵ', u'Ε'}, {u'ẛ', u'Ṡ'},
};

constexpr CaseTable Unchanged() {
  CaseTable table{};
  for (unsigned c = 0; c < table.low.size(); ++c) table.low[c] = static_cast<char16_t>(c);
  for (unsigned c = 0; c < table.high.size(); ++c) {
    table.high[c] = static_cast<char16_t>(CaseTable::kHighStart + c);
  }
  return table;
}

constexpr void Set(CaseTable& table, int from, int to) {
  char16_t& entry =
      from < CaseTable::kLowEnd ? table.low[from] : table.high[from - CaseTable::kHighStart];
  entry = static_cast<char16_t>(to);
}

constexpr CaseTable SmallTable() {
  CaseTable table = Unchanged();
  for (const CasePairs& pairs : kCasePairs) {
    for (int c = pairs.first; c <= pairs.last; c += pairs.stride) Set(table, c, c + pairs.toSmall);
  }
  for (const OneWay& way : kOnlyToSmall) Set(table, way.from, way.to);
  return table;
}

constexpr CaseTable CapitalTable() {
  CaseTable table = Unchanged();
  for (const CasePairs& pairs : kCasePairs) {
    for (int c = pairs.first; c <= pairs.last; c += pairs.stride) Set(table, c + pairs.toSmall, c);
  }
  for (const OneWay& way : kOnlyToCapital) Set(table, way.from, way.to);
  return table;
}

template <std::size_t N>
bool Contains(const CharacterRange (&ranges)[N], char16_t c) {
  const auto* found = std::partition_point(std::begin(ranges), std::end(ranges),
                                           [&](const CharacterRange& r) { return r.last < c; });
  return found != std::end(ranges) && found->first <= c;
}

std::u16string Mapped(const CaseTable& table, std::u16string_view text) {
  std::u16string out(text);
  for (char16_t& c : out) c = table.Map(c);
  return out;
}

}  // namespace

constinit const CaseTable kSmallLetters = SmallTable();
constinit const CaseTable kCapitalLetters = CapitalTable();

std::u16string Lower(std::u16string_view text) { return Mapped(kSmallLetters, text); }

std::u16string Upper(std::u16string_view text) { return Mapped(kCapitalLetters, text); }

bool IsLetterBeyondAscii(char16_t c) { return Contains(kLetterRanges, c); }

bool IsWordCharacterBeyondAscii(char16_t c) { return Contains(kWordRanges, c); }

}  // namespace lumenote
