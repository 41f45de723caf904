// Text of native windows.
#pragma once
#include <string>
#include <string_view>

#include "backends/win32/system/System.h"

namespace lumenote {

/// UTF-16 both; valid as long as `text` is.
inline const wchar_t* Wide(const std::u16string& text) {
  return reinterpret_cast<const wchar_t*>(text.c_str());
}
inline std::u16string_view Utf16(std::wstring_view text) {
  return {reinterpret_cast<const char16_t*>(text.data()), text.size()};
}

inline std::u16string TextOf(HWND window) {
  std::u16string text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, u'\0');
  const int length = GetWindowTextW(window, reinterpret_cast<wchar_t*>(text.data()),
                                    static_cast<int>(text.size()));
  text.resize(static_cast<std::size_t>(length));
  return text;
}

}  // namespace lumenote
