// The mouse over a surface's window.
#pragma once
#include <string>

#include "backends/win32/toolkit/ToolTip.h"
#include "backends/win32/toolkit/Window.h"
#include "backends/win32/view/input/ViewBars.h"
#include "forms/controls/edits/ViewCallbacks.h"
#include "view/acts/ViewMouse.h"
#include "view/pane/NoteView.h"

namespace lumenote {

/// What its messages do, and the tooltip of what it is over. Any of them may detach the view.
class MouseInput {
 public:
  /// All must outlive this; released buttons go to the callbacks.
  MouseInput(HWND window, NoteView& view, ViewBars& bars, const ViewCallbacks& callbacks)
      : window_(window), view_(view), bars_(bars), callbacks_(callbacks), tip_(window) {}

  /// Returns whether the message was used.
  bool Handle(const Message& message);
  ViewMouse& Acts() { return mouse_; }
  /// The button goes up at a point of the client area.
  void Release(MouseButton button, LPARAM at);

 private:
  void ShowTip(const Message& message);
  void PressLeft(const Message& message);
  void Up(MouseButton button, LPARAM at);
  void Turn(const Message& message);

  HWND window_;
  NoteView& view_;
  ViewBars& bars_;
  const ViewCallbacks& callbacks_;
  ViewMouse mouse_{view_};
  ToolTip tip_;
  std::u16string shownTip_;
};

}  // namespace lumenote
