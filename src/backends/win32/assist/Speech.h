// What a window of a control or form is called, and what it is.
#pragma once
#include <optional>
#include <string>

#include "backends/win32/toolkit/Window.h"

// After the system's own header.
#include <oleacc.h>

namespace lumenote {

struct Speech {
  std::u16string name;
  LONG role = 0;  // ROLE_SYSTEM_...
};

/// Whether a program asks, by the system's older interface, what a window is.
inline bool AsksForSpeech(const Message& message) {
  return message.id == WM_GETOBJECT && static_cast<LONG>(message.l) == OBJID_CLIENT;
}

/// The answer; all but name and role is what the system says of the window.
LRESULT Speak(HWND window, Speech speech, const Message& question);

}  // namespace lumenote
