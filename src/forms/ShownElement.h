// The common base of controls and menu entries: both can be hidden and disabled.
#pragma once
#include "forms/Element.h"

namespace lumenote {

/// Assigning an equal value is silent.
class ShownElement : public Element {
 public:
  using Element::Element;

  bool Visible() const { return visible_; }
  void Visible(bool on);
  bool Enabled() const { return enabled_; }
  void Enabled(bool on);

  void Describe(MemberTable& members) override;

 private:
  bool visible_ = true;
  bool enabled_ = true;
};

}  // namespace lumenote
