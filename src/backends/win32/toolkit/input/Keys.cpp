#include "backends/win32/toolkit/input/Keys.h"

#include <algorithm>
#include <iterator>

#include "base/Characters.h"

namespace lumenote {
namespace {

struct NamedKey {
  KeyName name;
  WPARAM key;
  wchar_t character = 0;
};

constexpr NamedKey kNamedKeys[] = {
    {KeyName::Left, VK_LEFT},
    {KeyName::Right, VK_RIGHT},
    {KeyName::Up, VK_UP},
    {KeyName::Down, VK_DOWN},
    {KeyName::Home, VK_HOME},
    {KeyName::End, VK_END},
    {KeyName::PageUp, VK_PRIOR},
    {KeyName::PageDown, VK_NEXT},
    {KeyName::BackSpace, VK_BACK, 8},
    {KeyName::Delete, VK_DELETE},
    {KeyName::Return, VK_RETURN, L'\r'},
    {KeyName::Tab, VK_TAB, L'\t'},
    {KeyName::Escape, VK_ESCAPE, 27},
    {KeyName::Insert, VK_INSERT},
    {KeyName::Space, VK_SPACE, L' '},
};

bool IsHeld(int key) { return GetKeyState(key) < 0; }

/// The character of the key itself, whatever is held.
char16_t PlainCharacter(WPARAM virtualKey) {
  constexpr UINT kDead = 0x80000000;
  const UINT mapped = MapVirtualKeyW(static_cast<UINT>(virtualKey), MAPVK_VK_TO_CHAR) & ~kDead;
  return ToLower(static_cast<char16_t>(mapped));
}

}  // namespace

std::optional<KeyStroke> StrokeOf(WPARAM virtualKey) {
  KeyStroke stroke;
  stroke.shift = IsHeld(VK_SHIFT);
  stroke.control = IsHeld(VK_CONTROL);
  stroke.alt = IsHeld(VK_MENU);
  const auto named = std::ranges::find(kNamedKeys, virtualKey, &NamedKey::key);
  if (named != std::end(kNamedKeys)) {
    stroke.name = named->name;
    return stroke;
  }
  if (virtualKey >= VK_F1 && virtualKey <= VK_F24) {
    stroke.name = KeyName::Function;
    stroke.character = static_cast<char16_t>(virtualKey - VK_F1 + 1);
    return stroke;
  }
  const bool digit = virtualKey >= '0' && virtualKey <= '9';  // wherever the layout shifts them
  stroke.character =
      digit && stroke.control ? static_cast<char16_t>(virtualKey) : PlainCharacter(virtualKey);
  if (stroke.character <= u' ') return std::nullopt;
  return stroke;
}

WPARAM VirtualKeyOf(const KeyStroke& key) {
  if (key.name == KeyName::Function) return VK_F1 + key.character - 1u;
  if (key.name != KeyName::Character)
    return std::ranges::find(kNamedKeys, key.name, &NamedKey::name)->key;
  const auto letter = ToUpper(key.character);
  if ((letter >= u'A' && letter <= u'Z') || (letter >= u'0' && letter <= u'9')) return letter;
  return LOBYTE(VkKeyScanW(static_cast<wchar_t>(key.character)));
}

wchar_t CharacterOf(const KeyStroke& key) {
  const bool letter = key.name == KeyName::Character;
  if (letter && key.control && !key.alt)
    return key.character >= u'a' && key.character <= u'z' ? key.character - u'a' + 1 : 0;
  if (letter) return static_cast<wchar_t>(key.shift ? ToUpper(key.character) : key.character);
  const auto named = std::ranges::find(kNamedKeys, key.name, &NamedKey::name);
  return named == std::end(kNamedKeys) ? L'\0' : named->character;
}

std::u16string TakeAccent(HWND window, LPARAM what) {
  constexpr UINT kLook = PM_NOYIELD;
  constexpr WPARAM kDelete = 0x7F;  // Ctrl+BackSpace
  if (IsHeld(VK_CONTROL) && !IsHeld(VK_MENU)) return {};
  MSG queued;
  std::u16string accent;
  while (PeekMessageW(&queued, window, WM_CHAR, WM_CHAR, kLook) && queued.lParam == what &&
         queued.wParam > L' ' && queued.wParam != kDelete) {
    PeekMessageW(&queued, window, WM_CHAR, WM_CHAR, kLook | PM_REMOVE);
    accent += static_cast<char16_t>(queued.wParam);
  }
  return accent;
}

void SwallowCharacter(HWND window) {
  MSG queued;
  for (const UINT first : {WM_CHAR, WM_SYSCHAR})
    PeekMessageW(&queued, window, first, first + 1, PM_REMOVE | PM_NOYIELD);
}

}  // namespace lumenote
