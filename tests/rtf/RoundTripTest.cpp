// Writing and reading back: the same document, and from then on the same bytes.
#include <gtest/gtest.h>
#include <iterator>
#include <random>

#include "Reading.h"
#include "document/Model.h"
#include "rtf/words/CharacterWords.h"
#include "rtf/words/ParagraphWords.h"
#include "rtf/write/Writer.h"

namespace lumenote {
namespace {

constexpr CharFormat kBase{.size = 24};

/// Makes documents of everything that RTF can carry, the same on every run.
class Generator {
 public:
  explicit Generator(unsigned seed) : random_(seed) {}

  Document Make() {
    Document document;
    FragmentBuilder builder;
    for (int pieces = Below(40); pieces > 0; --pieces) {
      const CharId format = Character(document.Formats());
      for (int units = Below(60); units > 0; --units) AddText(format, builder);
      if (Below(3) == 0) builder.AppendBreak(format, Paragraph(document.Formats()));
      if (Below(9) == 0) builder.Append(u"\uFFFC", Object(document.Formats()));
    }
    Fragment fragment = builder.Finish();
    fragment.mark = {Character(document.Formats()), Paragraph(document.Formats())};
    document.Replace(0, 0, std::move(fragment));
    return document;
  }

 private:
  template <class Format, class Attribute>
  static Format& State(Format& format, Attribute attribute) {
    format.stated |= attribute;
    return format;
  }
  int Below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
  bool Seldom() { return Below(4) == 0; }

  void AddText(CharId format, FragmentBuilder& builder) {
    static constexpr std::u16string_view kPieces[] = {
        u"a",      u" ",      u"mot",    u"1",      u"-",          u"\\",     u"{",      u"}",
        u";",      u"é",      u"\u20AC", u"\u0416", u"\U0001F600", u"\t",     u"\v",     u"\u00A0",
        u"\u00AD", u"\u2011", u"\u0001", u"\u007F", u"\u0081",     u"\u0080", u"\uF0B7", u"\uF020",
        u"\xD83D", u"\uFFFC", u"\uFFFF", u"?",      u"\u2028",     u"\f"};
    builder.Append(kPieces[Below(std::size(kPieces))], format);
  }

  CharId Character(FormatTables& tables) { return tables.characters.Intern(Format(tables)); }
  CharId Object(FormatTables& tables) {
    CharFormat format = Format(tables);
    format.kept =
        tables.kept.Intern({.self = tables.items.Chain({{.source = "{\\pict\\wmetafile8 0102}"}}),
                            .kind = Kept::Kind::Embedded});
    return tables.characters.Intern(format);
  }

  CharFormat Format(FormatTables& tables) {
    static constexpr std::u16string_view kNames[] = {u"Arial", u"Été", u"A;B", u"\u0416{}\\", u""};
    static constexpr std::uint8_t kCharsets[] = {0, 1, 2, 204, 238};
    CharFormat format{.size = kBase.size, .stated = 0};
    const FontFace face{std::u16string(kNames[Below(5)]), kCharsets[Below(5)],
                        static_cast<std::uint8_t>(Below(8)), static_cast<std::uint8_t>(Below(3))};
    if (!Seldom()) State(format, kStatesFont).font = tables.fonts.Intern(face);
    if (!Seldom()) State(format, kStatesSize).size = static_cast<std::uint16_t>(1 + Below(80));
    if (Seldom()) format.effects = static_cast<std::uint16_t>(1 << Below(14));
    if (Seldom()) format.underline = static_cast<Underline>(Below(18));
    if (Seldom()) format.offset = static_cast<std::int16_t>((Below(400) - 200) * 10);
    if (Seldom()) State(format, kStatesColour);
    for (const NumberWord& word : kNumberWords) {
      if (!Seldom()) continue;
      if (word.kind == NumberWord::Kind::Colour) State(format, kStatesColour);
      word.set(format, Below(300));
    }
    return format;
  }

  ParaId Paragraph(FormatTables& tables) {
    ParaFormat format;
    if (Seldom()) State(format, kStatesLeftIndent).firstIndent = Below(4000) - 2000;
    if (Seldom()) {
      const int hanging = Below(4000) - 2000;
      State(format, kStatesFirstIndent).hangingIndent = hanging;
      format.firstIndent -= hanging;
    }
    for (const LengthWord& word : kLengthWords)
      if (Seldom()) State(format, word.stated).*word.length = Below(2000);
    if (Seldom()) State(format, kStatesLineSpacing).lineRule = static_cast<LineRule>(Below(6));
    if (format.lineRule >= LineRule::AtLeast) format.lineSpacing = 481 + Below(1000);
    if (Seldom()) State(format, kStatesAlignment).alignment = static_cast<Alignment>(Below(4));
    format.bullet = Seldom();
    if (Seldom()) State(format, kStatesDirection).rightToLeft = Below(2) != 0;
    TabStops tabs;
    for (int position = Below(900); Seldom(); position += 1 + Below(900)) {
      tabs.push_back(
          {position, static_cast<TabKind>(Below(5)), static_cast<std::uint8_t>(Below(6))});
    }
    format.tabs = tables.tabs.Intern(tabs);
    return tables.paragraphs.Intern(format);
  }

  std::mt19937 random_;
};

/// What a source says of its note beyond the fonts and colours that it uses.
KeptHead Said(KeptHead head) {
  head.fontTable.clear();
  head.fonts.clear();
  head.colours.clear();
  head.defaultFont = -1;
  return head;
}

/// With the same numbers for the same formats; what is kept of pictures is not compared, nor the
/// tables of fonts and colours, which a new note does not have.
Model ModelOf(const LeafList& leaves, FinalMark mark, FormatTables& tables) {
  mark.head = tables.heads.Intern(Said(tables.heads[mark.head]));
  Model model = ModelOf(leaves, mark);
  for (CharId& id : model.characters) {
    CharFormat format = tables.characters[id];
    format.kept = 0;
    id = tables.characters.Intern(format);
  }
  return model;
}

TEST(RoundTrip, KeepsRandomDocuments) {
  for (unsigned seed = 0; seed < 300; ++seed) {
    Document document = Generator(seed).Make();
    FormatTables& tables = document.Formats();
    const auto again = [&] {
      return ReadRtf(WriteRtf(document), tables, RtfTarget::Document, kBase);
    };
    const Fragment read = again();
    ASSERT_TRUE(ModelOf(read.leaves, *read.mark, tables) ==
                ModelOf(document.Leaves(), document.Mark(), tables))
        << seed;
    ASSERT_EQ(LossOf(document), "") << seed;
    document.Replace(0, document.Length(), read);
    ASSERT_EQ(again().mark->head, read.mark->head) << seed;
  }
}

TEST(RoundTrip, KeepsRandomSelections) {
  for (unsigned seed = 0; seed < 100; ++seed) {
    const Document document = Generator(seed).Make();
    const Position from = document.SnapBackward(document.Length() / 3);
    const Position to = document.SnapBackward(document.Length() * 2 / 3);
    const Document piece = Read(WriteRtf(document, from, to), RtfTarget::Selection);
    ASSERT_EQ(piece.Text(0, piece.Length()), document.Text(from, to)) << seed;
  }
}

TEST(RoundTrip, ReachesAFixedPointFromWhatNoSourceSays) {
  Document document;
  FormatTables& tables = document.Formats();
  FragmentBuilder builder;
  const auto paragraph = [&](ParaFormat format) {
    builder.AppendBreak(0, tables.paragraphs.Intern(format));
  };
  paragraph({.lineSpacing = kSingleLine, .lineRule = LineRule::Multiple});
  paragraph({.lineSpacing = 77, .lineRule = LineRule::Single});
  paragraph({.lineSpacing = -5, .lineRule = LineRule::Exact});
  paragraph({.firstIndent = 2'000'000'000, .hangingIndent = 2'000'000'000});
  const std::uint16_t both = kSuperscript | kSubscript;
  builder.Append(u"a", tables.characters.Intern({.effects = both, .size = 0, .scale = 0}));
  builder.Append(u"b", tables.characters.Intern({.colour = 0x55000001, .offset = -32768}));
  builder.Append(u"c", tables.characters.Intern({.font = tables.fonts.Intern({u" Arial "})}));
  builder.Append(u"d", tables.characters.Intern({.font = tables.fonts.Intern({u"Arial"})}));
  builder.Append(u"e", tables.characters.Intern({.offset = 15}));
  builder.Append(u"f", tables.characters.Intern({.offset = -11}));
  document.Replace(0, 0, builder.Finish());
  const std::string rtf = WriteRtf(document);
  EXPECT_EQ(WriteRtf(Read(rtf)), rtf);
  EXPECT_TRUE(rtf.find("\\up2\\f1 e\\dn2 f") != rtf.npos) << rtf;  // away from zero
}

}  // namespace
}  // namespace lumenote
