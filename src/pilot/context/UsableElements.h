// Elements that the user could operate now; their window is activated as by a click.
#pragma once
#include <string_view>

namespace lumenote {

class Control;
class Element;
class Form;
class Menu;
class RichTextBox;
struct ScriptContext;

/// Each raises what `FindElement` raises, `ScriptError` for an element of the wrong kind, and
/// `Refusal` if the element or its window is hidden, disabled, or locked by a modal window. The
/// window is active on return.
Form& UsableForm(ScriptContext& context, std::string_view path);
/// A control, or a menu entry that could be clicked, whichever menu contains it.
Element& UsablePart(ScriptContext& context, std::string_view path);
Control& UsableControl(ScriptContext& context, std::string_view path);
/// A control that can have the focus; for a window, the one that has it.
Control& KeyboardTarget(ScriptContext& context, std::string_view path);
RichTextBox& UsableSurface(ScriptContext& context, std::string_view path);
/// An enabled menu, even a hidden one, which can be opened as a popup.
Menu& UsableMenu(ScriptContext& context, std::string_view path);

}  // namespace lumenote
