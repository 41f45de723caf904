// Simulated user input: how scripts operate windows.
#pragma once
#include <string_view>

#include "base/Position.h"
#include "forms/Control.h"
#include "surface/keys/KeyStroke.h"

namespace lumenote {

class ComboBox;
class Menu;
class RichTextBox;
class UpDown;

/// Each backend has its own way: the headless one calls the `User...` members, a desktop sends real
/// events to the widgets. The element must be loaded, visible and enabled.
class UserActs {
 public:
  virtual ~UserActs() = default;
  virtual void Click(Control& control) = 0;
  virtual void DoubleClick(Control& control) = 0;
  virtual void Choose(Menu& entry) = 0;
  /// Raises the menu's opening event; chooses nothing.
  virtual void Open(Menu& menu) = 0;
  /// One key per character; CR LF is the Return key.
  virtual void Type(Control& control, std::u16string_view text) = 0;
  virtual void Key(Control& control, const KeyStroke& key) = 0;
  virtual void Select(RichTextBox& box, Position start, Position length) = 0;
  enum class MouseAct { Down, Move, Up };
  virtual void Mouse(Control& control, MouseAct act, const MouseEvent& event) = 0;
  virtual void Drag(RichTextBox& box, Position start, Position length, Position to) = 0;
  /// Clicks one arrow; the upper one increases the value.
  virtual void Spin(UpDown& spinner, bool up) = 0;
  /// Chooses an existing entry of the list, counted from 0.
  virtual void Pick(ComboBox& combo, int index) = 0;
  /// Opens the list and closes it without a choice.
  virtual void Drop(ComboBox& combo) = 0;
  virtual void Resize(Form& form, float width, float height) = 0;
  virtual void Activate(Form& form) = 0;
  virtual void Close(Form& form) = 0;
};

}  // namespace lumenote
