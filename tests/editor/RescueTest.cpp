// What becomes of a note that cannot go where it belongs.
#include "backends/native/programs/SystemPrograms.h"
#include "backends/native/state/NativeStateFolder.h"
#include "editor/storage/Secours.h"
#include "hosts/Host.h"

namespace lumenote {
namespace {

const std::u16string kQjot = u"C:\\Program Files\\qjot\\qjot.exe";
const std::u16string kQuestion = u"Voulez-vous enregistrer les modifs en cours";

class RescueTest : public HostTest {};

TEST_F(RescueTest, WithoutAnyPlaceTheWindowStays) {
  const struct {
    std::u16string note, next, attribute, copy;
  } cases[] = {{u"C:\\n\\a.txt", u"C:\\n\\a.txt", u"", u"Secours_a.txt"},
               {u"avant", u"autre", u"", u"Secours_TmpFlStr.txt"},
               {u"avant", u"autre", u"readonly", u"Secours_TmpFlStr.txt"}};
  LeaveNoPlace();
  sandbox.MakeParents(u"C:\\n\\a.txt");
  disk.Write(u"C:\\n\\a.txt", "avant");
  for (const auto& c : cases) {
    control->pAttribut(c.attribute);
    Open(c.note);
    Type(u"pas ");
    Fail("write", u"\\a.txt");
    if (c.next != c.note) control->pStrOrchm(c.next);
    EXPECT_EQ(control->pStrOrchm(), c.next);
    ASSERT_TRUE(IsOpen());
    EXPECT_FALSE(Values().closed);
    EXPECT_EQ(Shown(), u"pas avant");
    EXPECT_TRUE(Values().dirty);
    Choose(&ContextMenu::mnuPopQuitter);
    ASSERT_TRUE(IsOpen());
    EXPECT_EQ(Boxes().size(), 2U);  // asked, or told of the read-only state, each time anew
    sandbox.MakeParents(u"C:\\Documents\\x");
    Choose(&ContextMenu::mnuPopQuitter);
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Boxes().back(),
              u"Enregistrement impossible\r\nCopie de secours :\r\nC:\\Documents\\" + c.copy);
    EXPECT_EQ(disk.ReadAll(u"C:\\Documents\\" + c.copy), "pas avant");
    sandbox.Remove(u"C:\\Documents");
    Mend();
  }
}

TEST_F(RescueTest, AWaitingHostGoesOnWaiting) {
  LeaveNoPlace();
  OpenFile(u"C:\\n\\a.txt", "avant");
  Type(u"pas ");
  Fail("write", u"\\a.txt");
  int attempts = 0;
  Timer& clock = Editor().Timer1;
  clock.Tick = [&] {
    if (++attempts == 2) Mend();
    Choose(&ContextMenu::mnuPopQuitter);
  };
  clock.Enabled(true);
  control->ShowMicroEdit(1);
  EXPECT_EQ(attempts, 2);
  EXPECT_EQ(disk.ReadAll(u"C:\\n\\a.txt"), "pas avant");
}

TEST_F(RescueTest, CopiesTakeNamesThatNobodyHas) {
  const std::u16string longest = std::u16string(120, u'é') + u".txt";
  sandbox.MakeParents(u"C:\\Documents\\Secours_2_a.txt\\x");  // a folder
  const struct {
    std::u16string name, copy;
  } cases[] = {{u"a.txt", u"Secours_a.txt"},
               {u"C:\\n\\a.txt", u"Secours_3_a.txt"},
               {u"C:\\n/a.txt", u"Secours_4_a.txt"},
               {longest, u"Secours_" + std::u16string(108, u'é') + u".txt"},
               {longest, u"Secours_2_" + std::u16string(108, u'é') + u".txt"},
               {u"", u"Secours_"}};
  for (const auto& c : cases) {
    EXPECT_EQ(EcrireSecours(platform, c.name, "x"), u"C:\\Documents\\" + c.copy);
    EXPECT_EQ(disk.ReadAll(u"C:\\Documents\\" + c.copy), "x");
  }
  // Another program takes the name between the look and the writing.
  platform.files.before = [&](std::string_view, std::u16string_view path) {
    if (path.ends_with(u"Secours_b.txt")) disk.Write(path, "theirs");
  };
  EXPECT_EQ(EcrireSecours(platform, u"b.txt", "ours"), u"C:\\Documents\\Secours_2_b.txt");
  EXPECT_EQ(disk.ReadAll(u"C:\\Documents\\Secours_b.txt"), "theirs");
}

TEST_F(RescueTest, AChangedFileThatCannotBeKeptIsNotReplaced) {
  LeaveNoPlace();
  OpenFile(u"C:\\n\\a.txt", "avant");
  Type(u"pas ");
  disk.Write(u"C:\\n\\a.txt", "leur");
  Choose(&ContextMenu::mnuPopEnregistrer);
  EXPECT_EQ(Editor().Bar_Etat.Panel(2), u"Enregistrement impossible");
  EXPECT_TRUE(Values().dirty);
  EXPECT_EQ(disk.ReadAll(u"C:\\n\\a.txt"), "leur");
  Choose(&ContextMenu::mnuPopTextRichText);
  EXPECT_EQ(disk.ReadAll(u"C:\\n\\a.txt"), "leur");
  EXPECT_EQ(Shown().substr(0, 9), u"pas avant");
}

TEST_F(RescueTest, AFileIsReadAgainBeforeASaveOnlyWhenItMayHaveChanged) {
  const std::u16string path = u"C:\\n\\a.txt";
  const struct {
    std::function<void()> meanwhile;
    int readings;
    bool changed;
  } cases[] = {{[] {}, 1, false},
               {[&] { disk.Write(path, "mien"); }, 2, false},
               {[&] { disk.Write(path, "leur"); }, 2, true},
               {[&] { disk.Write(path, "le leur"), sandbox.Age(path, -3600); }, 2, true},
               {[&] { sandbox.Remove(path); }, 1, false}};
  for (const auto& c : cases) {
    sandbox.MakeParents(path);
    disk.Write(path, "mien");
    sandbox.Age(path, -3600);
    int readings = 0;
    platform.files.before = [&](std::string_view operation, std::u16string_view read) {
      readings += operation == "read" && read == path;
    };
    Open(path);
    c.meanwhile();
    Type(u"x");
    Choose(&ContextMenu::mnuPopEnregistrer);
    EXPECT_EQ(readings, c.readings);
    EXPECT_EQ(Boxes().size(), c.changed);
    EXPECT_EQ(disk.ReadAll(path), "xmien");
    control->pStrOrchm();
  }
}

TEST_F(RescueTest, AnEmptyNoteNeverTakesThePlaceOfAnothersFile) {
  for (const std::u16string path : {u"C:\\n\\a.txt", u"C:\\n\\a.rtf"}) {
    sandbox.MakeParents(path);
    int acts = 0;
    platform.files.before = [&](std::string_view, std::u16string_view of) {
      if (of == path && acts++ == 1) disk.Write(path, "{\\rtf1 leur}");  // after the first look
    };
    Open(path);
    EXPECT_EQ(disk.ReadAll(path), "{\\rtf1 leur}");
    EXPECT_NE(Shown().find(u"leur"), Shown().npos);
    control->pStrOrchm();
  }
  disk.Write(u"C:\\n\\b.rtf", "leur");  // already there when it is created
  CreFVideRtf(disk, u"C:\\n\\b.rtf");
  EXPECT_EQ(disk.ReadAll(u"C:\\n\\b.rtf").substr(0, 6), "{\\rtf1");
}

TEST_F(RescueTest, OnlyTheFileThatWasNamedIsDeleted) {
  const struct {
    std::function<void()> meanwhile;  // while the question stands
    bool deleted;
  } cases[] = {{[&] { control->pStrOrchm(u"C:\\n\\b.txt"); }, true},
               {[&] { control->pStrOrchm(); }, false},
               {[&] { Choose(&ContextMenu::mnuPopTextRichText); }, false},
               {[&] { Fail("delete", u"a.txt"); }, false}};
  for (const auto& c : cases) {
    sandbox.MakeParents(u"C:\\n\\b.txt");
    disk.Write(u"C:\\n\\b.txt", "autre");
    OpenFile(u"C:\\n\\a.txt", "un");
    OnEvent(c.meanwhile);
    Choose(&ContextMenu::mnuPopSupprDoc);
    EXPECT_TRUE(backend.events.empty());
    EXPECT_EQ(disk.ReadAll(u"C:\\n\\b.txt"), "autre");
    EXPECT_EQ(disk.Exists(u"C:\\n\\a.txt") || disk.Exists(u"C:\\n\\a.rtf"), !c.deleted);
    Mend();
    control->pStrOrchm();
    Clear();
  }
}

TEST_F(RescueTest, AControlThatGoesKeepsItsNote) {
  OpenFile(u"C:\\n\\a.txt", "avant");
  for (const std::u16string note : {u"C:\\n\\a.txt", u"note"}) {
    const auto second = MakeControl();
    Open(*second, note);
    EditorOf(*second).Document().SelText(u"deux ");
    Type(u"un ");
    Choose(&ContextMenu::mnuPopEnregistrer);
  }
  EXPECT_EQ(disk.ReadAll(u"C:\\n\\a.txt"), "un un avant");
  EXPECT_EQ(disk.ReadAll(u"C:\\Documents\\Secours_a.txt"), "un avant");
  EXPECT_EQ(disk.ReadAll(u"C:\\Documents\\Secours_2_a.txt"), "deux avant");
  EXPECT_EQ(disk.ReadAll(u"C:\\Documents\\Secours_TmpFlStr.txt"), "deux note");
}

/// Two forms come too late, one of which cannot be read at first; the host closes in the box.
TEST_F(RescueTest, WhatComesTooLateOutlivesACloseInTheBox) {
  const std::u16string kCopy = u"C:\\Documents\\Secours_Sava.";
  Install(kQjot);
  for (const bool controlGoes : {false, true}) {
    OpenFile(u"C:\\n\\a.txt", "");
    Choose(&ContextMenu::mnuPopQjot);
    backend.Tick(30);
    control->pStrOrchm();
    disk.Write(u"C:\\Temp\\Sava.rtf", "{\\rtf1 un}");
    disk.Write(u"C:\\Temp\\Sava.txt", "deux");
    Open(u"C:\\n\\a.txt");
    control->pStrOrchm();
    EXPECT_EQ(Boxes(), Texts());  // the program still runs
    sandbox.Programs().Finish();
    if (!controlGoes) {
      Fail("read", u"Sava.txt");
      OnEvent([&] { control->pStrOrchm(); });
      Open(u"C:\\n\\a.txt");
      EXPECT_EQ(Boxes().size(), 1U);
      EXPECT_FALSE(disk.Exists(kCopy + u"txt"));
      Mend();
      Open(u"C:\\n\\a.txt");
    }
    control = MakeControl();
    EXPECT_EQ(Boxes().size(), 1U);
    EXPECT_EQ(disk.ReadAll(kCopy + u"rtf"), "{\\rtf1 un}");
    EXPECT_EQ(disk.ReadAll(kCopy + u"txt"), "deux");
    EXPECT_FALSE(disk.Exists(u"C:\\Documents\\Secours_2_Sava.rtf"));
    Clear();
  }
}

/// The results that damaged or foreign records name are copied at most; no file of the user's goes
/// or changes, and the next note opens.
TEST_F(RescueTest, ADamagedRecordDoesNoHarm) {
  const auto record = [](const std::string& program, const std::string& path,
                         const std::string& folder, const std::string& rest = "") {
    return "[\"" + program + "\",\"" + path + "\",\"1\",\"" + folder + "\"" + rest + "]";
  };
  const std::string qjot = "C:\\\\Program Files\\\\qjot\\\\qjot.exe", note = "C:\\\\n\\\\a.rtf";
  const struct {
    std::string bytes;
    std::vector<std::u16string> copies;
  } cases[] = {
      {"", {}},
      {"[", {}},
      {std::string(500, '['), {}},
      {std::string("\0\xFF\xFE*", 4), {}},
      {"{\"program\":1}", {}},
      {"[1,2,3,4]", {}},
      {record(qjot, note, ""), {u"a.rtf"}},
      {record(qjot, note, "").substr(0, 40), {}},
      {record(qjot, note, "", ",\"" + note + "\""), {}},
      {record(qjot, note, "", ",\"" + note + "\",\"" + std::string(400, '9') + "\""), {u"a.rtf"}},
      {record("\xE9", note, ""), {}},
      {record("\\u0000\\uD800", "", "\\u0000"), {}},
      {record("", "\\uDC00:rtf", std::string(5000, 'x')), {}},
      {record("", note, "C:\\\\n"), {u"a.rtf", u"SavNotes.rtf"}},
      {record("", "Y:\\\\..\\\\..\\\\etc\\\\passwd", "Y:"), {}},
  };
  const DrivePaths drives(folder.Path() + "/c");
  const std::unique_ptr<Processes> programs = MakeSystemPrograms(drives);
  platform.programs = programs.get();
  for (const auto& c : cases) {
    SCOPED_TRACE(c.bytes.substr(0, 100));
    sandbox.MakeParents(u"C:\\n\\a.rtf");
    disk.Write(u"C:\\n\\a.rtf", "{\\rtf1 a}");
    disk.Write(u"C:\\n\\SavNotes.rtf", "{\\rtf1 autre}");
    sandbox.ReadOnly(u"C:\\n\\a.rtf", true);
    {
      NativeStateFolder dead(folder.Path() + "/state", drives);
      const auto copy = dead.MakeCopy();
      copy->Begin(u"*");
      copy->Append(c.bytes);
      copy->Commit();
      copy->Leave();
    }
    Open(u"note");
    EXPECT_EQ(Shown(), u"note");
    EXPECT_EQ(Boxes().size(), c.copies.empty() ? 0U : 1U);
    control->pStrOrchm();
    EXPECT_EQ(disk.ReadAll(u"C:\\n\\a.rtf"), "{\\rtf1 a}");
    EXPECT_EQ(disk.ReadAll(u"C:\\n\\SavNotes.rtf"), "{\\rtf1 autre}");
    EXPECT_EQ(sandbox.List(u"C:\\Documents").size(), c.copies.size());
    for (const std::u16string& name : c.copies)
      EXPECT_TRUE(disk.Exists(u"C:\\Documents\\Secours_" + name));
    Clear();
  }
}

TEST_F(RescueTest, AnErrorInTheClosingDecisionKeepsTheWindow) {
  Open(u"avant");
  Type(u"pas ");
  backend.answer = [](const MessageBox& box) -> MessageBox::Answer {
    if (box.text == kQuestion) throw RuntimeError(ErrorNumber::PathAccess);
    return DefaultAnswer(box);
  };
  EXPECT_EQ(control->pStrOrchm(), u"avant");
  ASSERT_TRUE(IsOpen());
  backend.answer = DefaultAnswer;
  EXPECT_EQ(control->pStrOrchm(), u"pas avant");
}

TEST_F(RescueTest, AControlThatGoesTakesItsWindowAlong) {
  LeaveNoPlace();
  OpenFile(u"C:\\n\\a.txt", "");
  Editor().Bar.mnuEdtTrouver.UserClick();
  Type(u"perdu");
  Fail("write", u"\\a.txt");
  control.reset();
  EXPECT_EQ(Boxes(), Texts{kQuestion});
  backend.Tick(5);
}

/// Whatever the host does while a box stands, what was typed is in its hands, on the disk or still
/// in the window.
TEST_F(RescueTest, NoActOfTheHostInABoxLosesText) {
  Install(kQjot);
  const std::function<void()> hosts[] = {
      [] {},
      [&] { control->pStrOrchm(u"autre"); },
      [&] { control->pStrOrchm(u"C:\\n\\b.txt"); },
      [&] { control->pStrOrchm(); },
      [&] { backend.Tick(40); },
  };
  const std::function<void()> users[] = {
      [&] { Editor().Unload(); },
      [&] { Choose(&ContextMenu::mnuPopQuitter); },
      [&] { disk.Write(u"C:\\n\\a.txt", "leur"), Choose(&ContextMenu::mnuPopEnregistrer); },
      [&] { disk.Write(u"C:\\n\\a.txt", "leur"), Choose(&ContextMenu::mnuPopTextRichText); },
      [&] { Fail("write", u"\\a."), Editor().Unload(); },
      [&] {
        disk.Write(u"C:\\n\\a.txt", "leur"), Choose(&ContextMenu::mnuPopQjot), backend.Tick(40);
      },
  };
  for (const bool fileMode : {true, false})
    for (std::size_t user = 0; user < std::size(users); ++user)
      for (std::size_t host = 0; host < std::size(hosts); ++host) {
        if (fileMode)
          OpenFile(u"C:\\n\\a.txt", "avant");
        else
          Open(u"avant");
        Type(u"SAISI ");
        OnEvent(hosts[host]);
        users[user]();
        backend.events.clear();
        Mend();
        sandbox.Programs().Finish();
        const std::u16string note = control->pStrOrchm();
        EXPECT_TRUE(note.find(u"SAISI") != note.npos || OnDisk("SAISI", "/c/Temp/"))
            << fileMode << " user " << user << " host " << host;
        control->pStrOrchm(u"");
        Clear();
      }
}

}  // namespace
}  // namespace lumenote
