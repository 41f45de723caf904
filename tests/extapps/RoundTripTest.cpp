// The exchange of the editor with an external program, tick by tick, among stand-in programs.
#include <optional>

#include "base/Characters.h"
#include "base/Rows.h"
#include "hosts/Host.h"
#include "platform/Paths.h"

namespace lumenote {
namespace {

const std::u16string kQjotPath = u"C:\\Program Files\\qjot\\qjot.exe";
const std::u16string kAtlantisPath = u"C:\\Program Files\\Atlantis Nova\\Atlantis.exe";
const std::u16string kWordPath = u"C:\\Program Files\\Microsoft\\Office11\\WinWord.exe";
constexpr auto kQjot = &ContextMenu::mnuPopQjot;
constexpr auto kAtlantis = &ContextMenu::mnuPopAtlantis;
constexpr auto kWord = &ContextMenu::mnuPopMSWord;

/// A program that goes on whatever it is asked.
struct Stubborn : Processes {
  ProcessId Start(std::u16string_view) override { return ++started; }
  void Open(std::u16string_view) override {}
  bool IsRunning(ProcessId) override { return true; }
  std::optional<SystemError> Terminate(std::u16string_view) override { return std::nullopt; }
  std::optional<SystemError> StillRunning(std::u16string_view path) override {
    if (path != kAtlantisPath) return std::nullopt;
    return SystemError{110, u"too late"};
  }

  int started = 0;
};

class RoundTripTest : public HostTest {
 protected:
  void SetUp() override {
    for (const std::u16string& path : {kQjotPath, kAtlantisPath, kWordPath}) Install(path);
  }
  Value Member(std::string_view name) {
    MemberTable members;
    Editor().Describe(members);
    return members.Find(name)->get(-1);
  }
  bool Watching() { return Editor().TimerWpd.Enabled(); }
  /// What the user does in the program, then its end and the way back.
  void FinishAfter(const std::function<void()>& work = [] {}) {
    backend.Tick(40);
    EXPECT_EQ(Member("EtatWpd"), Value(26));
    work();
    sandbox.Programs().Finish();
    backend.Tick(5);
    EXPECT_FALSE(Watching());
  }
  static std::u16string Told(std::u16string_view cause, std::u16string_view copy) {
    return std::u16string(cause) + u"\r\nCopie de secours :\r\nC:\\Documents\\Secours_" +
           std::u16string(copy);
  }
};

TEST_F(RoundTripTest, WhatTheProgramSavedWholeReplacesTheNote) {
  // Last the note's name when it has come back, "" when it stays, "kept" for a rescue copy.
  for (const auto& [program, note, saved, bytes, after] : Rows16<5>(R"(
Qjot | a.txt | Temp\Sava.txt | retour | a.txt ¦ Word | a.txt | Temp\Sava.sav | retour | a.txt
Word | a.txt | Documents\SavNotes.txt | retour | "" ¦ Word | N.TXT | Temp\SavN.SAV | retour | N.TXT
Qjot | N.TXT | Program Files\qjot\SavNotes.TXT | retour | N.TXT
Atlantis | a.txt | Documents\SavNotes.txt | retour | a.txt
Atlantis | o.rtf | Documents\SavNotes.Rtf | {\rtf1 retour} | o.rtf
Word | NOTE.RTF | Temp\SavNOTE.RTF | {\rtf1 retour} | NOTE.RTF
Word | NOTE.RTF | Temp\SavNOTE.rtf | {\rtf1 retour} | NOTE.RTF
Word | N.TXT | Temp\SavN.Rtf | {\rtf1 retour} | N.Rtf
Word | L.txt | Temp\SavL.rtf | {\rtf1 retour} | kept ¦ Word | a.rtf | Temp\Sava.rtf | "" | kept
Word | A.RTF | Temp\SavA.RTF | {\rtf1 apr | kept ¦ Word | a.rtf | Temp\Sava.sav | texte} | kept
Word | a.rtf | Temp\Sava.rtf | {\rtf1 {\b apr} | kept ¦ Word | a.txt | Temp\Sava.txt | "" | kept
Word | a.txt | Temp\Sava.rtf | {\rtf1 a{\b b} | kept
)")) {
    SCOPED_TRACE(ToUtf8(saved + bytes));
    const std::u16string result = u"C:\\" + saved, name = FileName(result);
    const bool kept = after == u"kept", returns = !kept && !after.empty();
    const bool text = note.ends_with(u"txt") || note.ends_with(u"TXT");
    OpenFile(u"C:\\n\\" + note, text ? "avant" : "{\\rtf1 avant}");
    disk.Write(u"C:\\n\\N.Rtf", "{\\rtf1 autre}");
    disk.Write(u"C:\\n\\L.rtf", "{\\rtf1 autre}");
    sandbox.ReadOnly(u"C:\\n\\L.rtf", true);
    Choose(program == u"Qjot" ? kQjot : program == u"Word" ? kWord : kAtlantis);
    FinishAfter([&, &bytes = bytes] {
      disk.Write(result, ToUtf8(bytes));
      sandbox.Age(result, 10);
    });
    EXPECT_EQ(Shown().substr(0, 6), returns ? u"retour" : u"avant");
    EXPECT_EQ(disk.ReadAll(u"C:\\n\\L.rtf"), "{\\rtf1 autre}");
    const Texts boxes = Boxes();
    ASSERT_EQ(boxes.size(), kept ? 1U : 0U);
    if (kept) {  // where letter case tells no files apart, under one of its spellings
      EXPECT_EQ(Lower(boxes[0]), Lower(Told(u"Erreur fichier temporaire", name)));
      EXPECT_EQ(disk.ReadAll(result), ToUtf8(bytes));
      EXPECT_EQ(disk.ReadAll(u"C:\\Documents\\Secours_" + name), ToUtf8(bytes));
    }
    EXPECT_TRUE(disk.SameFile(control->pStrOrchm(), u"C:\\n\\" + (returns ? after : note)));
    Clear();
  }
}

TEST_F(RoundTripTest, WhatLayThereBeforeIsNoResult) {
  disk.Write(u"C:\\Documents\\SavNotes.rtf", "{\\rtf1 ancien}");
  sandbox.ReadOnly(u"C:\\Documents\\SavNotes.rtf", true);  // the purge leaves it
  disk.Write(u"C:\\Temp\\Sava.sav", "ancien");
  for (const auto entry : {kAtlantis, kWord}) {
    OpenFile(u"C:\\n\\a.txt", "avant");
    Choose(entry);
    FinishAfter();
    EXPECT_EQ(Shown(), u"avant");
    EXPECT_EQ(disk.ReadAll(u"C:\\n\\a.txt"), "avant");
    Editor().Unload();
  }
}

TEST_F(RoundTripTest, ThePurgeSparesTheNoteItself) {
  OpenFile(u"C:\\Documents\\SavNotes.txt", "avant");
  for (const bool readOnly : {true, false}) {
    sandbox.ReadOnly(u"C:\\Documents\\SavNotes.txt", readOnly);
    Choose(kAtlantis);
    backend.Tick(2);
    EXPECT_TRUE(disk.Exists(u"C:\\Documents\\SavNotes.txt"));
  }
}

TEST_F(RoundTripTest, WhatWasTypedMeanwhileIsKeptBeforeTheReload) {
  const struct {
    bool saved;     // by the user, before the program ends
    bool returned;  // something came back
    bool kept;
    std::u16string shown;
  } cases[] = {{false, false, true, u"d'avant"},
               {false, true, true, u"retour"},
               {true, true, true, u"retour"},
               {true, false, false, u"d'abord avant"}};
  for (const auto& c : cases) {
    OpenFile(u"C:\\n\\a.txt", "avant");
    Type(u"d'");
    Choose(kWord);
    FinishAfter([&] {
      Type(u"abord ");
      if (c.saved) Choose(&ContextMenu::mnuPopEnregistrer);
      if (c.returned) disk.Write(u"C:\\Temp\\Sava.sav", "retour");
    });
    EXPECT_EQ(Shown(), c.shown);
    EXPECT_EQ(Boxes(),
              c.kept ? Texts{Told(u"Fichier modifié par un autre programme", u"a.txt")} : Texts());
    EXPECT_EQ(disk.Exists(u"C:\\Documents\\Secours_a.txt"), c.kept);
    if (c.kept) {
      EXPECT_EQ(disk.ReadAll(u"C:\\Documents\\Secours_a.txt"), "d'abord avant");
    }
    Editor().Unload();
    Clear();
  }
}

TEST_F(RoundTripTest, WhatDidNotComeBackIsKeptBeforeThePurge) {
  OpenFile(u"C:\\n\\a.txt", "avant");
  Choose(kWord);
  backend.Tick(20);
  disk.Write(u"C:\\Temp\\Sava.txt", "enregistré avant la fin");
  Choose(kWord);
  backend.Tick(40);
  EXPECT_EQ(sandbox.Programs().TakeStarted().size(), 2U);
  EXPECT_EQ(sandbox.Programs().TakeKilled(), Texts{kWordPath});
  EXPECT_EQ(Boxes(), Texts{Told(u"Fichier modifié par un autre programme", u"Sava.txt")});
  EXPECT_EQ(disk.ReadAll(u"C:\\Documents\\Secours_Sava.txt"), "enregistré avant la fin");
  EXPECT_EQ(disk.ReadAll(u"C:\\Temp\\Sava.txt"), "avant");

  FinishAfter([&] {  // of several forms one comes back
    disk.Write(u"C:\\Temp\\Sava.rtf", "{\\rtf1 retour}");
    disk.Write(u"C:\\Temp\\Sava.txt", "en clair");
    disk.Write(u"C:\\Temp\\Sava.sav", "autrement");
  });
  EXPECT_EQ(Shown(), u"retour");
  EXPECT_EQ(Boxes(), Texts());
  Choose(kWord);
  backend.Tick(2);
  EXPECT_EQ(Boxes().size(), 1U);
  EXPECT_EQ(disk.ReadAll(u"C:\\Documents\\Secours_2_Sava.txt"), "en clair");
  EXPECT_EQ(disk.ReadAll(u"C:\\Documents\\Secours_Sava.sav"), "autrement");
}

TEST_F(RoundTripTest, ARefusedCommandLeavesTheExchangeAlone) {
  OpenFile(u"C:\\n\\a.txt", "avant");
  Choose(kQjot);
  disk.Delete(kWordPath, true);
  Choose(kWord);
  EXPECT_EQ(Member("TypeEditeur"), Value(3));
  Values().readOnly = true;
  Choose(kAtlantis);
  EXPECT_EQ(Boxes(), (Texts{u"MS WinWord Introuvable",
                            u"Fichier en 'lecture seule'\r\nAbandon de l'appel Atlantis"}));
  Values().readOnly = false;
  FinishAfter([&] { disk.Write(u"C:\\Program Files\\qjot\\SavNotes.txt", "retour"); });
  EXPECT_EQ(Shown(), u"retour");
}

TEST_F(RoundTripTest, AProgramMayGoBetweenTheLookAndTheStart) {
  OpenFile(u"C:\\n\\a.txt", "avant");
  int looks = 0;
  platform.files.before = [&](std::string_view operation, std::u16string_view path) {
    if (operation == "look" && path == kWordPath && ++looks == 2) disk.Delete(kWordPath, true);
  };
  Choose(kWord);
  EXPECT_EQ(Boxes(), Texts{u"MS Word introuvable\r\nEdition impossible"});
}

TEST_F(RoundTripTest, AProgramThatGoesOnIsWaitedForThenReported) {
  Stubborn stubborn;
  platform.programs = &stubborn;
  control = MakeControl();
  OpenFile(u"C:\\n\\a.txt", "avant");
  Choose(kQjot);
  for (int tick = 1; tick <= 250; ++tick) {
    backend.Tick(1);
    EXPECT_EQ(Member("EtatWpd"), Value(tick == 1 ? 1 : 2));
  }
  EXPECT_EQ(Boxes(), Texts());
  EXPECT_EQ(Member("FichierTravail"), Value(u""));
  backend.Tick(1);
  EXPECT_EQ(Member("EtatWpd"), Value(2));
  backend.Tick(1);
  EXPECT_EQ(Member("EtatWpd"), Value(3));
  backend.Tick(290);
  EXPECT_EQ(Boxes(), Texts{u"Destruction Windows Erreur : Error #110 too late"});
  EXPECT_EQ(stubborn.started, 1);
  EXPECT_EQ(Member("EtatWpd"), Value(26));
  control.reset();
}

TEST_F(RoundTripTest, AResultWithoutAPlaceIsNotPurged) {
  LeaveNoPlace();
  OpenFile(u"C:\\n\\a.rtf", "{\\rtf1 avant}");
  Choose(kWord);
  FinishAfter([&] {
    disk.Write(u"C:\\Temp\\Sava.rtf", "{\\rtf1 apr");
    sandbox.Age(u"C:\\Temp\\Sava.rtf", 10);
  });
  Choose(kWord);
  backend.Tick(3);
  EXPECT_FALSE(Watching());
  EXPECT_EQ(Boxes(), (Texts{u"Erreur fichier temporaire", u"Erreur fichier temporaire"}));
  EXPECT_EQ(disk.ReadAll(u"C:\\Temp\\Sava.rtf"), "{\\rtf1 apr");
  sandbox.MakeParents(u"C:\\Documents\\x");
  Choose(kWord);
  backend.Tick(3);
  EXPECT_EQ(disk.ReadAll(u"C:\\Documents\\Secours_Sava.rtf"), "{\\rtf1 apr");
}

TEST_F(RoundTripTest, WithoutAPlaceForItWhatWasTypedStaysUnsaved) {
  for (const std::u16string form : {u"txt", u"rtf"}) {
    const std::u16string note = u"C:\\n\\a." + form;
    LeaveNoPlace();
    OpenFile(u"C:\\n\\a.txt", "avant");
    Choose(kWord);
    FinishAfter([&] {
      Type(u"d'");
      Choose(&ContextMenu::mnuPopEnregistrer);
      disk.Write(u"C:\\Temp\\Sava." + (form == u"rtf" ? form : u"sav"), "{\\rtf1 retour}");
    });
    EXPECT_EQ(Shown(), u"d'avant");
    EXPECT_TRUE(Values().dirty);
    EXPECT_EQ(Values().format, form);
    EXPECT_EQ(Values().documentPath, note);
    sandbox.MakeParents(u"C:\\Documents\\x");
    Editor().Unload();
    EXPECT_EQ(disk.ReadAll(note).starts_with("{\\rtf1"), form == u"rtf");
    EXPECT_NE(disk.ReadAll(note).find("d'avant"), std::string::npos);
  }
}

TEST_F(RoundTripTest, AResultInAFormWithoutFormatsWaitsForWhatWasTyped) {
  LeaveNoPlace();
  OpenFile(u"C:\\n\\a.rtf", "{\\rtf1 \\b avant}");
  Choose(kWord);
  FinishAfter([&] {
    Type(u"d'");
    disk.Write(u"C:\\Temp\\Sava.txt", "retour");
  });
  EXPECT_EQ(Boxes(), Texts{u"Erreur fichier temporaire"});
  EXPECT_EQ(disk.ReadAll(u"C:\\Temp\\Sava.txt"), "retour");
  sandbox.MakeParents(u"C:\\Documents\\x");
  Editor().Unload();
  EXPECT_NE(disk.ReadAll(u"C:\\n\\a.rtf").find("\\pard\\b d'avant"), std::string::npos)
      << disk.ReadAll(u"C:\\n\\a.rtf");
}

TEST_F(RoundTripTest, AReloadThatFailsLeavesTheNoteDirty) {
  OpenFile(u"C:\\n\\a.txt", "avant");
  Choose(kQjot);
  backend.Tick(30);
  disk.Write(u"C:\\Program Files\\qjot\\SavNotes.txt", "retour");
  sandbox.Programs().Finish();
  while (Watching() && !disk.ReadAll(u"C:\\n\\a.txt").starts_with("retour")) backend.Tick(1);
  Fail("read", u"\\a.txt");
  backend.Tick(2);
  EXPECT_EQ(Boxes(), Texts{u"Impossible de Charger le fichier\r\nC:\\n\\a.txt"});
  EXPECT_TRUE(Values().dirty);
  EXPECT_EQ(Shown(), u"avant");
  Mend();
  control->pStrOrchm();
  EXPECT_EQ(disk.ReadAll(u"C:\\n\\a.txt"), "avant");
  EXPECT_EQ(disk.ReadAll(u"C:\\Documents\\Secours_a.txt"), "retour");
}

TEST_F(RoundTripTest, WithoutAWorkFileTheSavedNoteStays) {
  OpenFile(u"C:\\n\\a.txt", "avant");
  Type(u"d'");
  Choose(kAtlantis);
  FinishAfter([&] { disk.Delete(u"C:\\Temp\\Sava.txt", true); });
  EXPECT_EQ(disk.ReadAll(u"C:\\n\\a.txt"), "d'avant");
  EXPECT_EQ(Shown(), u"d'avant");
  sandbox.Programs().TakeStarted();

  control->pStrOrchm();
  OpenFile(u"C:\\n\\a.odt", "{\\rtf1 avant}");
  Choose(kQjot);
  backend.Tick(50);
  EXPECT_EQ(Member("EtatWpd"), Value(30));
  EXPECT_EQ(Boxes(), Texts{u"Erreur fichier temporaire"});
  EXPECT_EQ(sandbox.Programs().TakeStarted(), Texts());
}

}  // namespace
}  // namespace lumenote
