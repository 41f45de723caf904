// A user at an editor's window, who may be in another program than the editor.
#pragma once
#include <string>
#include <string_view>
#include <utility>

#include "backends/win32/system/System.h"

namespace lumenote {

/// The visible editor with a title; null for none.
inline HWND FindEditor(const wchar_t* title) {
  HWND found = nullptr;
  do found = FindWindowExW(nullptr, found, L"LumenoteForm", title);
  while (found && !IsWindowVisible(found));
  return found;
}

/// The visible child of a class; null for none.
inline HWND FindChild(HWND window, const wchar_t* className) {
  std::pair<const wchar_t*, HWND> sought{className, nullptr};
  const auto look = [](HWND child, LPARAM about) -> BOOL {
    auto& [name, found] = *reinterpret_cast<std::pair<const wchar_t*, HWND>*>(about);
    wchar_t own[64] = L"";
    GetClassNameW(child, own, 64);
    if (std::wstring_view(own) == name && IsWindowVisible(child)) found = child;
    return !found;
  };
  EnumChildWindows(window, look, reinterpret_cast<LPARAM>(&sought));
  return sought.second;
}

/// The visible message box over an editor; null for none.
inline HWND BoxOver(HWND editor) {
  HWND box = nullptr;
  do box = FindWindowExW(nullptr, box, L"#32770", nullptr);
  while (box && (GetWindow(box, GW_OWNER) != editor || !IsWindowVisible(box)));
  return box;
}

inline void TypeInto(HWND editor, std::wstring_view text) {
  const HWND surface = FindChild(editor, L"LumenoteSurface");
  for (const wchar_t character : text) PostMessageW(surface, WM_CHAR, WPARAM(character), 1);
}

/// Types a text, closes the editor and says yes to whatever it asks.
class EditorUser {
 public:
  EditorUser(std::wstring title, std::wstring text)
      : title_(std::move(title)), text_(std::move(text)) {}

  /// Does what comes next; true when the editor has gone.
  bool Step() {
    const HWND editor = FindEditor(title_.c_str());
    if (!editor) return closing_;
    if (const HWND box = BoxOver(editor))
      PostMessageW(box, WM_COMMAND, WPARAM(GetDlgItem(box, IDYES) ? IDYES : IDOK), 0);
    else if (!std::exchange(typed_, true))
      TypeInto(editor, text_);
    else if (!std::exchange(closing_, true))
      PostMessageW(editor, WM_CLOSE, 0, 0);
    return false;
  }

 private:
  std::wstring title_, text_;
  bool typed_ = false;
  bool closing_ = false;
};

}  // namespace lumenote
