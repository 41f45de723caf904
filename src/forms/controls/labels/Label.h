// A static line of text.
#pragma once
#include "forms/CaptionedControl.h"

namespace lumenote {

/// A cell has a frame and centres its text, with ampersands taken literally. A title
/// stands at the right in a frame's border. A strip is for clicking: it lights up under the
/// pointer, which becomes a hand.
enum class LabelStyle { Text, Cell, Title, Strip };

class Label : public CaptionedControl {
 public:
  Label(Container& container, std::string name, Rect bounds, std::u16string caption = {},
        LabelStyle style = LabelStyle::Text)
      : CaptionedControl(container, std::move(name), bounds, std::move(caption)), style_(style) {}

  LabelStyle Style() const { return style_; }
  /// Shown when the pointer rests on the label; empty for none.
  const std::u16string& ToolTip() const { return toolTip_; }
  void ToolTip(std::u16string_view text);

  void Describe(MemberTable& members) override;

 private:
  LabelStyle style_;
  std::u16string toolTip_;
};

}  // namespace lumenote
