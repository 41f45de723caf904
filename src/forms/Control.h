// Controls: the parts of a window that have a place on it.
#pragma once
#include <functional>
#include <string>
#include <vector>

#include "forms/ShownElement.h"
#include "forms/values/Geometry.h"
#include "surface/keys/KeyStroke.h"

namespace lumenote {

class Control;

/// A form or a frame: what controls are placed on. Places are relative to its inner corner.
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

/// A mouse event over a control; the point is relative to the control's corner, in twips.
struct MouseEvent {
  MouseButton button = MouseButton::None;
  Point at;
};

/// A control with its place, visibility and enabled state. Assigning what already stands is silent.
class Control : public ShownElement {
 public:
  Control(Container& container, std::string name, Rect place);
  ~Control() override;

  Container& Parent() const { return container_; }

  const Rect& Place() const { return place_; }
  float Left() const { return place_.left; }
  void Left(float twips);
  float Top() const { return place_.top; }
  void Top(float twips);
  /// A negative width or height raises InvalidPropertyValue (380) and changes nothing.
  float Width() const { return place_.width; }
  void Width(float twips);
  float Height() const { return place_.height; }
  void Height(float twips);

  /// The font of the control's text; an empty name or a size of 0 points is the window's own.
  const std::u16string& FontName() const { return fontName_; }
  void FontName(std::u16string_view name);
  float FontSize() const { return fontSize_; }
  void FontSize(float points);
  /// Above the other controls of its container.
  void BringToFront() { Changed(Property::Order); }
  /// Tells a window that exists already of a control that is new.
  void Arrive();

  /// Whether the keyboard can reach the control.
  virtual bool TakesFocus() const { return false; }
  /// Gives the control the keyboard, and its window, once shown, the foreground; one that takes
  /// none is left alone.
  void SetFocus();

  /// Events, wired by the form.
  std::function<void(const MouseEvent&)> MouseUp;
  std::function<void(const MouseEvent&)> MouseMove;
  std::function<void()> Click;
  std::function<void()> DblClick;

  /// The user's door: acts as the peer reports them.
  void UserMouseUp(const MouseEvent& event);
  void UserMouseMove(const MouseEvent& event);
  virtual void UserClick();
  void UserDoubleClick();
  /// Keys of characters; a control without text takes none.
  virtual void UserType(std::u16string_view) {}
  /// Whether the key did something here.
  virtual bool UserKey(const KeyStroke&) { return false; }

  void Describe(MemberTable& members) override;

 private:
  void Place(Rect place);

  Container& container_;
  Rect place_;
  std::u16string fontName_;
  float fontSize_ = 0;
};

}  // namespace lumenote
