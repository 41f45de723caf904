// The forms' message boxes as the system's own.
#pragma once
#include "backends/win32/system/System.h"
#include "forms/values/MessageBox.h"

namespace lumenote {

/// Blocks until the user has answered. Escape and the close box mean OK if that is the only button,
/// but do not answer a question. The captions of the buttons are in the system's language. `over`
/// may be null.
MessageBox::Answer ShowMessageBox(const MessageBox& box, HWND over);

}  // namespace lumenote
