#include "backends/win32/toolkit/ToolTip.h"

#include <commctrl.h>

#include "backends/win32/system/NativeText.h"
#include "backends/win32/toolkit/drawing/Units.h"

namespace lumenote {
namespace {

constexpr std::size_t kLength = 2048;  // more than any tooltip says
constexpr double kWidest = 7500;       // twips; a longer text has several lines

/// The form that every version of the common controls knows.
TTTOOLINFOW InfoOf(HWND tool, const std::u16string& text) {
  TTTOOLINFOW info = {};
  info.cbSize = TTTOOLINFOW_V1_SIZE;
  info.uFlags = TTF_IDISHWND;
  info.hwnd = GetParent(tool);
  info.uId = reinterpret_cast<UINT_PTR>(tool);
  info.lpszText = const_cast<wchar_t*>(Wide(text));
  return info;
}

LRESULT Tell(const Window& tip, UINT message, const TTTOOLINFOW& info, std::size_t room = 0) {
  return SendMessageW(tip.Handle(), message, room, reinterpret_cast<LPARAM>(&info));
}

}  // namespace

// Without an owner: it would go where the form goes in the order of windows, and hold it there.
void ToolTip::Make() {
  constexpr DWORD kStyle = WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX;
  window_ = std::make_shared<Window>(
      nullptr, WindowKind{TOOLTIPS_CLASSW, kStyle, WS_EX_TOPMOST | WS_EX_TOOLWINDOW});
  Tell(*window_, TTM_ADDTOOLW, InfoOf(tool_, {}));
}

void ToolTip::Text(const std::u16string& text) {
  if (!window_ && text.empty()) return;
  if (!window_) Make();
  SendMessageW(window_->Handle(), TTM_SETMAXTIPWIDTH, 0, Scale::Of(tool_).Pixels(kWidest));
  Tell(*window_, TTM_UPDATETIPTEXTW, InfoOf(tool_, text));
}

std::u16string ToolTip::Text() const {
  if (!window_) return {};
  std::u16string text(kLength, u'\0');
  Tell(*window_, TTM_GETTEXTW, InfoOf(tool_, text), kLength);
  return text.substr(0, text.find(u'\0'));
}

void ToolTip::Relay(const Message& message) const {
  if (!window_) return;
  MSG relayed = {};
  relayed.hwnd = tool_;
  relayed.message = message.id;
  relayed.wParam = message.w;
  relayed.lParam = message.l;
  SendMessageW(window_->Handle(), TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&relayed));
}

}  // namespace lumenote
