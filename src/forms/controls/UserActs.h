// The user's hands: acts on windows, as scripts perform them.
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

/// Each backend performs the acts its own way: the headless one through the elements' doors, a
/// desktop one by real events to the widgets. The element is loaded, visible and enabled.
class UserActs {
 public:
  virtual ~UserActs() = default;
  virtual void Click(Control& control) = 0;
  virtual void DoubleClick(Control& control) = 0;
  virtual void Choose(Menu& entry) = 0;
  /// The menu's opening event runs; nothing is chosen.
  virtual void Open(Menu& menu) = 0;
  /// One key a character; CR LF is the Return key.
  virtual void Type(Control& control, std::u16string_view text) = 0;
  virtual void Key(Control& control, const KeyStroke& key) = 0;
  virtual void Select(RichTextBox& box, Position start, Position length) = 0;
  enum class MouseAct { Down, Move, Up };
  virtual void Mouse(Control& control, MouseAct act, const MouseEvent& event) = 0;
  virtual void Drag(RichTextBox& box, Position start, Position length, Position to) = 0;
  /// One click on an arrow; the upper one raises the value.
  virtual void Spin(UpDown& spinner, bool up) = 0;
  /// Chooses an entry of the list, from 0; it is there.
  virtual void Pick(ComboBox& combo, int index) = 0;
  /// Drops the list down and leaves it without a choice.
  virtual void Drop(ComboBox& combo) = 0;
  virtual void Resize(Form& form, float width, float height) = 0;
  virtual void Activate(Form& form) = 0;
  virtual void Close(Form& form) = 0;
};

}  // namespace lumenote
