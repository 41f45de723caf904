#include "ocr/Co_Apprendre.h"

#include "base/RuntimeError.h"
#include "base/ScopedFlag.h"
#include "lumenote/Platform.h"
#include "ocr/CorrectionList.h"
#include "session/EditorWindow.h"
#include "session/Session.h"

namespace lumenote {

Co_Apprendre::Co_Apprendre(WindowList& windows, EditorWindow& editor)
    : Form(windows, "Co_Apprendre", {0, 0, 5400, 3555}, u"Apprentissage"), editor_(editor) {
  FixedSize(true);
  CancelButton(&Bt_Quitter);
  Bx_TextErroné.TabLeaves(true);
  Bx_Saisircorr.TabLeaves(true);
  Bx_TextErroné.Change = [this] { Bx_TextErroné_Change(); };
  Bx_Saisircorr.MouseUp = [this](const MouseEvent& event) { Bx_Saisircorr_MouseUp(event); };
  Bt_Valider.Click = [this] { Bt_Valider_Click(); };
  Bt_Enregistrer.Click = [this] { Bt_Enregistrer_Click(); };
  Bt_Quitter.Click = [this] { Unload(); };
  mnuSCopier.Click = [this] { SaiCopy(); };
  mnuSColler.Click = [this] { SaiPaste(); };
}

void Co_Apprendre::Describe(MemberTable& members) {
  Form::Describe(members);
  members.Add("ErronModifie", [this] { return Value(erronModifie_); });
}

void Co_Apprendre::Form_Load() {
  erronModifie_ = false;
  CentreOver(editor_.WindowBounds());
}

// Clears the boxes first, so that filling them again does not double the text.
void Co_Apprendre::Form_Activate() {
  const ScopedFlag filling(filling_);
  for (RichTextBox* box : {&Bx_TextErroné, &Bx_Saisircorr}) {
    IgnoringErrors([box] { box->Surface().Text(u""); });
    IgnoringErrors([box] { box->Surface().TextMode(kTextModeRichMultilevel); });
  }
  IgnoringErrors([this] { ErrPaste(); });
  IgnoringErrors([this] { SaiPaste(); });
  RichTextSurface& correction = Bx_Saisircorr.Surface();
  correction.SelStart(0);
  correction.SelLength(static_cast<Position>(correction.Text().size()));
  if (!ActiveControl()) Bx_Saisircorr.SetFocus();
}

void Co_Apprendre::Bx_TextErroné_Change() {
  if (!filling_) erronModifie_ = true;
}

void Co_Apprendre::Bx_Saisircorr_MouseUp(const MouseEvent& event) {
  if (event.button == MouseButton::Right) PopUp(mnuSaisi, Bx_Saisircorr, event.at);
}

void Co_Apprendre::Bt_Valider_Click() {
  if (erronModifie_) return;
  IgnoringErrors([this] { editor_.FocusDocument(); });
  IgnoringErrors([this] { editor_.Document().SelText(Bx_Saisircorr.Surface().Text()); });
}

void Co_Apprendre::Bt_Enregistrer_Click() {
  AppendCorrection(Machine().FileSystem(), editor_.Values().listCorrPath,
                   Bx_TextErroné.Surface().Text(), Bx_Saisircorr.Surface().Text());
  Unload();
}

}  // namespace lumenote
