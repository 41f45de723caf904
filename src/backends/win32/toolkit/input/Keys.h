// Converts between the system's keys and the surface's.
#pragma once
#include <optional>
#include <string>

#include "backends/win32/system/System.h"
#include "surface/keys/KeyStroke.h"

namespace lumenote {

/// The key of a WM_KEYDOWN or WM_SYSKEYDOWN that is being handled, with the modifiers that are
/// held; empty for a key that the surface has no name for, such as a lone modifier.
std::optional<KeyStroke> StrokeOf(WPARAM virtualKey);
/// The virtual key to press for it.
WPARAM VirtualKeyOf(const KeyStroke& key);
/// The character that a pressed key queues (the control character of Ctrl and a letter); 0 if none.
wchar_t CharacterOf(const KeyStroke& key);
/// Takes the accent of a dead key that the key being handled cannot join, which the message loop
/// has queued before that key's own character; empty if there is none. `what` is the key message's
/// LPARAM. Handles what other threads have sent, so windows may be gone then.
std::u16string TakeAccent(HWND window, LPARAM what);
/// Drops the character that the message loop has queued for the key that is being handled.
void SwallowCharacter(HWND window);

}  // namespace lumenote
