// The paragraph dialog: shows the format of the selected paragraphs and changes it directly.
#pragma once
#include "forms/Button.h"
#include "forms/ControlArray.h"
#include "forms/Form.h"
#include "forms/controls/buttons/OptionButton.h"
#include "forms/controls/buttons/UpDown.h"
#include "forms/controls/edits/ComboBox.h"
#include "forms/controls/edits/TextBox.h"
#include "forms/controls/labels/Frame.h"
#include "forms/controls/labels/Label.h"
#include "platform/RichTextSurface.h"

namespace lumenote {

class EditorWindow;

/// Edits `CurrentStyle` and `StyleRightMargin`, in twips, and shows millimetres. While it refreshes
/// from the selection, its boxes change neither the surface nor the style.
class Co_Paragraph : public Form {
 public:
  /// `editor` must outlive the dialog.
  Co_Paragraph(WindowList& windows, EditorWindow& editor);

  Frame Fr_Styles{*this, "Fr_Styles", {60, 30, 5340, 645}, u"Styles"};
  Label Lb_SetStyle{Fr_Styles, "Lb_SetStyle", {105, 285, 1185, 240}, u"Appliquer Style"};
  ComboBox cboSetStyleReg{Fr_Styles, "cboSetStyleReg", {1305, 240, 1260, 315}};
  Label Lb_SaveStyle{Fr_Styles, "Lb_SaveStyle", {2805, 285, 1050, 240}, u"Sauver Style"};
  ComboBox CboSaveStyleReg{Fr_Styles, "CboSaveStyleReg", {3930, 240, 1260, 315}};

  Frame Fr_Decalages{*this, "Fr_Decalages", {60, 720, 2640, 1365}, u"Décalages (mm)"};
  Label Lb_IndentGauche{Fr_Decalages, "Lb_IndentGauche", {105, 300, 1200, 240}, u"Indent Gauche"};
  TextBox Bx_IndentGauche{Fr_Decalages, "Bx_IndentGauche", {1365, 255, 825, 300}};
  UpDown UD_LeftIndent{Fr_Decalages, "UD_LeftIndent", {2205, 255, 255, 300}, 0, 2, 1};
  Label Lb_IndentDroite{Fr_Decalages, "Lb_IndentDroite", {105, 660, 1200, 240}, u"Ident Droite"};
  TextBox Bx_IndentDroite{Fr_Decalages, "Bx_IndentDroite", {1365, 615, 825, 300}};
  UpDown UD_RightIndent{Fr_Decalages, "UD_RightIndent", {2205, 615, 255, 300}, 0, 2, 1};
  Label Lb_HangingIndent{Fr_Decalages, "Lb_HangingIndent", {105, 1020, 1200, 240}, u"Décal Ligne1"};
  TextBox Bx_HangingIndent{Fr_Decalages, "Bx_HangingIndent", {1365, 975, 825, 300}};
  UpDown UD_HangingIndent{Fr_Decalages, "UD_HangingIndent", {2205, 975, 255, 300}, 0, 2, 1};

  Frame Fr_Espaces{*this, "Fr_Espaces", {2760, 720, 2640, 1005}, u"Espaces (mm)"};
  Label Lb_AvantPara{Fr_Espaces, "Lb_AvantPara", {105, 300, 1245, 240}, u"Avant Paragra"};
  TextBox Bx_AvantPara{Fr_Espaces, "Bx_AvantPara", {1365, 255, 825, 300}};
  UpDown UD_SpaceBefore{Fr_Espaces, "UD_SpaceBefore", {2205, 255, 255, 300}, 0, 2, 1};
  Label Lb_AprèsPara{Fr_Espaces, "Lb_AprèsPara", {105, 660, 1245, 240}, u"Après Paragra"};
  TextBox Bx_AprèsPara{Fr_Espaces, "Bx_AprèsPara", {1365, 615, 825, 300}};
  UpDown UD_SpaceAfter{Fr_Espaces, "UD_SpaceAfter", {2205, 615, 255, 300}, 0, 2, 1};
  Label Lb_RightMargin{*this, "Lb_RightMargin", {2865, 1830, 1200, 240}, u"Marge Droite"};
  TextBox Bx_RightMargin{*this, "Bx_RightMargin", {4125, 1785, 825, 300}};
  UpDown UD_RightMargin{*this, "UD_RightMargin", {4965, 1785, 255, 300}, 0, 2, 1};
  Label Lb_AutoMargin{*this, "Lb_AutoMargin", {2865, 2130, 2400, 240}, u"Marge Droite Automatique"};

  Frame Fr_Alignement{*this, "Fr_Alignement", {60, 2130, 2640, 1290}, u"Alignement"};
  ControlArray<OptionButton> opnAlign =
      Choices("opnAlign", Fr_Alignement, {u"&Gauche", u"&Centre", u"&Droit"});
  Frame Fr_Interligne{*this, "Fr_Interligne", {2760, 2415, 2640, 1650}, u"Interligne"};
  ControlArray<OptionButton> opnInter =
      Choices("opnInter", Fr_Interligne, {u"Simple", u"Un 1/4", u"Un et 1/2", u"Double"});
  Label Lb_LineSpacing{Fr_Interligne, "Lb_LineSpacing", {105, 1275, 840, 240}, u"Définir"};
  TextBox Bx_LineSpacing{Fr_Interligne, "Bx_LineSpacing", {1365, 1230, 825, 300}};
  UpDown UD_LineSpacing{Fr_Interligne, "UD_LineSpacing", {2205, 1230, 255, 300}, 20, 40, 20};

  Frame Fr_Fonte{*this, "Fr_Fonte", {60, 3465, 2640, 600}, u"Fonte"};
  TextBox Bx_FontName{Fr_Fonte, "Bx_FontName", {105, 225, 1770, 300}};
  TextBox Bx_FontSize{Fr_Fonte, "Bx_FontSize", {1935, 225, 585, 300}};
  Button Bt_Rafraichir{*this, "Bt_Rafraichir", {2040, 4140, 1380, 360}, u"Rafraichir"};

  /// Loads a style from its section, applies it to the selection and shows it.
  void ApplyStyFromName(std::u16string_view section);
  /// Shows the selection's format and extends the selection to whole paragraphs.
  void RafraichirFenFmt();
  /// Moves the dialog over the lower right of the editor.
  void SetPosFenPara();

 private:
  /// Option buttons below each other.
  static ControlArray<OptionButton> Choices(const char* name, Frame& frame,
                                            std::initializer_list<const char16_t*> captions);

  void Form_Load() override;
  void Form_Activate() override;

  void WireSpinners();
  void WireBoxes();

  void RefreshParaAlign();
  void RefreshParaInter();
  void RefreshParaIndent();
  void RefreshParaEspace();
  void RefreshParaMrgDte();
  void RefreshParaFonte();
  void MAJopnInter();
  void SetLineSpacing();

  void cboSetStyleReg_Click();
  void CboSaveStyleReg_Click();
  void opnAlign_Click(int index);
  void opnInter_Click(int index);
  void Bx_LineSpacing_Change();
  void Bx_RightMargin_Change();
  void Bx_Font_MouseUp();
  void UD_LineSpacing_Change();
  void UD_LeftIndent_Change();
  void UD_RightIndent_Change();
  void UD_HangingIndent_Change();
  void UD_SpaceBefore_Change();
  void UD_SpaceAfter_Change();
  void UD_RightMargin_Change();

  RichTextSurface& Surface();

  EditorWindow& editor_;
  bool refreshing_ = false;
};

}  // namespace lumenote
