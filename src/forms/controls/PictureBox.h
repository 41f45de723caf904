// A sunken area that holds other controls.
#pragma once
#include "forms/Control.h"

namespace lumenote {

/// What reaches over its edges is cut off. Takes the keyboard and has no use for any key.
class PictureBox : public Control, public Container {
 public:
  using Control::Control;

  Form& ContainingForm() override { return Owner(); }
  bool TakesFocus() const override { return true; }
};

}  // namespace lumenote
