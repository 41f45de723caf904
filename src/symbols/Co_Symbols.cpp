#include "symbols/Co_Symbols.h"

#include <algorithm>
#include <string>

#include "base/Numbers.h"
#include "base/ScopedFlag.h"
#include "base/Windows1252.h"
#include "lumenote/Platform.h"
#include "platform/Clipboard.h"
#include "platform/Fonts.h"
#include "session/EditorWindow.h"

namespace lumenote {

namespace {

constexpr float kCellWidth = 345;
constexpr float kCellHeight = 360;
constexpr float kCellFontSize = 11;  // points
constexpr float kBigFontSize = 26;
constexpr float kInsertFontSize = 12;
constexpr float kTemplateLeft = -5000;  // out of sight

constexpr int kAll = kLastSymbol;  // more steps than there are symbols

/// How many symbols on a key goes; empty if it goes nowhere.
std::optional<int> StepOf(KeyName key, int columns, int rows) {
  const std::pair<KeyName, int> steps[] = {{KeyName::Left, -1},
                                           {KeyName::Right, 1},
                                           {KeyName::Up, -columns},
                                           {KeyName::Down, columns},
                                           {KeyName::Home, -kAll},
                                           {KeyName::End, kAll},
                                           {KeyName::PageUp, -rows * columns},
                                           {KeyName::PageDown, rows * columns}};
  const auto found = std::ranges::find(steps, key, &std::pair<KeyName, int>::first);
  return found == std::end(steps) ? std::nullopt : std::optional(found->second);
}

std::u16string SymbolOf(int code) { return Decode1252(std::string(1, static_cast<char>(code))); }

}  // namespace

Co_Symbols::Co_Symbols(WindowList& windows, EditorWindow& editor)
    : Form(windows, "Co_Symbols", {4000, 3000, 6930, 5160}, u"   Insertion/Copie de Symboles"),
      editor_(editor) {
  FixedSize(true);
  CancelButton(&cmdClose);
  picHolder.SpokenName(u"Symboles");
  VScroll1.SpokenName(u"Défilement des symboles");
  lblBigDisplay.FontSize(kBigFontSize);
  lblBigDisplay.Visible(false);
  txtInsert.FontSize(kInsertFontSize);
  Label& pattern = lblsymbols.Add(picHolder, Rect{kTemplateLeft, 0, kCellWidth, kCellHeight}, u"",
                                  LabelStyle::Cell);
  pattern.FontSize(kCellFontSize);
  cboFonts.DropDown = [this] { cboFonts_DropDown(); };
  cboFonts.Click = [this] { cboFonts_Click(); };
  VScroll1.Change = [this] { VScroll1_Change(); };
  picHolder.MouseWheel = [this](int notches) { picHolder_MouseWheel(notches); };
  picHolder.KeyDown = [this](const KeyStroke& key) { return picHolder_KeyDown(key); };
  lblBigDisplay.MouseMove = [this](const MouseEvent& event) { lblBigDisplay_MouseMove(event); };
  lblBigDisplay.DblClick = [this] { lblBigDisplay_DblClick(); };
  cmdInsert.Click = [this] { cmdInsert_Click(); };
  cmdCopy.Click = [this] { cmdCopy_Click(); };
  cmdClose.Click = [this] { Unload(); };
  WireHiding();
}

void Co_Symbols::WireHiding() {
  Control* const others[] = {&cmdClose,   &cmdCopy,   &cmdInsert, &lblLabel,
                             &lblMessage, &lblStatus, &txtInsert};
  for (Control* control : others)
    control->MouseMove = [this](const MouseEvent&) { HideBigDisplay(); };
}

void Co_Symbols::Form_Load() {
  CentreOver(editor_.WindowBounds());
  IgnoringErrors([this] { currentFont_ = editor_.Document().BaseFontName(); });
  lblBigDisplay.FontName(currentFont_);
  lblsymbols(0).FontName(currentFont_);
  FillSymbols(0);
  IgnoringErrors([this] {
    const ScopedFlag building(building_);
    VScroll1.Max(hiddenRows_);
    VScroll1.Min(0);
  });
  cboFonts.List({currentFont_});
  IgnoringErrors([this] { cboFonts.ListIndex(0); });
}

// --- the grid

void Co_Symbols::FillSymbols(std::int16_t offset) {
  lblsymbols(0).Left(kTemplateLeft);
  picHolder.Visible(false);
  const SymbolGrid grid = LayOutSymbols(offset, {lblsymbols(0).Width(), lblsymbols(0).Height(),
                                                 picHolder.Width(), picHolder.Height()});
  for (const SymbolCell& cell : grid.cells) AddCell(cell.code, {cell.left, cell.top});
  if (columns_ == 0) columns_ = grid.columns;
  hiddenRows_ = grid.hiddenRows;
  picHolder.Visible(true);
}

void Co_Symbols::AddCell(int code, Point at) {
  const Label& pattern = lblsymbols(0);
  const int index = lblsymbols.Count();
  Label& cell = lblsymbols.Add(picHolder, Rect{at.x, at.y, pattern.Width(), pattern.Height()},
                               SymbolOf(code), LabelStyle::Cell);
  cell.FontName(pattern.FontName());
  cell.FontSize(pattern.FontSize());
  cell.MouseMove = [this, index](const MouseEvent&) { lblsymbols_MouseMove(index); };
}

void Co_Symbols::VScroll1_Change() {
  if (building_) return;
  lblsymbols.Truncate(1);
  FillSymbols(ToInt16(std::int64_t{columns_} * VScroll1.Value()));
  HideBigDisplay();
  picHolder.SetFocus();
}

void Co_Symbols::lblsymbols_MouseMove(int index) {
  const Label& cell = lblsymbols(index);
  lblBigDisplay.Left(cell.Left() - (lblBigDisplay.Width() - cell.Width()) / 2);
  lblBigDisplay.Top(cell.Top() - (lblBigDisplay.Height() - cell.Height()) / 2);
  lblBigDisplay.Caption(cell.Caption());
  lblBigDisplay.BringToFront();
  lblBigDisplay.Visible(true);
  shownCode_ = ByteIn1252(cell.Caption().at(0));
  lblStatus.Caption(u"Special Char " + NumberText(std::int64_t{shownCode_}));
  picHolder.SpokenName(u"Symboles, " + cell.Caption() + u", " + lblStatus.Caption());
}

void Co_Symbols::lblBigDisplay_MouseMove(const MouseEvent& event) {
  const float x = lblBigDisplay.Left() + event.at.x;
  const float y = lblBigDisplay.Top() + event.at.y;
  for (int index = 1; index < lblsymbols.Count(); ++index)
    if (lblsymbols(index).Bounds().Holds({x, y})) return lblsymbols_MouseMove(index);
}

void Co_Symbols::picHolder_MouseWheel(int notches) {
  VScroll1.Value(std::clamp(VScroll1.Value() + notches, VScroll1.Min(), VScroll1.Max()));
}

bool Co_Symbols::picHolder_KeyDown(const KeyStroke& key) {
  if (key.control || key.alt || key.shift) return false;
  const bool shown = lblBigDisplay.Visible();
  if (key.name == KeyName::Return || key.name == KeyName::Space) {
    if (shown) lblBigDisplay_DblClick();
    return shown;
  }
  const std::optional<int> step = StepOf(key.name, columns_, ShownRows());
  if (!step) return false;
  ShowSymbol(std::clamp(shownCode_ + (shown ? *step : 0), kFirstSymbol, kLastSymbol));
  return true;
}

int Co_Symbols::ShownRows() const {
  return (kLastSymbol - kFirstSymbol) / columns_ + 1 - VScroll1.Max();
}

void Co_Symbols::ShowSymbol(int code) {
  const int place = code - kFirstSymbol;
  const int row = place / columns_;
  VScroll1.Value(std::clamp(VScroll1.Value(), std::max(0, row - ShownRows() + 1), row));
  lblsymbols_MouseMove(place - columns_ * VScroll1.Value() + 1);
}

// --- the font

// Lists as many screen fonts as the printer has fonts, at once: each change of the list shows all
// of it.
void Co_Symbols::cboFonts_DropDown() {
  if (fontsListed_) return;
  const Fonts& fonts = Machine().SystemFonts();
  std::vector<std::u16string> names = fonts.ScreenFonts();
  const auto count = static_cast<std::size_t>(std::max(0, fonts.PrinterFontCount()));
  const bool missing = names.size() < count;
  names.resize(std::min(names.size(), count));
  cboFonts.List(std::move(names));
  if (missing) throw RuntimeError(ErrorNumber::InvalidPropertyValue);
  fontsListed_ = true;
  IgnoringErrors([this] { cboFonts.Text(currentFont_); });
}

void Co_Symbols::cboFonts_Click() {
  HideBigDisplay();
  const std::u16string& font = cboFonts.Text();
  for (int index = 0; index < lblsymbols.Count(); ++index) lblsymbols(index).FontName(font);
  lblBigDisplay.FontName(font);
  Caption(u"  Insère les symboles de '" + font + u"' (Double-clic)");
  txtInsert.FontName(font);
}

// --- the collected characters

void Co_Symbols::lblBigDisplay_DblClick() {
  txtInsert.Text(txtInsert.Text() + lblBigDisplay.Caption());
}

void Co_Symbols::cmdInsert_Click() {
  picHolder.SetFocus();
  RichTextSurface& surface = editor_.Document();
  AsOneStep(surface, [&] {
    surface.SelFontName(cboFonts.Text());
    surface.SelText(u"");
    surface.SelText(txtInsert.Text());
  });
  HideBigDisplay();
}

void Co_Symbols::cmdCopy_Click() {
  Clipboard& clipboard = Machine().SystemClipboard();
  clipboard.Clear();
  clipboard.Set({.text = txtInsert.Text(), .rtf = {}});
  HideBigDisplay();
  picHolder.SetFocus();
}

void Co_Symbols::Describe(MemberTable& members) {
  Form::Describe(members);
  members.Add("Columns", [this] { return Value(int{columns_}); });
  members.Add("HiddenRows", [this] { return Value(int{hiddenRows_}); });
}

}  // namespace lumenote
