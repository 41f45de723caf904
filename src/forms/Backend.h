// What a window system does for forms: it realises them, runs their loops and shows their boxes.
#pragma once
#include <functional>
#include <memory>
#include <optional>
#include <string>
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

/// The native window of one form. It mirrors the form's state, which it reads from the form, and
/// brings the user's acts in through the elements' doors. Pushing state never raises an event.
/// The form owns it; when it goes, whatever of the toolkit is still on the stack is freed later.
class FormPeer {
 public:
  virtual ~FormPeer() = default;
  /// `element` is the form itself or a part of it.
  virtual void Update(Element& element, Property property) = 0;
  virtual void Focus(Control& control) = 0;
  /// In front of the other windows, with the keyboard.
  virtual void Activate() = 0;
  /// A control has come to the form, or is about to go, while the window exists.
  virtual void Add(Control& control) = 0;
  virtual void Remove(Control& control) = 0;
  /// Shows the menu at a point of the form (twips from its inner corner) until an entry is chosen,
  /// whose door it calls, or the menu is dismissed.
  virtual void PopUp(Menu& menu, Point at) = 0;
  /// Where the native window differs from the form, one line each; for tests.
  virtual std::vector<std::string> Differences() const = 0;
};

class Backend {
 public:
  virtual ~Backend() = default;
  /// Called once the form is loaded, before it is shown.
  virtual std::unique_ptr<FormPeer> Realise(Form& form) = 0;
  /// The surface of a rich-text box; called while the box is constructed.
  virtual std::unique_ptr<RichTextSurface> MakeSurface(RichTextBox& box, Clipboard& clipboard,
                                                       Files& files) = 0;
  /// Blocks, keeping events and timers flowing, until the user has answered. `over` is the window
  /// the box belongs to; it may be null.
  virtual MessageBox::Answer Show(const MessageBox& box, Form* over) = 0;
  /// The desktop's font dialog, starting from `shown`; blocks like a box. Empty when cancelled.
  virtual std::optional<FontChoice> ChooseFont(const FontChoice& shown, Form* over) = 0;
  /// Keeps events and timers flowing until `done` says so; it is asked after every event.
  virtual void RunUntil(const std::function<bool()>& done) = 0;
  /// Whether no window of the desktop stands above the form's. Without a desktop that tells, the
  /// active window of the control counts as the topmost.
  virtual bool IsTopmost(const Form& form);
  virtual void Arm(Timer& timer) = 0;
  virtual void Disarm(Timer& timer) = 0;
  /// An error reached the edge of an event of `form`: shows it in a critical box.
  virtual void EventFailed(const RuntimeError& error, Form* form);
};

}  // namespace lumenote
