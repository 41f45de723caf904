// What the user's hand can reach, brought to the front as a click would.
#pragma once
#include <string_view>

namespace lumenote {

class Control;
class Element;
class Form;
class Menu;
class RichTextBox;
struct Stage;

/// Each raises what `FindElement` does, `ScriptError` for an element of another kind, and `Refusal`
/// when it, or its window, is hidden, disabled, or locked by a modal window. The window is active
/// afterwards.
Form& ReachForm(Stage& stage, std::string_view path);
/// A control, or a menu entry that could be clicked whatever menu holds it.
Element& ReachPart(Stage& stage, std::string_view path);
Control& ReachControl(Stage& stage, std::string_view path);
/// A control that takes the keyboard, or for a window the one that has it.
Control& ReachKeyboard(Stage& stage, std::string_view path);
RichTextBox& ReachSurface(Stage& stage, std::string_view path);
/// A menu that is enabled; hidden ones can be opened as popups.
Menu& ReachMenu(Stage& stage, std::string_view path);

}  // namespace lumenote
