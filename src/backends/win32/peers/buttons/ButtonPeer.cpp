#include "backends/win32/peers/buttons/ButtonPeer.h"

#include "backends/win32/toolkit/input/Keys.h"
#include "base/ScopedFlag.h"

namespace lumenote {
namespace {

// Only the form changes what is checked: no style checks by itself.
WindowKind ButtonKind(DWORD style) { return {L"BUTTON", WS_CHILD | WS_CLIPSIBLINGS | style}; }

}  // namespace

RadioWindow::RadioWindow(HWND parent) : Window(parent, ButtonKind(BS_RADIOBUTTON)) {}

ButtonPeer::ButtonPeer(Button& button, HWND parent, PeerHost& host)
    : ButtonPeer(button, std::make_shared<Window>(parent, ButtonKind(BS_PUSHBUTTON)), host) {
  returnClicks_ = true;
}

ButtonPeer::ButtonPeer(CaptionedControl& control, std::shared_ptr<Window> window, PeerHost& host)
    : CaptionPeer(control, std::move(window), host) {}

CheckBoxPeer::CheckBoxPeer(CheckBox& box, HWND parent, PeerHost& host)
    : ButtonPeer(box, std::make_shared<Window>(parent, ButtonKind(BS_CHECKBOX)), host), box_(box) {}

void ButtonPeer::Update(Property property) {
  CaptionPeer::Update(property);
  if (property == Property::Value) Tell(BM_SETCHECK, IsChecked() ? BST_CHECKED : BST_UNCHECKED);
}

void ButtonPeer::Compare(DifferenceList& differences) const {
  CaptionPeer::Compare(differences);
  differences.Check(Captioned(), "Value", (Tell(BM_GETCHECK) == BST_CHECKED) == IsChecked());
}

void ButtonPeer::ShowDefault(bool isDefault) {
  if (returnClicks_) Tell(BM_SETSTYLE, isDefault ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON, TRUE);
}

// Return clicks a push button as Space does; a native one leaves that to dialogs.
std::optional<LRESULT> ButtonPeer::Hear(const Message& message) {
  if (message.id != WM_KEYDOWN || message.w != VK_RETURN || !returnClicks_)
    return CaptionPeer::Hear(message);
  SwallowCharacter(Handle());
  Captioned().UserClick();
  return 0;
}

std::optional<LRESULT> ButtonPeer::HearNotice(const Message& message) {
  if (message.id != WM_COMMAND || HIWORD(message.w) != BN_CLICKED) return std::nullopt;
  Captioned().UserClick();
  return 0;
}

LRESULT RadioWindow::Receive(const Message& message) {
  if (message.id != WM_SETFOCUS) return Default(message);
  const ScopedFlag gains(gainsFocus_);
  return Default(message);
}

OptionButtonPeer::OptionButtonPeer(OptionButton& option, HWND parent, PeerHost& host)
    : OptionButtonPeer(option, std::make_shared<RadioWindow>(parent), host) {}

OptionButtonPeer::OptionButtonPeer(OptionButton& option, std::shared_ptr<RadioWindow> window,
                                   PeerHost& host)
    : ButtonPeer(option, window, host), option_(option), window_(*window) {}

std::optional<LRESULT> OptionButtonPeer::HearNotice(const Message& message) {
  return window_.GainsFocus() ? 0 : ButtonPeer::HearNotice(message);
}

}  // namespace lumenote
