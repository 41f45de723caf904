// What the keys do in a view.
#pragma once
#include <optional>
#include <string_view>

#include "surface/keys/KeyStroke.h"

namespace lumenote {

class NoteView;

/// Text and editing keys go to the surface; a few are the view's own; the rest is left to the
/// window.
class ViewKeys {
 public:
  explicit ViewKeys(NoteView& view) : view_(view) {}

  /// Whether the key did something; the view may be detached then. `key` is empty for one that has
  /// no name here, `text` for one that types nothing.
  bool Press(const std::optional<KeyStroke>& key, std::u16string_view text);
  /// As the right button does at the caret.
  void OpenMenu();

 private:
  bool Edit(const std::optional<KeyStroke>& key, std::u16string_view text);
  bool Zoom(const KeyStroke& key);

  NoteView& view_;
};

}  // namespace lumenote
