#include "backends/win32/peers/edits/TextBoxPeer.h"

#include "backends/win32/system/NativeText.h"
#include "base/ScopedFlag.h"

namespace lumenote {
namespace {

constexpr WindowKind kKind = {L"EDIT", WS_CHILD | WS_CLIPSIBLINGS | ES_AUTOHSCROLL,
                              WS_EX_CLIENTEDGE};

// The system would give a locked box the ground of a label.
LRESULT ColourLocked(HDC dc) {
  SetTextColor(dc, GetSysColor(COLOR_WINDOWTEXT));
  SetBkColor(dc, GetSysColor(COLOR_WINDOW));
  return reinterpret_cast<LRESULT>(GetSysColorBrush(COLOR_WINDOW));
}

}  // namespace

TextBoxPeer::TextBoxPeer(TextBox& box, HWND parent, PeerHost& host)
    : ControlPeer(box, std::make_shared<Window>(parent, kKind), host), box_(box) {
  Tell(EM_SETLIMITTEXT);
}

void TextBoxPeer::Update(Property property) {
  const ScopedFlag pushing(pushing_);
  ControlPeer::Update(property);
  if (property == Property::Content) ShowText(Handle(), box_.Text());
  if (property == Property::Locked) Tell(EM_SETREADONLY, box_.Locked());
}

void TextBoxPeer::Compare(DifferenceList& differences) const {
  ControlPeer::Compare(differences);
  differences.Check(box_, "Text", TextOf(Handle()) == box_.Text());
  const bool locked = (GetWindowLongPtrW(Handle(), GWL_STYLE) & ES_READONLY) != 0;
  differences.Check(box_, "Locked", locked == box_.Locked());
}

std::optional<LRESULT> TextBoxPeer::HearNotice(const Message& message) {
  if (message.id == WM_CTLCOLORSTATIC && box_.Enabled())
    return ColourLocked(reinterpret_cast<HDC>(message.w));
  if (message.id != WM_COMMAND || HIWORD(message.w) != EN_CHANGE) return std::nullopt;
  if (!pushing_) box_.UserEdited(TextOf(Handle()), SelectedIn(Handle()));
  return 0;
}

}  // namespace lumenote
