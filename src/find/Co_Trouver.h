// The find and replace dialog.
#pragma once
#include "forms/Button.h"
#include "forms/Form.h"
#include "forms/controls/buttons/CheckBox.h"
#include "forms/controls/edits/ComboBox.h"
#include "forms/controls/labels/Frame.h"
#include "forms/controls/labels/Label.h"

namespace lumenote {

class EditorWindow;

/// Opens in a compact form for finding only; "&Remplace..." expands it for its lifetime. The
/// captions of `cmdFind` and `cmdReplace` are its only state.
class Co_Trouver : public Form {
 public:
  /// `editor` must outlive the dialog.
  Co_Trouver(WindowList& windows, EditorWindow& editor);

  Label lblFind{*this, "lblFind", {120, 165, 840, 240}, u"Trouver:"};
  ComboBox cboFind{*this, "cboFind", {1020, 120, 2775, 315}};
  Label lblReplace{*this, "lblReplace", {120, 540, 840, 240}, u"Rpl. par:"};
  ComboBox cboReplace{*this, "cboReplace", {1020, 480, 2775, 315}};
  Frame Frame1{*this, "Frame1", {1020, 480, 2775, 735}};
  CheckBox chkWholeWord{Frame1, "chkWholeWord", {105, 90, 2580, 270}, u"&Mots entier seulement"};
  CheckBox chkMatchCase{Frame1, "chkMatchCase", {105, 390, 2580, 270}, u"&Sensible à la casse"};
  Button cmdFind{*this, "cmdFind", {3960, 120, 1215, 330}, u"&Trouver"};
  Button cmdCancel{*this, "cmdCancel", {3960, 532, 1215, 330}, u"&Annuler"};
  Button cmdReplace{*this, "cmdReplace", {3960, 945, 1215, 330}, u"&Remplace..."};
  Button cmdReplaceAll{*this, "cmdReplaceAll", {3960, 1305, 1215, 330}, u"Rpl. &Tout"};

  /// The surface's `Find` options according to the two check boxes.
  int Options() const;

 private:
  void Form_Load() override;
  void Form_Unload() override;

  void cmdFind_Click();
  void cmdReplace_Click();
  void cmdReplaceAll_Click();

  /// Runs a command; an error is shown by its description alone.
  void Command(void (Co_Trouver::*command)());
  void FirstSearch();
  void NextSearch();
  void Expand();
  void ReplaceAndFind();
  /// Searches from the end of the selection; a match moves the focus to the document.
  bool FindOn();
  void ShowNotFound();
  void ReplaceButtons(bool on);
  /// Moves the dialog off what is selected in the note: above it, or where there is no room below.
  void UncoverMatch();

  EditorWindow& editor_;
};

}  // namespace lumenote
