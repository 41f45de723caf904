// What each menu entry, and each click on the window, does.
#include "editor/Co_Rtf.h"
#include "editor/Conversion.h"
#include "editor/EditCommands.h"
#include "editor/Layout.h"
#include "extapps/OcrLaunch.h"
#include "format/FontCommand.h"
#include "format/FormatCommands.h"
#include "format/Ruler.h"
#include "format/StyleStore.h"
#include "lumenote/Platform.h"
#include "ocr/CorrectionList.h"
#include "ocr/OcrCommands.h"
#include "selection/LetterCase.h"
#include "selection/TextUnits.h"
#include "session/Session.h"

namespace lumenote {

void Co_Rtf::WirePopup() {
  Pop.mnuPop.Click = [this] { UpdateItems(Pop, Document()); };
  Pop.mnuPopCut.Click = [this] { Document().Cut(); };
  Pop.mnuPopCopy.Click = [this] { Document().Copy(); };
  Pop.mnuPopPaste.Click = [this] { Document().Paste(); };
  Pop.mnuPopClear.Click = [this] { Document().Clear(); };
  Pop.mnuPopUndo.Click = [this] { Document().Undo(); };
  Pop.mnuPopRedo.Click = [this] { Document().Redo(); };
  Pop.mnuPopMettreDessus.Click = [this] { dessus_.Basculer(); };
  Pop.mnuPopEnregistrer.Click = [this] { EnregistrerNote(*this); };
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
  Bx_RTF.ChecksSpelling(true);
  Bx_RTF.Learn = [this](const std::u16string& wrong, const std::u16string& right) {
    AppendCorrection(Machine().FileSystem(), session_.listCorrPath, wrong, right);
  };
  Pop.mnuPopOcrNettoyer.Click = [this] { NettoyerNote(*this); };
  Pop.mnuPopOcrApprendre.Click = [this] { dialogs_.Apprendre(); };
  Pop.mnuPopOcrListCorr.Click = [this] {
    EditerListCorr(*this, Machine().Programs(), programs_.Path(Program::Atlantis));
  };
}

void Co_Rtf::WireSelectionMenu() {
  Bar.mnuSelMot.Click = [this] { SelectMot(Document()); };
  Bar.mnuSelPhrase.Click = [this] { SelectPhrase(Document()); };
  Bar.mnuSelLigne.Click = [this] {
    bool failed = false;
    SelectLigne(Document(), failed);
  };
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
  Fr_Notes.MouseUp = [this](const MouseEvent& event) { Fr_Notes_MouseUp(event); };
  for (int index = 0; index < Lb_3Bascules.Count(); ++index) {
    Label& label = Lb_3Bascules(index);
    label.MouseUp = [this, &label](const MouseEvent& event) {
      SwitchZone(event.at.x, label.Width());
    };
    label.MouseMove = [this, &label](const MouseEvent& event) {
      label.ToolTip(NameOf(ZoneAt(event.at.x, Bx_RTF.Width(), label.Width())));
    };
  }
}

// The document knows the others that the menus show.
void Co_Rtf::WireKeys() {
  AddShortcut(Pop.mnuPopEnregistrer.Shortcut(), [this] { EnregistrerNote(*this); });
  AddShortcut(u"Ctrl+P", [this] { Imprimer(); });
  AddShortcut(Bar.mnuEdtTrouver.Shortcut(), [this] { dialogs_.Trouver(); });
  AddShortcut(Bar.mnuEdtSuivantppp.Shortcut(), [this] { dialogs_.TrouverSuivant(); });
  for (Menu* entry : {&Bar.mnuEdtSuperScript, &Bar.mnuEdtSubScript})
    AddShortcut(entry->Shortcut(), [entry] { entry->UserClick(); });
}

// --- commands of the window

void Co_Rtf::AfficheBarreMenu(int mode) {
  session_.menuBarShown = mode == 3 ? !session_.menuBarShown : mode == 1;
  barShownByKey_ = false;
  if (!session_.menuBarShown) LeaveMenuBar();
  Form_Resize();
  Bar.Visible(session_.menuBarShown);
}

void Co_Rtf::Form_EnterMenuBar() {
  if (session_.menuBarShown) return;
  AfficheBarreMenu(1);
  barShownByKey_ = true;
}

void Co_Rtf::Form_LeaveMenuBar() {
  if (barShownByKey_) AfficheBarreMenu(2);
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

void Co_Rtf::Fr_Notes_MouseUp(const MouseEvent& event) {
  const bool below = event.at.y >= Bx_RTF.Top() + Bx_RTF.Height();
  const Label& label = Lb_3Bascules(below ? 1 : 0);
  if (below || (event.at.y >= label.Top() && event.at.y <= label.Top() + label.Height()))
    SwitchZone(event.at.x - label.Left(), label.Width());
}

void Co_Rtf::mnuFmtActRègle_Click() { Bx_Règle.Visible(!Bx_Règle.Visible()); }

void Co_Rtf::Align(int alignment) {
  Document().SelAlignment(alignment);
  Bx_RTF.SetFocus();
}

void Co_Rtf::Bx_RTF_Change() {
  session_.dirty = true;
  ++session_.changes;
}

void Co_Rtf::Bx_RTF_MouseUp(const MouseEvent& event) {
  if (event.button != MouseButton::Right) return;
  dessus_.Relire();
  PopUp(Pop.mnuPop, Bx_RTF, event.at);
}

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
