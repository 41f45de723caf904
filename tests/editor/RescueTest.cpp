// What becomes of a note that cannot go where it belongs.
#include <fcntl.h>
#include <sys/file.h>

#include "editor/Host.h"
#include "editor/Secours.h"

namespace lumenote {
namespace {

const std::u16string kQuestion = u"Voulez-vous enregistrer les modifs en cours";

class RescueTest : public HostTest {};

TEST_F(RescueTest, WithoutAnyPlaceTheWindowStays) {
  const struct {
    bool fileMode, readOnly;
  } cases[] = {{true, false}, {false, false}, {false, true}};
  LeaveNoPlace();
  for (const auto& c : cases) {
    control.pAttribut(c.readOnly ? u"readonly" : u"");
    if (c.fileMode)
      OpenFile(u"C:\\n\\a.txt", "avant");
    else
      Open(u"avant");
    Type(u"pas ");
    Fail("write", u"\\a.txt");
    const std::u16string next = c.fileMode ? u"C:\\n\\a.txt" : u"autre";
    if (!c.fileMode) control.pStrOrchm(next);
    EXPECT_EQ(control.pStrOrchm(), next);
    ASSERT_TRUE(IsOpen());
    EXPECT_FALSE(Values().closed);
    EXPECT_EQ(Shown(), u"pas avant");
    EXPECT_TRUE(Values().dirty);
    Editor().Pop.mnuPopQuitter.UserClick();
    ASSERT_TRUE(IsOpen());
    EXPECT_EQ(Boxes().size(), 2U);  // asked, or told of the read-only state, each time anew
    sandbox.MakeParents(u"C:\\Documents\\x");
    Editor().Pop.mnuPopQuitter.UserClick();
    EXPECT_FALSE(IsOpen());
    const std::u16string copy = c.fileMode ? u"Secours_a.txt" : u"Secours_TmpFlStr.txt";
    EXPECT_EQ(Boxes().back(),
              u"Enregistrement impossible\r\nCopie de secours :\r\nC:\\Documents\\" + copy);
    EXPECT_EQ(disk.ReadAll(u"C:\\Documents\\" + copy), "pas avant");
    sandbox.Remove(u"C:\\Documents");
    platform.files.before = [](std::string_view, std::u16string_view) {};
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
    if (++attempts == 2) platform.files.before = [](std::string_view, std::u16string_view) {};
    Editor().Pop.mnuPopQuitter.UserClick();
  };
  clock.Enabled(true);
  control.ShowMicroEdit(1);
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
  Editor().Pop.mnuPopEnregistrer.UserClick();
  EXPECT_EQ(Editor().Status(2), u"Enregistrement impossible");
  EXPECT_TRUE(Values().dirty);
  EXPECT_EQ(disk.ReadAll(u"C:\\n\\a.txt"), "leur");
  Editor().Pop.mnuPopTextRichText.UserClick();
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
    Editor().Pop.mnuPopEnregistrer.UserClick();
    EXPECT_EQ(readings, c.readings);
    EXPECT_EQ(Boxes().size(), c.changed);
    EXPECT_EQ(disk.ReadAll(path), "xmien");
    control.pStrOrchm();
  }
}

TEST_F(RescueTest, AnEmptyNoteNeverTakesThePlaceOfAnothersFile) {
  for (const std::u16string path : {u"C:\\n\\a.txt", u"C:\\n\\a.rtf"}) {
    sandbox.MakeParents(path);
    platform.files.before = [&](std::string_view operation, std::u16string_view) {
      if (operation == "write") disk.Write(path, "{\\rtf1 leur}");
    };
    Open(path);
    EXPECT_EQ(disk.ReadAll(path), "{\\rtf1 leur}");
    EXPECT_NE(Shown().find(u"leur"), Shown().npos);
    control.pStrOrchm();
  }
}

TEST_F(RescueTest, OnlyTheFileThatWasNamedIsDeleted) {
  const struct {
    std::function<void()> meanwhile;  // while the question stands
    bool deleted;
  } cases[] = {{[&] { control.pStrOrchm(u"C:\\n\\b.txt"); }, true},
               {[&] { control.pStrOrchm(); }, false},
               {[&] { Editor().Pop.mnuPopTextRichText.UserClick(); }, false},
               {[&] { Fail("delete", u"a.txt"); }, false}};
  for (const auto& c : cases) {
    OpenFile(u"C:\\n\\b.txt", "autre");
    OpenFile(u"C:\\n\\a.txt", "un");
    control.pStrOrchm();
    Open(u"C:\\n\\a.txt");
    bool asked = false;
    backend.answer = [&](const MessageBox& box) {
      if (box.title == u"Attention" && !std::exchange(asked, true)) c.meanwhile();
      return DefaultAnswer(box);
    };
    Editor().Pop.mnuPopSupprDoc.UserClick();
    EXPECT_TRUE(asked);
    EXPECT_EQ(disk.ReadAll(u"C:\\n\\b.txt"), "autre");
    EXPECT_EQ(disk.Exists(u"C:\\n\\a.txt") || disk.Exists(u"C:\\n\\a.rtf"), !c.deleted);
    backend.answer = DefaultAnswer;
    platform.files.before = [](std::string_view, std::u16string_view) {};
    control.pStrOrchm();
    sandbox.Remove(u"C:\\n");
  }
}

TEST_F(RescueTest, AReloadThatFailsLeavesTheNoteDirty) {
  sandbox.MakeParents(u"C:\\Program Files\\qjot\\qjot.exe");
  sandbox.Programs().Put(u"C:\\Program Files\\qjot\\qjot.exe");
  OpenFile(u"C:\\n\\a.txt", "avant");
  Editor().Pop.mnuPopQjot.UserClick();
  backend.Tick(30);
  disk.Write(u"C:\\Program Files\\qjot\\SavNotes.txt", "retour");
  sandbox.Programs().Finish();
  while (Editor().Timer1.Enabled() && !disk.ReadAll(u"C:\\n\\a.txt").starts_with("retour"))
    backend.Tick(1);
  Fail("read", u"\\a.txt");
  backend.Tick(2);
  EXPECT_EQ(Boxes(), Texts{u"Impossible de Charger le fichier\r\nC:\\n\\a.txt"});
  EXPECT_TRUE(Values().dirty);
  EXPECT_EQ(Shown(), u"avant");
  platform.files.before = [](std::string_view, std::u16string_view) {};
  control.pStrOrchm();
  EXPECT_EQ(disk.ReadAll(u"C:\\n\\a.txt"), "avant");
  EXPECT_EQ(disk.ReadAll(u"C:\\Documents\\Secours_a.txt"), "retour");
}

TEST_F(RescueTest, AControlThatGoesKeepsItsNote) {
  auto second = std::make_unique<CoBxRtf>(platform);
  OpenFile(u"C:\\n\\a.txt", "avant");
  second->pCouleurFen(u"0");
  second->pStrOrchm(u"C:\\n\\a.txt");
  second->ShowMicroEdit();
  second->Parts().editor.Get().Document().SelText(u"deux ");
  Type(u"un ");
  Editor().Pop.mnuPopEnregistrer.UserClick();
  second.reset();
  EXPECT_EQ(disk.ReadAll(u"C:\\n\\a.txt"), "deux avant");
  EXPECT_EQ(disk.ReadAll(u"C:\\Documents\\Secours_a.txt"), "un avant");

  second = std::make_unique<CoBxRtf>(platform);
  second->pCouleurFen(u"0");
  second->pStrOrchm(u"note");
  second->ShowMicroEdit();
  second->Parts().editor.Get().Document().SelText(u"ma ");
  second.reset();
  EXPECT_EQ(disk.ReadAll(u"C:\\Documents\\Secours_TmpFlStr.txt"), "ma note");
}

/// Two forms come too late, one of which cannot be read at first; the host closes in the box.
TEST_F(RescueTest, WhatComesTooLateOutlivesACloseInTheBox) {
  const std::u16string kProgram = u"C:\\Program Files\\qjot\\qjot.exe";
  const std::u16string kCopy = u"C:\\Documents\\Secours_Sava.";
  sandbox.MakeParents(kProgram);
  sandbox.Programs().Put(kProgram);
  for (const bool controlGoes : {false, true}) {
    auto host = std::make_unique<CoBxRtf>(platform);
    const auto open = [&] {
      host->pCouleurFen(u"0");
      host->pStrOrchm(u"C:\\n\\a.txt");
      host->ShowMicroEdit();
    };
    sandbox.MakeParents(u"C:\\n\\a.txt");
    open();
    host->Parts().editor.Get().Pop.mnuPopQjot.UserClick();
    backend.Tick(30);
    host->pStrOrchm();
    disk.Write(u"C:\\Temp\\Sava.rtf", "{\\rtf1 un}");
    disk.Write(u"C:\\Temp\\Sava.txt", "deux");
    sandbox.Programs().Finish();
    if (!controlGoes) {
      Fail("read", u"Sava.txt");
      backend.answer = [&](const MessageBox& box) {
        host->pStrOrchm();
        return DefaultAnswer(box);
      };
      open();
      EXPECT_EQ(Boxes().size(), 1U);
      EXPECT_FALSE(disk.Exists(kCopy + u"txt"));
      backend.answer = DefaultAnswer;
      platform.files.before = [](std::string_view, std::u16string_view) {};
      open();
    }
    host.reset();
    EXPECT_EQ(Boxes().size(), 1U);
    EXPECT_EQ(disk.ReadAll(kCopy + u"rtf"), "{\\rtf1 un}");
    EXPECT_EQ(disk.ReadAll(kCopy + u"txt"), "deux");
    EXPECT_FALSE(disk.Exists(u"C:\\Documents\\Secours_2_Sava.rtf"));
    for (const char16_t* form : {u"rtf", u"txt"}) sandbox.Remove(kCopy + form);
  }
}

TEST_F(RescueTest, AConversionDeletesInItsTurn) {
  OpenFile(u"C:\\n\\a.txt", "avant");
  bool deleted = false;
  platform.files.before = [&](std::string_view operation, std::u16string_view path) {
    if (operation != "delete" || path != u"C:\\n\\a.txt") return;
    deleted = true;
    const Descriptor other(open((folder.Path() + "/c/n").c_str(), O_RDONLY | O_DIRECTORY));
    ASSERT_TRUE(other.IsOpen());
    EXPECT_NE(flock(other.Number(), LOCK_EX | LOCK_NB), 0);
  };
  Editor().Pop.mnuPopTextRichText.UserClick();
  EXPECT_TRUE(deleted);
}

TEST_F(RescueTest, AnErrorInTheClosingDecisionKeepsTheWindow) {
  Open(u"avant");
  Type(u"pas ");
  backend.answer = [](const MessageBox& box) -> MessageBox::Answer {
    if (box.text == kQuestion) throw RuntimeError(ErrorNumber::PathAccess);
    return DefaultAnswer(box);
  };
  EXPECT_EQ(control.pStrOrchm(), u"avant");
  ASSERT_TRUE(IsOpen());
  backend.answer = DefaultAnswer;
  EXPECT_EQ(control.pStrOrchm(), u"pas avant");
}

TEST_F(RescueTest, AControlThatGoesTakesItsWindowAlong) {
  auto control = std::make_unique<CoBxRtf>(platform);
  LeaveNoPlace();
  sandbox.MakeParents(u"C:\\n\\a.txt");
  control->pCouleurFen(u"0");
  control->pStrOrchm(u"C:\\n\\a.txt");
  control->ShowMicroEdit();
  Co_Rtf& editor = control->Parts().editor.Get();
  editor.Bar.mnuEdtTrouver.UserClick();
  editor.Document().SelText(u"perdu");
  Fail("write", u"\\a.txt");
  control.reset();
  EXPECT_EQ(Boxes(), Texts{kQuestion});
  backend.Tick(5);
}

/// Whatever the host does while a box stands, what was typed is in its hands, on the disk or still
/// in the window.
TEST_F(RescueTest, NoActOfTheHostInABoxLosesText) {
  const std::u16string kProgram = u"C:\\Program Files\\qjot\\qjot.exe";
  sandbox.MakeParents(kProgram);
  sandbox.Programs().Put(kProgram);
  const std::function<void()> hosts[] = {
      [] {},
      [&] { control.pStrOrchm(u"autre"); },
      [&] { control.pStrOrchm(u"C:\\n\\b.txt"); },
      [&] { control.pStrOrchm(); },
      [&] { backend.Tick(40); },
  };
  const std::function<void()> users[] = {
      [&] { Editor().Unload(); },
      [&] { Editor().Pop.mnuPopQuitter.UserClick(); },
      [&] { disk.Write(u"C:\\n\\a.txt", "leur"), Editor().Pop.mnuPopEnregistrer.UserClick(); },
      [&] { disk.Write(u"C:\\n\\a.txt", "leur"), Editor().Pop.mnuPopTextRichText.UserClick(); },
      [&] { Fail("write", u"\\a."), Editor().Unload(); },
      [&] {
        disk.Write(u"C:\\n\\a.txt", "leur"), Editor().Pop.mnuPopQjot.UserClick(), backend.Tick(40);
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
        bool acted = false;
        backend.answer = [&](const MessageBox& box) {
          if (!std::exchange(acted, true)) hosts[host]();
          return DefaultAnswer(box);
        };
        users[user]();
        backend.answer = DefaultAnswer;
        platform.files.before = [](std::string_view, std::u16string_view) {};
        sandbox.Programs().Finish();
        const std::u16string note = control.pStrOrchm();
        EXPECT_TRUE(note.find(u"SAISI") != note.npos || OnDisk("SAISI"))
            << fileMode << " user " << user << " host " << host;
        control.pStrOrchm(u"");
        for (const char16_t* used : {u"C:\\n", u"C:\\Temp", u"C:\\Documents"}) {
          IgnoringErrors([&] { sandbox.Remove(used); });
          sandbox.MakeParents(std::u16string(used) + u"\\x");
        }
      }
}

}  // namespace
}  // namespace lumenote
