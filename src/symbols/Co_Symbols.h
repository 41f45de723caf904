// The symbol picker.
#pragma once
#include <cstdint>
#include <string>

#include "forms/Button.h"
#include "forms/ControlArray.h"
#include "forms/Form.h"
#include "forms/controls/buttons/ScrollBar.h"
#include "forms/controls/edits/ComboBox.h"
#include "forms/controls/edits/TextBox.h"
#include "forms/controls/labels/Label.h"
#include "forms/controls/labels/PictureBox.h"
#include "symbols/SymbolGrid.h"

namespace lumenote {

class EditorWindow;

/// Shows the characters 33 to 255 of code page 1252 in a font of the user's choice. Collected
/// characters go into the note in that font, or to the clipboard as plain text.
class Co_Symbols : public Form {
  static constexpr float kGridHeight = 3184;  // nine whole rows

 public:
  /// `editor` must outlive the picker.
  Co_Symbols(WindowList& windows, EditorWindow& editor);

  Label lblMessage{*this, "lblMessage", {120, 165, 1350, 240}, u"Choisir la fonte"};
  ComboBox cboFonts{*this, "cboFonts", {1500, 120, 3300, 315}, ComboStyle::ListOnly};
  Label lblStatus{*this, "lblStatus", {4950, 165, 1770, 240}};
  PictureBox picHolder{*this, "picHolder", {120, 540, 6300, kGridHeight}};
  ScrollBar VScroll1{*this, "VScroll1", {6435, 540, 255, kGridHeight}};
  /// In front of the cell that it magnifies.
  Label lblBigDisplay{picHolder, "lblBigDisplay", {0, 0, 720, 720}, u"", LabelStyle::Cell};
  ControlArray<Label> lblsymbols{"lblsymbols"};
  Label lblLabel{*this, "lblLabel", {120, 3990, 2400, 240}, u"Symboles sélectionnés"};
  TextBox txtInsert{*this, "txtInsert", {120, 4245, 3240, 375}};
  Button cmdInsert{*this, "cmdInsert", {3480, 4245, 1020, 375}, u"Insèrer"};
  Button cmdCopy{*this, "cmdCopy", {4575, 4245, 1020, 375}, u"Copier"};
  Button cmdClose{*this, "cmdClose", {5670, 4245, 1020, 375}, u"&Fermer"};

  void Describe(MemberTable& members) override;

 private:
  void Form_Load() override;
  void Form_MouseMove(const MouseEvent&) override { HideBigDisplay(); }

  void WireHiding();
  /// Rebuilds the grid, starting `offset` codes after the first symbol.
  void FillSymbols(std::int16_t offset);
  void AddCell(int code, Point at);
  void cboFonts_DropDown();
  void cboFonts_Click();
  void VScroll1_Change();
  void lblsymbols_MouseMove(int index);
  /// What is beyond the magnified cell belongs to the cell beneath.
  void lblBigDisplay_MouseMove(const MouseEvent& event);
  void picHolder_MouseWheel(int notches);
  /// Arrows, Home, End and pages go along the grid, Return and the space bar collect.
  bool picHolder_KeyDown(const KeyStroke& key);
  /// Enlarges a character, scrolled to where it is seen.
  void ShowSymbol(int code);
  int ShownRows() const;
  void lblBigDisplay_DblClick();
  void cmdInsert_Click();
  void cmdCopy_Click();

  void HideBigDisplay() { lblBigDisplay.Visible(false); }

  EditorWindow& editor_;
  std::u16string currentFont_;
  bool fontsListed_ = false;
  bool building_ = false;
  int shownCode_ = kFirstSymbol;  // the character enlarged last
  std::int16_t columns_ = 0;
  std::int16_t hiddenRows_ = 0;
};

}  // namespace lumenote
