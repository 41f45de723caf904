// What hosts in C++ have beside the described members, and notes without a window.
#include "Host.h"
#include "base/ErrorOf.h"
#include "lumenote/Note.h"

namespace lumenote {
namespace {

using DoorTest = HostTest;

TEST_F(DoorTest, ATextThatLooksLikeAPathIsANoteAndAPathIsOneForCertain) {
  const std::u16string note = u"T:\\ 12 m, sous chênes";
  control->NoteText(note);
  control->ShowMicroEdit();
  EXPECT_EQ(Shown(), note);
  control->NoteText(u"C:\\n\\x.txt");  // waits for the next opening, as a text still
  EXPECT_EQ(control->pStrOrchm(), u"C:\\n\\x.txt");
  control->ShowMicroEdit();
  EXPECT_EQ(Shown(), u"C:\\n\\x.txt");
  control->pStrOrchm();
  EXPECT_EQ(ErrorOf([&] { control->NotePath(note.substr(3)); }), 76);
  control->NotePath(u"C:\\n.txt");
  control->ShowMicroEdit();
  EXPECT_TRUE(Values().fileMode);
}

TEST_F(DoorTest, TheNoteClosedFirstIsToldFirstThoughItsWaitEndsLast) {
  Texts told;
  const auto second = MakeControl();
  const auto listen = [&](CoBxRtf& which) {
    which.Closed([&] { told.push_back(which.pStrOrchm()); });
  };
  listen(*control);
  listen(*second);
  second->pStrOrchm(u"deux");
  OnEvent([&] { second->ShowMicroEdit(1); });
  OnEvent([&] { Editor().UserClose(); });
  OnEvent([&] {
    EXPECT_EQ(told, Texts({u"un"}));
    EditorOf(*second).UserClose();
  });
  control->pStrOrchm(u"un");
  control->ShowMicroEdit(1);
  EXPECT_EQ(told, Texts({u"un", u"deux"}));
}

TEST_F(DoorTest, TheNextNoteMayBeShownInTheNotice) {
  for (const int mode : {0, 1}) {
    Texts notes;
    control->Closed([&] {
      notes.push_back(control->pStrOrchm());
      if (notes.size() > 1) return;
      control->pStrOrchm(u"deux");
      if (mode == 1) OnEvent([&] { Editor().UserClose(); });
      control->ShowMicroEdit(mode);
    });
    control->pStrOrchm(u"un");
    OnEvent([&] { Editor().UserClose(); });
    control->ShowMicroEdit(1);
    EXPECT_EQ(IsOpen(), mode == 0);
    EXPECT_EQ(control->Parts().session->closed, mode == 1);
    EXPECT_EQ(control->pStrOrchm(), u"deux");
    EXPECT_EQ(notes, Texts({u"un", u"deux"}));
  }
}

TEST_F(DoorTest, AControlMayGoWhileItTellsThatItsEditorHasClosed) {
  control->Closed([&] { control.reset(); });
  Open(u"note");
  Editor().UserClose();
  EXPECT_EQ(control, nullptr);
}

TEST(NoteTest, NotesAreReadCleanedAndWrittenWithoutAWindow) {
  Note note("{\\rtf1\\ansi l'herhe , verte\\par}");
  EXPECT_EQ(note.Source(), Note::Format::Rtf);
  EXPECT_EQ(note.Clean("herhe=:=herbe\r\nabsent=:=\r\n"), (std::vector<std::int16_t>{1, 0}));
  EXPECT_EQ(note.Text(), u"l'herbe, verte");
  EXPECT_EQ(Note(note.Bytes(Note::Format::Rtf)).Text(), note.Text());
  EXPECT_EQ(Note("\u2640 \u2265 3").Bytes(Note::Format::Text), "\u2640 \u2265 3");
  EXPECT_EQ(ErrorOf([&] { note.Clean("no pair"); }), 5);
  EXPECT_EQ(ErrorOf([] { Note("text", Note::Format::Rtf); }), 380);
}

}  // namespace
}  // namespace lumenote
