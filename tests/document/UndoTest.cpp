// The rules of undo, one by one.
#include <gtest/gtest.h>

#include "document/Undo.h"

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

/// One act on the document; `kind` 0 closes the step, 1 types and 2 deletes as in `UndoKind`.
struct Act {
  int kind;
  Position from, to;
  std::u16string_view text;
};
struct MergeCase {
  const char* name;
  std::vector<Act> acts;
  std::u16string_view undone;  // the texts that undoing one step after another gives
};

TEST_F(UndoTest, MergesStepsByTheRules) {
  const MergeCase cases[] = {
      {"typing", {{1, 0, 0, u"a"}, {1, 1, 1, u"b"}, {1, 2, 2, u"c"}}, u"0123|"},
      {"typing elsewhere", {{1, 0, 0, u"a"}, {1, 3, 3, u"b"}}, u"a0123|0123|"},
      {"typing after a close", {{1, 0, 0, u"a"}, {0, 0, 0, u""}, {1, 1, 1, u"b"}}, u"a0123|0123|"},
      {"over a selection", {{1, 1, 3, u"a"}, {1, 2, 2, u"b"}}, u"0123|"},
      {"a break ends the run",
       {{1, 0, 0, u"a"}, {1, 1, 1, u"\r\n"}, {1, 3, 3, u"b"}, {1, 4, 4, u"c"}},
       u"a\r\n0123|0123|"},
      {"backspace", {{2, 3, 4, u""}, {2, 2, 3, u""}, {2, 1, 2, u""}}, u"0123|"},
      {"delete", {{2, 1, 2, u""}, {2, 1, 2, u""}}, u"0123|"},
      {"both ways", {{2, 1, 2, u""}, {2, 0, 1, u""}, {2, 0, 1, u""}}, u"0123|"},
      {"delete elsewhere", {{2, 0, 1, u""}, {2, 1, 2, u""}}, u"123|0123|"},
      {"deletion after typing", {{1, 0, 0, u"a"}, {2, 0, 1, u""}}, u"a0123|0123|"},
      {"pastes never", {{5, 0, 0, u"a"}, {5, 1, 1, u"b"}}, u"a0123|0123|"},
      {"nothing done", {{1, 0, 0, u"a"}, {5, 1, 1, u""}, {1, 1, 1, u"b"}}, u"0123|"},
  };
  for (const MergeCase& c : cases) {
    SCOPED_TRACE(c.name);
    document.Replace(0, document.Length(), PlainFragment(u"0123", 0, 0));
    for (const Act& act : c.acts) {
      if (act.kind == 0) {
        history.Close();
      } else {
        Edit(static_cast<UndoKind>(act.kind), act.from, act.to, act.text);
      }
    }
    const std::u16string last = Text();
    EXPECT_EQ(UndoAll(), c.undone);
    while (history.Redo()) continue;
    EXPECT_EQ(Text(), last);
    history.Clear();
  }
}

TEST_F(UndoTest, GivesBackSelectionsKindsAndExtents) {
  Edit(UndoKind::Paste, 0, 0, u"hello");
  history.Begin(UndoKind::Cut, {1, 4});
  history.Begin(UndoKind::Typing, {});
  EXPECT_EQ(history.Apply(1, 4, {}), (EditExtent{1, 3, 0}));
  history.End({});
  history.Apply(0, 1, PlainFragment(u"XY", 0, 0));
  history.End({2, 2});
  EXPECT_EQ(Text(), u"XYo");
  EXPECT_EQ(history.UndoType(), UndoKind::Cut);
  EXPECT_EQ(history.RedoType(), UndoKind::Unknown);
  std::vector<EditExtent> edits;
  const auto visit = [&](Position at, Position removed, Position inserted) {
    edits.push_back({at, removed, inserted});
  };
  EXPECT_EQ(history.Undo(visit), (Selection{1, 4}));
  EXPECT_EQ(history.RedoType(), UndoKind::Cut);
  EXPECT_EQ(history.Redo(visit), (Selection{2, 2}));
  const std::vector<EditExtent> expected{{0, 2, 1}, {1, 0, 3}, {0, 4, 2}};
  EXPECT_EQ(edits, expected);
  EXPECT_EQ(Text(), u"XYo");
}

TEST_F(UndoTest, ForgetsWhatCouldBeRedone) {
  Type(0, u"a");
  history.Undo();
  Type(0, u"");
  EXPECT_TRUE(history.CanRedo());
  Type(0, u"b");
  EXPECT_FALSE(history.CanRedo());
  EXPECT_EQ(history.Redo(), std::nullopt);
}

TEST_F(UndoTest, ReopensNoStepAfterUndoAndRedo) {
  Type(0, u"a");
  history.Undo();
  history.Redo();
  Type(1, u"b");
  EXPECT_EQ(UndoAll(), u"a||");
}

TEST_F(UndoTest, KeepsOneStepWithoutMultiLevel) {
  history.MultiLevel(false);
  Type(0, u"a");
  Type(1, u"b");
  Delete(0, 1);
  EXPECT_EQ(UndoAll(), u"ab|");
  EXPECT_TRUE(history.Redo());
  EXPECT_EQ(Text(), u"b");
}

TEST_F(UndoTest, TakesEditsOutsideAGroupAsUnknown) {
  history.Apply(0, 0, PlainFragment(u"a", 0, 0));
  history.Apply(1, 1, PlainFragment(u"b", 0, 0));
  EXPECT_EQ(history.UndoType(), UndoKind::Unknown);
  EXPECT_EQ(UndoAll(), u"a||");
}

TEST_F(UndoTest, CarriesTheFinalMark) {
  Fragment marked;
  marked.mark = FinalMark{0, 0};
  history.Apply(0, 0, marked);
  EXPECT_FALSE(history.CanUndo());
  marked.mark = FinalMark{0, 5};
  history.Apply(0, 0, marked);
  EXPECT_EQ(document.Mark().paragraph, 5u);
  history.Undo();
  EXPECT_EQ(document.Mark().paragraph, 0u);
  history.Redo();
  EXPECT_EQ(document.Mark().paragraph, 5u);
}

TEST_F(UndoTest, JoinedHalvesOfAPairComeApartAgain) {
  Type(0,
       u"\xD83C"
       u"x"
       u"\xDF3C");
  Delete(1, 2);
  history.Undo();
  EXPECT_EQ(Text(),
            u"\xD83C"
            u"x"
            u"\xDF3C");
}

}  // namespace
}  // namespace lumenote
