#include "find/Co_Trouver.h"

#include <limits>

#include "base/Numbers.h"
#include "base/RuntimeError.h"
#include "session/EditorWindow.h"

namespace lumenote {

namespace {

constexpr std::u16string_view kFirst = u"&Trouver";
constexpr std::u16string_view kNext = u"&Suivant";
constexpr std::u16string_view kCompact = u"&Remplace...";
constexpr std::u16string_view kExpanded = u"&Remplace";
constexpr float kClearance = 300;  // around a match, in twips; decorations may be large

}  // namespace

Co_Trouver::Co_Trouver(WindowList& windows, EditorWindow& editor)
    : Form(windows, "Co_Trouver", {0, 0, 5430, 1700}, u"Trouver / Remplacer"), editor_(editor) {
  FixedSize(true);
  DefaultButton(&cmdFind);
  CancelButton(&cmdCancel);
  cmdFind.Click = [this] { Command(&Co_Trouver::cmdFind_Click); };
  cmdReplace.Click = [this] { Command(&Co_Trouver::cmdReplace_Click); };
  cmdReplaceAll.Click = [this] { Command(&Co_Trouver::cmdReplaceAll_Click); };
  cmdCancel.Click = [this] { Unload(); };
  AddShortcut(u"F3", [this] { cmdFind.UserClick(); });
}

void Co_Trouver::Form_Load() {
  lblReplace.Visible(false);
  cboReplace.Visible(false);
  cmdReplaceAll.Visible(false);
  Height(1700);
  Frame1.Top(480);
  cmdReplace.Top(945);
  const std::u16string selected = editor_.Document().SelText();
  cboFind.AddItem(selected);
  cboFind.Text(selected);
  CentreOver(editor_.WindowBounds());
  UncoverMatch();
}

void Co_Trouver::Form_Unload() {
  editor_.EnableSuivant(false);
  editor_.SuspendreDessus();
}

void Co_Trouver::Command(void (Co_Trouver::*command)()) {
  try {
    (this->*command)();
  } catch (const RuntimeError& error) {
    Ask({.text = error.Description()});
  }
}

int Co_Trouver::Options() const {
  return (chkWholeWord.Value() == 1 ? kFindWholeWord : 0) |
         (chkMatchCase.Value() == 1 ? kFindMatchCase : 0);
}

void Co_Trouver::ShowNotFound() { Ask({.text = u"Texte non trouvé"}); }

void Co_Trouver::ReplaceButtons(bool on) {
  cmdReplace.Enabled(on);
  cmdReplaceAll.Enabled(on);
}

void Co_Trouver::cmdFind_Click() {
  if (cmdFind.Caption() == kFirst)
    FirstSearch();
  else
    NextSearch();
}

void Co_Trouver::FirstSearch() {
  const bool found = editor_.Document().Find(cboFind.Text(), 0, Options()) != -1;
  if (found) {
    UncoverMatch();
    editor_.FocusDocument();
    ReplaceButtons(true);
    cmdFind.Caption(kNext);
  } else {
    ShowNotFound();
    cmdFind.Caption(kFirst);
  }
  editor_.EnableSuivant(found);
}

void Co_Trouver::NextSearch() {
  const bool found = FindOn();
  if (!found) {
    ShowNotFound();
    cmdFind.Caption(kFirst);
    ReplaceButtons(false);
  }
  editor_.EnableSuivant(found);
}

bool Co_Trouver::FindOn() {
  RichTextSurface& surface = editor_.Document();
  if (surface.Find(cboFind.Text(), surface.SelStart() + surface.SelLength(), Options()) == -1)
    return false;
  UncoverMatch();
  editor_.FocusDocument();
  return true;
}

void Co_Trouver::UncoverMatch() {
  const std::optional<Rect> match = editor_.SelectionBounds();
  if (!match) return;
  const Rect kept = {match->left - kClearance, match->top - kClearance,
                     match->width + 2 * kClearance, match->height + 2 * kClearance};
  if (!Bounds().Meets(kept)) return;
  const float above = kept.top - Height();
  Top(above >= 0 ? above : kept.top + kept.height);
}

void Co_Trouver::cmdReplace_Click() {
  if (cmdReplace.Caption() == kCompact)
    Expand();
  else if (!cboFind.Text().empty())
    ReplaceAndFind();
}

void Co_Trouver::Expand() {
  cmdReplace.Top(945);
  Frame1.Top(840);
  Height(2070);
  cmdReplace.Caption(kExpanded);
  lblReplace.Visible(true);
  cboReplace.Visible(true);
  cmdReplaceAll.Visible(true);
  UncoverMatch();
}

void Co_Trouver::ReplaceAndFind() {
  editor_.Document().SelText(cboReplace.Text());
  if (FindOn()) return;
  ShowNotFound();
  cmdFind.Caption(kFirst);
  ReplaceButtons(false);
}

void Co_Trouver::cmdReplaceAll_Click() {
  if (cboFind.Text().empty()) return;
  const std::int16_t count = ToInt16(std::int64_t{editor_.Document().ReplaceAll(
      cboFind.Text(), cboReplace.Text(), Options(), std::numeric_limits<std::int16_t>::max())});
  if (count > 0)
    Ask({.text = u"La région spécifiée a été balayée\r\n" + NumberText(std::int64_t{count}) +
                 u" remplacements ont été faits."});
  cmdFind.Caption(kFirst);
  ReplaceButtons(false);
  editor_.EnableSuivant(false);
}

}  // namespace lumenote
