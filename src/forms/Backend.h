// The window system behind forms: it realises them, runs event loops and shows message boxes.
#pragma once
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/RuntimeError.h"
#include "forms/Element.h"
#include "forms/values/FontChoice.h"
#include "forms/values/Geometry.h"
#include "forms/values/MessageBox.h"
#include "platform/RichTextSurface.h"

namespace lumenote {

class Clipboard;
class Control;
class Files;
class Form;
class Menu;
class RichTextBox;
class Timer;

/// The native window of one form: it mirrors the form's state, which it reads from the form, and
/// reports user input through the `User...` members. Pushing state never raises an event. The form
/// owns its peer; toolkit objects still on the stack when the peer is destroyed are freed later.
class FormPeer {
 public:
  virtual ~FormPeer() = default;
  /// `element` is the form itself or one of its elements.
  virtual void Update(Element& element, Property property) = 0;
  virtual void Focus(Control& control) = 0;
  /// Gives the keyboard to the menu bar, or back to the active control if the bar still has it.
  virtual void FocusMenuBar(bool on) = 0;
  /// Raises the window and gives it the keyboard.
  virtual void Activate() = 0;
  /// What frames the box's selection on the screen, in twips; empty if nothing selected is seen.
  virtual std::optional<Rect> SelectionIn(const RichTextBox& box) = 0;
  /// Called while the window exists: a control was added to the form, or is about to be removed.
  virtual void Add(Control& control) = 0;
  virtual void Remove(Control& control) = 0;
  /// Shows the menu at a point of the form (twips from its client corner) until an entry is chosen,
  /// whose `UserClick` is called, or the menu is dismissed.
  virtual void PopUp(Menu& menu, Point at) = 0;
  /// Where the native window differs from the form's state, one line per difference; for tests.
  virtual std::vector<std::string> Differences() const = 0;
};

class Backend {
 public:
  virtual ~Backend() = default;
  /// Called after the form is loaded, before it is shown.
  virtual std::unique_ptr<FormPeer> Realise(Form& form) = 0;
  /// Creates the surface of a rich-text box; called during the box's construction.
  virtual std::unique_ptr<RichTextSurface> MakeSurface(RichTextBox& box, Clipboard& clipboard,
                                                       Files& files) = 0;
  /// Blocks, dispatching events and timers, until the user has answered. `over` is the box's owner
  /// window, or null.
  virtual MessageBox::Answer Show(const MessageBox& box, Form* over) = 0;
  /// The desktop's font dialog, preset to `shown`; blocks like a message box. Empty if cancelled.
  virtual std::optional<FontChoice> ChooseFont(const FontChoice& shown, Form* over) = 0;
  /// Prints a box's note, or what is selected there, as the user wants it by the desktop's dialog;
  /// blocks like a message box. Does nothing on a desktop without printing.
  virtual void Print(RichTextBox& note, std::u16string_view title, Form& over);
  /// Dispatches events and timers until `done` returns true; it is checked after every event.
  virtual void RunUntil(const std::function<bool()>& done) = 0;
  /// Whether no other window of the desktop is above the form's. On a desktop that cannot tell, the
  /// control's active window counts as topmost.
  virtual bool IsTopmost(const Form& form);
  virtual void Arm(Timer& timer) = 0;
  virtual void Disarm(Timer& timer) = 0;
  /// Handles an error that reached the edge of one of the form's events: shows a critical box.
  virtual void EventFailed(const RuntimeError& error, Form* form);
};

}  // namespace lumenote
