// The rules of undo, one by one.
#include <gtest/gtest.h>

#include "document/undo/Undo.h"

namespace lumenote {
namespace {

class UndoTest : public testing::Test {
 protected:
  void Edit(UndoKind kind, Position from, Position to, std::u16string_view text) {
    history.Begin(kind, {from, to});
    history.Apply(from, to, PlainFragment(text, 0, 0));
    const auto end = from + static_cast<Position>(text.size());
    history.End({end, end});
  }
  void Type(Position at, std::u16string_view text) { Edit(UndoKind::Typing, at, at, text); }
  void Delete(Position from, Position to) { Edit(UndoKind::Delete, from, to, u""); }
  std::u16string Text() const { return document.Text(0, document.Length()); }

  /// Undoes everything: the texts met on the way, joined by bars.
  std::u16string UndoAll() {
    std::u16string texts;
    while (history.Undo()) texts += Text() + u"|";
    return texts;
  }

  Document document;
  UndoHistory history{document};
};

TEST_F(UndoTest, MergesOnlyNeighbours) {
  document.Replace(0, 0, PlainFragment(u"0123", 0, 0));
  Type(0, u"a");
  Type(3, u"b");
  Type(4, u"");
  Type(4, u"c");
  EXPECT_EQ(UndoAll(), u"a0123|0123|");
  Delete(0, 1);
  Delete(1, 2);
  Delete(0, 1);
  EXPECT_EQ(UndoAll(), u"123|0123|");
}

TEST_F(UndoTest, GivesBackSelectionsKindsAndExtents) {
  Edit(UndoKind::Paste, 0, 0, u"hello");
  history.Begin(UndoKind::Cut, {1, 4});
  history.Begin(UndoKind::Typing, {});
  EXPECT_EQ(history.Apply(1, 4, {}), (EditRange{1, 3, 0}));
  history.End({});
  history.Apply(0, 1, PlainFragment(u"XY", 0, 0));
  history.End({2, 2});
  EXPECT_EQ(Text(), u"XYo");
  EXPECT_EQ(history.UndoType(), UndoKind::Cut);
  EXPECT_EQ(history.RedoType(), UndoKind::Unknown);
  std::vector<EditRange> edits;
  const auto visit = [&](Position at, Position removed, Position inserted) {
    edits.push_back({at, removed, inserted});
  };
  EXPECT_EQ(history.Undo(visit), (Selection{1, 4}));
  EXPECT_EQ(history.RedoType(), UndoKind::Cut);
  EXPECT_EQ(history.Redo(visit), (Selection{2, 2}));
  const std::vector<EditRange> expected{{0, 2, 1}, {1, 0, 3}, {0, 4, 2}};
  EXPECT_EQ(edits, expected);
  EXPECT_EQ(Text(), u"XYo");
}

TEST_F(UndoTest, TakesEditsOutsideAGroupAsUnknown) {
  history.Apply(0, 0, PlainFragment(u"a", 0, 0));
  history.Apply(1, 1, PlainFragment(u"b", 0, 0));
  EXPECT_EQ(history.UndoType(), UndoKind::Unknown);
  EXPECT_EQ(UndoAll(), u"a||");
}

}  // namespace
}  // namespace lumenote
