#include "backends/win32/view/input/KeyInput.h"

#include <utility>

#include "backends/win32/toolkit/input/Keys.h"
#include "base/Strings.h"

namespace lumenote {

namespace {

/// A key whose text comes as a WM_CHAR: a character, also one made with AltGr.
bool Types(const KeyStroke& key) {
  const bool text = key.name == KeyName::Character || key.name == KeyName::Space;
  return text && key.control == key.alt;
}

}  // namespace

bool KeyInput::Handle(const Message& message) {
  switch (message.id) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
      return Press(message);
    case WM_CHAR:
      TypeUnit(static_cast<char16_t>(message.w));
      return true;
    case WM_UNICHAR:
      TypeCharacter(static_cast<char32_t>(message.w));
      return true;
  }
  return false;
}

bool KeyInput::Press(const Message& message) {
  if (message.w == VK_APPS) {
    keys_.OpenMenu();
    return true;
  }
  const std::optional<KeyStroke> key = StrokeOf(message.w);
  if (!key || Types(*key)) return false;
  const std::u16string accent = TakeAccent(window_, message.l);
  if (!view_.IsAttached()) return true;
  const bool used = UseAccent(*key, accent) || keys_.Press(key, {}) || Offer(*key);
  if (used) SwallowCharacter(window_);
  return used;
}

// The accent of a dead key stands by itself, unless it is taken back.
bool KeyInput::UseAccent(const KeyStroke& key, const std::u16string& accent) {
  if (accent.empty()) return false;
  if (key.name != KeyName::BackSpace) keys_.Press(std::nullopt, accent);
  return key.name == KeyName::BackSpace || !view_.IsAttached();
}

bool KeyInput::Offer(const KeyStroke& key) {
  return view_.IsAttached() && callbacks_.key && callbacks_.key(key);
}

void KeyInput::TypeCharacter(char32_t character) {
  constexpr char32_t kLast = 0x10FFFF;
  constexpr char32_t kFirstPair = 0x10000;
  if (character < kFirstPair) return TypeUnit(static_cast<char16_t>(character));
  if (character > kLast) return;
  TypeUnit(static_cast<char16_t>(0xD800 + ((character - kFirstPair) >> 10)));
  TypeUnit(static_cast<char16_t>(0xDC00 + (character & 0x3FF)));
}

// The halves of a surrogate pair come one by one; one without the other is none of the text.
void KeyInput::TypeUnit(char16_t unit) {
  const char16_t high = std::exchange(highSurrogate_, IsHighSurrogate(unit) ? unit : u'\0');
  constexpr char16_t kDelete = 0x7F;
  if (unit < u' ' || unit == kDelete || IsHighSurrogate(unit)) return;
  if (!IsLowSurrogate(unit))
    keys_.Press(std::nullopt, std::u16string{unit});
  else if (high)
    keys_.Press(std::nullopt, std::u16string{high, unit});
}

}  // namespace lumenote
