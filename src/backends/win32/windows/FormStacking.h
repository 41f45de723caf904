// Where a form's window stands among others: its owner, and what is on top.
#pragma once
#include "backends/win32/toolkit/WindowRegistry.h"
#include "forms/Form.h"

namespace lumenote {

/// The system keeps a window above its owner, which may be the host's.
class FormStacking {
 public:
  /// All must outlive it.
  FormStacking(const Form& form, const Window& window, const WindowRegistry& windows)
      : form_(form), window_(window), windows_(windows) {}

  /// Before the form is shown: finds its owner, and gives it the boxes that go with that.
  void Own();
  /// Ties the window to its owner, or parts them.
  void Join(bool owner) const;
  /// Puts the window on top of all others, or takes it down, while it is apart from its owner.
  void ShowOnTop() const;
  bool StaysOnTop() const;

 private:
  void ChooseBoxes() const;
  HWND OwnerWindow() const;

  const Form& form_;
  const Window& window_;
  const WindowRegistry& windows_;
  HWND owner_ = nullptr;  // the window below; null for none
};

}  // namespace lumenote
