// A line of text on a window.
#pragma once
#include "forms/CaptionedControl.h"

namespace lumenote {

class Label : public CaptionedControl {
 public:
  Label(Container& container, std::string name, Rect place, std::u16string caption = {})
      : CaptionedControl(container, std::move(name), place, std::move(caption)) {}
};

}  // namespace lumenote
