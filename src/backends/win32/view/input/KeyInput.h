// The keyboard of a surface's window.
#pragma once
#include <string>

#include "backends/win32/toolkit/Window.h"
#include "forms/controls/edits/ViewCallbacks.h"
#include "view/acts/ViewKeys.h"
#include "view/pane/NoteView.h"

namespace lumenote {

/// What its messages type and do. Any of them may detach the view.
class KeyInput {
 public:
  /// All must outlive this; keys that the view has no use for go to the callbacks.
  KeyInput(HWND window, NoteView& view, const ViewCallbacks& callbacks)
      : window_(window), view_(view), callbacks_(callbacks) {}

  /// Returns whether the message was used.
  bool Handle(const Message& message);

 private:
  bool Press(const Message& message);
  bool UseAccent(const KeyStroke& key, const std::u16string& accent);
  bool Offer(const KeyStroke& key);
  void TypeUnit(char16_t unit);
  void TypeCharacter(char32_t character);

  HWND window_;
  NoteView& view_;
  const ViewCallbacks& callbacks_;
  ViewKeys keys_{view_};
  char16_t highSurrogate_ = 0;  // typed, its other half still to come
};

}  // namespace lumenote
