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
    {"stylesheet", &I::Styles, 0, true},
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
    // Always behind \*, but some converters lose that.
    {"xmlnstbl", &I::SkipGroup, 0, true},
    {"wgrffmtfilter", &I::SkipGroup, 0, true},
    {"pnseclvl", &I::SkipGroup, 0, true},
    {"pntxta", &I::SkipGroup, 0, true},
    {"pntxtb", &I::SkipGroup, 0, true},
    {"themedata", &I::SkipGroup, 0, true},
    {"colorschememapping", &I::SkipGroup, 0, true},
    {"latentstyles", &I::SkipGroup, 0, true},
    {"datastore", &I::SkipGroup, 0, true},

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

    // Styles.
    {"s", &I::ParagraphStyle},
    {"cs", &I::CharacterStyle},

    // Characters.
    {"plain", &I::Plain, 0, false, true},
    {"f", &I::Font, 0, false, true},
    {"fs", &I::Size, 0, false, true},
    {"b", &I::Effect, kBold, false, true},
    {"i", &I::Effect, kItalic, false, true},
    {"strike", &I::Effect, kStrike, false, true},
    {"striked", &I::Effect, kDoubleStrike, false, true},
    {"caps", &I::Effect, kAllCaps, false, true},
    {"scaps", &I::Effect, kSmallCaps, false, true},
    {"v", &I::Effect, kHidden, false, true},
    {"outl", &I::Effect, kOutline, false, true},
    {"shad", &I::Effect, kShadow, false, true},
    {"embo", &I::Effect, kEmboss, false, true},
    {"impr", &I::Effect, kEngrave, false, true},
    {"deleted", &I::Effect, kDeleted, false, true},
    {"super", &I::Script, kSuperscript, false, true},
    {"sub", &I::Script, kSubscript, false, true},
    {"nosupersub", &I::Script, 0, false, true},
    {"ul", &I::UnderlineAs, Of(Underline::Single), false, true},
    {"ulnone", &I::UnderlineAs, Of(Underline::None), false, true},
    {"ulw", &I::UnderlineAs, Of(Underline::Words), false, true},
    {"uldb", &I::UnderlineAs, Of(Underline::Double), false, true},
    {"uld", &I::UnderlineAs, Of(Underline::Dotted), false, true},
    {"uldash", &I::UnderlineAs, Of(Underline::Dash), false, true},
    {"uldashd", &I::UnderlineAs, Of(Underline::DashDot), false, true},
    {"uldashdd", &I::UnderlineAs, Of(Underline::DashDotDot), false, true},
    {"ulth", &I::UnderlineAs, Of(Underline::Thick), false, true},
    {"ulwave", &I::UnderlineAs, Of(Underline::Wave), false, true},
    {"ululdbwave", &I::UnderlineAs, Of(Underline::DoubleWave), false, true},
    {"ulhwave", &I::UnderlineAs, Of(Underline::HeavyWave), false, true},
    {"ulldash", &I::UnderlineAs, Of(Underline::LongDash), false, true},
    {"ulthd", &I::UnderlineAs, Of(Underline::ThickDotted), false, true},
    {"ulthdash", &I::UnderlineAs, Of(Underline::ThickDash), false, true},
    {"ulthdashd", &I::UnderlineAs, Of(Underline::ThickDashDot), false, true},
    {"ulthdashdd", &I::UnderlineAs, Of(Underline::ThickDashDotDot), false, true},
    {"ulthldash", &I::UnderlineAs, Of(Underline::ThickLongDash), false, true},
    {"cf", &I::TextColour, 0, false, true},
    {"highlight", &I::Highlight, 0, false, true},
    {"cb", &I::Highlight, 0, false, true},
    {"chcbpat", &I::Highlight, 0, false, true},
    {"up", &I::Raise, 1, false, true},
    {"dn", &I::Raise, -1, false, true},
    {"lang", &I::Language, 0, false, true},
    {"expnd", &I::Spacing, 5, false, true},
    {"expndtw", &I::Spacing, 1, false, true},
    {"charscalex", &I::Scale, 0, false, true},

    // Paragraphs.
    {"pard", &I::DefaultParagraph, 0, false, true},
    {"ql", &I::Align, Of(Alignment::Left), false, true},
    {"qr", &I::Align, Of(Alignment::Right), false, true},
    {"qc", &I::Align, Of(Alignment::Centre), false, true},
    {"qj", &I::Align, Of(Alignment::Justify), false, true},
    {"qd", &I::Align, Of(Alignment::Justify), false, true},
    {"li", &I::Length, P::kLeft, false, true},
    {"lin", &I::Length, P::kLeft, false, true},
    {"fi", &I::Length, P::kFirst, false, true},
    {"ri", &I::Length, P::kRight, false, true},
    {"rin", &I::Length, P::kRight, false, true},
    {"sb", &I::Length, P::kBefore, false, true},
    {"sa", &I::Length, P::kAfter, false, true},
    {"sl", &I::Length, P::kLine, false, true},
    {"slmult", &I::MultipleLines, 0, false, true},
    {"tx", &I::Tab, Of(TabKind::Left), false, true},
    {"tb", &I::Tab, Of(TabKind::Bar), false, true},
    {"tqr", &I::TabKindIs, Of(TabKind::Right), false, true},
    {"tqc", &I::TabKindIs, Of(TabKind::Centre), false, true},
    {"tqdec", &I::TabKindIs, Of(TabKind::Decimal), false, true},
    {"tldot", &I::TabLeaderIs, 1, false, true},
    {"tlmdot", &I::TabLeaderIs, 1, false, true},
    {"tlhyph", &I::TabLeaderIs, 2, false, true},
    {"tlul", &I::TabLeaderIs, 3, false, true},
    {"tlth", &I::TabLeaderIs, 4, false, true},
    {"tleq", &I::TabLeaderIs, 5, false, true},
    {"rtlpar", &I::RightToLeft, 1, false, true},
    {"ltrpar", &I::RightToLeft, 0, false, true},
    {"ls", &I::List, 0, false, true},
    {"ilvl", &I::ListLevel, 0, false, true},
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
