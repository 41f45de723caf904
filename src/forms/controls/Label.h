// A static line of text.
#pragma once
#include "forms/CaptionedControl.h"

namespace lumenote {

/// A cell has a frame and centres its text, with ampersands taken literally.
enum class LabelStyle { Text, Cell };

class Label : public CaptionedControl {
 public:
  Label(Container& container, std::string name, Rect bounds, std::u16string caption = {},
        LabelStyle style = LabelStyle::Text)
      : CaptionedControl(container, std::move(name), bounds, std::move(caption)), style_(style) {}

  LabelStyle Style() const { return style_; }

 private:
  LabelStyle style_;
};

}  // namespace lumenote
