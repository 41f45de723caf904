#include "backends/win32/peers/edits/EditKeys.h"

#include "backends/win32/system/NativeText.h"

namespace lumenote {

bool IsEditKey(const KeyStroke& key) {
  if (key.alt) return false;
  switch (key.name) {
    case KeyName::Character:
      return !key.control ||
             std::u16string_view(u"acvxz").find(key.character) != std::u16string_view::npos;
    case KeyName::Return:
    case KeyName::Tab:
    case KeyName::Escape:
    case KeyName::Function:
    case KeyName::Up:
    case KeyName::Down:
    case KeyName::PageUp:
    case KeyName::PageDown:
      return false;
    default:
      return true;
  }
}

Selection SelectedIn(HWND edit) {
  DWORD start = 0;
  DWORD end = 0;
  SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
  return {static_cast<Position>(start), static_cast<Position>(end)};
}

void ShowText(HWND edit, const std::u16string& text) {
  if (TextOf(edit) == text) return;
  SetWindowTextW(edit, Wide(text));
  SendMessageW(edit, EM_SETSEL, text.size(), static_cast<LPARAM>(text.size()));
}

}  // namespace lumenote
