#include "backends/win32/peers/buttons/UpDownPeer.h"

#include <commctrl.h>

namespace lumenote {

// The native control stays in the middle of a range of its own: the form counts.
UpDownPeer::UpDownPeer(UpDown& spinner, HWND parent, PeerHost& host)
    : ControlPeer(
          spinner,
          std::make_shared<Window>(
              parent, WindowKind{UPDOWN_CLASSW, WS_CHILD | WS_CLIPSIBLINGS | UDS_ARROWKEYS}),
          host),
      spinner_(spinner) {
  constexpr int kAny = 1000;
  Tell(UDM_SETRANGE32, static_cast<WPARAM>(-kAny), kAny);
  Tell(UDM_SETPOS32);
}

std::optional<LRESULT> UpDownPeer::Hear(const Message& message) {
  if (message.id == WM_LBUTTONDOWN) SetFocus(Handle());
  return ControlPeer::Hear(message);
}

std::optional<LRESULT> UpDownPeer::HearNotice(const Message& message) {
  if (message.id == WM_VSCROLL) return 0;
  if (message.id != WM_NOTIFY) return std::nullopt;
  const auto& notice = *reinterpret_cast<const NMUPDOWN*>(message.l);
  if (notice.hdr.code != static_cast<UINT>(UDN_DELTAPOS)) return std::nullopt;
  spinner_.UserSpin(notice.iDelta > 0);
  return TRUE;
}

}  // namespace lumenote
