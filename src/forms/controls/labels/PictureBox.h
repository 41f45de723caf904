// A sunken container of controls.
#pragma once
#include "forms/Control.h"

namespace lumenote {

/// Clips its children. Can have the focus but handles no key.
class PictureBox : public Control, public Container {
 public:
  using Control::Control;

  Form& ContainingForm() override { return Owner(); }
  bool TakesFocus() const override { return true; }
};

}  // namespace lumenote
