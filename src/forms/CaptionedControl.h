// A control with a caption.
#pragma once
#include <string>
#include <string_view>

#include "forms/Control.h"

namespace lumenote {

/// An ampersand in the caption marks the mnemonic: Alt and that key focus the control.
class CaptionedControl : public Control {
 public:
  CaptionedControl(Container& container, std::string name, Rect bounds, std::u16string caption);

  const std::u16string& Caption() const { return caption_; }
  void Caption(std::u16string_view text);

  void Describe(MemberTable& members) override;

 private:
  std::u16string caption_;
};

}  // namespace lumenote
