// A titled box around other controls.
#pragma once
#include "forms/CaptionedControl.h"

namespace lumenote {

class Frame : public CaptionedControl, public Container {
 public:
  Frame(Container& container, std::string name, Rect bounds, std::u16string caption = {})
      : CaptionedControl(container, std::move(name), bounds, std::move(caption)) {}

  Form& ContainingForm() override { return Owner(); }
};

}  // namespace lumenote
