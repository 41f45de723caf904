// The loaded windows of one control.
#pragma once
#include <vector>

namespace lumenote {

class Form;
class Platform;

/// Tracks the loaded windows, in order of loading, and the active one. Owned by the control; forms
/// add and remove themselves.
class WindowList {
 public:
  explicit WindowList(Platform& platform) : platform_(platform) {}

  Platform& Machine() const { return platform_; }
  const std::vector<Form*>& Loaded() const { return loaded_; }
  Form* Active() const { return active_; }
  /// The topmost modal window, which locks the others; null if there is none.
  Form* TopModal() const;

 private:
  friend class Form;
  void Enter(Form& form) { loaded_.push_back(&form); }
  void Leave(Form& form);
  /// Returns whether this changed the active window.
  bool Activate(Form& form);
  /// The window to activate when `form` is hidden or closed: its owner, else the one shown last;
  /// null if `form` was not active or no window is left.
  Form* Deactivate(const Form& form);

  Platform& platform_;
  std::vector<Form*> loaded_;
  Form* active_ = nullptr;
};

}  // namespace lumenote
