// A titled box around other controls.
#pragma once
#include "forms/CaptionedControl.h"

namespace lumenote {

/// From the left of the border to the title, and where the line ends beside a title, in twips.
inline constexpr double kTitleLeft = 150;
inline constexpr double kTitleGap = 45;

class Frame : public CaptionedControl, public Container {
 public:
  Frame(Container& container, std::string name, Rect bounds, std::u16string caption = {})
      : CaptionedControl(container, std::move(name), bounds, std::move(caption)) {}

  Form& ContainingForm() override { return Owner(); }
};

}  // namespace lumenote
