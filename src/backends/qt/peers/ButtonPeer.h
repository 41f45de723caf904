// Peers of push buttons, check boxes and option buttons.
#pragma once
#include <QAbstractButton>

#include "backends/qt/peers/ControlPeer.h"
#include "forms/Button.h"
#include "forms/controls/buttons/CheckBox.h"
#include "forms/controls/buttons/OptionButton.h"

namespace lumenote {

/// A native button with a caption. The user's click goes to the control, whose state the button
/// shows.
class ButtonPeer : public ControlPeer {
 public:
  ButtonPeer(Button& button, QWidget& parent, LayouterSource&);

  void Update(Property property) override;
  void Compare(DifferenceList& differences) const override;

 protected:
  ButtonPeer(CaptionedControl& control, QAbstractButton* widget);
  /// Whether to show the button as checked.
  virtual bool IsChecked() const { return false; }

 private:
  CaptionedControl& control_;
  QAbstractButton& widget_;
};

class CheckBoxPeer final : public ButtonPeer {
 public:
  CheckBoxPeer(CheckBox& box, QWidget& parent, LayouterSource&);

 protected:
  bool IsChecked() const override { return box_.Value() == 1; }

 private:
  CheckBox& box_;
};

class OptionButtonPeer final : public ButtonPeer {
 public:
  OptionButtonPeer(OptionButton& option, QWidget& parent, LayouterSource&);

 protected:
  bool IsChecked() const override { return option_.Value(); }

 private:
  OptionButton& option_;
};

}  // namespace lumenote
