// Edits in tables, as data: what goes, and that the cells stay.
#include <gtest/gtest.h>

#include "base/DataFile.h"
#include "base/Rows.h"
#include "document/tables/CellParagraphs.h"
#include "surface/UserBench.h"

namespace lumenote {
namespace {

// A note with its tables: "¶" ends a paragraph, "·" a cell, "[" and "]" are around a row, "," and
// "(" and ")" the same in a table within a cell. "|" is the caret, "^" the other end of a
// selection, "@" where it is dropped.
struct Sign {
  char16_t sign;
  std::u16string_view rtf;
  Position length;  // in the text
};
constexpr Sign kSigns[] = {
    {u'|', u"", 0},
    {u'^', u"", 0},
    {u'@', u"", 0},
    {u'¶', u"\\par ", 2},
    {u'[', u"\\trowd\\cellx2000\\cellx4000\\pard\\intbl ", 0},
    {u'·', u"\\cell ", 1},
    {u']', u"\\cell\\row\\pard ", 2},
    {u'(', u"\\itap2 ", 0},
    {u',', u"\\nestcell ", 1},
    {u')', u"\\nestcell{\\*\\nesttableprops\\trowd\\cellx500\\cellx900\\nestrow}\\itap1 ", 2}};

const Sign* SignOf(char16_t unit) {
  const auto* sign = std::ranges::find(kSigns, unit, &Sign::sign);
  return sign == std::end(kSigns) ? nullptr : sign;
}

std::u16string RtfOf(std::u16string_view note) {
  std::u16string rtf = u"{\\rtf1\\pard ";
  for (const char16_t unit : note) {
    const Sign* const sign = SignOf(unit);
    rtf += sign ? sign->rtf : std::u16string_view(&unit, 1);
  }
  return rtf + u"}";
}

Position PlaceOf(std::u16string_view note, char16_t mark) {
  Position place = 0;
  for (const char16_t unit : note.substr(0, note.find(mark)))
    place += SignOf(unit) ? SignOf(unit)->length : 1;
  return place;
}

/// The note of a surface, with its tables as they are found in the text.
std::u16string Drawn(const DocumentSurface& surface) {
  const Document& document = surface.Content();
  std::u16string drawn;
  const auto mark = [&](Position at) {
    if (at == surface.Caret()) drawn += u'|';
    if (at == surface.Anchor() && at != surface.Caret()) drawn += u'^';
  };
  int open = 0;
  for (const CellParagraph& part :
       FindCellParagraphs(document, {0, document.Length()}, LastBreak::Inside)) {
    for (; open < part.level; ++open) drawn += open == 0 ? u'[' : u'(';
    for (Position at = part.start; at < part.end; ++at) {
      mark(at);
      drawn += document.At(at);
    }
    mark(part.end);
    const bool last = part.end == document.Length();
    if (last && !part.endsRow) break;
    drawn += part.endsRow ? u"])"[part.level - 1] : part.endsCell ? u"·,"[part.level - 1] : u'¶';
    open = part.level - (part.endsRow ? 1 : 0);
  }
  return drawn;
}

class Tables : public testing::Test, protected UserBench {
 protected:
  void Open(std::u16string_view note) {
    surface.TextRTF(RtfOf(note));
    const Position caret = PlaceOf(note, u'|');
    const bool selects = note.find(u'^') != note.npos;
    surface.UserSelect(selects ? PlaceOf(note, u'^') : caret, caret);
    ASSERT_EQ(ToUtf8(Drawn(surface)), ToUtf8(note));
  }
  /// The note drawn, after a look at what is saved and at what undoing gives.
  std::u16string Result(std::u16string_view before) {
    const std::u16string after = Drawn(surface);
    UserBench other;
    other.surface.TextRTF(surface.TextRTF());
    other.surface.UserSelect(surface.Anchor(), surface.Caret());
    EXPECT_EQ(ToUtf8(Drawn(other.surface)), ToUtf8(after));
    surface.Undo();
    EXPECT_EQ(ToUtf8(Drawn(surface)), ToUtf8(before));
    EXPECT_FALSE(surface.CanUndo());
    return after;
  }
};

TEST_F(Tables, KeysLeaveTheirCells) {
  for (const auto& [before, keys, after] : Rows16<3>(DataFile("tables.rows"), " => ")) {
    Open(before);
    Press(keys);
    EXPECT_EQ(ToUtf8(Result(before)), ToUtf8(after)) << ToUtf8(before + keys);
  }
}

TEST_F(Tables, TheProgramsTextLeavesCellsAsTypingDoes) {
  int typed = 0;
  for (const auto& [before, keys, after] : Rows16<3>(DataFile("tables.rows"), " => ")) {
    if (keys != u"x" && keys != u"Delete") continue;
    Open(before);
    surface.SelText(keys == u"x" ? keys : u"");
    EXPECT_EQ(ToUtf8(Result(before)), ToUtf8(after)) << ToUtf8(before);
    ++typed;
  }
  EXPECT_GT(typed, 20);
}

TEST_F(Tables, RowsAreDroppedBetweenParagraphs) {
  static constexpr std::u16string_view kRows[][2] = {
      {u"[^a·b]|c¶d@e", u"[a·b]c¶d¶[^a·b]|e"},
      {u"[^a·b][|@c·d]e", u"[a·b][^a·b][|c·d]e"},
      {u"^u¶[a·b][|c·@d]e", u"u¶[a·b]^u¶[a·b][|c·d]e"},
      {u"u^v¶[a·b]w|x¶y¶[c·@d]e", u"uv¶[a·b]wx¶y¶^v¶[a·b]w|¶[c·d]e"},
      {u"[^a·b]w|x¶[c·@d]e", u"[a·b]wx¶[^a·b]w|¶[c·d]e"},
      {u"[^a·b]w|x¶y@z", u"[a·b]wx¶y¶[^a·b]w|z"}};
  for (const auto& [note, after] : kRows) {
    std::u16string before(note);
    before.erase(before.find(u'@'), 1);
    Open(before);
    surface.UserDrop(PlaceOf(note, u'@'), true);
    EXPECT_EQ(ToUtf8(Result(before)), ToUtf8(after)) << ToUtf8(note);
  }
}

}  // namespace
}  // namespace lumenote
