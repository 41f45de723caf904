#include "editor/Co_Rtf.h"

#include "editor/Conversion.h"
#include "editor/EditCommands.h"
#include "editor/Layout.h"
#include "editor/StoredGeometry.h"
#include "editor/storage/Secours.h"
#include "editor/storage/SessionLife.h"
#include "extapps/OcrLaunch.h"
#include "format/FontCommand.h"
#include "format/FormatCommands.h"
#include "format/Ruler.h"
#include "format/StyleStore.h"
#include "lumenote/Platform.h"
#include "ocr/OcrCommands.h"
#include "platform/Settings.h"
#include "selection/LetterCase.h"
#include "selection/TextUnits.h"
#include "session/Session.h"

namespace lumenote {

Co_Rtf::Co_Rtf(WindowList& windows, std::shared_ptr<Session>& session, const TempFolder& temp,
               std::vector<SentWorkFile>& outstandingWork)
    : Form(windows, "Co_Rtf", {5000, 3250, 5650, 4350}, u"MicroEditeur"),
      current_(session),
      own_(session),
      session_(*own_),
      temp_(temp),
      roundTrip_(*this, *this, programs_, Machine().Programs(), outstandingWork) {
  Lb_3Bascules.Add(Fr_Notes, Rect{57, 210, 5262, 45});
  Lb_3Bascules.Add(Fr_Notes, Rect{57, 3510, 5262, 45});
  Bx_Règle.Locked(true);
  Bx_RTF.Change = [this] { Bx_RTF_Change(); };
  Bx_RTF.MouseUp = [this](const MouseEvent& event) { Bx_RTF_MouseUp(event); };
  Bx_Règle.Surface().TextRTF(RulerRtf());
  WirePopup();
  WireBar();
  WireFormatMenu();
  WirePrograms();
  WireOcr();
  WireSelectionMenu();
  WireZones();
  DisableEntriesWithoutCommand();
  session_.dirty.Assigned = [this](bool dirty) { dirty ? recovery_.Edited() : recovery_.Drop(); };
}

Co_Rtf::~Co_Rtf() { session_.dirty.Assigned = nullptr; }

void Co_Rtf::WirePopup() {
  Pop.mnuPop.Click = [this] { mnuPop_Click(); };
  Pop.mnuPopCut.Click = [this] { Document().Cut(); };
  Pop.mnuPopCopy.Click = [this] { Document().Copy(); };
  Pop.mnuPopPaste.Click = [this] { Document().Paste(); };
  Pop.mnuPopClear.Click = [this] { Document().Clear(); };
  Pop.mnuPopUndo.Click = [this] { Document().Undo(); };
  Pop.mnuPopRedo.Click = [this] { Document().Redo(); };
  Pop.mnuPopMettreDessus.Click = [this] { mnuPopMettreDessus_Click(); };
  Pop.mnuPopEnregistrer.Click = [this] { mnuPopEnregistrer_Click(); };
  Pop.mnuPopSupprDoc.Click = [this] { mnuPopSupprDoc_Click(); };
  Pop.mnuPopQuitter.Click = [this] { mnuPopQuitter_Click(); };
}

void Co_Rtf::WireBar() {
  Bar.mnuGras.Click = [this] { BasculerGras(Document()); };
  Bar.mnuItal.Click = [this] { BasculerItalique(Document()); };
  Bar.mnuSoul.Click = [this] { BasculerSouligné(Document()); };
  Bar.mnuBarré.Click = [this] { BasculerBarré(Document()); };
  Bar.mnuNorm.Click = [this] { MettreNormal(Document()); };
  Bar.mnubulles.Click = [this] { BasculerPuces(Document()); };
  Bar.mnuIdt.Click = [this] { DécalerRetrait(Document(), kIndentStep); };
  Bar.mnuODt.Click = [this] { DécalerRetrait(Document(), -kIndentStep); };
  Bar.mnuEdtGauche.Click = [this] { Align(0); };
  Bar.mnuEdtCentre.Click = [this] { Align(2); };
  Bar.mnuEdtDroite.Click = [this] { Align(1); };
  Bar.mnuEdtTrouver.Click = [this] { dialogs_.Trouver(); };
  Bar.mnuEdtSymboles.Click = [this] { dialogs_.Symboles(); };
  Bar.mnuEdtSuivantppp.Click = [this] { dialogs_.Suivant(); };
}

void Co_Rtf::WireFormatMenu() {
  Bar.mnuFmtPolice.Click = [this] { FmtPolice(*this); };
  Bar.mnuFmtParagraph.Click = [this] { dialogs_.ActFenFormat(); };
  Bar.mnuFmtStyStandard.Click = [this] { dialogs_.ApplyStyFromName(kStandardSection); };
  Menu* const styles[] = {&Bar.mnuFmtStyle1, &Bar.mnuFmtStyle2, &Bar.mnuFmtStyle3};
  for (std::size_t index = 0; index < std::size(styles); ++index)
    styles[index]->Click = [this, index] { dialogs_.ApplyStyFromName(StyleNames[index + 1]); };
  Bar.mnuFmtActRègle.Click = [this] { mnuFmtActRègle_Click(); };
  Bar.mnuFmtActBarMenu.Click = [this] { AfficheBarreMenu(3); };
}

void Co_Rtf::WirePrograms() {
  Pop.mnuPopQjot.Click = [this] { roundTrip_.mnuPopQjot_Click(); };
  Pop.mnuPopAtlantis.Click = [this] { roundTrip_.mnuPopAtlantis_Click(); };
  Pop.mnuPopMSWord.Click = [this] { roundTrip_.mnuPopMSWord_Click(); };
  TimerWpd.Tick = [this] { roundTrip_.TimerWpd_Timer(); };
  const auto launch = [this](Menu& entry, Program program) {
    entry.Click = [this, program] {
      OuvrirOcr(*this, Machine().Programs(), programs_.Path(program));
    };
  };
  launch(Pop.mnuPopOcrReadIris, Program::ReadIris);
  launch(Pop.mnuPopOcrFineReader7, Program::FineReader);
  Pop.mnuPopConvertir.Click = [this] { UpdateConvertir(Pop, session_); };
  Pop.mnuPopRichTextText.Click = [this] { ConvertirEnTexte(*this); };
  Pop.mnuPopTextRichText.Click = [this] { ConvertirEnRtf(*this); };
}

void Co_Rtf::WireOcr() {
  Pop.mnuPopOcrNettoyer.Click = [this] { NettoyerNote(*this); };
  Pop.mnuPopOcrApprendre.Click = [this] { dialogs_.Apprendre(); };
  Pop.mnuPopOcrListCorr.Click = [this] {
    EditerListCorr(*this, Machine().Programs(), programs_.Path(Program::Atlantis));
  };
}

void Co_Rtf::WireSelectionMenu() {
  Bar.mnuSelMot.Click = [this] { SelectMot(Document()); };
  Bar.mnuSelPhrase.Click = [this] { SelectPhrase(Document()); };
  Bar.mnuSelLigne.Click = [this] { mnuSelLigne_Click(); };
  Bar.mnuSelParagraphe.Click = [this] { SelectParagraphe(Document()); };
  Bar.mnuSelTout.Click = [this] { SelectTout(Document()); };
  Bar.mnuEdtUpperCase.Click = [this] { MettreEnMajuscules(Document()); };
  Bar.mnuEdtLowerCase.Click = [this] { MettreEnMinuscules(Document()); };
  Bar.mnuEdtTitre.Click = [this] { MettreEnTitre(Document(), Machine().SystemClipboard()); };
  Bar.mnuEdtSuperScript.Click = [this] { Document().SelCharOffset(kExposant); };
  Bar.mnuEdtSubScript.Click = [this] { Document().SelCharOffset(kIndice); };
  Bar.mnuEdtNoScript.Click = [this] { Document().SelCharOffset(0); };
}

void Co_Rtf::WireZones() {
  Bx_Règle.MouseUp = [this](const MouseEvent& event) { SwitchZone(event.at.x, Bx_RTF.Width()); };
  for (int index = 0; index < Lb_3Bascules.Count(); ++index) {
    Label& label = Lb_3Bascules(index);
    label.MouseUp = [this, &label](const MouseEvent& event) {
      SwitchZone(event.at.x, label.Width());
    };
  }
}

void Co_Rtf::DisableEntriesWithoutCommand() {
  for (Element* element : Elements()) {
    auto* entry = dynamic_cast<Menu*>(element);
    if (entry && entry->Entries().empty() && !entry->IsSeparator() && !entry->Click)
      entry->Enabled(false);
  }
}

// --- life

void Co_Rtf::Form_Load() {
  CommencerSession(session_);
  Document().TextMode(kTextModeRichMultilevel);
  Timer1.Interval(10);
  Timer1.Enabled(true);
  AfficheBarreMenu(2);
  Bx_Règle.Visible(false);
  Pop.mnuPopSupprDoc.Visible(session_.fileMode);
  RetablirDessus();
}

void Co_Rtf::Form_Activate() {
  if (!firstActivation_) return;
  firstActivation_ = false;
  try {
    OpenNote();
  } catch (...) {
    if (!session_.loaded) Unload();  // what is typed into it would be nobody's
    throw;
  }
}

void Co_Rtf::OpenNote() {
  const Rect bounds = LireGeometrie(Machine().UserSettings(), session_.settingsKey);
  IgnoringErrors([&] { Height(bounds.height); });
  IgnoringErrors([&] { Width(bounds.width); });
  Top(bounds.top);
  Left(bounds.left);
  Pop.mnuPopEnregistrer.Visible(session_.fileMode);
  LocatePrograms();
  session_.loaded = OuvrirDocument(*this);
  session_.changes = 0;
  RetrouverNotes(*this);
  if (session_.closed) return;
  if (!session_.loaded) {
    Unload();
    return;
  }
  Bx_RTF.SetFocus();
  roundTrip_.RescueLateResults();
}

void Co_Rtf::Form_Resize() {
  Disposer({Fr_Notes, Bx_RTF, Bx_Règle, Lb_Format, {&Lb_3Bascules(0), &Lb_3Bascules(1)}}, Width(),
           Height(), session_.menuBarShown);
}

// The session of the next editor is made here, where a lack of memory keeps the window open.
bool Co_Rtf::Form_QueryUnload() {
  if (!EndNote()) return false;
  next_ = std::make_shared<Session>(session_);
  CloreSession(*next_);
  return true;
}

bool Co_Rtf::EndNote() {
  if (session_.deleted || !session_.loaded) return true;
  SuspendreDessus();
  const Fermeture decision = TerminerEdition(*this);
  if (decision == Fermeture::Annulee) return false;
  if (decision == Fermeture::Complete)
    EcrireGeometrie(Machine().UserSettings(), session_.settingsKey, Bounds());
  Maj_StrOrChm(*this);
  return true;
}

void Co_Rtf::Form_Unload() {
  session_.closed = true;
  current_ = std::move(next_);
  Timer1.Enabled(false);
  TimerWpd.Enabled(false);
  recovery_.Drop();
  dialogs_.UnloadAll();
  roundTrip_.Leave();
}

bool Co_Rtf::Form_KeyDown(const KeyStroke& key) {
  if (key != KeyStroke{.character = u'f', .control = true}) return false;
  dialogs_.Trouver();
  return true;
}

// --- above the other windows

void Co_Rtf::SuspendreDessus() {
  OnTop(false);
  Pop.mnuPopMettreDessus.Checked(false);
  session_.onTop = false;
}

void Co_Rtf::RetablirDessus() {
  if (session_.onTop) OnTop(true);
  Pop.mnuPopMettreDessus.Checked(true);
  session_.onTop = true;
}

void Co_Rtf::mnuPopMettreDessus_Click() {
  session_.onTop = !session_.onTop;
  Pop.mnuPopMettreDessus.Checked(session_.onTop);
  OnTop(session_.onTop);
}

// --- other programs

void Co_Rtf::LocatePrograms() {
  IgnoringErrors([this] {
    programs_ = ChercherApplis({.files = Machine().FileSystem(),
                                .folders = Machine().SpecialFolders(),
                                .temp = CheminTemp(temp_),
                                .programs = Machine().InstalledPrograms(),
                                .registry = Machine().MachineRegistry()});
  });
}

void Co_Rtf::Watch(bool on) {
  TimerWpd.Interval(RoundTrip::kInterval);
  TimerWpd.Enabled(on);
}

bool Co_Rtf::WriteNote() {
  std::vector<std::u16string> kept;
  const bool written = EcrireDocument(*this, kept);
  AnnoncerSecours(*this, Cause::FichierModifie, kept);
  return written;
}

void Co_Rtf::Describe(MemberTable& members) {
  Form::Describe(members);
  members.Add("TypeEditeur", [this] { return Value(int{roundTrip_.TypeEditeur()}); });
  members.Add("EtatWpd", [this] { return Value(int{roundTrip_.EtatWpd()}); });
  members.Add("FichierTravail", [this] { return Value(roundTrip_.FichierTravail()); });
  members.Add("DateTravail", [this] { return Value(roundTrip_.DateTravail()); });
}

// --- layout

void Co_Rtf::AfficheBarreMenu(int mode) {
  session_.menuBarShown = mode == 3 ? !session_.menuBarShown : mode == 1;
  Form_Resize();
  Bar.Visible(session_.menuBarShown);
}

void Co_Rtf::SwitchZone(float x, float middleWidth) {
  switch (ZoneAt(x, Bx_RTF.Width(), middleWidth)) {
    case Zone::Left:
      AfficheBarreMenu(3);
      break;
    case Zone::Middle:
      mnuFmtActRègle_Click();
      break;
    case Zone::Right:
      dialogs_.ActFenFormat();
      break;
  }
}

void Co_Rtf::mnuFmtActRègle_Click() { Bx_Règle.Visible(!Bx_Règle.Visible()); }

// --- dialogs

std::optional<FontChoice> Co_Rtf::ChooseFont(const FontChoice& shown, Form* dialog) {
  SuspendreDessus();
  auto chosen = Machine().Windows().ChooseFont(shown, dialog ? dialog : this);
  RetablirDessus();
  return chosen;
}

// --- selection and formats

void Co_Rtf::mnuSelLigne_Click() {
  bool failed = false;
  SelectLigne(Document(), failed);
}

void Co_Rtf::Align(int alignment) {
  Document().SelAlignment(alignment);
  Bx_RTF.SetFocus();
}

// --- document and context menu

void Co_Rtf::Bx_RTF_Change() {
  session_.dirty = true;
  ++session_.changes;
}

void Co_Rtf::Bx_RTF_MouseUp(const MouseEvent& event) {
  if (event.button != MouseButton::Right) return;
  session_.onTop = Machine().Windows().IsTopmost(*this);
  Pop.mnuPopMettreDessus.Checked(session_.onTop);
  PopUp(Pop.mnuPop, Bx_RTF, event.at);
}

void Co_Rtf::mnuPop_Click() {
  UpdateItems(Pop, Document());
  Pop.mnuPopMettreDessus.Checked(session_.onTop);
}

void Co_Rtf::mnuPopEnregistrer_Click() { EnregistrerNote(*this); }

void Co_Rtf::mnuPopSupprDoc_Click() {
  if (!SupprimerDocument(*this)) return;
  Unload();
  RetablirDessus();
}

void Co_Rtf::mnuPopQuitter_Click() {
  SuspendreDessus();
  Maj_StrOrChm(*this);
  Unload();
}

}  // namespace lumenote
