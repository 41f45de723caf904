// A key press, independent of the toolkit.
#pragma once
#include <optional>
#include <string_view>

namespace lumenote {

enum class KeyName {
  Character,
  Left,
  Right,
  Up,
  Down,
  Home,
  End,
  PageUp,
  PageDown,
  BackSpace,
  Delete,
  Return,
  Tab,
  Escape,
  Insert,
  Space,
  Function
};

/// `character` is set for `KeyName::Character` (the letter of Ctrl+Z, lower case) and
/// `KeyName::Function` (the number of the function key).
struct KeyStroke {
  KeyName name = KeyName::Character;
  char16_t character = 0;
  bool shift = false;
  bool control = false;
  bool alt = false;
  bool operator==(const KeyStroke&) const = default;
};

/// Whether the key may move the caret, select or copy, but never changes the text.
bool IsNonEditing(const KeyStroke& key);

/// Parses "Delete", "Shift+End", "Ctrl+Z", "Ctrl+Shift+Left"; empty if it names no key.
std::optional<KeyStroke> ParseKey(std::u16string_view name);

}  // namespace lumenote
