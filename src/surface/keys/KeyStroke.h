// A key as the user presses it, without a toolkit.
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

/// `character` is meaningful for `KeyName::Character` (the letter of Ctrl+Z, lower case) and
/// `KeyName::Function` (the number of the function key).
struct KeyStroke {
  KeyName name = KeyName::Character;
  char16_t character = 0;
  bool shift = false;
  bool control = false;
  bool alt = false;
  bool operator==(const KeyStroke&) const = default;
};

/// Whether the key moves the caret, selects or copies, but never changes the text.
bool OnlyLooks(const KeyStroke& key);

/// Reads "Delete", "Shift+End", "Ctrl+Z", "Ctrl+Shift+Left"; empty when it is no key's name.
std::optional<KeyStroke> ParseKey(std::u16string_view name);

}  // namespace lumenote
