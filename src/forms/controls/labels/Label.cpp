#include "forms/controls/labels/Label.h"

namespace lumenote {

void Label::ToolTip(std::u16string_view text) {
  if (text == toolTip_) return;
  toolTip_ = text;
  Changed(Property::ToolTip);
}

void Label::Describe(MemberTable& members) {
  CaptionedControl::Describe(members);
  members.Add("ToolTip", [this] { return Value(ToolTip()); });
}

}  // namespace lumenote
