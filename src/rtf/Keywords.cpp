// One constant table: control word, handler, the handler's value.
#include "rtf/Keywords.h"

#include <array>
#include <cstdint>
#include <iterator>

namespace lumenote {
namespace {

using I = Interpreter;
using P = ParagraphState;

template <class Enum>
constexpr int Of(Enum value) {
  return static_cast<int>(value);
}

constexpr Keyword kKeywords[] = {
    // The document.
    {"ansi", &I::DocumentPage, 1252},
    {"mac", &I::DocumentPage, 10000},
    {"pc", &I::DocumentPage, 437},
    {"pca", &I::DocumentPage, 850},
    {"ansicpg", &I::DocumentPage, 0},
    {"deff", &I::DefaultFont},
    {"deflang", &I::DefaultLanguage},
    {"uc", &I::Fallback},

    // Groups.
    {"fonttbl", &I::Fonts, 0, true},
    {"colortbl", &I::Colours, 0, true},
    {"listtable", &I::Lists, 0, true},
    {"listoverridetable", &I::ListOverrides, 0, true},
    {"upr", &I::SkipAlternative, 0, true},
    {"ud", &I::EnterGroup, 0, true},
    {"nesttableprops", &I::EnterGroup, 0, true},
    {"pntext", &I::Marker, 0, true},
    {"listtext", &I::Marker, 0, true},
    {"pn", &I::Numbering, 0, true},
    {"pict", &I::KeepGroup, 0, true},
    {"object", &I::KeepGroup, 0, true},
    {"shppict", &I::KeepGroup, 0, true},
    {"shp", &I::KeepGroup, 0, true},
    {"shpgrp", &I::KeepGroup, 0, true},
    {"do", &I::KeepGroup, 0, true},
    {"nonshppict", &I::SkipGroup, 0, true},
    {"stylesheet", &I::SkipTable, 0, true},
    {"info", &I::SkipTable, 0, true},
    {"filetbl", &I::SkipGroup, 0, true},
    {"revtbl", &I::SkipGroup, 0, true},
    {"header", &I::SkipGroup, 0, true},
    {"headerl", &I::SkipGroup, 0, true},
    {"headerr", &I::SkipGroup, 0, true},
    {"headerf", &I::SkipGroup, 0, true},
    {"footer", &I::SkipGroup, 0, true},
    {"footerl", &I::SkipGroup, 0, true},
    {"footerr", &I::SkipGroup, 0, true},
    {"footerf", &I::SkipGroup, 0, true},
    {"footnote", &I::SkipGroup, 0, true},
    {"annotation", &I::SkipGroup, 0, true},
    {"fldinst", &I::SkipGroup, 0, true},
    {"nonesttables", &I::SkipGroup, 0, true},
    {"private", &I::SkipGroup, 0, true},
    {"xe", &I::SkipGroup, 0, true},
    {"tc", &I::SkipGroup, 0, true},
    {"tcn", &I::SkipGroup, 0, true},
    {"rxe", &I::SkipGroup, 0, true},
    {"bkmkstart", &I::SkipGroup, 0, true},
    {"bkmkend", &I::SkipGroup, 0, true},

    // Text.
    {"u", &I::Unicode},
    {"par", &I::Break},
    {"page", &I::EndParagraph},
    {"column", &I::EndParagraph},
    {"sect", &I::EndParagraph},
    {"cell", &I::Cell},
    {"nestcell", &I::Cell},
    {"row", &I::Row},
    {"nestrow", &I::Row},
    {"tab", &I::Character, u'\t'},
    {"line", &I::Character, u'\v'},
    {"lbr", &I::Character, u'\v'},
    {"emdash", &I::Character, u'\u2014'},
    {"endash", &I::Character, u'\u2013'},
    {"bullet", &I::Character, u'\u2022'},
    {"lquote", &I::Character, u'\u2018'},
    {"rquote", &I::Character, u'\u2019'},
    {"ldblquote", &I::Character, u'\u201C'},
    {"rdblquote", &I::Character, u'\u201D'},
    {"emspace", &I::Character, u' '},
    {"enspace", &I::Character, u' '},
    {"qmspace", &I::Character, u' '},
    {"zwbo", &I::Character, u'\u200B'},
    {"zwnbo", &I::Character, u'\u2060'},
    {"zwj", &I::Character, u'\u200D'},
    {"zwnj", &I::Character, u'\u200C'},
    {"ltrmark", &I::Character, u'\u200E'},
    {"rtlmark", &I::Character, u'\u200F'},

    // Characters.
    {"plain", &I::Plain},
    {"f", &I::Font},
    {"fs", &I::Size},
    {"b", &I::Effect, kBold},
    {"i", &I::Effect, kItalic},
    {"strike", &I::Effect, kStrike},
    {"striked", &I::Effect, kDoubleStrike},
    {"caps", &I::Effect, kAllCaps},
    {"scaps", &I::Effect, kSmallCaps},
    {"v", &I::Effect, kHidden},
    {"outl", &I::Effect, kOutline},
    {"shad", &I::Effect, kShadow},
    {"embo", &I::Effect, kEmboss},
    {"impr", &I::Effect, kEngrave},
    {"deleted", &I::Effect, kDeleted},
    {"super", &I::Script, kSuperscript},
    {"sub", &I::Script, kSubscript},
    {"nosupersub", &I::Script, 0},
    {"ul", &I::UnderlineAs, Of(Underline::Single)},
    {"ulnone", &I::UnderlineAs, Of(Underline::None)},
    {"ulw", &I::UnderlineAs, Of(Underline::Words)},
    {"uldb", &I::UnderlineAs, Of(Underline::Double)},
    {"uld", &I::UnderlineAs, Of(Underline::Dotted)},
    {"uldash", &I::UnderlineAs, Of(Underline::Dash)},
    {"uldashd", &I::UnderlineAs, Of(Underline::DashDot)},
    {"uldashdd", &I::UnderlineAs, Of(Underline::DashDotDot)},
    {"ulth", &I::UnderlineAs, Of(Underline::Thick)},
    {"ulwave", &I::UnderlineAs, Of(Underline::Wave)},
    {"ululdbwave", &I::UnderlineAs, Of(Underline::DoubleWave)},
    {"ulhwave", &I::UnderlineAs, Of(Underline::HeavyWave)},
    {"ulldash", &I::UnderlineAs, Of(Underline::LongDash)},
    {"ulthd", &I::UnderlineAs, Of(Underline::ThickDotted)},
    {"ulthdash", &I::UnderlineAs, Of(Underline::ThickDash)},
    {"ulthdashd", &I::UnderlineAs, Of(Underline::ThickDashDot)},
    {"ulthdashdd", &I::UnderlineAs, Of(Underline::ThickDashDotDot)},
    {"ulthldash", &I::UnderlineAs, Of(Underline::ThickLongDash)},
    {"cf", &I::TextColour},
    {"highlight", &I::Highlight},
    {"cb", &I::Highlight},
    {"chcbpat", &I::Highlight},
    {"up", &I::Raise, 1},
    {"dn", &I::Raise, -1},
    {"lang", &I::Language},
    {"expnd", &I::Spacing, 5},
    {"expndtw", &I::Spacing, 1},
    {"charscalex", &I::Scale},

    // Paragraphs.
    {"pard", &I::DefaultParagraph},
    {"ql", &I::Align, Of(Alignment::Left)},
    {"qr", &I::Align, Of(Alignment::Right)},
    {"qc", &I::Align, Of(Alignment::Centre)},
    {"qj", &I::Align, Of(Alignment::Justify)},
    {"qd", &I::Align, Of(Alignment::Justify)},
    {"li", &I::Length, P::kLeft},
    {"lin", &I::Length, P::kLeft},
    {"fi", &I::Length, P::kFirst},
    {"ri", &I::Length, P::kRight},
    {"rin", &I::Length, P::kRight},
    {"sb", &I::Length, P::kBefore},
    {"sa", &I::Length, P::kAfter},
    {"sl", &I::Length, P::kLine},
    {"slmult", &I::MultipleLines},
    {"tx", &I::Tab, Of(TabKind::Left)},
    {"tb", &I::Tab, Of(TabKind::Bar)},
    {"tqr", &I::TabKindIs, Of(TabKind::Right)},
    {"tqc", &I::TabKindIs, Of(TabKind::Centre)},
    {"tqdec", &I::TabKindIs, Of(TabKind::Decimal)},
    {"tldot", &I::TabLeaderIs, 1},
    {"tlmdot", &I::TabLeaderIs, 1},
    {"tlhyph", &I::TabLeaderIs, 2},
    {"tlul", &I::TabLeaderIs, 3},
    {"tlth", &I::TabLeaderIs, 4},
    {"tleq", &I::TabLeaderIs, 5},
    {"rtlpar", &I::RightToLeft, 1},
    {"ltrpar", &I::RightToLeft, 0},
    {"ls", &I::List},
    {"ilvl", &I::ListLevel},
};

constexpr std::uint32_t Hash(std::string_view name) {
  std::uint32_t hash = 2166136261u;
  for (const char c : name) hash = (hash ^ static_cast<unsigned char>(c)) * 16777619u;
  return hash ^ hash >> 15;
}

constexpr std::size_t kSlots = 1024;
static_assert(std::size(kKeywords) * 4 < kSlots);

/// Open addressing; a slot holds the keyword's place counted from 1.
constexpr std::array<std::uint8_t, kSlots> kTable = [] {
  std::array<std::uint8_t, kSlots> table{};
  static_assert(std::size(kKeywords) < 256);
  for (std::size_t i = 0; i < std::size(kKeywords); ++i) {
    std::size_t slot = Hash(kKeywords[i].name) % kSlots;
    while (table[slot] != 0) slot = (slot + 1) % kSlots;
    table[slot] = static_cast<std::uint8_t>(i + 1);
  }
  return table;
}();

}  // namespace

const Keyword* FindKeyword(std::string_view name) {
  for (std::size_t slot = Hash(name) % kSlots; kTable[slot] != 0; slot = (slot + 1) % kSlots) {
    const Keyword& keyword = kKeywords[kTable[slot] - 1];
    if (keyword.name == name) return &keyword;
  }
  return nullptr;
}

}  // namespace lumenote
