// Controls: the visible parts of a window.
#pragma once
#include <functional>
#include <string>
#include <vector>

#include "forms/ShownElement.h"
#include "forms/values/Geometry.h"
#include "surface/keys/KeyStroke.h"

namespace lumenote {

class Control;

/// A parent of controls: a form or a frame. Positions are relative to its client corner.
class Container {
 public:
  virtual ~Container() = default;
  virtual Form& ContainingForm() = 0;
  const std::vector<Control*>& Controls() const { return controls_; }

 private:
  friend class Control;
  std::vector<Control*> controls_;  // in tab order
};

/// Buttons of a mouse event.
enum class MouseButton { None = 0, Left = 1, Right = 2, Middle = 4 };

/// A mouse event over a control; the point is in twips from the control's corner.
struct MouseEvent {
  MouseButton button = MouseButton::None;
  Point at;
};

/// A control: bounds, visibility and enabled state. Assigning an equal value is silent.
class Control : public ShownElement {
 public:
  Control(Container& container, std::string name, Rect bounds);
  ~Control() override;

  Container& Parent() const { return container_; }

  const Rect& Bounds() const { return bounds_; }
  float Left() const { return bounds_.left; }
  void Left(float twips);
  float Top() const { return bounds_.top; }
  void Top(float twips);
  /// A negative size raises InvalidPropertyValue (380) and changes nothing.
  float Width() const { return bounds_.width; }
  void Width(float twips);
  float Height() const { return bounds_.height; }
  void Height(float twips);

  /// The font of the control's text. An empty name or a size of 0 points means the window's own.
  const std::u16string& FontName() const { return fontName_; }
  void FontName(std::u16string_view name);
  float FontSize() const { return fontSize_; }
  void FontSize(float points);
  /// What assistive programs call a control that no caption or label names.
  const std::u16string& SpokenName() const { return spokenName_; }
  void SpokenName(std::u16string_view name);
  /// Raises it above its siblings.
  void BringToFront() { Changed(Property::Order); }
  /// Announces a control that was created after its window.
  void Announce();
  /// Tells the peer that the control goes, while what the peer uses of it is still there.
  void Withdraw();

  /// Whether the control can have the keyboard focus.
  virtual bool TakesFocus() const { return false; }
  /// Focuses the control and brings its window, once shown, to the front. Does nothing for a
  /// control that cannot have the focus.
  void SetFocus();

  /// Events, connected by the form.
  std::function<void(const MouseEvent&)> MouseUp;
  std::function<void(const MouseEvent&)> MouseMove;
  /// The wheel turns by a number of notches, downwards if positive.
  std::function<void(int)> MouseWheel;
  std::function<void()> Click;
  std::function<void()> DblClick;

  /// User input, reported by the peer.
  void UserMouseUp(const MouseEvent& event);
  void UserMouseMove(const MouseEvent& event);
  /// Goes to the container if the control has no use for it. Whether it was used.
  bool UserMouseWheel(int notches);
  virtual void UserClick();
  void UserDoubleClick();
  /// Character keys; ignored by controls without text.
  virtual void UserType(std::u16string_view) {}
  /// Handles a key; false if it means nothing here.
  virtual bool UserKey(const KeyStroke&) { return false; }
  /// Types what is being composed with an input method.
  virtual void CompleteComposition() {}

  void Describe(MemberTable& members) override;

 private:
  void Bounds(Rect bounds);

  Container& container_;
  bool withdrawn_ = false;
  Rect bounds_;
  std::u16string fontName_;
  float fontSize_ = 0;
  std::u16string spokenName_;
};

}  // namespace lumenote
