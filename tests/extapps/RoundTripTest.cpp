// The exchange with an external editor, tick by tick, on a machine of stand-in programs.
#include <fstream>
#include <gtest/gtest.h>
#include <optional>

#include "backends/headless/HeadlessBackend.h"
#include "base/ErrorOf.h"
#include "control/CoBxRtf.h"
#include "control/Component.h"
#include "editor/DocumentStorage.h"
#include "editor/Secours.h"
#include "extapps/OcrLaunch.h"
#include "extapps/RoundTrip.h"
#include "pilot/machine/PilotBackend.h"
#include "pilot/machine/PilotPlatform.h"
#include "pilot/machine/ReportedFonts.h"
#include "pilot/posix/PosixSandbox.h"

namespace lumenote {
namespace {

const std::u16string kQjotPath = u"C:\\Program Files\\qjot\\qjot.exe";
const std::u16string kAtlantisPath = u"C:\\Program Files\\Atlantis Nova\\Atlantis.exe";
const std::u16string kWordPath = u"C:\\Program Files\\Microsoft\\Office11\\WinWord.exe";
using Texts = std::vector<std::u16string>;

/// A program that goes on whatever it is asked.
struct Stubborn : Processes {
  ProcessId Start(std::u16string_view) override { return ++started; }
  bool IsRunning(ProcessId) override { return true; }
  std::optional<SystemError> Terminate(std::u16string_view) override { return std::nullopt; }
  std::optional<SystemError> Lingering(std::u16string_view path) override {
    if (path != kAtlantisPath) return std::nullopt;
    return SystemError{110, u"too late"};
  }

  int started = 0;
};

class RoundTripTest : public testing::Test, public RoundTripDesk {
 protected:
  void Watch(bool on) override { watching = on; }
  void Reload() override {
    ++reloads;
    LoadFilAndIni(Editor());
  }
  bool WriteNote() override {
    Texts kept;
    const bool written = EcrireDocument(Editor(), kept);
    AnnoncerSecours(Editor(), Cause::FichierModifie, kept);
    return written;
  }
  bool KeepNote() override { return GarderNote(Editor(), Cause::FichierModifie); }
  void GoOnUnsaved() override { ContinuerSansRecharger(Editor()); }
  std::optional<std::u16string> CopyFile(std::u16string_view path) override {
    return CopierFichier(platform, path);
  }
  void TellOf(Cause cause, const Texts& copies) override {
    AnnoncerSecours(Editor(), cause, copies);
  }

  void SetUp() override {
    for (const std::u16string& path : {kQjotPath, kAtlantisPath, kWordPath}) {
      sandbox.MakeParents(path);
      sandbox.Programs().Put(path);
    }
  }
  /// Opens a note as a file of that path.
  void Open(std::u16string_view path, std::string_view note = "avant") {
    sandbox.MakeParents(path);
    disk.Write(path, note);
    control.pCouleurFen(u"0");
    control.pStrOrchm(path);
    control.ShowMicroEdit();
    programs = ChercherApplis({disk, sandbox.SpecialFolders(), u"C:\\Temp\\",
                               sandbox.InstalledPrograms(), sandbox.MachineRegistry()});
    exchange.emplace(Editor(), *this, programs, sandbox.Programs());
  }
  Co_Rtf& Editor() { return control.Parts().editor.Get(); }
  Session& Values() { return *control.Parts().session; }
  /// As long as the timer runs, at most `count` times.
  void Tick(int count) {
    for (int i = 0; i < count && watching; ++i) exchange->TimerWpd_Timer();
  }
  /// What the user does in the program, then its end and the way back.
  void FinishAfter(const std::function<void()>& work = [] {}) {
    Tick(40);
    EXPECT_EQ(exchange->EtatWpd(), 26);
    work();
    sandbox.Programs().Finish();
    Tick(5);
    EXPECT_FALSE(watching);
  }
  Texts BoxTexts() {
    Texts texts;
    for (const ShownBox& shown : backend.TakeBoxes()) texts.push_back(shown.box.text);
    return texts;
  }

  TemporaryFolder folder;
  PosixSandbox sandbox{folder.Path()};
  Files& disk = sandbox.FileSystem();
  HeadlessBackend inner;
  PilotBackend backend{inner};
  ReportedFonts fonts;
  PilotPlatform platform{sandbox, backend, fonts};
  CoBxRtf control{platform};
  ProgramTable programs;
  std::optional<RoundTrip> exchange;  // of the window that is open
  bool watching = false;
  int reloads = 0;
};

TEST_F(RoundTripTest, WhatTheProgramSavedComesBack) {
  const struct {
    void (RoundTrip::*begin)();
    std::u16string saved;
    std::u16string path;
  } cases[] = {
      {&RoundTrip::mnuPopQjot_Click, u"C:\\Temp\\Sava.txt", u"C:\\n\\a.txt"},
      {&RoundTrip::mnuPopMSWord_Click, u"C:\\Temp\\Sava.sav", u"C:\\n\\a.txt"},
      {&RoundTrip::mnuPopMSWord_Click, u"C:\\Documents\\SavNotes.txt", {}},
      {&RoundTrip::mnuPopQjot_Click, u"C:\\Program Files\\qjot\\SavNotes.txt", u"C:\\n\\a.txt"},
      {&RoundTrip::mnuPopAtlantis_Click, u"C:\\Documents\\SavNotes.txt", u"C:\\n\\a.txt"},
  };
  for (const auto& c : cases) {
    Open(u"C:\\n\\a.txt");
    (*exchange.*c.begin)();
    FinishAfter([&] {
      disk.Write(c.saved, "retour");
      sandbox.Age(c.saved, 10);
    });
    EXPECT_EQ(Editor().Document().Text(), c.path.empty() ? u"avant" : u"retour");
    EXPECT_EQ(Values().documentPath, u"C:\\n\\a.txt");
    Editor().Unload();
  }
}

TEST_F(RoundTripTest, NamesAreComparedWithoutTheCaseOfTheirExtension) {
  const struct {
    void (RoundTrip::*begin)();
    std::u16string note, saved, path;
  } cases[] = {
      {&RoundTrip::mnuPopMSWord_Click, u"NOTE.RTF", u"C:\\Temp\\SavNOTE.RTF", u"NOTE.RTF"},
      {&RoundTrip::mnuPopMSWord_Click, u"NOTE.RTF", u"C:\\Temp\\SavNOTE.rtf", u"NOTE.RTF"},
      {&RoundTrip::mnuPopMSWord_Click, u"N.TXT", u"C:\\Temp\\SavN.SAV", u"N.TXT"},
      {&RoundTrip::mnuPopMSWord_Click, u"N.TXT", u"C:\\Temp\\SavN.Rtf", u"N.Rtf"},
      {&RoundTrip::mnuPopQjot_Click, u"N.TXT", u"C:\\Program Files\\qjot\\SavNotes.TXT", u"N.TXT"},
      {&RoundTrip::mnuPopAtlantis_Click, u"o.rtf", u"C:\\Documents\\SavNotes.Rtf", u"o.rtf"},
  };
  for (const auto& c : cases) {
    const bool plain = c.note.ends_with(u"TXT");
    Open(u"C:\\n\\" + c.note, plain ? "avant" : "{\\rtf1 avant}");
    if (c.path == u"N.Rtf") disk.Write(u"C:\\n\\N.Rtf", "{\\rtf1 ancien}");
    (*exchange.*c.begin)();
    FinishAfter([&] {
      disk.Write(c.saved, plain && c.path == c.note ? "retour" : "{\\rtf1 retour}");
      sandbox.Age(c.saved, 10);
    });
    EXPECT_EQ(Editor().Document().Text().substr(0, 6), u"retour");
    EXPECT_EQ(Values().documentPath, u"C:\\n\\" + c.path);
    Editor().Unload();
    sandbox.Remove(u"C:\\n");
  }
  EXPECT_EQ(BoxTexts(), Texts());
}

TEST_F(RoundTripTest, WhatLayThereBeforeIsNoResult) {
  disk.Write(u"C:\\Documents\\SavNotes.rtf", "{\\rtf1 ancien}");
  sandbox.ReadOnly(u"C:\\Documents\\SavNotes.rtf", true);  // the purge leaves it
  disk.Write(u"C:\\Temp\\Sava.sav", "ancien");
  for (const auto begin : {&RoundTrip::mnuPopAtlantis_Click, &RoundTrip::mnuPopMSWord_Click}) {
    Open(u"C:\\n\\a.txt");
    (*exchange.*begin)();
    FinishAfter();
    EXPECT_EQ(Editor().Document().Text(), u"avant");
    EXPECT_EQ(disk.ReadAll(u"C:\\n\\a.txt"), "avant");
    Editor().Unload();
  }
}

TEST_F(RoundTripTest, ThePurgeSparesTheNoteItself) {
  Open(u"C:\\Documents\\SavNotes.txt");
  sandbox.ReadOnly(u"C:\\Documents\\SavNotes.txt", true);
  exchange->mnuPopAtlantis_Click();
  Tick(2);
  EXPECT_TRUE(disk.Exists(u"C:\\Documents\\SavNotes.txt"));
  sandbox.ReadOnly(u"C:\\Documents\\SavNotes.txt", false);
  exchange->mnuPopAtlantis_Click();
  Tick(2);
  EXPECT_TRUE(disk.Exists(u"C:\\Documents\\SavNotes.txt"));
}

TEST_F(RoundTripTest, WhatWasTypedMeanwhileIsKeptBeforeTheReload) {
  const std::u16string kTold =
      u"Fichier modifié par un autre programme\r\nCopie de secours "
      u":\r\nC:\\Documents\\Secours_a.txt";
  const struct {
    bool saved;     // by the user, before the program ends
    bool returned;  // something came back
    bool kept;
  } cases[] = {{false, false, true}, {false, true, true}, {true, true, true}, {true, false, false}};
  for (const auto& c : cases) {
    Open(u"C:\\n\\a.txt");
    Editor().Document().SelText(u"d'");
    exchange->mnuPopMSWord_Click();
    FinishAfter([&] {
      Editor().Document().SelText(u"abord ");
      if (c.saved) EnregistrerNote(Editor());
      if (c.returned) disk.Write(u"C:\\Temp\\Sava.sav", "retour");
    });
    EXPECT_EQ(Editor().Document().Text(), c.returned ? u"retour"
                                          : c.saved  ? u"d'abord avant"
                                                     : u"d'avant");
    EXPECT_EQ(BoxTexts(), c.kept ? Texts{kTold} : Texts());
    EXPECT_EQ(disk.Exists(u"C:\\Documents\\Secours_a.txt"), c.kept);
    if (c.kept) {
      EXPECT_EQ(disk.ReadAll(u"C:\\Documents\\Secours_a.txt"), "d'abord avant");
      sandbox.Remove(u"C:\\Documents\\Secours_a.txt");
    }
    Editor().Unload();
  }
}

TEST_F(RoundTripTest, AResultForANoteThatIsEditedAnewIsKept) {
  Open(u"C:\\n\\a.txt");
  exchange->mnuPopMSWord_Click();
  Tick(20);
  disk.Write(u"C:\\Temp\\Sava.txt", "enregistré avant la fin");
  exchange->mnuPopMSWord_Click();
  Tick(20);
  EXPECT_EQ(sandbox.Programs().TakeStarted().size(), 2U);
  EXPECT_EQ(sandbox.Programs().TakeKilled(), Texts{kWordPath});
  EXPECT_EQ(BoxTexts(), Texts{u"Fichier modifié par un autre programme\r\nCopie de secours :\r\n"
                              u"C:\\Documents\\Secours_Sava.txt"});
  EXPECT_EQ(disk.ReadAll(u"C:\\Documents\\Secours_Sava.txt"), "enregistré avant la fin");
  EXPECT_EQ(disk.ReadAll(u"C:\\Temp\\Sava.txt"), "avant");
}

TEST_F(RoundTripTest, FormsThatDidNotComeBackAreKeptBeforeThePurge) {
  Open(u"C:\\n\\a.txt");
  exchange->mnuPopMSWord_Click();
  FinishAfter([&] {
    disk.Write(u"C:\\Temp\\Sava.rtf", "{\\rtf1 retour}");
    disk.Write(u"C:\\Temp\\Sava.txt", "en clair");
    disk.Write(u"C:\\Temp\\Sava.sav", "autrement");
  });
  EXPECT_EQ(Editor().Document().Text(), u"retour");
  EXPECT_EQ(BoxTexts(), Texts());
  exchange->mnuPopMSWord_Click();
  Tick(2);
  EXPECT_EQ(BoxTexts().size(), 1U);
  EXPECT_EQ(disk.ReadAll(u"C:\\Documents\\Secours_Sava.txt"), "en clair");
  EXPECT_EQ(disk.ReadAll(u"C:\\Documents\\Secours_Sava.sav"), "autrement");
}

TEST_F(RoundTripTest, ARefusedCommandLeavesTheExchangeAlone) {
  Open(u"C:\\n\\a.txt");
  exchange->mnuPopQjot_Click();
  disk.Delete(kWordPath, true);
  exchange->mnuPopMSWord_Click();
  EXPECT_EQ(exchange->TypeEditeur(), 3);
  FinishAfter([&] { disk.Write(u"C:\\Program Files\\qjot\\SavNotes.txt", "retour"); });
  EXPECT_EQ(Editor().Document().Text(), u"retour");
}

TEST_F(RoundTripTest, AProgramThatGoesOnIsWaitedForThenReported) {
  Stubborn stubborn;
  Open(u"C:\\n\\a.txt");
  exchange.emplace(Editor(), *this, programs, stubborn);
  exchange->mnuPopQjot_Click();
  for (int tick = 1; tick <= 250; ++tick) {
    Tick(1);
    EXPECT_EQ(exchange->EtatWpd(), tick == 1 ? 1 : 2);
  }
  EXPECT_EQ(BoxTexts(), Texts());
  EXPECT_EQ(exchange->FichierTravail(), u"");
  Tick(1);
  EXPECT_EQ(exchange->EtatWpd(), 2);
  Tick(1);
  EXPECT_EQ(exchange->EtatWpd(), 3);
  Tick(290);
  EXPECT_EQ(BoxTexts(), Texts{u"Destruction Windows Erreur : Error #110 too late"});
  EXPECT_EQ(stubborn.started, 1);
  EXPECT_EQ(exchange->EtatWpd(), 26);
}

TEST_F(RoundTripTest, AResultThatWasCutOffIsKeptBesideTheNote) {
  const struct {
    std::u16string note, saved;
    std::string_view cut;
  } cases[] = {{u"a.rtf", u"Sava.rtf", ""},
               {u"A.RTF", u"SavA.RTF", "{\\rtf1 apr"},
               {u"a.rtf", u"Sava.rtf", "{\\rtf1 {\\b apr}"},
               {u"a.rtf", u"Sava.sav", "texte}"},
               {u"a.txt", u"Sava.rtf", "{\\rtf1 a{\\b b}"},
               {u"a.txt", u"Sava.txt", ""}};
  for (const auto& c : cases) {
    const bool plain = c.note.ends_with(u"txt");
    Open(u"C:\\n\\" + c.note, plain ? "avant" : "{\\rtf1 avant}");
    exchange->mnuPopMSWord_Click();
    FinishAfter([&] {
      disk.Write(u"C:\\Temp\\" + c.saved, c.cut);
      sandbox.Age(u"C:\\Temp\\" + c.saved, 10);
    });
    const std::u16string copy = u"C:\\Documents\\Secours_" + c.saved;
    EXPECT_EQ(BoxTexts(), Texts{u"Erreur fichier temporaire\r\nCopie de secours :\r\n" + copy});
    EXPECT_EQ(Editor().Document().Text(), u"avant");
    EXPECT_EQ(Values().documentPath, u"C:\\n\\" + c.note);
    for (const std::u16string& place : {u"C:\\Temp\\" + c.saved, copy})
      EXPECT_EQ(disk.ReadAll(place), c.cut);
    Editor().Unload();
    for (const std::u16string& place : {u"C:\\Temp\\" + c.saved, copy}) sandbox.Remove(place);
  }
}

TEST_F(RoundTripTest, AResultWithoutAPlaceIsNotPurged) {
  Open(u"C:\\n\\a.rtf", "{\\rtf1 avant}");
  sandbox.Remove(u"C:\\Documents");
  std::ofstream(folder.Path() + "/state") << "no folder";
  exchange->mnuPopMSWord_Click();
  FinishAfter([&] {
    disk.Write(u"C:\\Temp\\Sava.rtf", "{\\rtf1 apr");
    sandbox.Age(u"C:\\Temp\\Sava.rtf", 10);
  });
  exchange->mnuPopMSWord_Click();
  Tick(3);
  EXPECT_FALSE(watching);
  EXPECT_EQ(BoxTexts(), (Texts{u"Erreur fichier temporaire", u"Erreur fichier temporaire"}));
  EXPECT_EQ(disk.ReadAll(u"C:\\Temp\\Sava.rtf"), "{\\rtf1 apr");
  sandbox.MakeParents(u"C:\\Documents\\x");
  exchange->mnuPopMSWord_Click();
  Tick(3);
  EXPECT_EQ(disk.ReadAll(u"C:\\Documents\\Secours_Sava.rtf"), "{\\rtf1 apr");
}

TEST_F(RoundTripTest, WithoutAPlaceForItWhatWasTypedStaysUnsaved) {
  for (const bool rtf : {false, true}) {
    Open(u"C:\\n\\a.txt");
    sandbox.Remove(u"C:\\Documents");
    std::ofstream(folder.Path() + "/state") << "no folder";
    exchange->mnuPopMSWord_Click();
    FinishAfter([&] {
      Editor().Document().SelText(u"d'");
      EnregistrerNote(Editor());
      disk.Write(rtf ? u"C:\\Temp\\Sava.rtf" : u"C:\\Temp\\Sava.sav", "{\\rtf1 retour}");
    });
    EXPECT_EQ(reloads, 0);
    EXPECT_TRUE(Values().dirty);
    EXPECT_EQ(Values().format, rtf ? u"rtf" : u"txt");
    EXPECT_EQ(Values().documentPath, rtf ? u"C:\\n\\a.rtf" : u"C:\\n\\a.txt");
    sandbox.MakeParents(u"C:\\Documents\\x");
    Editor().Unload();
    EXPECT_EQ(disk.ReadAll(Values().documentPath).starts_with("{\\rtf1"), rtf);
    EXPECT_NE(disk.ReadAll(Values().documentPath).find("d'avant"), std::string::npos);
  }
}

TEST_F(RoundTripTest, RefusalsNameTheProgram) {
  Open(u"C:\\n\\a.txt");
  disk.Delete(kWordPath, true);
  exchange->mnuPopMSWord_Click();
  exchange->EditerAvecWord();
  EXPECT_EQ(exchange->TypeEditeur(), 3);
  Values().readOnly = true;
  exchange->mnuPopAtlantis_Click();
  EXPECT_EQ(exchange->TypeEditeur(), 2);
  EXPECT_EQ(BoxTexts(),
            (Texts{u"MS WinWord Introuvable", u"MS Word introuvable\r\nEdition impossible",
                   u"Fichier en 'lecture seule'\r\nAbandon de l'appel Atlantis"}));
  EXPECT_FALSE(watching);
}

TEST_F(RoundTripTest, WithoutAWorkFileNothingStarts) {
  Open(u"C:\\n\\a.odt", "{\\rtf1 avant}");
  exchange->mnuPopQjot_Click();
  Tick(50);
  EXPECT_EQ(exchange->EtatWpd(), 30);
  EXPECT_EQ(BoxTexts(), Texts{u"Erreur fichier temporaire"});
  EXPECT_EQ(sandbox.Programs().TakeStarted(), Texts());
  EXPECT_EQ(reloads, 0);
}

TEST_F(RoundTripTest, AVanishedWorkFileLeavesTheSavedNote) {
  Open(u"C:\\n\\a.txt");
  Editor().Document().Text(u"neuf");
  exchange->mnuPopAtlantis_Click();
  FinishAfter([&] { disk.Delete(u"C:\\Temp\\Sava.txt", true); });
  EXPECT_EQ(disk.ReadAll(u"C:\\n\\a.txt"), "neuf");
  EXPECT_EQ(Editor().Document().Text(), u"neuf");
}

TEST_F(RoundTripTest, ANoteThatCannotBeWrittenStaysInTheWindow) {
  Open(u"C:\\n\\a.txt");
  Editor().Document().Text(u"neuf");
  sandbox.ReadOnly(u"C:\\n\\a.txt", true);
  exchange->mnuPopQjot_Click();
  FinishAfter();
  EXPECT_EQ(reloads, 0);
  EXPECT_EQ(Editor().Document().Text(), u"neuf");
  EXPECT_TRUE(Values().dirty);
}

TEST_F(RoundTripTest, ATargetThatCannotBeReplacedKeepsBothFiles) {
  Open(u"C:\\n\\a.txt");
  disk.Write(u"C:\\n\\a.rtf", "{\\rtf1 autre}");
  sandbox.ReadOnly(u"C:\\n\\a.rtf", true);
  exchange->mnuPopMSWord_Click();
  FinishAfter([&] { disk.Write(u"C:\\Temp\\Sava.rtf", "{\\rtf1 retour}"); });
  EXPECT_EQ(disk.ReadAll(u"C:\\n\\a.rtf"), "{\\rtf1 autre}");
  EXPECT_EQ(disk.ReadAll(u"C:\\Temp\\Sava.rtf"), "{\\rtf1 retour}");
  EXPECT_EQ(disk.ReadAll(u"C:\\Documents\\Secours_Sava.rtf"), "{\\rtf1 retour}");
  EXPECT_EQ(BoxTexts(), Texts{u"Erreur fichier temporaire\r\nCopie de secours :\r\n"
                              u"C:\\Documents\\Secours_Sava.rtf"});
  EXPECT_EQ(Values().documentPath, u"C:\\n\\a.txt");
}

TEST_F(RoundTripTest, AFailedStartIsAnErrorAndTheWatchGoesOn) {
  Open(u"C:\\n\\a.txt");
  exchange->mnuPopQjot_Click();
  disk.Write(kQjotPath, "no program");
  Tick(14);
  EXPECT_EQ(ErrorOf([&] { Tick(1); }), 75);
  Tick(14);
  EXPECT_FALSE(watching);
  EXPECT_EQ(reloads, 1);
}

}  // namespace
}  // namespace lumenote
