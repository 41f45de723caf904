// A sunken container of controls.
#pragma once
#include "forms/Control.h"
#include "forms/Form.h"

namespace lumenote {

/// Clips its children.
class PictureBox : public Control, public Container {
 public:
  using Control::Control;

  Form& ContainingForm() override { return Owner(); }
  bool TakesFocus() const override { return true; }

  /// A key is pressed while it has the focus; whether it means something here.
  std::function<bool(const KeyStroke&)> KeyDown;

  bool UserKey(const KeyStroke& key) override {
    bool used = false;
    if (KeyDown) Owner().Raise([&] { used = KeyDown(key); });
    return used;
  }
};

}  // namespace lumenote
