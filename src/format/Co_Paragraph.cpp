#include "format/Co_Paragraph.h"

#include <cmath>

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "base/ScopedFlag.h"
#include "format/FontCommand.h"
#include "format/FormatCommands.h"
#include "format/Measures.h"
#include "format/StyleStore.h"
#include "lumenote/Platform.h"
#include "selection/TextUnits.h"
#include "session/EditorWindow.h"
#include "session/Session.h"
#include "surface/editing/ParagraphSpacing.h"

namespace lumenote {

namespace {

constexpr int kSpaceStep = 15;  // twips
/// The spinners' idle value, between their two arrows.
constexpr int kIdle = 1;
/// Alignment codes of the option buttons, from left to right.
constexpr int kAlignments[] = {0, 2, 1};
/// Line-spacing codes of the option buttons, and the texts that these put in the box.
constexpr int kSpacings[] = {20, 25, 30, 40};
constexpr std::u16string_view kSpacingTexts[] = {u"1,00", u"1,25", u"1,50", u"2,00"};

/// +1 for the upper arrow, -1 for the lower one, 0 if idle. Resets the spinner first, so that a
/// failing step cannot leave it displaced.
int TakeArrow(UpDown& spinner) {
  const int arrow = spinner.Value() - kIdle;
  spinner.Value(kIdle);
  return arrow;
}

}  // namespace

ControlArray<OptionButton> Co_Paragraph::Choices(const char* name, Frame& frame,
                                                 std::initializer_list<const char16_t*> captions) {
  ControlArray<OptionButton> choices(name);
  float top = 240;
  for (const char16_t* caption : captions) {
    choices.Add(frame, Rect{105, top, 2040, 240}, caption);
    top += 240;
  }
  return choices;
}

Co_Paragraph::Co_Paragraph(WindowList& windows, EditorWindow& editor)
    : Form(windows, "Co_Paragraph", {0, 0, 5580, 4980}, u"Format Paragraphe - Style"),
      editor_(editor) {
  FixedSize(true);
  EscapeCloses(true);
  Bx_FontName.Locked(true);
  Bx_FontSize.Locked(true);
  Bx_FontSize.SpokenName(u"Taille");
  WireBoxes();
  WireSpinners();
}

void Co_Paragraph::WireBoxes() {
  cboSetStyleReg.Click = [this] { cboSetStyleReg_Click(); };
  CboSaveStyleReg.Click = [this] { CboSaveStyleReg_Click(); };
  for (int index = 0; index < opnAlign.Count(); ++index)
    opnAlign(index).Click = [this, index] { opnAlign_Click(index); };
  for (int index = 0; index < opnInter.Count(); ++index)
    opnInter(index).Click = [this, index] { opnInter_Click(index); };
  Bx_LineSpacing.Change = [this] { Bx_LineSpacing_Change(); };
  Bx_AvantPara.Change = [this] { Bx_AvantPara.Text(NormalisedNumber(Bx_AvantPara.Text())); };
  Bx_AprèsPara.Change = [this] { Bx_AprèsPara.Text(NormalisedNumber(Bx_AprèsPara.Text())); };
  Bx_RightMargin.Change = [this] { Bx_RightMargin_Change(); };
  Lb_AutoMargin.Click = [this] { Bx_RightMargin.Text(u"0"); };
  Lb_AutoMargin.ToolTip(u"Ctrl+M");
  AddShortcut(u"Ctrl+M", Lb_AutoMargin.Click);
  Bx_FontName.MouseUp = [this](const MouseEvent&) { Bx_Font_MouseUp(); };
  Bx_FontSize.MouseUp = [this](const MouseEvent&) { Bx_Font_MouseUp(); };
  Bt_Rafraichir.Click = [this] { RafraichirFenFmt(); };
}

void Co_Paragraph::WireSpinners() {
  UD_LeftIndent.Change = [this] { UD_LeftIndent_Change(); };
  UD_RightIndent.Change = [this] { UD_RightIndent_Change(); };
  UD_HangingIndent.Change = [this] { UD_HangingIndent_Change(); };
  UD_SpaceBefore.Change = [this] { UD_SpaceBefore_Change(); };
  UD_SpaceAfter.Change = [this] { UD_SpaceAfter_Change(); };
  UD_RightMargin.Change = [this] { UD_RightMargin_Change(); };
  UD_LineSpacing.Change = [this] { UD_LineSpacing_Change(); };
}

RichTextSurface& Co_Paragraph::Surface() { return editor_.Document(); }

// --- lifetime

void Co_Paragraph::Form_Load() {
  for (ComboBox* combo : {&cboSetStyleReg, &CboSaveStyleReg}) {
    combo->List({StyleNames.begin(), StyleNames.end()});
    combo->Text(StyleNames[0]);
  }
}

void Co_Paragraph::Form_Activate() { SelectParagraphe(Surface()); }

void Co_Paragraph::SetPosFenPara() {
  const Rect editor = editor_.WindowBounds();
  Left(editor.left + 2 * std::floor(editor.width / 3));
  Top(editor.top + editor.height - 600);
}

// --- showing the selection's format

void Co_Paragraph::RafraichirFenFmt() {
  const ScopedFlag refreshing(refreshing_);
  RefreshParaAlign();
  RefreshParaInter();
  RefreshParaIndent();
  RefreshParaEspace();
  RefreshParaMrgDte();
  RefreshParaFonte();
  SelectParagraphe(Surface());
}

void Co_Paragraph::RefreshParaAlign() {
  const auto alignment = Surface().SelAlignment();
  if (!alignment) return;
  CurrentStyle.Alignment = *alignment;
  for (int index = 0; index < opnAlign.Count(); ++index)
    if (kAlignments[index] == *alignment) opnAlign(index).Value(true);
}

void Co_Paragraph::RefreshParaInter() {
  const ScopedFlag refreshing(refreshing_);
  CurrentStyle.LineSpacing = LineSpacing(Surface());
  Bx_LineSpacing.Text(LineSpacingText(CurrentStyle.LineSpacing));
  UD_LineSpacing.Preset(CurrentStyle.LineSpacing);
  MAJopnInter();
}

void Co_Paragraph::RefreshParaIndent() {
  const ScopedFlag refreshing(refreshing_);
  StyleRecord& style = CurrentStyle;
  style.LeftIndent = Surface().SelIndent().value_or(style.LeftIndent);
  style.RightIndent = Surface().SelRightIndent().value_or(style.RightIndent);
  style.HangingIndent = Surface().SelHangingIndent().value_or(style.HangingIndent);
  IgnoringErrors([&] { style.LeftFront = Sum32(style.LeftIndent, style.HangingIndent); });
  Bx_IndentGauche.Text(MillimetresText(style.LeftIndent));
  Bx_IndentDroite.Text(MillimetresText(style.RightIndent));
  Bx_HangingIndent.Text(MillimetresText(style.HangingIndent));
}

void Co_Paragraph::RefreshParaEspace() {
  const ScopedFlag refreshing(refreshing_);
  CurrentStyle.SpaceBefore = SpaceBefore(Surface());
  CurrentStyle.SpaceAfter = SpaceAfter(Surface());
  Bx_AvantPara.Text(MillimetresText(CurrentStyle.SpaceBefore));
  Bx_AprèsPara.Text(MillimetresText(CurrentStyle.SpaceAfter));
}

void Co_Paragraph::RefreshParaMrgDte() {
  const ScopedFlag refreshing(refreshing_);
  IgnoringErrors([&] { StyleRightMargin = ToInt32(double{Surface().RightMargin()}); });
  Bx_RightMargin.Text(WholeMillimetresText(StyleRightMargin));
}

void Co_Paragraph::RefreshParaFonte() {
  if (const auto size = Surface().SelFontSize()) CurrentStyle.FontSize = NumberText(*size);
  if (const auto name = Surface().SelFontName()) CurrentStyle.FontName = *name;
  Bx_FontName.Text(CurrentStyle.FontName);
  Bx_FontSize.Text(CurrentStyle.FontSize);
}

void Co_Paragraph::MAJopnInter() {
  for (int index = 0; index < opnInter.Count(); ++index)
    opnInter(index).Value(kSpacings[index] == CurrentStyle.LineSpacing);
}

// --- styles

void Co_Paragraph::ApplyStyFromName(std::u16string_view section) {
  LoadStyle(Machine().UserSettings(), editor_.Values().applicationName, section, CurrentStyle);
  ApplyStyleRecord(Surface(), CurrentStyle);
  RafraichirFenFmt();
}

void Co_Paragraph::cboSetStyleReg_Click() {
  ApplyStyFromName(cboSetStyleReg.ListIndex() == 0 ? kStandardSection
                                                   : std::u16string_view(cboSetStyleReg.Text()));
}

void Co_Paragraph::CboSaveStyleReg_Click() {
  const std::u16string name = CboSaveStyleReg.Text();
  if (name == StyleNames[0]) {
    editor_.AskOver({.text = u"Style Standard non enregistrable"}, this);
    return;
  }
  const bool confirmed =
      editor_.AskOver({.text = u"Modification du style\r\n" + name + u"\r\nConfirmez-vous ?",
                       .title = u"Attention",
                       .buttons = MessageBox::Buttons::YesNo,
                       .icon = MessageBox::Icon::Question},
                      this) == MessageBox::Answer::Yes;
  if (!confirmed) {
    CboSaveStyleReg.Text(u"");
    return;
  }
  const std::u16string last = name.empty() ? u"" : name.substr(name.size() - 1);
  SaveStyle(Machine().UserSettings(), editor_.Values().applicationName, last == u"d" ? u"0" : last,
            CurrentStyle);
}

// --- alignment, line spacing, right margin, font

void Co_Paragraph::opnAlign_Click(int index) {
  CurrentStyle.Alignment = kAlignments[index];
  Surface().SelAlignment(CurrentStyle.Alignment);
}

void Co_Paragraph::opnInter_Click(int index) { Bx_LineSpacing.Text(kSpacingTexts[index]); }

void Co_Paragraph::Bx_LineSpacing_Change() {
  if (refreshing_) return;
  const auto code = LineSpacingCode(Bx_LineSpacing.Text());
  if (!code) return;
  CurrentStyle.LineSpacing = *code;
  MAJopnInter();
  SetLineSpacing();
}

void Co_Paragraph::UD_LineSpacing_Change() {
  CurrentStyle.LineSpacing = UD_LineSpacing.Value();
  SetLineSpacing();
  RefreshParaInter();
}

void Co_Paragraph::SetLineSpacing() {
  lumenote::SetLineSpacing(Surface(), CurrentStyle.LineSpacing);
}

void Co_Paragraph::Bx_RightMargin_Change() {
  if (!refreshing_ && Bx_RightMargin.Text() == u"0") Surface().RightMargin(0);
}

void Co_Paragraph::Bx_Font_MouseUp() {
  FmtPolice(editor_, this);
  RefreshParaFonte();
}

// --- spinners

void Co_Paragraph::UD_LeftIndent_Change() {
  const int arrow = TakeArrow(UD_LeftIndent);
  if (arrow == 0) return;
  const int indent =
      CorrValIndent(Surface().SelIndent().value_or(CurrentStyle.LeftIndent), kIndentStep);
  if (arrow > 0)
    Surface().SelIndent(Sum32(indent, kIndentStep));
  else
    Surface().SelIndent(indent < kIndentStep ? 0 : indent - kIndentStep);
  RefreshParaIndent();
}

void Co_Paragraph::UD_RightIndent_Change() {
  const int arrow = TakeArrow(UD_RightIndent);
  if (arrow == 0) return;
  const int indent =
      CorrValIndent(Surface().SelRightIndent().value_or(CurrentStyle.RightIndent), kIndentStep);
  const int width = static_cast<int>(editor_.DocumentWidth());
  if (arrow > 0)
    Surface().SelRightIndent(indent < kIndentStep ? 0 : indent - kIndentStep);
  else
    Surface().SelRightIndent(indent > width - kIndentStep ? width : indent + kIndentStep);
  RefreshParaIndent();
}

void Co_Paragraph::UD_HangingIndent_Change() {
  const int arrow = TakeArrow(UD_HangingIndent);
  if (arrow == 0) return;
  const int indent =
      CorrValIndent(Surface().SelHangingIndent().value_or(CurrentStyle.HangingIndent), kIndentStep);
  Surface().SelHangingIndent(Sum32(indent, arrow * kIndentStep));
  RefreshParaIndent();
}

void Co_Paragraph::UD_SpaceBefore_Change() {
  const int arrow = TakeArrow(UD_SpaceBefore);
  if (arrow == 0) return;
  SetSpaceBefore(Surface(), Sum32(SpaceBefore(Surface()), arrow * kSpaceStep));
  RefreshParaEspace();
}

void Co_Paragraph::UD_SpaceAfter_Change() {
  const int arrow = TakeArrow(UD_SpaceAfter);
  if (arrow == 0) return;
  SetSpaceAfter(Surface(), Sum32(SpaceAfter(Surface()), arrow * kSpaceStep));
  RefreshParaEspace();
}

void Co_Paragraph::UD_RightMargin_Change() {
  const int arrow = TakeArrow(UD_RightMargin);
  if (arrow == 0) return;
  const int margin = CorrValIndent(ToInt32(double{Surface().RightMargin()}), kIndentStep);
  Surface().RightMargin(static_cast<float>(std::max(0, Sum32(margin, arrow * kIndentStep))));
  RefreshParaMrgDte();
}

}  // namespace lumenote
