#include "backends/win32/windows/boxes/FontDialog.h"

#include <commdlg.h>
#include <dlgs.h>
#undef ChooseFont

#include <algorithm>
#include <cmath>

#include "backends/win32/system/NativeText.h"
#include "backends/win32/toolkit/VisualStyles.h"
#include "backends/win32/toolkit/drawing/Gdi.h"
#include "backends/win32/windows/ModalLock.h"

namespace lumenote {
namespace {

constexpr float kUsualSize = 10;  // points
constexpr int kTenths = 10;       // in which the dialog gives sizes
constexpr int kPointsPerInch = 72;

LOGFONTW FontOf(const FontChoice& shown, int dpi) {
  LOGFONTW font = {};
  const std::u16string name = shown.name.value_or(u"");
  const std::size_t length = std::min(name.size(), std::size_t{LF_FACESIZE} - 1);
  std::copy_n(name.begin(), length, font.lfFaceName);
  font.lfHeight =
      -std::lround(shown.size.value_or(kUsualSize) * static_cast<float>(dpi) / kPointsPerInch);
  font.lfWeight = shown.bold.value_or(false) ? FW_BOLD : FW_NORMAL;
  font.lfItalic = shown.italic.value_or(false);
  font.lfUnderline = shown.underline.value_or(false);
  font.lfStrikeOut = shown.strike.value_or(false);
  font.lfCharSet = DEFAULT_CHARSET;
  return font;
}

/// What is mixed in the selection is shown as not chosen.
DWORD FlagsOf(const FontChoice& shown) {
  DWORD flags = CF_SCREENFONTS | CF_EFFECTS | CF_INITTOLOGFONTSTRUCT | CF_NOSCRIPTSEL;
  if (!shown.name) flags |= CF_NOFACESEL;
  if (!shown.size) flags |= CF_NOSIZESEL;
  if (!shown.bold || !shown.italic) flags |= CF_NOSTYLESEL;
  return flags;
}

/// What of an attribute the user has changed.
template <class T>
std::optional<T> Changed(const T& before, const T& after) {
  return before == after ? std::optional<T>() : after;
}

constexpr const wchar_t* kChosen = L"LumenoteChosen";  // where to tell that a font was chosen

/// Tells when the user chooses a font: for one that is not installed the dialog shows, and returns,
/// another.
UINT_PTR CALLBACK Hear(HWND dialog, UINT message, WPARAM w, LPARAM l) {
  if (message == WM_INITDIALOG)
    SetPropW(dialog, kChosen,
             reinterpret_cast<HANDLE>(reinterpret_cast<const CHOOSEFONTW*>(l)->lCustData));
  const bool chooses = HIWORD(w) == CBN_SELCHANGE || HIWORD(w) == CBN_EDITCHANGE;
  auto* const chosen = static_cast<bool*>(GetPropW(dialog, kChosen));
  if (chosen && message == WM_COMMAND && LOWORD(w) == cmb1 && chooses) *chosen = true;
  if (message == WM_DESTROY) RemovePropW(dialog, kChosen);
  return 0;
}

FontChoice Changes(const LOGFONTW& before, const LOGFONTW& after) {
  FontChoice choice;
  choice.bold = Changed(before.lfWeight >= FW_BOLD, after.lfWeight >= FW_BOLD);
  choice.italic = Changed(before.lfItalic != 0, after.lfItalic != 0);
  choice.underline = Changed(before.lfUnderline != 0, after.lfUnderline != 0);
  choice.strike = Changed(before.lfStrikeOut != 0, after.lfStrikeOut != 0);
  return choice;
}

}  // namespace

std::optional<FontChoice> ShowFontDialog(const FontChoice& shown, HWND over) {
  const int dpi = GetDeviceCaps(DcScope(nullptr).Get(), LOGPIXELSY);
  const LOGFONTW before = FontOf(shown, dpi);
  LOGFONTW after = before;
  CHOOSEFONTW dialog = {};
  dialog.lStructSize = sizeof dialog;
  dialog.hwndOwner = over;
  dialog.lpLogFont = &after;
  dialog.Flags = FlagsOf(shown) | CF_ENABLEHOOK;
  dialog.lpfnHook = &Hear;
  bool chosen = false;
  dialog.lCustData = reinterpret_cast<LPARAM>(&chosen);
  dialog.rgbColors = static_cast<COLORREF>(shown.colour.value_or(0));
  const ModalLock others(over);
  const VisualStyles styles;
  if (!ChooseFontW(&dialog)) return std::nullopt;
  FontChoice choice = Changes(before, after);
  const std::u16string name(Utf16(after.lfFaceName));
  if (chosen && !name.empty()) choice.name = Changed(shown.name.value_or(u""), name);
  // The dialog rounds the size that it shows.
  if (after.lfHeight != before.lfHeight)
    choice.size = static_cast<float>(dialog.iPointSize) / kTenths;
  choice.colour = Changed(shown.colour.value_or(0), static_cast<std::int32_t>(dialog.rgbColors));
  return choice;
}

}  // namespace lumenote
