// How the keyboard moves between the controls of a form.
#pragma once
#include "forms/Form.h"
#include "forms/controls/buttons/OptionButton.h"

namespace lumenote {

/// The control that Tab (Shift+Tab) goes to; null if there is none but `from`.
Control* NextInTabOrder(Form& form, const Control* from, bool forward);
/// The option button that an arrow goes to; null if there is no other.
OptionButton* NextOption(const OptionButton& from, bool forward);
/// The menu of the bar that an arrow goes to from `from`, or first if that is null; null if there
/// is no other.
Menu* NextMenu(Form& form, const Menu* from, bool forward);
/// The control or menu of the bar whose caption marks the character as its mnemonic; null for none.
Element* WithMnemonic(Form& form, char16_t character);
Menu* MenuWithMnemonic(Form& form, char16_t character);
/// The control that gets the keyboard for the one with the mnemonic: what follows a label, what is
/// in a frame. Null for none.
Control* FocusFor(Form& form, Control& marked);

}  // namespace lumenote
