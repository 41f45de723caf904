#include "forms/Control.h"

#include "base/RuntimeError.h"
#include "forms/Form.h"

namespace lumenote {

Control::Control(Container& container, std::string name, Rect bounds)
    : ShownElement(container.ContainingForm(), std::move(name)),
      container_(container),
      bounds_(bounds) {
  Register();
  container_.controls_.push_back(this);
}

Control::~Control() {
  Withdraw();
  if (Owner().ActiveControl() == this) Owner().ActiveControl(nullptr);
  std::erase(container_.controls_, this);
  Unregister();
}

void Control::Withdraw() {
  FormPeer* peer = Owner().Peer();
  if (peer && !withdrawn_) peer->Remove(*this);
  withdrawn_ = true;
}

void Control::Announce() {
  if (FormPeer* peer = Owner().Peer()) peer->Add(*this);
}

void Control::FontName(std::u16string_view name) {
  if (name == fontName_) return;
  fontName_ = name;
  Changed(Property::Font);
}

void Control::FontSize(float points) {
  if (points == fontSize_) return;
  fontSize_ = points;
  Changed(Property::Font);
}

void Control::Bounds(Rect bounds) {
  if (bounds.width < 0 || bounds.height < 0) throw RuntimeError(ErrorNumber::InvalidPropertyValue);
  if (bounds == bounds_) return;
  bounds_ = bounds;
  Changed(Property::Geometry);
}

void Control::Left(float twips) { Bounds({twips, bounds_.top, bounds_.width, bounds_.height}); }

void Control::Top(float twips) { Bounds({bounds_.left, twips, bounds_.width, bounds_.height}); }

void Control::Width(float twips) { Bounds({bounds_.left, bounds_.top, twips, bounds_.height}); }

void Control::Height(float twips) { Bounds({bounds_.left, bounds_.top, bounds_.width, twips}); }

void Control::SetFocus() {
  if (!TakesFocus()) return;
  Owner().ActiveControl(this);
  if (FormPeer* peer = Owner().Peer()) peer->Focus(*this);
  Owner().LeaveMenuBar();
  Owner().Activate();
}

void Control::UserMouseUp(const MouseEvent& event) {
  if (!MouseUp) return;
  Owner().Raise([&] { MouseUp(event); });
}

void Control::UserMouseMove(const MouseEvent& event) {
  if (!MouseMove) return;
  Owner().Raise([&] { MouseMove(event); });
}

void Control::SpokenName(std::u16string_view name) {
  if (name == spokenName_) return;
  spokenName_ = name;
  Changed(Property::SpokenName);
}

bool Control::UserMouseWheel(int notches) {
  auto* outer = dynamic_cast<Control*>(&container_);
  if (!MouseWheel) return outer && outer->UserMouseWheel(notches);
  Owner().Raise([&] { MouseWheel(notches); });
  return true;
}

void Control::UserClick() {
  if (Click) Owner().Raise(Click);
}

void Control::UserDoubleClick() {
  if (DblClick) Owner().Raise(DblClick);
}

void Control::Describe(MemberTable& members) {
  ShownElement::Describe(members);
  members.Add("FontName", [this] { return Value(FontName()); });
  const auto length = [&](std::string_view name, auto get, auto set) {
    members.Add(
        name, [this, get] { return Value((this->*get)()); },
        [this, set](const Value& value) { (this->*set)(static_cast<float>(NumberOf(value))); });
  };
  using Get = float (Control::*)() const;
  using Set = void (Control::*)(float);
  length("Left", Get(&Control::Left), Set(&Control::Left));
  length("Top", Get(&Control::Top), Set(&Control::Top));
  length("Width", Get(&Control::Width), Set(&Control::Width));
  length("Height", Get(&Control::Height), Set(&Control::Height));
}

}  // namespace lumenote
