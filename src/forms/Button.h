// A push button.
#pragma once
#include "forms/CaptionedControl.h"

namespace lumenote {

class Button : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;

  bool TakesFocus() const override { return true; }

  /// Return and Space click it.
  bool UserKey(const KeyStroke& key) override {
    if (key.name != KeyName::Return && key.name != KeyName::Space) return false;
    UserClick();
    return true;
  }
};

}  // namespace lumenote
