// Any allocation of a command may fail: the document is as before the command
// or as behind it, and editing goes on.
#include <gtest/gtest.h>
#include <ostream>

#include "FailingNew.h"
#include "UserBench.h"
#include "ocr/Cleanup.h"
#include "surface/editing/SourceBytes.h"

namespace lumenote {
namespace {

/// Several leaves with formats, paragraphs, a table and a link.
std::u16string Note() {
  std::string rtf = "{\\rtf1{\\fonttbl{\\f0 Arial;}{\\f1 Times;}}";
  for (int i = 0; i < 120; ++i)
    rtf +=
        "un mot \\b gras\\b0 , deux  mots ;\\u9792? \\f1 "
        "trois\\f0\\par\\pard\\li" +
        std::to_string(20 * (i % 5)) + " ";
  rtf +=
      "\\trowd\\cellx9\\cellx99 a\\cell b\\cell\\row\\pard "
      "{\\field{\\*\\fldinst HYPERLINK x}{\\fldrslt lien}} fin\\par}";
  return WidenSource(rtf);
}

struct Desk : UserBench {
  explicit Desk(Selection selected) {
    static const std::u16string note = Note();
    files.Write(u"C:\\b.rtf", "{\\rtf1 \\b neuf\\par}");
    clipboard.Set({u"texte", "{\\rtf1 \\b riche\\par deux}"});
    surface.TextRTF(note);
    surface.UserType(u"tape");
    surface.SelBold(true);
    surface.UserSelect(900, 900);
    surface.UserType(u"abc");
    surface.UserSelect(10, 1300);
    surface.SelItalic(true);
    surface.UserDrop(4000, false);
    surface.SelUnderline(true);
    surface.Undo();
    surface.UserSelect(selected.start, selected.end);
  }
};

struct Command {
  const char* name;
  void (*act)(Desk&);
  Selection selected{10, 1300};
};
std::ostream& operator<<(std::ostream& out, const Command& command) { return out << command.name; }

const Command kCommands[] = {
    {"type", [](Desk& d) { d.surface.UserType(u"x"); }},
    {"type on", [](Desk& d) { d.surface.UserType(u"\u2640"); }, {903, 903}},
    {"return", [](Desk& d) { d.surface.UserType(u"\r\n"); }},
    {"delete", [](Desk& d) { d.surface.Clear(); }},
    {"backspace", [](Desk& d) { d.Press(u"BackSpace"); }, {2100, 2100}},
    {"delete all", [](Desk& d) { d.surface.Clear(); }, {0, 9999}},
    {"cut", [](Desk& d) { d.surface.Cut(); }},
    {"paste", [](Desk& d) { d.surface.Paste(); }},
    {"drop", [](Desk& d) { d.surface.UserDrop(4000, false); }},
    {"long text", [](Desk& d) { d.surface.SelText(std::u16string(5000, u'y')); }},
    {"bold", [](Desk& d) { d.surface.SelBold(true); }},
    {"font", [](Desk& d) { d.surface.SelFontName(u"Courier"); }},
    {"indent", [](Desk& d) { d.surface.SelIndent(300); }},
    {"undo a step of many edits", [](Desk& d) { d.surface.Undo(); }},
    {"redo", [](Desk& d) { d.surface.Redo(); }},
    {"several at once",
     [](Desk& d) {
       AsOneStep(d.surface, [&] {
         d.surface.SelUnderline(true);
         d.surface.SelText(u"mots");
         d.surface.SelBullet(true);
       });
     }},
    {"clean up", [](Desk& d) { NettoyerTexte(d.surface, d.files, u"C:\\none"); }},
    {"save", [](Desk& d) { d.surface.SaveFile(u"C:\\a.rtf", FileType::Rtf); }},
    {"load", [](Desk& d) { d.surface.LoadFile(u"C:\\b.rtf", FileType::Rtf, std::nullopt); }},
    {"write bit by bit",
     [](Desk& d) {
       const auto writing = d.surface.WriteSnapshot(FileType::Rtf, [](std::string_view) {});
       while (writing->Step()) continue;
     }},
};

class FailedAllocation : public testing::TestWithParam<Command> {};

std::u16string StateOf(Desk& desk) { return desk.surface.TextRTF(); }

/// Runs the command with one allocation failing; whether there are so many.
bool FailsAt(long number, const Command& command, Desk& desk) {
  const FailingNew failing(number);
  try {
    command.act(desk);
  } catch (const std::bad_alloc&) {
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), static_cast<int>(ErrorNumber::OutOfMemory));
  }
  return failing.HasFailed();
}

/// Editing, undo and redo agree with each other and with the text.
void CheckGoesOn(Desk& desk) {
  const std::u16string state = StateOf(desk);
  const Position length = desk.surface.TextLength();
  desk.surface.UserSelect(length / 2, length / 2);
  desk.surface.UserType(u"encore");
  desk.surface.Undo();
  EXPECT_EQ(StateOf(desk), state);
  while (desk.surface.CanUndo()) desk.surface.Undo();
  const std::u16string first = StateOf(desk);
  while (desk.surface.CanRedo()) desk.surface.Redo();
  while (desk.surface.CanUndo()) desk.surface.Undo();
  EXPECT_EQ(StateOf(desk), first);
}

TEST_P(FailedAllocation, LeavesTheDocumentBeforeOrBehindTheCommand) {
  const auto& [name, act, selected] = GetParam();
  Desk whole(selected);
  const std::u16string before = StateOf(whole);
  act(whole);
  const std::u16string behind = StateOf(whole);
  bool failed = true;
  for (long number = 1; failed; number += 1 + number / 40) {
    Desk desk(selected);
    failed = FailsAt(number, GetParam(), desk);
    const std::u16string state = StateOf(desk);
    ASSERT_TRUE(state == before || state == behind) << number;
    EXPECT_LE(desk.surface.Selected().end, desk.surface.TextLength()) << number;
    CheckGoesOn(desk);
  }
}
INSTANTIATE_TEST_SUITE_P(Commands, FailedAllocation, testing::ValuesIn(kCommands));

}  // namespace
}  // namespace lumenote
