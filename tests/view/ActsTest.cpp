// What the user does in a view: mouse, keys, drags, input methods, assistive programs.
#include <gtest/gtest.h>
#include <sstream>

#include "base/DataFile.h"
#include "base/Rows.h"
#include "view/Window.h"
#include "view/acts/AccessibleText.h"
#include "view/acts/SpellingEntries.h"
#include "view/acts/TextDrag.h"
#include "view/acts/TextTips.h"
#include "view/acts/TextWalk.h"
#include "view/acts/ViewDrop.h"
#include "view/acts/ViewInput.h"
#include "view/acts/ViewKeys.h"
#include "view/acts/ViewMouse.h"

namespace lumenote {
namespace {

/// Twelve columns and four rows.
constexpr PixelSize kSize{120, 100};

struct User : Window {
  User() : Window(kSize) {}

  /// Just behind the left edge of a column, in the middle of a row.
  static PixelPoint At(double column, double row) { return {column * 10 + 1, row * 25 + 12}; }
  /// "D 3 0" presses at column 3 of row 0; S with Shift; W is a double click, T presses soon after;
  /// M moves with the button held, N without; U releases, X cancels; O is the scroll timer.
  void Do(const std::string& acts) {
    std::istringstream words(acts);
    char act = 0;
    double column = 0;
    double row = 0;
    while (words >> act >> column >> row) {
      now += act == 'T' ? 100 : 1000;
      const ViewMouse::Press press{At(column, row), now, act == 'S'};
      if (act == 'D' || act == 'S' || act == 'T') mouse.Down(press);
      if (act == 'W') mouse.DoubleClick(press);
      if (act == 'M' || act == 'N') mouse.Move(press.at, act == 'M');
      if (act == 'U') mouse.Up(press.at);
      if (act == 'X') mouse.Cancel();
      if (act == 'O') mouse.ScrollOn();
      view.Settle();
    }
  }

  ViewMouse mouse{view};
  ViewKeys keys{view};
  ViewDrop drop{view};
  ViewInput input{view};
  std::int64_t now = 0;
};

TEST(Mouse, Selects) {
  for (const auto& [text, acts, shown] : Rows<3>(DataFile("mouse.rows"), " => ")) {
    User user;
    user.Type(FromUtf8(text));
    user.Do(acts);
    EXPECT_EQ(ToUtf8(user.Shown()), shown) << text << ' ' << acts;
    EXPECT_TRUE(user.screen == user.Fresh());
  }
}

TEST(Mouse, DragsWhatIsSelectedAndScrollsOutside) {
  User user;
  user.Type(u"^un| deux");
  user.Do("N 1 0");
  EXPECT_EQ(user.shape, PointerShape::Arrow);
  user.Do("N 5 0");
  EXPECT_EQ(user.shape, PointerShape::Text);
  user.Do("D 1 0 M 5 0 M 6 0 U 6 0");
  EXPECT_EQ(user.drags, 1);
  EXPECT_EQ(user.Shown(), u"^un| deux");
  user.Type(u"|a¶b¶c¶d¶e¶f¶g");
  user.Do("D 0 0 M 0 5");
  EXPECT_TRUE(user.timer);
  user.Do("O 0 0 O 0 0 O 0 0 O 0 0");
  EXPECT_EQ(user.Shown(), u"^a¶b¶c¶d¶e¶f¶|g");
  user.Do("M 0 2");
  EXPECT_FALSE(user.timer);
  user.Do("M 0 -1");
  EXPECT_TRUE(user.timer);
  user.Do("U 0 0 O 0 0");
  EXPECT_FALSE(user.timer);
}

TEST(Links, OpenWithCtrlAndTellWhereTheyLead) {
  const std::string open = "\r\nCtrl+clic pour ouvrir";
  for (const auto& [target, tip] : {std::pair("https://a.fr/b?c=1", "https://a.fr/b?c=1" + open),
                                    {"MAILTO:a@b.fr", "MAILTO:a@b.fr" + open},
                                    {"file:///n.txt", "file:///n.txt" + open},
                                    {"javascript:a", "javascript:a"},
                                    {"C:\\\\\\\\n.exe", "C:\\n.exe"},
                                    {"www.a.fr", "www.a.fr"}}) {
    const bool opens = tip.ends_with(open);
    const std::string address = opens ? tip.substr(0, tip.size() - open.size()) : tip;
    const std::u16string opened = opens ? FromUtf8(address) : u"";
    User user;
    user.surface.TextRTF(u"{\\rtf1 ab{\\field{\\*\\fldinst{HYPERLINK \"" + FromUtf8(target) +
                         u"\"}}{\\fldrslt cd}}ef{\\footnote\\chftn\\'e9t\\'e9}}");
    user.Do("N 3 0");
    EXPECT_EQ(user.shape, PointerShape::Text);
    user.mouse.Control(true);
    EXPECT_EQ(user.shape, opens ? PointerShape::Hand : PointerShape::Text) << target;
    user.Do("N 4 0");
    EXPECT_EQ(user.shape, PointerShape::Text);
    user.Do("D 4 0 U 4 0 D 3 0 M 5 0 U 5 0");
    EXPECT_EQ(user.opened, u"");
    user.Do("D 3 0 U 3 0");
    EXPECT_EQ(user.opened, opened);
    user.opened = u"none";
    user.Do("D 3 0");
    user.mouse.Control(false);
    user.Do("U 3 0");
    user.mouse.Control(true);
    user.surface.UserSelect(0, 0);
    user.Do("S 3 0 U 3 0");
    EXPECT_EQ(user.surface.Selected().Length(), 3);
    EXPECT_EQ(user.opened, u"none");
    EXPECT_EQ(ToUtf8(TipAt(user.pane, User::At(2, 0))), tip);
    EXPECT_EQ(TipAt(user.pane, User::At(4, 0)) + TipAt(user.pane, User::At(9, 0)), u"");
    EXPECT_EQ(TipAt(user.pane, User::At(6, 0)), u"été");
    for (const auto& [caret, used] : {std::pair(1, false), {2, true}, {4, true}, {5, false}}) {
      user.surface.UserSelect(caret, caret);
      user.opened.clear();
      EXPECT_EQ(user.keys.Press(ParseKey(u"Ctrl+Return"), {}), used);
      EXPECT_EQ(ToUtf8(user.opened), used ? address : "");
    }
  }
}

/// The numbers that the notes show; "-" between paragraphs.
std::string NumbersOf(User& user) {
  std::string numbers;
  user.view.Settle();
  for (const auto& piece : user.pane.Cache().Pieces()) {
    for (const InlineBox& box : piece->boxes) numbers += std::to_string(box.number) + ' ';
    numbers += '-';
  }
  return numbers;
}

TEST(Footnotes, AreNumberedThroughTheNote) {
  User user;
  const std::u16string note = u"{\\super\\chftn{\\footnote\\chftn  a}}";
  user.surface.TextRTF(u"{\\rtf1 a" + note + u"b*{\\footnote * marque}c" + note + u"\\par d{\\v" +
                       note + u"}" + note + u"}");
  EXPECT_EQ(NumbersOf(user), "1 2 -4 -");
  EXPECT_EQ(user.pane.Cache().At(0).XOf(6) - user.pane.Cache().At(0).XOf(5), 10);
  EXPECT_EQ(TipAt(user.pane, {35, 12}), u"* marque");
  user.surface.UserSelect(0, 2);
  user.surface.UserKey({.name = KeyName::Delete});
  EXPECT_EQ(NumbersOf(user), "1 -3 -");
  user.surface.Undo();
  EXPECT_EQ(NumbersOf(user), "1 2 -4 -");
  user.surface.UserSelect(0, user.surface.TextLength());
  user.surface.Copy();
  user.surface.UserSelect(0, 0);
  for (int i = 0; i < 3; ++i) user.surface.Paste();
  user.surface.UserSelect(user.surface.TextLength(), user.surface.TextLength());
  user.view.Settle();
  user.pane.Reveal(user.surface.TextLength());
  EXPECT_TRUE(NumbersOf(user).ends_with("16 -")) << NumbersOf(user);
  EXPECT_EQ(user.view.Differences(), std::vector<std::string>());
}

TEST(Keys, AreTheViewsOrTheWindows) {
  struct KeyRow {
    std::u16string_view key, typed, shown;
    bool used, usedLocked;
  };
  const KeyRow rows[] = {
      {u"Down", u"", u"un¶d|eux", true, true},      {u"A", u"é", u"ué|n¶deux", true, false},
      {u"Delete", u"", u"u|¶deux", true, false},    {u"Ctrl+0", u"", u"u|n¶deux", true, true},
      {u"Shift+F10", u"", u"u|n¶deux", true, true}, {u"F3", u"", u"u|n¶deux", false, false}};
  for (const KeyRow& row : rows)
    for (const bool locked : {false, true}) {
      User user;
      user.Type(u"u|n¶deux");
      user.locked = locked;
      EXPECT_EQ(user.keys.Press(ParseKey(row.key), row.typed), locked ? row.usedLocked : row.used);
      EXPECT_EQ(user.Shown(), locked && !row.usedLocked ? u"u|n¶deux" : row.shown);
      EXPECT_EQ(user.menu.x, row.key == u"Shift+F10" ? 10 : 0);
      EXPECT_EQ(user.pane.Zoom(), row.key == u"Ctrl+0" ? 1 : 1.5);
    }
}

// A line before each part, the entries of an entry in brackets, "-" before what cannot be chosen.
std::string Offered(const std::vector<SpellingEntry>& entries) {
  std::string offered;
  for (const SpellingEntry& entry : entries) {
    const bool dead = entry.act == SpellingEntry::Act::None && entry.entries.empty();
    offered += (entry.startsPart ? "| " : "") + ToUtf8((dead ? u"-" : u"") + entry.caption) + " ";
    if (!entry.entries.empty()) offered += "[ " + Offered(entry.entries) + "] ";
  }
  return offered;
}

TEST(Spelling, OffersWhatTheNoteTakes) {
  const std::string always = "Ajouter au &dictionnaire | &Menu de la note ";
  const std::vector<std::u16string> many(9, u"mot");
  EXPECT_EQ(Offered(SpellingEntries({u"un", u"eu"}, false)),
            "un eu | &Apprendre la correction [ un eu ] | " + always);
  EXPECT_EQ(Offered(SpellingEntries({}, false)), "-Aucune proposition | " + always);
  EXPECT_EQ(Offered(SpellingEntries(many, true)), always);
  EXPECT_EQ(SpellingEntries(many, false).size(), 8u + 3);
}

TEST(Drags, TakeTheirTextWhenTheyBegin) {
  User user;
  user.Type(u"un ^deux| trois");
  TextDrag moved(user.view);
  moved.Moved();
  EXPECT_EQ(user.Shown(), u"un | trois");
  user.Type(u"un ^deux| trois");
  TextDrag stale(user.view);
  user.view.Type(u"x");
  EXPECT_EQ(stale.Text().Text(), u"deux");
  EXPECT_NE(stale.Text().Rtf().find("deux"), std::string::npos);
  stale.Moved();
  EXPECT_EQ(user.Shown(), u"un x| trois");
}

TEST(Drops, MoveCopyAndPutIn) {
  User user;
  user.Type(u"^un |deux");
  user.drop.Move(User::At(7, 0));
  user.view.Settle();
  EXPECT_EQ(user.view.Marks().dropCaret->left, 70);
  EXPECT_TRUE(user.screen == user.Fresh());
  user.drop.Leave();
  user.drop.DropOwn(User::At(7, 0), false);
  EXPECT_EQ(user.Shown(), u"deux^un |");
  user.drop.DropOwn(User::At(0, 0), true);
  EXPECT_EQ(user.Shown(), u"^un |deuxun ");
  EXPECT_TRUE(user.drop.Drop(User::At(3, 0), {u"et ", {}}));
  EXPECT_EQ(user.Shown(), u"un ^et |deuxun ");
  EXPECT_FALSE(user.drop.Drop(User::At(3, 0), {}));
  user.drop.Paste(User::At(0, 0), {u"a", {}});
  EXPECT_EQ(user.Shown(), u"a|un et deuxun ");
  user.surface.Text(Words(600));
  user.view.Settle();
  user.drop.Move(User::At(1, 3.9));
  EXPECT_GT(user.pane.Scroll().Read().value, 0);
}

TEST(Drops, BackOnTheViewTakeWhatWasDragged) {
  struct Row {
    const char* what;
    bool copy;
    std::function<void(User&)> meanwhile;
    std::u16string_view after;
  };
  const Row rows[] = {
      {"moved", false, [](User&) {}, u"^un| deux "},
      {"another selection", false, [](User& user) { user.surface.UserSelect(0, 5); },
       u"^un| deux "},
      {"another selection, copied", true, [](User& user) { user.surface.UserSelect(0, 5); },
       u"^un| deux un"},
      {"edited meanwhile", false, [](User& user) { user.view.Type(u"une"); }, u"^un| deux une"},
      {"locked meanwhile", false, [](User& user) { user.locked = true; }, u" deux ^un|"}};
  for (const Row& row : rows) {
    User user;
    user.Type(u" deux ^un|");
    TextDrag drag(user.view);
    row.meanwhile(user);
    user.drop.DropBack(User::At(0, 0), drag, row.copy);
    EXPECT_EQ(user.Shown(), row.after) << row.what;
  }
}

TEST(InputMethods, ComposeReplaceAndCommit) {
  User user;
  user.Type(u"ab|c");
  user.input.Take({.composed = u"^^", .caret = 1});
  user.view.Settle();
  EXPECT_EQ(user.view.Marks().caret->left, 30);
  EXPECT_EQ(user.pane.CaretAt(3)->left, 50);
  for (const int unit : {0, 1, 2, 3})
    EXPECT_EQ(user.pane.ComposedCaretAt(unit)->left, 20 + 10 * std::min(unit, 2));
  EXPECT_EQ(user.surface.Text(), u"abc");
  EXPECT_TRUE(user.screen == user.Fresh());
  user.input.Take({.replaceFrom = -1, .replaceLength = 1, .committed = u"ê"});
  EXPECT_EQ(user.Shown(), u"aê|c");
  user.input.Take({.replaceFrom = -1, .replaceLength = 2});
  EXPECT_EQ(user.Shown(), u"a|");
  user.surface.Text(Words(2000));
  user.surface.UserSelect(1000, 1000);
  EXPECT_EQ(user.input.Surroundings(), (Selection{500, 1500}));
  user.surface.UserSelect(0, 2000);
  EXPECT_EQ(user.input.SelectedExcerpt(), (Selection{0, 500}));
  user.locked = true;
  user.input.Take({.committed = u"x"});
  EXPECT_EQ(user.surface.Content().Length(), 2000);
}

TEST(InputMethods, WhatIsSeenIsTypedOnce) {
  struct Row {
    const char* what;
    std::u16string_view before;
    std::function<void(User&)> end;
    std::u16string_view after;
  };
  const Row rows[] = {
      {"a click before", u"ab|c", [](User& user) { user.Do("D 0 0"); }, u"|abêtc"},
      {"a click on it", u"ab|c", [](User& user) { user.Do("D 3 0"); }, u"abê|tc"},
      {"another window", u"ab|c", [](User& user) { user.view.Focus(false); }, u"abêt|c"},
      {"the form", u"a^b|c", [](User& user) { user.surface.CompleteComposition(); }, u"aêt|c"},
      {"one that commits as well", u"ab|c",
       [](User& user) {
         user.dropComposition = [&user] { user.input.Take({.committed = u"êt"}); };
         user.surface.CompleteComposition();
       },
       u"abêt|c"},
      {"nothing is composed any more", u"ab|c",
       [](User& user) {
         user.input.Take({});
         user.view.Complete();
       },
       u"ab|c"}};
  for (const Row& row : rows) {
    User user;
    user.Type(row.before);
    user.view.Focus(true);
    user.input.Take({.composed = u"êt"});
    row.end(user);
    user.view.Settle();
    EXPECT_EQ(user.Shown(), row.after) << row.what;
    EXPECT_EQ(user.layouter.Composed().text, u"") << row.what;
    EXPECT_TRUE(user.screen == user.Fresh()) << row.what;
    user.surface.Undo();
    EXPECT_EQ(user.surface.Text(), u"abc") << row.what;
  }
}

TEST(TextUnits, DivideTheText) {
  struct UnitsRow {
    TextUnit unit;
    std::u16string_view units;
  };
  const UnitsRow rows[] = {
      {TextUnit::Character, u"a|𝄞|\r\n|é"},
      {TextUnit::Word, u"l'|été|, |de |fin |...|\r\n|  |a"},
      {TextUnit::Sentence, u"Env. dix, 1.5 m. |« Oui ! » |Il dit « non ! » et part.\r\n|Où ?\v"},
      {TextUnit::Sentence, u"(Fin.) |\"Ou...\" |Et"},
      {TextUnit::Paragraph, u"a\r\n|\r\n|b"}};
  for (const UnitsRow& row : rows) {
    std::u16string text(row.units);
    std::erase(text, u'|');
    Document document;
    document.Replace(0, 0, PlainFragment(text, 0, 0));
    for (Position at = document.Length() - 1; at >= 0; --at) {
      const Selection unit = UnitAt(document, at, row.unit);
      EXPECT_TRUE(unit.start <= at && at < unit.end) << at;
      if (unit.start == at && at > 0) text.insert(static_cast<std::size_t>(at), 1, u'|');
    }
    EXPECT_EQ(ToUtf8(text), ToUtf8(row.units));
  }
}

TEST(AccessibleTexts, TellUnitsAndEdit) {
  User user;
  user.Type(u"|un deux trois¶quatre");
  AccessibleText text(user.view);
  constexpr TextUnit kUnits[] = {TextUnit::Line, TextUnit::Paragraph, TextUnit::Word,
                                 TextUnit::All};
  for (const auto& [offset, unit, before, at, behind] : Rows16<5>(R"(
4 | 0 | "" | un deux␣ | trois¶ ¦ 9 | 0 | un deux␣ | trois¶ | quatre ¦ 4 | 2 | un␣ | deux␣ | trois
4 | 1 | "" | un deux trois¶ | quatre ¦ 99 | 1 | un deux trois¶ | quatre | ""
99 | 2 | quatre | "" | "" ¦ -5 | 3 | "" | un deux trois¶quatre | ""
)")) {
    const Position place = std::stoi(ToUtf8(offset));
    const TextUnit of = kUnits[unit[0] - u'0'];
    EXPECT_EQ(text.Text(text.Before(place, of)), Unmarked(before)) << place;
    EXPECT_EQ(text.Text(text.At(place, of)), Unmarked(at)) << place;
    EXPECT_EQ(text.Text(text.Behind(place, of)), Unmarked(behind)) << place;
  }
  EXPECT_EQ(text.BoxOf(9), (PixelRect{10, 25, 20, 50}));
  EXPECT_EQ(text.OffsetAt(User::At(1, 1)), 9);
  EXPECT_EQ(text.RunAt(3)->range, (Selection{0, 15}));
  EXPECT_FALSE(text.RunAt(21));
  text.Replace({0, 2}, u"une");
  EXPECT_EQ(user.Shown(), u"une| deux trois¶quatre");
  text.Replace({0, 4}, u"");
  EXPECT_EQ(user.Shown(), u"|deux trois¶quatre");
}

TEST(TextWalks, GoFromUnitToUnit) {
  User user;
  user.Type(u"|un deux trois¶quatre¶");
  const AccessibleText text(user.view);
  const TextWalk walk(text);
  struct Row {
    TextUnit unit;
    Selection from;
    int count;
    Selection to;
    int moved;
    Selection edge;  // where the range's start goes alone, and by how many units
  };
  const Row rows[] = {{TextUnit::Character, {0, 2}, 3, {3, 4}, 3, {3, 3}},
                      {TextUnit::Character, {13, 15}, 1, {15, 16}, 1, {15, 1}},
                      {TextUnit::Character, {21, 23}, 9, {21, 23}, 0, {23, 1}},
                      {TextUnit::Word, {1, 2}, 1, {3, 8}, 1, {3, 1}},
                      {TextUnit::Word, {10, 11}, -9, {0, 3}, -2, {0, -3}},
                      {TextUnit::Line, {4, 5}, 1, {8, 15}, 1, {8, 1}},
                      {TextUnit::Line, {16, 17}, 9, {23, 23}, 1, {23, 1}},
                      {TextUnit::Paragraph, {3, 8}, 9, {23, 23}, 2, {23, 2}},
                      {TextUnit::Paragraph, {20, 23}, -1, {0, 15}, -1, {15, -1}},
                      {TextUnit::Run, {3, 8}, 0, {3, 8}, 0, {3, 0}},
                      {TextUnit::All, {3, 8}, -1, {0, 23}, 0, {0, -1}}};
  for (const Row& row : rows) {
    const TextWalk::Step step = walk.Moved(row.from, row.unit, row.count);
    EXPECT_EQ(step.range, row.to) << row.from.start;
    EXPECT_EQ(step.count, row.moved) << row.from.start;
    const TextWalk::Step edge = walk.EdgeMoved(row.from.start, row.unit, row.count);
    EXPECT_EQ((Selection{edge.range.start, edge.count}), row.edge) << row.from.start;
  }
}

}  // namespace
}  // namespace lumenote
