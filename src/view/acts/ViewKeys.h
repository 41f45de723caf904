// Keyboard input of a view.
#pragma once
#include <optional>
#include <string_view>

#include "surface/keys/KeyStroke.h"

namespace lumenote {

class NoteView;

/// Text and editing keys go to the surface; the view handles a few itself; the window gets the
/// rest.
class ViewKeys {
 public:
  explicit ViewKeys(NoteView& view) : view_(view) {}

  /// Returns whether the key was handled; may detach the view. `key` is empty for a key without a
  /// name here, `text` for one that types nothing.
  bool Press(const std::optional<KeyStroke>& key, std::u16string_view text);
  /// Whether an editor uses such a key, so that no shortcut of the host's should take it.
  bool IsForEditing(const KeyStroke& key) const;
  /// Acts like the right button at the caret.
  void OpenMenu();

 private:
  bool Edit(const std::optional<KeyStroke>& key, std::u16string_view text);
  bool Zoom(const KeyStroke& key);
  bool OpenLink();
  bool IsForSpelling(const KeyStroke& key) const;

  NoteView& view_;
};

}  // namespace lumenote
