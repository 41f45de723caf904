// Input methods of the system, by IMM32.
#pragma once
#include <optional>

#include "backends/win32/toolkit/Window.h"
#include "view/acts/ViewInput.h"

namespace lumenote {

/// What input methods do to the view of a window.
class Composing {
 public:
  Composing(HWND window, NoteView& view) : window_(window), view_(view) {}

  /// Nothing for a message that is not an input method's. May detach the view.
  std::optional<LRESULT> Answer(const Message& message);
  /// Tells the input method where the caret is, so that its lists open there.
  void Place();
  /// Makes the input method forget what is being composed.
  void Drop() const;

 private:
  HWND window_;
  NoteView& view_;
  ViewInput input_{view_};
};

}  // namespace lumenote
