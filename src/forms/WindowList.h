// The loaded windows of one control.
#pragma once
#include <vector>

namespace lumenote {

class Form;
class Platform;

/// Knows which windows are loaded, in the order of loading, and which one is active. Owned by the
/// control; forms enter and leave by themselves.
class WindowList {
 public:
  explicit WindowList(Platform& platform) : platform_(platform) {}

  Platform& Machine() const { return platform_; }
  const std::vector<Form*>& Loaded() const { return loaded_; }
  Form* Active() const { return active_; }
  /// The modal window on top, which locks the others; null when there is none.
  Form* TopModal() const;

 private:
  friend class Form;
  void Enter(Form& form) { loaded_.push_back(&form); }
  void Leave(Form& form);
  /// Whether the active window has changed by this.
  bool Activate(Form& form);
  /// The window to activate when `form` goes out of sight: its owner, else the latest one shown;
  /// null when `form` was not active or nothing is left.
  Form* Deactivate(const Form& form);

  Platform& platform_;
  std::vector<Form*> loaded_;
  Form* active_ = nullptr;
};

}  // namespace lumenote
