#include "forms/ShownElement.h"

namespace lumenote {

void ShownElement::Visible(bool on) {
  if (on == visible_) return;
  visible_ = on;
  Changed(Property::Visible);
}

void ShownElement::Enabled(bool on) {
  if (on == enabled_) return;
  enabled_ = on;
  Changed(Property::Enabled);
}

void ShownElement::Describe(MemberTable& members) {
  Element::Describe(members);
  members.Add(
      "Visible", [this] { return Value(Visible()); },
      [this](const Value& value) { Visible(BooleanOf(value)); });
  members.Add(
      "Enabled", [this] { return Value(Enabled()); },
      [this](const Value& value) { Enabled(BooleanOf(value)); });
}

}  // namespace lumenote
