#include "backends/win32/Win32Backend.h"

#include <algorithm>
#include <commctrl.h>

#include "backends/win32/toolkit/VisualStyles.h"
#include "backends/win32/windows/boxes/FontDialog.h"
#include "backends/win32/windows/boxes/MessageBoxes.h"
#include "base/RuntimeError.h"
#include "base/Twips.h"
#include "forms/controls/edits/RichTextBox.h"
#include "surface/DocumentSurface.h"

namespace lumenote {
namespace {

/// Hosts that steer the keyboard in windows of their own do so here, too, as in the system's loops.
bool HostUses(MSG& message) {
  return !Window::Of(GetAncestor(message.hwnd, GA_ROOT)) &&
         CallMsgFilterW(&message, MSGF_DIALOGBOX);
}

/// Takes the next message, if there is one; empty when the program is to end.
std::optional<WPARAM> DispatchNext() {
  MSG message;
  if (!PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    MsgWaitForMultipleObjectsEx(0, nullptr, INFINITE, QS_ALLINPUT, MWMO_INPUTAVAILABLE);
    return std::nullopt;
  }
  if (message.message == WM_QUIT) return message.wParam;
  if (HostUses(message)) return std::nullopt;
  TranslateMessage(&message);
  DispatchMessageW(&message);
  return std::nullopt;
}

/// Windows of the desktop itself stand above nothing.
bool IsInSight(HWND window) {
  const LONG_PTR style = GetWindowLongPtrW(window, GWL_EXSTYLE);
  RECT place;
  return IsWindowVisible(window) && !IsIconic(window) && (style & WS_EX_TOOLWINDOW) == 0 &&
         GetWindowRect(window, &place) && !IsRectEmpty(&place);
}

}  // namespace

Win32Backend::Win32Backend() {
  const VisualStyles styles;
  const INITCOMMONCONTROLSEX kinds = {sizeof kinds,
                                      ICC_STANDARD_CLASSES | ICC_BAR_CLASSES | ICC_UPDOWN_CLASS};
  InitCommonControlsEx(&kinds);
}

std::unique_ptr<FormPeer> Win32Backend::Realise(Form& form) {
  auto peer = std::make_unique<Win32FormPeer>(form, static_cast<PeerServices&>(*this));
  forms_.emplace_back(&form, peer.get());
  return peer;
}

Win32FormPeer* Win32Backend::PeerOf(const Form& form) const {
  for (const auto& [shown, peer] : forms_)
    if (shown == &form) return peer;
  return nullptr;
}

// What stands above a window on top is on top, too. Taking it down would take its owner down, or
// (under wine) do nothing; so they are apart meanwhile.
void Win32Backend::Restack() {
  for (const auto& [form, peer] : forms_) peer->Stacking().Join(false);
  for (const auto& [form, peer] : forms_) peer->Stacking().ShowOnTop();
  for (const auto& [form, peer] : forms_) peer->Stacking().Join(true);
}

void Win32Backend::Gone(Form& form) {
  std::erase_if(forms_, [&](const auto& entry) { return entry.first == &form; });
}

void Win32Backend::CloseForms() {
  const auto open = forms_;
  for (auto entry = open.rbegin(); entry != open.rend(); ++entry)
    if (PeerOf(*entry->first) && !entry->first->Unload()) entry->first->Abandon();
}

std::unique_ptr<RichTextSurface> Win32Backend::MakeSurface(RichTextBox& box, Clipboard& clipboard,
                                                           Files& files) {
  auto& layout = layouts_[&box] = std::make_unique<SurfaceLayout>();
  layout->layouter.Width(box.Bounds().width / kTwipsPerPixel);
  return std::make_unique<DocumentSurface>(clipboard, files, layout->breaker);
}

HWND Win32Backend::DialogParent(const Form* over) const {
  if (!over) return nullptr;
  const Form* modal = over->Windows().TopModal();
  const Win32FormPeer* peer = PeerOf(modal ? *modal : *over);
  if (peer && !peer->Handle())
    throw RuntimeError(ErrorNumber::OutOfMemory);  // destroyed by the host
  return peer ? peer->Handle() : nullptr;
}

MessageBox::Answer Win32Backend::Show(const MessageBox& box, Form* over) {
  return ShowMessageBox(box, DialogParent(over));
}

std::optional<FontChoice> Win32Backend::ChooseFont(const FontChoice& shown, Form* over) {
  return ShowFontDialog(shown, DialogParent(over));
}

void Win32Backend::RunUntil(const std::function<bool()>& done) {
  std::optional<WPARAM> quit;
  while (!done()) {
    const std::optional<WPARAM> asked = DispatchNext();
    if (!asked) continue;
    quit = asked;
    CloseForms();
  }
  if (quit) PostQuitMessage(static_cast<int>(*quit));
}

bool Win32Backend::IsTopmost(const Form& form) {
  const Win32FormPeer* peer = PeerOf(form);
  if (!peer) return Backend::IsTopmost(form);
  HWND window = GetTopWindow(nullptr);
  while (window && window != peer->Handle() && !IsInSight(window))
    window = GetWindow(window, GW_HWNDNEXT);
  return window == peer->Handle();
}

}  // namespace lumenote
