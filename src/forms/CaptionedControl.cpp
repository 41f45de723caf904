#include "forms/CaptionedControl.h"

namespace lumenote {

CaptionedControl::CaptionedControl(Container& container, std::string name, Rect bounds,
                                   std::u16string caption)
    : Control(container, std::move(name), bounds), caption_(std::move(caption)) {}

void CaptionedControl::Caption(std::u16string_view text) {
  if (text == caption_) return;
  caption_ = text;
  Changed(Property::Caption);
}

void CaptionedControl::Describe(MemberTable& members) {
  Control::Describe(members);
  members.Add(
      "Caption", [this] { return Value(Caption()); },
      [this](const Value& value) { Caption(TextOf(value)); });
}

}  // namespace lumenote
