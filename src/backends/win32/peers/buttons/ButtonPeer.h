// Peers of push buttons, check boxes and option buttons.
#pragma once
#include "backends/win32/peers/base/CaptionPeer.h"
#include "forms/Button.h"
#include "forms/controls/buttons/CheckBox.h"
#include "forms/controls/buttons/OptionButton.h"

namespace lumenote {

/// A native button with a caption. The user's click goes to the control, whose state the button
/// shows.
class ButtonPeer : public CaptionPeer {
 public:
  ButtonPeer(Button& button, HWND parent, PeerHost& host);

  void Update(Property property) override;
  void Compare(DifferenceList& differences) const override;
  void ShowDefault(bool isDefault) override;

 protected:
  LONG Role() const override { return ROLE_SYSTEM_PUSHBUTTON; }
  ButtonPeer(CaptionedControl& control, std::shared_ptr<Window> window, PeerHost& host);
  std::optional<LRESULT> Hear(const Message& message) override;
  std::optional<LRESULT> HearNotice(const Message& message) override;
  bool Wants(const KeyStroke& key) const override { return key.name == KeyName::Space && !key.alt; }
  /// Whether to show the button as checked.
  virtual bool IsChecked() const { return false; }

 private:
  bool returnClicks_ = false;
};

class CheckBoxPeer final : public ButtonPeer {
 public:
  CheckBoxPeer(CheckBox& box, HWND parent, PeerHost& host);

 protected:
  LONG Role() const override { return ROLE_SYSTEM_CHECKBUTTON; }
  bool IsChecked() const override { return box_.Value() == 1; }

 private:
  CheckBox& box_;
};

/// Tells the click that a native option button reports when it gets the keyboard from a real one.
class RadioWindow final : public Window {
 public:
  explicit RadioWindow(HWND parent);

  bool GainsFocus() const { return gainsFocus_; }

 protected:
  LRESULT Receive(const Message& message) override;

 private:
  bool gainsFocus_ = false;
};

class OptionButtonPeer final : public ButtonPeer {
 public:
  OptionButtonPeer(OptionButton& option, HWND parent, PeerHost& host);

 protected:
  LONG Role() const override { return ROLE_SYSTEM_RADIOBUTTON; }
  std::optional<LRESULT> HearNotice(const Message& message) override;
  bool IsChecked() const override { return option_.Value(); }

 private:
  OptionButtonPeer(OptionButton& option, std::shared_ptr<RadioWindow> window, PeerHost& host);

  OptionButton& option_;
  RadioWindow& window_;
};

}  // namespace lumenote
