#include "surface/keys/KeyStroke.h"

#include <array>
#include <utility>

#include "base/Characters.h"

namespace lumenote {

namespace {

constexpr std::array<std::pair<std::u16string_view, KeyName>, 15> kNames{{
    {u"Left", KeyName::Left},
    {u"Right", KeyName::Right},
    {u"Up", KeyName::Up},
    {u"Down", KeyName::Down},
    {u"Home", KeyName::Home},
    {u"End", KeyName::End},
    {u"PageUp", KeyName::PageUp},
    {u"PageDown", KeyName::PageDown},
    {u"BackSpace", KeyName::BackSpace},
    {u"Delete", KeyName::Delete},
    {u"Return", KeyName::Return},
    {u"Tab", KeyName::Tab},
    {u"Escape", KeyName::Escape},
    {u"Insert", KeyName::Insert},
    {u"Space", KeyName::Space},
}};
constexpr int kMaxFunctionKeys = 24;

bool TakePrefix(std::u16string_view& text, std::u16string_view prefix) {
  if (!text.starts_with(prefix)) return false;
  text.remove_prefix(prefix.size());
  return true;
}

void TakeModifiers(std::u16string_view& text, KeyStroke& key) {
  for (;;) {
    if (TakePrefix(text, u"Ctrl+"))
      key.control = true;
    else if (TakePrefix(text, u"Shift+"))
      key.shift = true;
    else if (TakePrefix(text, u"Alt+"))
      key.alt = true;
    else
      return;
  }
}

/// The number of "F1" to "F24"; 0 for anything else.
int FunctionNumber(std::u16string_view text) {
  if (text.size() < 2 || text.size() > 3 || text[0] != u'F' || text[1] == u'0') return 0;
  int number = 0;
  for (const char16_t c : text.substr(1)) {
    if (c < u'0' || c > u'9') return 0;
    number = number * 10 + (c - u'0');
  }
  return number <= kMaxFunctionKeys ? number : 0;
}

}  // namespace

bool IsNonEditing(const KeyStroke& key) {
  if (key.name >= KeyName::Left && key.name <= KeyName::PageDown) return true;
  if (!key.control || key.alt) return false;
  return key.name == KeyName::Insert ||
         (key.name == KeyName::Character && (key.character == u'a' || key.character == u'c'));
}

std::optional<KeyStroke> ParseKey(std::u16string_view name) {
  KeyStroke key;
  TakeModifiers(name, key);
  for (const auto& [known, value] : kNames) {
    if (name != known) continue;
    key.name = value;
    return key;
  }
  if (const int number = FunctionNumber(name)) {
    key.name = KeyName::Function;
    key.character = static_cast<char16_t>(number);
    return key;
  }
  if (name.size() != 1) return std::nullopt;
  key.character = ToLower(name[0]);
  return key;
}

}  // namespace lumenote
