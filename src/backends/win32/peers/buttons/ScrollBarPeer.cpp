#include "backends/win32/peers/buttons/ScrollBarPeer.h"

namespace lumenote {
namespace {

constexpr int kPage = 10;

}  // namespace

ScrollBarPeer::ScrollBarPeer(ScrollBar& bar, HWND parent, PeerHost& host)
    : ControlPeer(bar,
                  std::make_shared<Window>(
                      parent, WindowKind{L"SCROLLBAR", WS_CHILD | WS_CLIPSIBLINGS | SBS_VERT}),
                  host),
      bar_(bar) {}

void ScrollBarPeer::Update(Property property) {
  ControlPeer::Update(property);
  if (property != Property::Value) return;
  SCROLLINFO info = {};
  info.cbSize = sizeof info;
  info.fMask = SIF_RANGE | SIF_POS;
  info.nMin = bar_.Min();
  info.nMax = bar_.Max();
  info.nPos = bar_.Value();
  SetScrollInfo(Handle(), SB_CTL, &info, TRUE);
}

SCROLLINFO ScrollBarPeer::Shown() const {
  SCROLLINFO info = {};
  info.cbSize = sizeof info;
  info.fMask = SIF_ALL;
  GetScrollInfo(Handle(), SB_CTL, &info);
  return info;
}

void ScrollBarPeer::Compare(DifferenceList& differences) const {
  ControlPeer::Compare(differences);
  differences.Check(bar_, "Value", Shown().nPos == bar_.Value());
  differences.Check(bar_, "Max", Shown().nMax == bar_.Max());
}

int ScrollBarPeer::Wanted(int action) const {
  switch (action) {
    case SB_LINEUP:
      return bar_.Value() - 1;
    case SB_LINEDOWN:
      return bar_.Value() + 1;
    case SB_PAGEUP:
      return bar_.Value() - kPage;
    case SB_PAGEDOWN:
      return bar_.Value() + kPage;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
      return Shown().nTrackPos;
    case SB_TOP:
      return bar_.Min();
    case SB_BOTTOM:
      return bar_.Max();
    default:
      return bar_.Value();
  }
}

std::optional<LRESULT> ScrollBarPeer::HearNotice(const Message& message) {
  if (message.id != WM_VSCROLL) return std::nullopt;
  bar_.UserScroll(Wanted(LOWORD(message.w)));
  return 0;
}

bool ScrollBarPeer::Wants(const KeyStroke& key) const {
  switch (key.name) {
    case KeyName::Up:
    case KeyName::Down:
    case KeyName::PageUp:
    case KeyName::PageDown:
    case KeyName::Home:
    case KeyName::End:
      return !key.alt;
    default:
      return false;
  }
}

}  // namespace lumenote
