// A user at the keyboard and mouse of the system, and a host's plain message loop.
#pragma once
#include <functional>
#include <initializer_list>
#include <string>

#include "Meanwhile.h"
#include "backends/win32/system/NativeText.h"

namespace lumenote {

/// Dispatches what is there, as a host does that knows nothing of dialogs.
inline void Pump() {
  MSG message;
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

/// Presses a key, or lets go of it.
inline void Hold(WORD key, bool down) {
  INPUT input = {};
  input.type = INPUT_KEYBOARD;
  input.ki.wVk = key;
  input.ki.dwFlags = down ? 0 : KEYEVENTF_KEYUP;
  SendInput(1, &input, sizeof input);
}

/// Presses keys together and releases them; whoever reads messages next gets them.
inline void Press(std::initializer_list<WORD> keys) {
  for (const WORD key : keys) Hold(key, true);
  for (auto key = keys.end(); key != keys.begin();) Hold(*--key, false);
}

/// Puts the mouse on a point of the screen.
inline void MoveMouse(POINTL at) { SetCursorPos(at.x, at.y); }

/// Presses a button, releases it or turns the wheel, where the mouse is.
inline void UseMouse(DWORD act, int turned = 0) {
  INPUT input = {};
  input.type = INPUT_MOUSE;
  input.mi.dwFlags = act;
  input.mi.mouseData = static_cast<DWORD>(turned);
  SendInput(1, &input, sizeof input);
}

/// The visible window of this thread with that title; null for none.
inline HWND WindowTitled(const std::u16string& title) {
  struct Search {
    static BOOL CALLBACK Look(HWND window, LPARAM l) {
      auto& wanted = *reinterpret_cast<Search*>(l);
      if (IsWindowVisible(window) && TextOf(window) == wanted.title) wanted.found = window;
      return wanted.found == nullptr;
    }
    const std::u16string& title;
    HWND found = nullptr;
  } search{title};
  EnumThreadWindows(GetCurrentThreadId(), &Search::Look, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

/// Clicks a button of the box with that title once it is there.
inline std::function<bool()> Answers(const std::u16string& title, int button) {
  return [=] {
    const HWND box = WindowTitled(title);
    const HWND shown = box ? GetDlgItem(box, button) : nullptr;
    if (shown) PostMessageW(shown, BM_CLICK, 0, 0);
    return shown != nullptr;
  };
}

}  // namespace lumenote
