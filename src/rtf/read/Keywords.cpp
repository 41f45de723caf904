// The constant table of control words: name, handler, parameter.
#include "rtf/read/Keywords.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <iterator>

#include "rtf/words/CharacterWords.h"
#include "rtf/words/ParagraphWords.h"

namespace lumenote {
namespace {

using I = Interpreter;
using Item = KeptItem::Kind;

template <class Enum>
constexpr int Of(Enum value) {
  return static_cast<int>(value);
}

constexpr Keyword kOwnWords[] = {
    // The document.
    {"ansi", &I::DocumentPage, 1252},
    {"mac", &I::DocumentPage, 10000},
    {"pc", &I::DocumentPage, 437},
    {"pca", &I::DocumentPage, 850},
    {"ansicpg", &I::DocumentPage, 0},
    {"deff", &I::DefaultFont},
    {"uc", &I::Fallback},

    // Groups.
    {"fonttbl", &I::Fonts, 0, true},
    {"colortbl", &I::Colours, 0, true},
    {"listtable", &I::Lists, 0, true},
    {"listoverridetable", &I::ListOverrides, 0, true},
    {"upr", &I::SkipAlternative, 0, true},
    {"ud", &I::EnterGroup, 0, true},
    {"nesttableprops", &I::NestedRow, 0, true},
    {"pntext", &I::Marker, 0, true},
    {"listtext", &I::Marker, 0, true},
    {"pn", &I::Numbering, 0, true},
    {"pict", &I::KeepGroup, Of(Item::Picture), true},
    {"object", &I::KeepGroup, Of(Item::Object), true},
    {"shppict", &I::KeepGroup, Of(Item::Picture), true},
    {"shp", &I::KeepGroup, Of(Item::Drawing), true},
    {"shpgrp", &I::KeepGroup, Of(Item::Drawing), true},
    {"do", &I::KeepGroup, Of(Item::Drawing), true},
    {"nonshppict", &I::SkipGroup, 0, true},
    {"stylesheet", &I::Styles, 0, true},
    {"info", &I::KeepTable, 0, true},
    {"filetbl", &I::KeepAside, 0, true},
    {"revtbl", &I::KeepAside, 0, true},
    {"header", &I::KeepAside, Of(Item::PageHeader), true},
    {"headerl", &I::KeepAside, Of(Item::PageHeader), true},
    {"headerr", &I::KeepAside, Of(Item::PageHeader), true},
    {"headerf", &I::KeepAside, Of(Item::PageHeader), true},
    {"footer", &I::KeepAside, Of(Item::PageHeader), true},
    {"footerl", &I::KeepAside, Of(Item::PageHeader), true},
    {"footerr", &I::KeepAside, Of(Item::PageHeader), true},
    {"footerf", &I::KeepAside, Of(Item::PageHeader), true},
    {"footnote", &I::KeepGroup, Of(Item::Note), true},
    {"annotation", &I::KeepAside, 0, true},
    {"field", &I::Field, 0, true},
    {"fldinst", &I::SkipGroup, 0, true},
    {"fldrslt", &I::FieldResult, 0, true},
    {"generator", &I::Generator, 0, true},
    {"lumenote", &I::OwnTables, 0, true},
    {"rsidtbl", &I::SkipGroup, 0, true},
    {"nonesttables", &I::SkipGroup, 0, true},
    {"private", &I::KeepAside, 0, true},
    {"xe", &I::KeepAside, 0, true},
    {"tc", &I::KeepAside, 0, true},
    {"tcn", &I::KeepAside, 0, true},
    {"rxe", &I::KeepAside, 0, true},
    {"bkmkstart", &I::KeepAside, Of(Item::Bookmark), true},
    {"bkmkend", &I::KeepAside, Of(Item::Bookmark), true},
    // Should follow \*, but some converters drop that.
    {"mmathPr", &I::KeepAside, 0, true},
    {"xmlnstbl", &I::KeepAside, 0, true},
    {"wgrffmtfilter", &I::KeepAside, 0, true},
    {"pnseclvl", &I::KeepAside, 0, true},
    {"pntxta", &I::SkipGroup, 0, true},
    {"pntxtb", &I::SkipGroup, 0, true},
    {"themedata", &I::KeepAside, 0, true},
    {"colorschememapping", &I::KeepAside, 0, true},
    {"latentstyles", &I::KeepAside, 0, true},
    {"datastore", &I::KeepAside, 0, true},

    // Text.
    {"u", &I::Unicode},
    {"par", &I::Break},
    {"page", &I::EndParagraph, Of(Item::PageBreak)},
    {"column", &I::EndParagraph, Of(Item::ColumnBreak)},
    {"sect", &I::EndParagraph, Of(Item::SectionBreak)},
    {"cell", &I::Cell},
    {"nestcell", &I::Cell, 1},
    {"row", &I::Row},
    {"nestrow", &I::Row, 1},
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
    {"super", &I::Script, kSuperscript},
    {"sub", &I::Script, kSubscript},
    {"nosupersub", &I::Script},
    {"cb", &I::Number, NumberWordCalled("highlight")},
    {"chcbpat", &I::Number, NumberWordCalled("highlight")},
    {"up", &I::Raise, 1},
    {"dn", &I::Raise, -1},
    {"expnd", &I::SpacingInQuarterPoints},

    // Paragraphs.
    {"pard", &I::DefaultParagraph},
    {"qd", &I::Align, Of(Alignment::Justify)},
    {"li", &I::LeftIndent},
    {"lin", &I::LeftIndent},
    {"fi", &I::FirstIndent},
    {"rin", &I::Length, LengthWordCalled("ri")},
    {"sl", &I::LineSpacing},
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
    {"ltrpar", &I::RightToLeft},
    {"intbl", &I::InTable},
    {"itap", &I::TableNesting},
    {"ls", &I::List},
    {"ilvl", &I::ListLevel},

    // Kept, and shown nowhere.
    {"s", &I::KeepStyle},
    {"sectd", &I::KeepSection},
    {"trowd", &I::KeepRow},
    {"cellx", &I::KeepCell},
    {"rtlch", &I::KeepMark, Of(KeptWord::Kind::RightToLeft)},
    {"ltrch", &I::KeepMark, Of(KeptWord::Kind::LeftToRight)},
    {"loch", &I::KeepMark, Of(KeptWord::Kind::Script)},
    {"hich", &I::KeepMark, Of(KeptWord::Kind::HighScript)},
    {"dbch", &I::KeepMark, Of(KeptWord::Kind::Script)},
    {"af", &I::KeepAssociated},
    {"afs", &I::KeepAssociated},
    {"ab", &I::KeepAssociated},
    {"ai", &I::KeepAssociated},
    {"alang", &I::KeepAssociated},
    {"fcs", &I::KeepAssociated},
};

// Kept words by what makes them go.
constexpr std::string_view kKeptOfRuns[] = {
    "cs",         "acccircle", "acccomma",   "accdot",  "accunderdot", "animtext", "chbrdr",
    "chcfpat",    "chshdng",   "crauth",     "crdate",  "kerning",     "langfe",   "revauth",
    "revauthdel", "revdttm",   "revdttmdel", "revised", "ulc",         "webhidden"};
constexpr std::string_view kKeptOfParagraphs[] = {
    "absh",         "absw",        "box",       "brdrb",      "brdrbar",     "brdrbtw",
    "brdrl",        "brdrr",       "brdrt",     "cbpat",      "cfpat",       "contextualspace",
    "cufi",         "culi",        "curi",      "dfrmtxtx",   "dfrmtxty",    "dropcapli",
    "dropcapt",     "dxfrtext",    "frmtxbtlr", "frmtxlrtb",  "frmtxlrtbv",  "frmtxtbrl",
    "frmtxtbrlv",   "hyphpar",     "indmirror", "keep",       "keepn",       "level",
    "lisa",         "lisb",        "noline",    "nooverflow", "nowidctlpar", "nowrap",
    "outlinelevel", "overlay",     "pagebb",    "phcol",      "phmrg",       "phpg",
    "posnegx",      "posnegy",     "posx",      "posxc",      "posxi",       "posxl",
    "posxo",        "posxr",       "posy",      "posyb",      "posyc",       "posyil",
    "posyin",       "posyout",     "posyt",     "pvmrg",      "pvpara",      "pvpg",
    "saauto",       "sbauto",      "sbys",      "shading",    "widctlpar",   "wraparound",
    "wrapdefault",  "wrapthrough", "wraptight"};
constexpr std::string_view kKeptOfPlaces[] = {
    "binfsxn", "chatn",   "chdate",   "chftn",    "chpgn",    "chtime",     "colno",
    "cols",    "colsr",   "colsx",    "colw",     "endnhere", "footery",    "guttersxn",
    "headery", "htmlrtf", "irow",     "irowband", "lastrow",  "linebetcol", "lndscpsxn",
    "ltrrow",  "ltrsect", "margbsxn", "marglsxn", "margrsxn", "margtsxn",   "pghsxn",
    "pgwsxn",  "rtlrow",  "rtlsect",  "sectnum",  "titlepg",  "ts"};

// Destinations that show nothing; in the body, only the first word of a group is one.
// clang-format off
constexpr std::string_view kDestinations[] = {
    "aftncn", "aftnsep", "aftnsepc", "atnauthor", "atndate", "atnicn", "atnid", "atnparent",
    "atnref", "atntime", "atrfend", "atrfstart", "author", "background", "blipuid", "buptim",
    "category", "comment", "company", "creatim", "datafield", "defchp", "defpap", "doccomm",
    "docvar", "ebcend", "ebcstart", "factoidname", "falt", "fchars", "ffdeftext", "ffentrymcr",
    "ffexitmcr", "ffformat", "ffhelptext", "ffl", "ffname", "ffstattext", "file", "fldtype", "fname",
    "fontemb", "fontfile", "formfield", "ftncn", "ftnsep", "ftnsepc", "g", "gridtbl", "hl", "hlfr",
    "hlinkbase", "hlloc", "hlsrc", "hsv", "htmltag", "keycode", "keywords", "lchars", "levelnumbers",
    "leveltext", "lfolevel", "linkval", "list", "listlevel", "listname", "listoverride",
    "listpicture", "liststylename", "lsdlockedexcept", "mailmerge", "manager", "mhtmltag",
    "nextfile", "objalias", "objclass", "objdata", "objname", "objsect", "objtime", "oldcprops",
    "oldpprops", "oldsprops", "oldtprops", "oleclsid", "operator", "panose", "password",
    "passwordhash", "pgp", "pgptbl", "picprop", "printim", "propname", "protend", "protstart",
    "protusertbl", "pxe", "revtim", "shprslt", "sn", "sp", "staticval", "subject", "sv", "svb",
    "template", "title", "txe", "userprops", "windowcaption", "writereservation", "writereservhash",
    "xform", "xmlattrname", "xmlattrvalue", "xmlclose", "xmlname", "xmlopen"};
// clang-format on

constexpr std::string_view NameOf(std::string_view name) { return name; }
template <class Word>
constexpr std::string_view NameOf(const Word& word) {
  return word.name;
}

constexpr std::size_t kCount = std::size(kOwnWords) + std::size(kEffectWords) +
                               std::size(kUnderlineWords) + std::size(kNumberWords) +
                               std::size(kAlignmentWords) + std::size(kLengthWords) +
                               std::size(kKeptOfRuns) + std::size(kKeptOfParagraphs) +
                               std::size(kKeptOfPlaces) + std::size(kDestinations);

/// The words of all tables; the value of one that the writer knows too is its row.
constexpr std::array<Keyword, kCount> kKeywords = [] {
  std::array<Keyword, kCount> all{};
  auto out = std::ranges::copy(kOwnWords, all.begin()).out;
  const auto add = [&](const auto& words, auto handler, auto value) {
    for (int row = 0; row < static_cast<int>(std::size(words)); ++row)
      *out++ = {NameOf(words[row]), handler, value(row)};
  };
  const auto own = [](int row) { return row; };
  add(kEffectWords, &I::Effect, [](int row) { return kEffectWords[row].effect; });
  add(kUnderlineWords, &I::UnderlineAs, own);
  add(kNumberWords, &I::Number, own);
  add(kAlignmentWords, &I::Align, own);
  add(kLengthWords, &I::Length, own);
  add(kKeptOfRuns, &I::KeepWord, [](int) { return Of(WordScope::Character); });
  add(kKeptOfParagraphs, &I::KeepWord, [](int) { return Of(WordScope::Paragraph); });
  add(kKeptOfPlaces, &I::KeepWord, [](int) { return Of(WordScope::Anchored); });
  for (const std::string_view name : kDestinations) *out++ = {name, &I::KeepDestination, 0, true};
  return all;
}();

constexpr std::uint32_t Hash(std::string_view name) {
  std::uint32_t hash = 2166136261u;
  for (const char c : name) hash = (hash ^ static_cast<unsigned char>(c)) * 16777619u;
  return hash ^ hash >> 15;
}

constexpr std::size_t kSlots = 2048;
static_assert(std::size(kKeywords) * 4 < kSlots);

/// Open addressing; a slot holds the keyword's index plus one.
constexpr std::array<std::uint16_t, kSlots> kTable = [] {
  std::array<std::uint16_t, kSlots> table{};
  for (std::size_t i = 0; i < std::size(kKeywords); ++i) {
    std::size_t slot = Hash(kKeywords[i].name) % kSlots;
    while (table[slot] != 0) slot = (slot + 1) % kSlots;
    table[slot] = static_cast<std::uint16_t>(i + 1);
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

bool HidesText(std::string_view word, bool starred) {
  static constexpr decltype(Keyword::handler) kShowing[] = {
      &I::EnterGroup, &I::NestedRow, &I::Field, &I::FieldResult, &I::SkipAlternative};
  const Keyword* keyword = FindKeyword(word);
  if (!keyword || !keyword->opensGroup) return starred;
  return std::ranges::find(kShowing, keyword->handler) == std::end(kShowing);
}

}  // namespace lumenote
