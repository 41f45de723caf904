// The learning dialog: a wrong text, its correction, and what to do with the pair.
#pragma once
#include "forms/Button.h"
#include "forms/Form.h"
#include "forms/Menu.h"
#include "forms/controls/edits/RichTextBox.h"
#include "forms/controls/labels/Label.h"

namespace lumenote {

class EditorWindow;

/// Modal. Takes the text from the clipboard at each activation.
class Co_Apprendre : public Form {
 public:
  /// `editor` must outlive the dialog.
  Co_Apprendre(WindowList& windows, EditorWindow& editor);

  Label Lb_TextErro{*this, "Lb_TextErro", {120, 90, 5040, 240}, u"Texte erroné"};
  RichTextBox Bx_TextErroné{*this, "Bx_TextErroné", {120, 345, 5040, 900}};
  Label Lb_SaisirCorr{*this, "Lb_SaisirCorr", {120, 1365, 5040, 240}, u"Faire corrections"};
  RichTextBox Bx_Saisircorr{*this, "Bx_Saisircorr", {120, 1620, 5040, 900}};
  Button Bt_Valider{*this, "Bt_Valider", {120, 2670, 1575, 360}, u"Appliquer"};
  Button Bt_Enregistrer{*this, "Bt_Enregistrer", {1852, 2670, 1575, 360}, u"Enregistrer"};
  Button Bt_Quitter{*this, "Bt_Quitter", {3585, 2670, 1575, 360}, u"Quitter"};
  Menu mnuSaisi{*this, "mnuSaisi", u"Saisi", false};
  Menu mnuSCopier{mnuSaisi, "mnuSCopier", u"Copier"};
  Menu mnuSColler{mnuSaisi, "mnuSColler", u"Coller"};

  /// Whether the user has edited the wrong text: it no longer matches the selection, and
  /// "Appliquer" does nothing.
  bool ErronModifie() const { return erronModifie_; }

  void ErrCopy() { Bx_TextErroné.Surface().Copy(); }
  void ErrPaste() { Bx_TextErroné.Surface().Paste(); }
  void SaiCopy() { Bx_Saisircorr.Surface().Copy(); }
  void SaiPaste() { Bx_Saisircorr.Surface().Paste(); }

  void Describe(MemberTable& members) override;

 private:
  void Form_Load() override;
  void Form_Activate() override;

  void Bx_TextErroné_Change();
  void Bx_Saisircorr_MouseUp(const MouseEvent& event);
  void Bt_Valider_Click();
  void Bt_Enregistrer_Click();

  EditorWindow& editor_;
  bool erronModifie_ = false;
  bool filling_ = false;
};

}  // namespace lumenote
